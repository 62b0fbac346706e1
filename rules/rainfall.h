// Rain that falls into the stores: the mean rainfall of the farm's town on the area that drains into a store.
#pragma once

#include <optional>
#include <string_view>

#include "core/assessment_store.h"
#include "rules/months.h"

namespace kel {

class explanation;

/// Mean rainfall of the town in mm a month, from the climate tables; nothing for a town without figures.
/// Throws file_error.
std::optional<monthly_values> monthly_rain(const database& climate, std::string_view town);

/// The same of the climate table's first row; nothing from an empty table.
std::optional<monthly_values> first_monthly_rain(const database& climate);

/// Cubic metres of the rain (mm) on the area.
float rain_volume(float rain_mm, float area_sq_m, explanation* why = nullptr);

}  // namespace kel
