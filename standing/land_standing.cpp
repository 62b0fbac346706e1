#include <set>

#include "land/land_grids.h"
#include "land/spreading_limits.h"
#include "standing/standing_messages.h"
#include "standing/step_standings.h"

namespace kel {

namespace text = standing_messages;

namespace {

// Fields of the profile without a row, or with one that has neither grass nor other land.
std::vector<std::string> fields_without_land(const farm_year& year, const text_grid& land) {
    std::set<std::string_view> entered;
    for (int row = 0; row < land.data_row_count(); ++row)
        if (land.number(row, land_column::grass) > 0 || land.number(row, land_column::not_in_grass) > 0)
            entered.insert(land.cell(row, land_column::field));
    std::vector<std::string> names;
    for (const farm_field& field : year.fields)
        if (!entered.contains(field.name)) names.push_back(field.name);
    return names;
}

}  // namespace

step_standing land_standing(const farm_year& year, farm_standing& farm) {
    load_messages told;
    float constant = 0;
    const text_grid land = load_land(year.current.file, year.fields, told);
    const text_grid animals = load_stock(year.current.file, constant);
    const auto without_land = fields_without_land(year, land);
    if (land.data_row_count() == 0 || without_land.size() == year.fields.size()) {
        add_missing(farm, farm_step::land, std::string(text::no_land));
        return not_done(farm_step::land, text::no_land, text::enter_land);
    }
    if (!without_land.empty()) add_missing(farm, farm_step::land, text::land_missing(without_land));
    if (animals.data_row_count() == 0) {
        add_missing(farm, farm_step::land, std::string(text::no_stock));
        return {farm_step::land, false, severity::attention, std::string(text::no_stock),
                std::string(text::enter_stock)};
    }
    const spreading_result result = compare_with_limits(sums_of(land, animals));
    step_standing standing{.step = farm_step::land, .done = without_land.empty(), .worst = severity::fine};
    const bool too_little = result.balance == land_balance::too_little;
    standing.verdict = too_little ? text::too_little_land(result.production, result.farm_limit)
                                  : text::enough_land(result.production, result.farm_limit);
    if (!without_land.empty()) {
        standing.worst = severity::attention;
        standing.next = text::complete_land(without_land);
    } else if (result.field_limits_lower) {
        standing.next = text::field_limits_lower;
    }
    if (too_little) {
        standing.worst = severity::wrong;
        standing.next = text::arrange_for_excess;
    }
    return standing;
}

}  // namespace kel
