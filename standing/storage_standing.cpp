// Step 2: how full the stores get, as its third page works it out on the way through the first two, and which
// fields have no use entered, so that nobody knows when they are closed.
#include <algorithm>

#include "core/numbers.h"
#include "rules/closed_periods.h"
#include "standing/standing_messages.h"
#include "standing/step_standings.h"
#include "storage/dirty_water_page.h"
#include "storage/plan_page.h"
#include "storage/stores_page.h"

namespace kel {

namespace text = standing_messages;

namespace {

// What the pages of the step hold.
struct stored_pages {
    std::optional<dirty_water_answers> water;
    text_grid stores;
    text_grid production;
    land_plan plan;
};

stored_pages read_pages(const farm_year& year, load_messages& told) {
    const database& file = year.current.file;
    std::optional<std::string> percent_full;
    if (year.last_year) percent_full = get_previous_percent_full(year.last_year->file);
    return {read_dirty_water(file), load_stores(file, percent_full), load_production(file),
            load_land_plan(file, year.fields, told)};
}

std::vector<std::string> fields_without_use(const farm_year& year, const land_plan& plan) {
    return fields_where(year.fields, [&](const farm_field& field) {
        const int row = plan.land.find(plan_column::field, field.name);
        return row < 0 || !split_crop_pair(plan.land.cell(row, plan_column::crop));
    });
}

// A store that lacks something counts as none, or as empty, and would make the level too low.
std::vector<std::string> stores_not_described(const text_grid& stores) {
    std::vector<std::string> names;
    for (int row = 0; row < stores.data_row_count(); ++row)
        if (!find_store_shape(stores.cell(row, store_column::shape)) ||
            !holds_number(stores.cell(row, store_column::depth)) ||
            !holds_number(stores.cell(row, store_column::percent)))
            names.push_back(stores.cell(row, store_column::name));
    return names;
}

std::vector<std::string> stock_without_volume(const text_grid& production) {
    std::vector<std::string> names;
    for (int row = first_stock_row; row < empty_stock_row(production); ++row)
        for (const int column :
             {production_column::stock, production_column::number, production_column::percent})
            if (production.cell(row, column).empty()) {
                names.push_back(production.cell(row, production_column::stock));
                break;
            }
    return names;
}

// Why the level cannot be worked out, in sentences; none if it can.
std::vector<std::string> lacks_of_level(const stored_pages& pages, const farm_year& year,
                                        const std::optional<monthly_values>& rain) {
    std::vector<std::string> lacks;
    if (!pages.water || missing_answer(*pages.water)) lacks.emplace_back(text::no_dirty_water);
    if (pages.stores.data_row_count() == 0) lacks.emplace_back(text::no_stores);
    const auto undescribed = stores_not_described(pages.stores);
    if (!undescribed.empty()) lacks.push_back(text::stores_incomplete(undescribed));
    const auto without_volume = stock_without_volume(pages.production);
    if (!without_volume.empty()) lacks.push_back(text::stock_incomplete(without_volume));
    if (!rain) lacks.push_back(text::no_rain(year.profile.farm_town));
    return lacks;
}

std::optional<storage_balance> balance_of(const stored_pages& pages, const monthly_values& rain) {
    application_state state;
    heard_messages nobody;
    plan_page page(state, nobody);
    page.take(pages.production, pages.plan);
    page.begin(compute_store_totals(pages.stores, rain), monthly_dirty_water(*pages.water));
    return page.balance();
}

void take_levels(const storage_balance& balance, farm_standing& farm) {
    for (int month = 1; month <= months_in_year; ++month) {
        const float percent = balance.percent.at(static_cast<std::size_t>(month - 1));
        if (!farm.highest_level || percent > farm.highest_level->percent)
            farm.highest_level = {month, percent};
        if (exceeds_limit(percent, text::full_percent)) farm.months_over_full.push_back({month, percent});
    }
}

step_standing levels_told(const farm_standing& farm) {
    step_standing standing{farm_step::storage, true, severity::fine};
    const store_level& highest = *farm.highest_level;
    if (farm.months_over_full.empty()) {
        standing.verdict = text::stores_hold(highest);
        return standing;
    }
    standing.worst = severity::wrong;
    standing.verdict = text::stores_too_small(highest, farm.months_over_full);
    standing.next = text::make_room(farm.months_over_full.front().month);
    return standing;
}

// A farm that keeps no slurry has no stores to fill.
bool keeps_no_slurry(const stored_pages& pages) {
    return pages.stores.data_row_count() == 0 && empty_stock_row(pages.production) == first_stock_row;
}

step_standing level_standing(const stored_pages& pages, const farm_year& year, town_rain& rain,
                             farm_standing& farm) {
    if (keeps_no_slurry(pages))
        return {farm_step::storage, true, severity::fine, std::string(text::no_slurry_kept)};
    const auto& rain_mm = rain.of(year.profile.farm_town);
    auto lacks = lacks_of_level(pages, year, rain_mm);
    std::optional<storage_balance> balance;
    if (lacks.empty()) balance = balance_of(pages, *rain_mm);
    if (lacks.empty() && !balance) lacks.emplace_back(text::no_capacity);
    for (const std::string& sentence : lacks)
        add_missing(farm, farm_step::storage, sentence);
    if (!lacks.empty())
        return incomplete(farm_step::storage, text::level_unknown(lacks), text::go_through_step2);
    take_levels(*balance, farm);
    return levels_told(farm);
}

}  // namespace

step_standing storage_standing(const farm_year& year, town_rain& rain, farm_standing& farm) {
    load_messages told;
    const stored_pages pages = read_pages(year, told);
    const auto without_use = fields_without_use(year, pages.plan);
    const bool no_use = without_use.size() == year.fields.size();
    if (no_use && !pages.water && keeps_no_slurry(pages)) {
        add_missing(farm, farm_step::storage, text::no_storage);
        return not_done(farm_step::storage, text::no_storage, text::go_through_step2);
    }
    step_standing standing = level_standing(pages, year, rain, farm);
    if (!without_use.empty()) {
        const std::string sentence = text::fields_without_use(without_use);
        add_missing(farm, farm_step::storage, sentence);
        standing.done = false;
        raise(standing, severity::attention);
        if (standing.next.empty()) standing.next = sentence;
    }
    return standing;
}

}  // namespace kel
