// Why the cells of the three tables of Step 2's last page are what they are: the rules that worked them out,
// asked to tell it.
#pragma once

#include <optional>

#include "core/explanation.h"
#include "storage/dirty_water.h"
#include "storage/land_plan.h"

namespace kel {

/// What flows into the stores from rain and dirty water.
struct water_sources {
    const text_grid& stores;
    const monthly_values& rain_mm;
    const dirty_water_answers& dirty_water;
};

/// A cell of the production table; nothing for what a person enters.
std::optional<explanation> why_production(const text_grid& production, int row, int column,
                                          const water_sources& water);
/// A cell of the land table. Its months follow from the field's use, as long as nothing else is entered.
std::optional<explanation> why_plan_land(const land_plan& plan, int row, int column);
/// A cell of the spreading table: a closed month, the totals, and what a rate comes to.
std::optional<explanation> why_spreading(const land_plan& plan, int row, int column);

}  // namespace kel
