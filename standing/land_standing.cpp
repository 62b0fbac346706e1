// Step 1: manure production against the land that may take it, as Calculate compares them.
#include <set>

#include "land/land_grids.h"
#include "standing/standing_messages.h"
#include "standing/step_standings.h"

namespace kel {

namespace text = standing_messages;

namespace {

// A row that has neither grass nor other land is a field not entered yet.
std::vector<std::string> fields_without_land(const farm_year& year, const text_grid& land) {
    std::set<std::string_view> entered;
    for (int row = 0; row < land.data_row_count(); ++row)
        if (land.number(row, land_column::grass) > 0 || land.number(row, land_column::not_in_grass) > 0)
            entered.insert(land.cell(row, land_column::field));
    return fields_where(year.fields, [&](const farm_field& field) { return !entered.contains(field.name); });
}

step_standing compared(const spreading_result& result) {
    step_standing standing{farm_step::land, true, severity::fine};
    if (result.balance == land_balance::too_little) {
        standing.worst = severity::wrong;
        standing.verdict = text::too_little_land(result.production, result.farm_limit);
        standing.next = text::arrange_for_excess;
        return standing;
    }
    standing.verdict = text::enough_land(result.production, result.farm_limit);
    if (result.field_limits_lower) standing.next = text::field_limits_lower;
    return standing;
}

}  // namespace

step_standing land_standing(const farm_year& year, farm_standing& farm) {
    load_messages told;
    float constant = 0;
    const text_grid land = load_land(year.current.file, year.fields, told);
    const text_grid animals = load_stock(year.current.file, constant);
    const auto without_land = fields_without_land(year, land);
    const bool rows_left_out = add_told(farm, farm_step::land, told);
    if (without_land.size() == year.fields.size()) {
        add_missing(farm, farm_step::land, text::no_land);
        return not_done(farm_step::land, text::no_land, text::enter_land);
    }
    if (!without_land.empty()) add_missing(farm, farm_step::land, text::land_missing(without_land));
    if (animals.data_row_count() == 0) {
        add_missing(farm, farm_step::land, text::no_stock);
        return incomplete(farm_step::land, text::no_stock, text::enter_stock);
    }
    step_standing standing = compared(compare_with_limits(sums_of(land, animals)));
    if (rows_left_out) raise(standing, severity::attention);
    if (!without_land.empty()) {
        standing.done = false;
        standing.next = text::complete_land(without_land);
        raise(standing, severity::attention);
    }
    return standing;
}

}  // namespace kel
