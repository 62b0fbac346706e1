// The rules of one application of inorganic fertiliser over plain values: its nitrogen, the limits of the
// boxes it is typed into, and the days that the calendar takes.
#pragma once

#include <optional>
#include <string_view>

#include "core/dates.h"
#include "core/explanation.h"

namespace kel {

/// kg N/ha of `amount` kg/ha of a fertiliser with `n_content` % N, to 1 decimal, ties to the even digit.
float total_n_kg_per_ha(float amount_kg_per_ha, float n_content_percent, explanation* why = nullptr);

/// What the content box (%) is set to after a change of its own text, 0 to 100; nothing: it stays.
std::optional<std::string_view> content_after_content(std::string_view content);
/// What the content box is set to after a change of the quantity box: a quantity below 0 sets the content.
std::optional<std::string_view> content_after_amount(std::string_view amount);

/// The days that the calendar takes, both included.
struct calendar_window {
    date first;
    date last;
};
/// From the start of the assessment to the date one year on; from 29 February to 28 February.
calendar_window calendar_window_of(date kel_year_start);

}  // namespace kel
