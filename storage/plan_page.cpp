#include "storage/plan_page.h"

#include <utility>

#include "core/numbers.h"
#include "core/record_import.h"
#include "storage/field_use_checks.h"
#include "storage/slurry_production.h"
#include "storage/slurry_transfer.h"
#include "storage/storage_messages.h"

namespace kel {

namespace {

// The month in which most crops of the zones are off the field: what the harvest date starts from.
constexpr int usual_harvest_day = 31;
constexpr int usual_harvest_month = 8;

std::string shown_or_empty(std::string_view stored) {
    return std::string(shown_crop_type(stored).value_or(""));
}

int land_month_of(int column) {
    return column - spreading_column::january + plan_column::january;
}

}  // namespace

plan_page::plan_page(application_state& state, prompts& person)
    : state_(state), person_(person), production_(empty_production_grid()), plan_(empty_land_plan()) {
    history_.on_restored([this] { rebuild(); });
}

void plan_page::take(text_grid production, land_plan plan) {
    production_ = std::move(production);
    plan_ = std::move(plan);
    set_saved();
}

void plan_page::save(const database& db) const {
    save_production(db, production_);
    if (land_imported_)
        save_imported_plan(db, plan_);
    else
        save_land_plan(db, plan_);
}

void plan_page::set_saved() {
    changed_ = false;
    land_imported_ = false;
    history_.begin_anew();
}

void plan_page::clear() {
    take(empty_production_grid(), empty_land_plan());
    stores_ = {};
    balance_.reset();
}

void plan_page::begin(const store_totals& stores, const monthly_values& dirty_water) {
    stores_ = stores;
    monthly_values inputs = stores.monthly_rain_input;
    for (std::size_t month = 0; month < inputs.size(); ++month)
        inputs[month] += dirty_water[month];
    set_inputs(production_, inputs);
    rebuild();
    history_.accept();
    tab_ = balance_ ? plan_tab::production : plan_tab::land;
}

void plan_page::changed_by_import() {
    changed_ = true;
    rebuild();
}

bool plan_page::import_production(import_mode mode) {
    const auto source = open_import(state_, person_, mode);
    if (!source) return false;
    kel::import_production(*source, mode, production_);
    changed_by_import();
    return true;
}

// A table without a row leaves the fields that are there.
bool plan_page::import_land() {
    const auto source = open_import(state_, person_, import_mode::over_write);
    if (!source) return false;
    load_messages told;
    if (!source->file.open("Land").eof()) {
        plan_ =
            load_land_plan(source->file, source->farm, told, storage_messages::imported_field_does_not_exist);
        land_imported_ = true;
        changed_by_import();
    }
    told.tell(person_);
    return true;
}

void plan_page::rebuild() {
    set_production_totals(production_);
    set_plan_totals(plan_);
    balance_ = build_balance(stores_, production_totals(production_), monthly_spreading(plan_));
}

outcome plan_page::entered() {
    changed_ = true;
    rebuild();
    return box_closes();
}

plan_tab plan_page::turn_to(plan_tab wanted) {
    if (tab_ == plan_tab::land && wanted != plan_tab::land && !balance_)
        person_.tell(storage_messages::no_storage_assessment);
    else
        tab_ = wanted;
    return tab_;
}

opening plan_page::click_production(int row, int column) {
    using namespace storage_messages;
    if (row == inputs_row || row == production_totals_row(production_))
        return opens_none(person_, protected_row);
    const std::string& shown = production_.cell(row, column);
    switch (column) {
        case production_column::stock:
            return {storage_box::stock,
                    stock_caption,
                    stock_instruction,
                    {{part_kind::list, shown, choices_of(slurry_units(), &slurry_unit::name)}}};
        case production_column::number:
            return {storage_box::number, number_caption, number_instruction, {{part_kind::number, shown}}};
        case production_column::percent:
            return {storage_box::percent,
                    percent_caption,
                    percent_instruction,
                    {{part_kind::number, shown, {}, "%"}}};
        case production_column::unit_volume:
        case production_column::total_volume:
            return opens_none(person_, calculation);
        default:
            if (production_.number(row, production_column::total_volume) == 0)
                return opens_none(person_, no_production);
            return {storage_box::month,
                    month_caption,
                    month_instruction,
                    {{part_kind::options,
                      shown,
                      {std::string(on_slurry_system), std::string(not_on_slurry_system)}}}};
    }
}

outcome plan_page::set_stock_cell(int row, int column, const std::string& text) {
    production_.set_cell(row, column, text);
    recalculate_stock_line(production_, row);
    return entered();
}

outcome plan_page::enter_stock(int row, const std::string& unit) {
    if (unit.empty()) return refuse(person_, storage_messages::no_livestock);
    return set_stock_cell(row, production_column::stock, unit);
}

outcome plan_page::enter_number(int row, const std::string& text) {
    if (!holds_number(text)) return refuse(person_, storage_messages::no_livestock_number);
    return set_stock_cell(row, production_column::number, text);
}

outcome plan_page::enter_percent(int row, const std::string& text) {
    if (!holds_number(text)) return refuse(person_, storage_messages::no_percentage);
    const double percent = leading_number(text);
    if (percent > 100 || percent < 0) return refuse(person_, storage_messages::invalid_percentage);
    return set_stock_cell(row, production_column::percent, text);
}

outcome plan_page::enter_month(int row, int column, const std::string& text) {
    production_.set_cell(row, column, text);
    return entered();
}

outcome plan_page::erase_line(int row) {
    if (row == empty_stock_row(production_)) return refuse(person_, storage_messages::cannot_delete);
    erase_stock_line(production_, row);
    return entered();
}

opening plan_page::click_land(int row, int column) {
    using namespace storage_messages;
    if (row >= plan_.fields()) return opens_none(person_, protected_row);
    switch (column) {
        case plan_column::field:
        case plan_column::soil:
            return opens_none(person_, profile_cell);
        case plan_column::crop:
            return field_use_box(row);
        case plan_column::available:
            return opens_none(person_, available_area_cell);
        default:
            if (plan_.land.cell(row, column) == closed_month) return opens_none(person_, closed_period);
            return {storage_box::land_month,
                    land_month_caption,
                    land_month_instruction,
                    {{part_kind::number, plan_.land.cell(row, column), {}, "ha"}}};
    }
}

bool plan_page::in_year(date harvest) const {
    return harvest >= state_.limits.year_start && harvest <= state_.limits.year_end;
}

// The date that was entered stays from field to field, until the year is another one.
date plan_page::offered_harvest() const {
    if (harvest_ && in_year(*harvest_)) return *harvest_;
    return make_date(usual_harvest_day, usual_harvest_month, year_of(state_.limits.year_end));
}

opening plan_page::field_use_box(int row) const {
    using namespace storage_messages;
    const crop_pair use = shown_field_use(row);
    const auto crops = [](std::string_view label, const char* name, const std::string& crop) {
        entry_part part{part_kind::list,    crop, choices_of(field_uses(), &field_use::shown), {},
                        std::string(label), name};
        part.column = plan_column::crop;  // the pair stands in one cell
        part.cell_texts = choices_of(field_uses(), &field_use::stored);
        return part;
    };
    return {storage_box::field_use,
            field_use_caption,
            field_use_instruction,
            {crops(first_crop_label, "first", use.first),
             crops(second_crop_label, "second", use.second),
             {part_kind::day,
              short_date_text(offered_harvest()),
              {},
              {},
              std::string(harvest_label),
              "harvest"}}};
}

outcome plan_page::enter_field_use(int row, const std::string& first_crop, const std::string& second_crop,
                                   date harvest) {
    const auto first = stored_crop_type(first_crop);
    const auto second = stored_crop_type(second_crop);
    if (!first) return refuse(person_, storage_messages::no_first_crop);
    if (!second) return refuse(person_, storage_messages::no_second_crop);
    if (!in_year(harvest)) return refuse(person_, storage_messages::invalid_harvest_date);
    const other_uses others = read_other_uses(state_, plan_.land.cell(row, plan_column::field));
    if (!goes_with_last_year(others, *first, person_)) return box_stays();
    if (!goes_with_calculated_crop(others, *first, person_)) return box_stays();
    harvest_ = harvest;
    set_field_use(plan_, row, {std::string(*first), std::string(*second)}, month_of(harvest));
    return entered();
}

crop_pair plan_page::shown_field_use(int row) const {
    const auto use = split_crop_pair(plan_.land.cell(row, plan_column::crop));
    if (!use) return {};
    return {shown_or_empty(use->first), shown_or_empty(use->second)};
}

outcome plan_page::enter_land_month(int row, int column, const std::string& text) {
    if (!holds_number(text)) return refuse(person_, storage_messages::no_land_availability);
    if (plan_.land.number(row, plan_column::available) - leading_single(text) < 0)
        return refuse(person_, storage_messages::more_than_available);
    plan_.land.set_cell(row, column, text);
    return entered();
}

opening plan_page::click_spreading(int row, int column) {
    using namespace storage_messages;
    if (row >= plan_.fields()) return opens_none(person_, protected_row);
    if (column == spreading_column::field) return opens_none(person_, profile_cell);
    if (plan_.spreading.cell(row, column) == closed_month) return opens_none(person_, closed_period);
    if (plan_.land.number(row, land_month_of(column)) == 0) return opens_none(person_, no_land_in_month);
    return {storage_box::slurry_applic,
            slurry_applic_caption,
            slurry_applic_instruction,
            {{part_kind::number, plan_.spreading.cell(row, column), {}, "cubic m/ha"}}};
}

outcome plan_page::enter_slurry_applic(int row, int column, const std::string& text) {
    if (!holds_number(text)) return refuse(person_, storage_messages::no_application_rate);
    if (plan_.land.cell(row, land_month_of(column)) == closed_month)
        person_.tell(storage_messages::no_slurry_at_this_time);
    else
        plan_.spreading.set_cell(row, column, text);
    return entered();
}

void plan_page::get_slurry_data() {
    using namespace storage_messages;
    if (person_.ask(overwrite_data) != answer::yes) return;
    slurry_rates rates;
    if (!state_.assess_file.empty()) rates = read_slurry_rates(database(state_.assess_file));
    if (rates.empty()) return person_.tell(nothing_to_transfer);
    const transfer_result result = transfer_slurry(plan_, rates);
    if (result.into_closed_month) person_.tell(closed_period_breach);
    if (result.without_land) person_.tell(land_availability_breach);
    entered();
}

}  // namespace kel
