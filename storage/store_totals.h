// What the table of stores comes to: their capacity, what is free at the start of the year, and the rain that
// falls into them. A store of an unknown shape adds nothing.
#pragma once

#include <optional>
#include <string>

#include "core/explanation.h"
#include "core/text_grid.h"
#include "rules/months.h"
#include "storage/storage_balance.h"
#include "storage/store_capacity.h"

namespace kel {

namespace store_column {
enum : int { name, shape, depth, length, width, diameter, angle, percent, area };
}

/// Capacity of the store of a row, cubic metres; nothing without a shape.
std::optional<float> capacity_of_row(const text_grid& stores, int row, explanation* why = nullptr);
/// Drainage area of the store of a row as the boxes put it in from its sizes; nothing without a shape.
std::optional<std::string> area_of_row(const text_grid& stores, int row, explanation* why = nullptr);

/// Rain (mean, mm) that falls into the store of a row, cubic metres.
monthly_values store_rain(const text_grid& stores, int row, const monthly_values& rain_mm);
/// The same into all stores in one month, January as 0.
float rain_into_stores(const text_grid& stores, const monthly_values& rain_mm, std::size_t month,
                       explanation* why = nullptr);

/// Capacity and free volume of all stores and the rain (mean, mm) that falls into them.
store_totals compute_store_totals(const text_grid& stores, const monthly_values& rain_mm,
                                  explanation* why = nullptr);

}  // namespace kel
