// Why the stores hold what they hold and stand where they stand: the rules that worked it out, asked to tell
// it.
#pragma once

#include <optional>
#include <span>
#include <string>

#include "core/explanation.h"
#include "core/named_result.h"
#include "core/text_grid.h"
#include "storage/land_plan.h"
#include "storage/storage_balance.h"

namespace kel {

/// What follows from a cell of the table of stores: what the store holds, the area that drains into it, the
/// level at which it starts. `previous_percent` is that of last year's assessment.
std::optional<explanation> why_store(const text_grid& stores, int row, int column,
                                     const std::optional<std::string>& previous_percent);

/// What can be asked for outside the tables: the capacity, the warning, then the level of each month.
std::span<const named_result> storage_results();
inline constexpr std::size_t capacity_result = 0;
inline constexpr std::size_t warning_result = 1;
inline constexpr std::size_t january_result = 2;

/// Capacity of all stores, cubic metres.
explanation why_capacity(const text_grid& stores, const monthly_values& rain_mm);

/// What the balance is drawn from.
struct balance_sources {
    const store_totals& stores;
    const text_grid& production;
    const land_plan& plan;
};
/// The level at the end of a month, January as 0, in percent as its default text.
explanation why_level(const balance_sources& sources, std::size_t month);
explanation why_warning(const balance_sources& sources);

}  // namespace kel
