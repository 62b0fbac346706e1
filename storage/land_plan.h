// The plan by field: what area can take slurry in each month (land table), and what rate is to be spread
// there (spreading table). Both hold the same fields in the same rows; an empty row and a row of totals
// follow. Rows count from 0 without the heading.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/assessment_store.h"
#include "core/explanation.h"
#include "core/farm_fields.h"
#include "core/grid_rows.h"
#include "core/text_grid.h"
#include "rules/closed_periods.h"
#include "rules/months.h"

namespace kel {

namespace plan_column {
enum : int { field, soil, crop, available, january, december = january + 11, area_in_grass };
}
namespace spreading_column {
enum : int { field, january, december = january + 11 };
}

struct land_plan {
    text_grid land;
    text_grid spreading;

    /// Rows that hold fields.
    int fields() const { return land.row_count() - 2; }
    bool operator==(const land_plan&) const = default;
};

/// Without a field.
land_plan empty_land_plan();

/// [Land], without the rows of fields that the profile lacks. An empty month takes the available area.
/// `unknown` is what is told of those.
land_plan load_land_plan(
    const database& db, const std::vector<farm_field>& fields, load_messages& told,
    const std::function<message(const std::string&)>& unknown = module_messages::field_does_not_exist);
/// Writes what is entered here and not empty into the fields' rows of [Land]. Call it within a
/// save_transaction.
void save_land_plan(const database& db, const land_plan& plan);
/// The same of a plan taken over from another assessment, whose soil and areas came with it. A field that
/// [Land] lacks gets its row there.
void save_imported_plan(const database& db, const land_plan& plan);

/// What a field's use makes of a month (1 to 12) in the land table: closed, or the land that the crops leave.
/// Land under a crop is free only after the month of harvest (1 to 12); grassland is free all year.
std::string month_of_use(const text_grid& land, int row, const crop_pair& use, int harvest_month, int month,
                         explanation* why = nullptr);
/// Sets a field's use with its closed months in both tables and the land of the others.
void set_field_use(land_plan& plan, int row, const crop_pair& use, int harvest_month);

/// A month's sum over the fields of either table: hectares, or the rates as they stand.
std::string column_total_text(const text_grid& grid, int column, std::string_view unit,
                              explanation* why = nullptr);
/// Rows of totals of both tables.
void set_plan_totals(land_plan& plan);
/// Cubic metres spread on the field of a row in a month (1 to 12): rate times area.
float volume_spread(const land_plan& plan, int row, int month, explanation* why = nullptr);
/// Cubic metres spread in each month: rate times area over all fields. A closed month counts 0.
monthly_values monthly_spreading(const land_plan& plan);

}  // namespace kel
