// Why a quantity of waste and its release are what they are: the rules that worked them out, asked to tell
// it.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "composting/composting_rules.h"
#include "core/explanation.h"
#include "core/named_result.h"

namespace kel {

/// What the calculator asks for: residue and numbers as typed, the waste as it is stored.
struct composting_inputs {
    std::string residue;
    std::string soil_n;
    std::string waste{pms_waste};
    std::string waste_n;
    bool operator==(const composting_inputs&) const = default;
};

// The labels of the result.
namespace composting_label {
inline constexpr std::string_view rate = "lblStraw_rate";
inline constexpr std::string_view release = "lblStraw_release";
inline constexpr std::string_view note = "lblStraw_note";
}  // namespace composting_label

/// All of them.
std::span<const named_result> composting_results();

/// Quantity or release as the table of recorded calculations has them, plain numbers.
explanation why_recorded(const composting_inputs& inputs, composting_figure figure);
/// A label with its unit or its sentence; nothing for another name.
std::optional<explanation> why_shown(std::string_view label, const composting_inputs& inputs);

}  // namespace kel
