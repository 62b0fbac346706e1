#include "storage/storage_module.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "core/module_messages.h"
#include "core/module_save.h"
#include "core/numbers.h"
#include "rules/rainfall.h"
#include "storage/plan_account.h"
#include "storage/storage_account.h"
#include "storage/storage_messages.h"
#include "storage/storage_report.h"

namespace kel {

namespace {

// Read by next year's assessment as the level at which its stores start. Without a capacity there is none.
void save_december_percent(const database& db, const std::optional<storage_balance>& balance) {
    db.delete_rows("Misc", "Item", december_percent_item);
    if (!balance) return;
    recordset row = db.open("Misc");
    row.add_new();
    row.set("Item", december_percent_item);
    row.set("Value", shortest_text(balance->percent.back()));
    row.update();
}

std::vector<std::string_view> own_plan_columns() {
    const land_plan plan = empty_land_plan();
    std::vector<std::string_view> columns = own_columns(plan.land.columns());
    for (const std::string_view column : own_columns(plan.spreading.columns()))
        columns.push_back(column);
    return columns;
}

}  // namespace

storage_module::storage_module(application_state& state, prompts& person)
    : state_(state),
      person_(person),
      plan_rows_({{"Slurry_animals"}, {"Land", own_plan_columns()}}),
      water_(state, person),
      stores_(state, person),
      plan_(state, person) {}

std::string storage_module::instruction() const {
    using namespace storage_messages;
    switch (page_) {
        case storage_page::water:
            return std::string(water_instruction);
        case storage_page::stores:
            return std::string(came_back_ ? stores_again_instruction : stores_instruction);
        case storage_page::plan:
            break;
    }
    return plan_instruction();
}

void storage_module::storage_load_stuff() {
    std::optional<dirty_water_answers> stored;
    loaded_rows water_rows = water_rows_;
    if (!state_.assess_file.empty()) {
        const database db(state_.assess_file);
        water_rows.remember(db);
        stored = read_dirty_water(db);
    }
    water_rows_ = std::move(water_rows);
    water_.load(stored);
    stores_.take(empty_stores());
    plan_.clear();
    if (state_.kel_year_start) state_.limits = year_limits_of(*state_.kel_year_start);
    page_ = storage_page::water;
    came_back_ = false;
    rain_missing_told_ = false;
}

void storage_module::reload() {
    const storage_page shown = page_;
    storage_load_stuff();
    if (shown == storage_page::water || !storage_cont1()) return;
    if (shown == storage_page::plan) storage_cont2();
}

bool storage_module::storage_cont1() {
    if (!water_.complete()) return false;
    const auto rain = monthly_rain(database(state_.places.climate_tables()), state_.farm_town);
    rain_mm_ = rain.value_or(monthly_values{});
    if (!state_.assess_file.empty() && !write_first_page()) return false;
    page_ = storage_page::stores;
    came_back_ = false;
    if (!rain && !std::exchange(rain_missing_told_, true))
        person_.tell(storage_messages::no_rainfall(state_.farm_town));
    return true;
}

bool storage_module::write_first_page() {
    const auto percent_full = get_previous_percent_full(state_);
    module_save file(state_, person_, water_rows_, {state_.assess_file, {}});
    if (!file) return false;
    text_grid stores = load_stores(file.db(), percent_full);
    write_store_in(file.db(), rain_mm_, water_.answers());
    if (percent_full && !stores_.imported()) save_stores(file.db(), stores);
    file.commit();
    if (!stores_.imported()) stores_.take(std::move(stores), file.db());
    return true;
}

bool storage_module::storage_cont2() {
    if (page_ == storage_page::water) return false;
    const store_totals totals = compute_store_totals(stores_.stores(), rain_mm_);
    if (!stores_.has_stores()) {
        came_back_ = false;
        if (person_.ask(storage_messages::no_stores) != answer::yes) return false;
        person_.tell(storage_messages::capacity_not_assessed);
    }
    load_messages told;
    if (!state_.assess_file.empty()) fill_plan(told);
    plan_.begin(totals, monthly_dirty_water(water_.answers()));
    page_ = storage_page::plan;
    told.tell(person_);
    return true;
}

// Entries that are not saved yet are kept: a step back to the stores must not lose them.
void storage_module::fill_plan(load_messages& told) {
    stores_.save();
    if (plan_.changed()) return;
    const database db(state_.assess_file);
    plan_rows_.remember(db);
    land_plan plan = load_land_plan(db, read_farm_fields(db), told);
    plan_.take(load_production(db), std::move(plan));
}

void storage_module::back() {
    came_back_ = page_ == storage_page::plan;
    page_ = came_back_ ? storage_page::stores : storage_page::water;
}

bool storage_module::save_storage() {
    if (page_ != storage_page::plan) return false;
    const auto target = file_to_save(state_, person_, "Cannot Save");
    if (!target) return false;
    const bool new_file = !target->made_from.empty();
    if (!new_file && !stores_.may_save_imported()) return false;
    module_save file(state_, person_, plan_rows_, *target);
    if (!file) return false;
    if (new_file) {
        write_store_in(file.db(), rain_mm_, water_.answers());
        save_stores(file.db(), stores_.stores());
    }
    stores_.save_imported(file.db());
    plan_.save(file.db());
    save_december_percent(file.db(), plan_.balance());
    file.commit();
    if (new_file) stores_.take(stores_.stores(), file.db());
    stores_.set_saved(file.db());
    plan_.set_saved();
    return true;
}

std::optional<explanation> storage_module::why(const text_grid& grid, std::size_t row,
                                               std::size_t column) const {
    const int at_row = static_cast<int>(row);
    const int at_column = static_cast<int>(column);
    if (&grid == &stores_.stores())
        return why_store(grid, at_row, at_column, get_previous_percent_full(state_));
    if (&grid == &plan_.production())
        return why_production(grid, at_row, at_column, {stores_.stores(), rain_mm_, water_.answers()});
    if (&grid == &plan_.land()) return why_plan_land(plan_.fields(), at_row, at_column);
    return why_spreading(plan_.fields(), at_row, at_column);
}

std::optional<explanation> storage_module::why(std::string_view result) const {
    const auto known = std::ranges::find(storage_results(), result, &named_result::name);
    if (known == storage_results().end() || page_ == storage_page::water) return std::nullopt;
    const auto asked = static_cast<std::size_t>(known - storage_results().begin());
    if (asked == capacity_result) return why_capacity(stores_.stores(), rain_mm_);
    if (page_ != storage_page::plan) return std::nullopt;
    const balance_sources sources{plan_.stores(), plan_.production(), plan_.fields()};
    return asked == warning_result ? why_warning(sources) : why_level(sources, asked - january_result);
}

bool storage_module::close() {
    return person_.ask(module_messages::close_module) != answer::no;
}

void storage_module::storage_report(report_desk& desk) {
    if (page_ != storage_page::plan) return;
    std::vector<std::string> pictures;
    if (plan_.balance()) pictures.emplace_back(storage_chart_file);
    generate_report(desk, storage_report_file,
                    kel::storage_report({.stores = stores_.stores(),
                                         .production = plan_.production(),
                                         .plan = plan_.fields(),
                                         .balance = plan_.balance(),
                                         .rain_mm = rain_mm_,
                                         .dirty_water = water_.answers()}),
                    screen_id::storage, screen_id::storage, {}, std::move(pictures));
}

}  // namespace kel
