// Slurry that the housed stock produces, in cubic metres a month. Source: the table of slurry volumes in the
// guidelines for farmers in the zones.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "core/explanation.h"

namespace kel {

struct slurry_unit {
    std::string_view name;
    std::string_view volume;  // cubic metres per stock unit and month, as the text shown and stored
};

/// The stock units in the order in which they are listed.
std::span<const slurry_unit> slurry_units();
/// Nothing for any text but the exact name of a stock unit.
std::optional<std::string_view> slurry_volume(std::string_view unit);

/// Cubic metres a month of one line as its cell text: volume per unit times the percentage collected times
/// the number of units; "0" if one of the texts is empty.
std::string line_volume(std::string_view volume, std::string_view percent, std::string_view number,
                        explanation* why = nullptr);

/// Cells of the months in which a line's slurry goes to the stores, or does not.
inline constexpr std::string_view on_slurry_system = "Slurry";
inline constexpr std::string_view not_on_slurry_system = "Not Slurry";

}  // namespace kel
