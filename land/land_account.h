// Why the module's cells and results are what they are: the rules that worked them out, asked to tell it.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "core/explanation.h"
#include "core/named_result.h"
#include "core/text_grid.h"

namespace kel {

/// A cell of the land table; nothing for the areas and names that a person enters, but for the deductions
/// what room there is for them. Soil and size of a field are read from `assess_file`. Throws file_error.
std::optional<explanation> why_land_cell(const text_grid& land, int row, int column,
                                         const std::string& assess_file);
/// A cell of the stock table.
std::optional<explanation> why_stock_cell(const text_grid& animals, int row, int column);

// The labels of the result panel, from the top.
namespace land_label {
inline constexpr std::string_view production = "lblLand_result1";
inline constexpr std::string_view farm_limit = "lblLand_result2";
inline constexpr std::string_view field_limits = "lblLand_result3";
inline constexpr std::string_view other_land = "lblLand_result4";
inline constexpr std::string_view grassland = "lblLand_result5";
inline constexpr std::string_view comment = "lblLand_comment";
inline constexpr std::string_view note = "lblLand_note";
}  // namespace land_label

/// All of them.
std::span<const named_result> land_results();
/// One of them; nothing for another name.
std::optional<explanation> why_land_result(std::string_view label, const text_grid& land,
                                           const text_grid& animals);

/// What the profile says of a field.
struct profile_texts {
    std::string soil;
    std::string size;
};
/// Nothing for a field that it lacks. Throws file_error.
std::optional<profile_texts> read_profile_texts(const std::string& assess_file, const std::string& field);

}  // namespace kel
