// The two rules of closed periods, which are never merged. Slurries and manures follow months: a field's soil
// and second crop close whole months, settled when the field's use is entered. Inorganic nitrogen follows the
// calendar: zone and second crop close days, whatever the soil.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "core/dates.h"
#include "core/explanation.h"

namespace kel {

/// A field's use: crop types as stored in [Land].Crop, "Grass / Other".
struct crop_pair {
    std::string first;
    std::string second;
    bool operator==(const crop_pair&) const = default;
};

std::string compose_crop_pair(std::string_view first, std::string_view second);
/// Cut at the first slash and its blanks; nothing for a text without one, as of a field not assessed.
std::optional<crop_pair> split_crop_pair(std::string_view text);

/// A crop type as it is offered and as it is stored.
struct field_use {
    std::string_view shown;
    std::string_view stored;
};
/// The choices of both crop lists, in their order.
std::span<const field_use> field_uses();
/// Nothing for a text that is not offered, such as an empty choice.
std::optional<std::string_view> stored_crop_type(std::string_view shown);
std::optional<std::string_view> shown_crop_type(std::string_view stored);

/// Written into the month cells of a closed month.
inline constexpr std::string_view closed_month = "Closed";

/// Whether months close on this soil at all.
bool sensitive_soil(std::string_view soil);

/// Months, 1 to 12, closed to slurries and manures by soil and stored second crop type. None on any other
/// soil.
std::span<const int> closed_months(std::string_view soil, std::string_view second_crop,
                                   explanation* why = nullptr);

/// Whether the day is closed to inorganic nitrogen: up to and including 15 February (20 February in the Moray
/// zone) and from 1 September (15 September before grass) of the base year, the year in which the KEL year
/// ends.
bool closed_by_calendar(date day, int base_year, std::string_view zone, std::string_view second_crop,
                        explanation* why = nullptr);

/// Whether a is on or after b, by year, then month, then day.
bool date_on_or_after(date a, date b);

}  // namespace kel
