#include "storage/plan_account.h"

#include <algorithm>
#include <string>
#include <utility>

#include "core/dates.h"
#include "core/numbers.h"
#include "storage/production_grid.h"
#include "storage/slurry_production.h"
#include "storage/store_totals.h"

namespace kel {

namespace {

std::string named_month(int month) {
    return std::string(month_name(month));
}

// Of the row of inputs or of the row of totals; before the months it has its name only.
explanation why_row_name(const std::string& shown, std::string rule) {
    explanation why("What this row holds");
    why.rule(std::move(rule));
    why.set_result(shown, "");
    return why;
}

explanation why_input(const water_sources& water, std::size_t month) {
    explanation why("Rain and dirty water in " + named_month(static_cast<int>(month) + 1));
    const float rain = rain_into_stores(water.stores, water.rain_mm, month, &why);
    const float input = rain + dirty_water_in(water.dirty_water, month, &why);
    why.step("Together: " + default_text(input) + " cubic m");
    std::string shown = input_text(input, &why);
    why.set_result(std::move(shown), "cubic m");
    return why;
}

explanation why_line(const text_grid& production, int row, int column) {
    const std::string& unit = production.cell(row, production_column::stock);
    const bool of_unit = column == production_column::unit_volume;
    explanation why((of_unit ? "Slurry of one unit: " : "Slurry of the line: ") + unit);
    std::string shown =
        of_unit ? unit_volume_text(production, row, &why) : total_volume_text(production, row, &why);
    why.set_result(std::move(shown), "cubic m a month");
    return why;
}

// The month of harvest is not kept. It is the one that most months of the field agree with, since a person
// may have entered others.
int harvest_month_of(const text_grid& land, int row, const crop_pair& use) {
    int best = 0;
    int most = -1;
    for (int harvest = 0; harvest <= months_in_year; ++harvest) {
        int agree = 0;
        for (int month = 1; month <= months_in_year; ++month)
            if (land.cell(row, plan_column::january + month - 1) ==
                month_of_use(land, row, use, harvest, month))
                ++agree;
        if (agree > most) best = harvest;
        most = std::max(most, agree);
    }
    return best;
}

// A month follows from the field's use, or from the available area without one, unless a person has entered
// another figure.
explanation why_month(const land_plan& plan, int row, int month) {
    const text_grid& land = plan.land;
    const std::string& cell = land.cell(row, plan_column::january + month - 1);
    explanation why("Land of " + land.cell(row, plan_column::field) + " in " + named_month(month));
    const auto use = split_crop_pair(land.cell(row, plan_column::crop));
    const int harvest = use ? harvest_month_of(land, row, *use) : 0;
    const std::string by_use =
        use ? month_of_use(land, row, *use, harvest, month) : land.cell(row, plan_column::available);
    if (cell != by_use && cell != closed_month) {
        why.set_follows("Entered here: " + cell + " ha of " + land.cell(row, plan_column::available) +
                        " ha available");
        return why;
    }
    if (use)
        month_of_use(land, row, *use, harvest, month, &why);
    else
        why.rule("The use of the field is not entered yet, so that all its available area counts as free.");
    why.set_result(by_use, by_use == closed_month ? "" : "ha");
    return why;
}

explanation why_use(const land_plan& plan, int row) {
    const text_grid& land = plan.land;
    explanation why("What the use of " + land.cell(row, plan_column::field) + " closes");
    const auto use = split_crop_pair(land.cell(row, plan_column::crop));
    if (!use) {
        why.set_missing("The use of the field is not entered yet; no month is closed until it is.");
        return why;
    }
    const auto months = closed_months(land.cell(row, plan_column::soil), use->second, &why);
    std::string closed;
    for (const int month : months)
        closed += (closed.empty() ? "" : ", ") + named_month(month);
    why.set_follows(closed.empty() ? "No month is closed to slurry" : "Closed to slurry: " + closed);
    return why;
}

// What Step 1 has saved; this page changes none of it.
explanation why_taken_over(const text_grid& land, int row, int column) {
    const bool area = column == plan_column::available;
    explanation why((area ? "Available area of " : "Field and soil of ") +
                    land.cell(row, plan_column::field));
    why.rule(area ? "The available area is the one that Step 1 has worked out and saved."
                  : "Fields and soils are those that Step 1 has taken from the farm profile and saved.");
    why.set_result(land.cell(row, column), area ? "ha" : "");
    return why;
}

explanation why_rate(const land_plan& plan, int row, int month) {
    const std::string& field = plan.land.cell(row, plan_column::field);
    explanation why("Slurry spread on " + field + " in " + named_month(month));
    why.rule("The rate is entered here, or taken from the slurries of Step 3 by Get Slurry Data.");
    const float volume = volume_spread(plan, row, month, &why);
    why.set_follows(default_text(volume) + " cubic m leave the stores for this field in " +
                    named_month(month));
    return why;
}

explanation why_total(const text_grid& grid, int column, int month, std::string_view unit) {
    explanation why("Total of " + named_month(month));
    std::string shown = column_total_text(grid, column, unit, &why);
    why.set_result(std::move(shown), unit);
    return why;
}

}  // namespace

std::optional<explanation> why_production(const text_grid& production, int row, int column,
                                          const water_sources& water) {
    using namespace production_column;
    const bool totals = row == production_totals_row(production);
    if (row == inputs_row || totals) {
        const std::string& shown = production.cell(row, column);
        if (column < total_volume) return std::nullopt;
        if (column == total_volume)
            return why_row_name(shown,
                                totals ? "All that flows into the stores, month by month."
                                       : "Rain that falls into the stores and dirty water, month by month.");
        if (!totals) return why_input(water, static_cast<std::size_t>(column - january));
        explanation why("Inputs to the stores in " + named_month(column - january + 1));
        std::string total = production_total_text(production, column, &why);
        why.set_result(std::move(total), "cubic m");
        return why;
    }
    if (column != unit_volume && column != total_volume) return std::nullopt;
    if (row != empty_stock_row(production)) return why_line(production, row, column);
    explanation why("Slurry of the line");
    why.set_missing("No stock unit is entered in this line yet.");
    return why;
}

std::optional<explanation> why_plan_land(const land_plan& plan, int row, int column) {
    const int month = column - plan_column::january + 1;
    const bool of_month = month >= 1 && month <= months_in_year;
    if (row == plan.land.row_count() - 1) {
        if (of_month) return why_total(plan.land, column, month, "ha");
        if (column == plan_column::available)
            return why_row_name(plan.land.cell(row, column), "The free land of all fields, month by month.");
    }
    if (row >= plan.fields()) return std::nullopt;
    if (of_month) return why_month(plan, row, month);
    if (column == plan_column::crop) return why_use(plan, row);
    if (column > plan_column::december) return std::nullopt;
    return why_taken_over(plan.land, row, column);
}

std::optional<explanation> why_spreading(const land_plan& plan, int row, int column) {
    const int month = column - spreading_column::january + 1;
    const std::string& cell = plan.spreading.cell(row, column);
    if (row == plan.spreading.row_count() - 1) {
        if (column != spreading_column::field) return why_total(plan.spreading, column, month, "cubic m/ha");
        return why_row_name(cell, "The rates of all fields, month by month.");
    }
    if (row >= plan.fields()) return std::nullopt;
    if (column == spreading_column::field) return why_taken_over(plan.land, row, plan_column::field);
    return cell == closed_month ? why_month(plan, row, month) : why_rate(plan, row, month);
}

}  // namespace kel
