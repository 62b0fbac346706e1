#include "storage/storage_module.h"

#include <utility>
#include <vector>

#include "core/file_choice.h"
#include "core/module_messages.h"
#include "core/numbers.h"
#include "rules/rainfall.h"
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

}  // namespace

storage_module::storage_module(application_state& state, prompts& person)
    : state_(state), person_(person), water_(state, person), stores_(state, person), plan_(state, person) {}

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
    if (!state_.assess_file.empty()) stored = read_dirty_water(database(state_.assess_file));
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
    if (!state_.assess_file.empty()) write_first_page();
    page_ = storage_page::stores;
    came_back_ = false;
    if (!rain && !std::exchange(rain_missing_told_, true))
        person_.tell(storage_messages::no_rainfall(state_.farm_town));
    return true;
}

void storage_module::write_first_page() {
    const auto percent_full = get_previous_percent_full(state_);
    const database db(state_.assess_file);
    text_grid stores = load_stores(db, percent_full);
    save_transaction transaction(db);
    write_store_in(db, rain_mm_, water_.answers());
    if (percent_full) save_stores(db, stores);
    transaction.commit();
    stores_.take(std::move(stores));
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
    const database db(state_.assess_file);
    save_transaction transaction(db);
    save_stores(db, stores_.stores());
    transaction.commit();
    if (plan_.changed()) return;
    land_plan plan = load_land_plan(db, read_farm_fields(db), told);
    plan_.take(load_production(db), std::move(plan));
}

void storage_module::back() {
    came_back_ = page_ == storage_page::plan;
    page_ = came_back_ ? storage_page::stores : storage_page::water;
}

bool storage_module::save_storage() {
    if (page_ != storage_page::plan) return false;
    const bool new_file = state_.assess_file.empty();
    if (!have_file_to_save(state_, person_, "Cannot Save")) return false;
    const database db(state_.assess_file);
    save_transaction transaction(db);
    if (new_file) {
        write_store_in(db, rain_mm_, water_.answers());
        save_stores(db, stores_.stores());
    }
    save_production(db, plan_.production());
    save_land_plan(db, plan_.fields());
    save_december_percent(db, plan_.balance());
    transaction.commit();
    plan_.set_saved();
    return true;
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
