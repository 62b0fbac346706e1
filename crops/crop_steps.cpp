// The steps of a row: field, planned crop and previous crop, with their tests.
#include <algorithm>

#include "core/numbers.h"
#include "crops/crop_messages.h"
#include "crops/crop_module.h"
#include "rules/closed_period_lookups.h"
#include "rules/crop_catalogue.h"
#include "rules/crop_lists.h"
#include "rules/residue_groups.h"
#include "rules/soils.h"

namespace kel {

namespace {

namespace text = crop_messages;

// The parts of the two crop boxes.
constexpr int crop_part = 0;
constexpr int harvest_part = 1;
constexpr int sowing_part = 2;

template <class Names>
entry_part list_of(const Names& names, std::string_view chosen) {
    return {.kind = part_kind::list,
            .text = std::string(chosen),
            .choices = {names.begin(), names.end()},
            .unit = {}};
}

// The table shows a crop by its code.
template <class Names, class Code>
entry_part list_of_crops(const Names& names, std::string_view chosen, Code code_of) {
    entry_part list = list_of(names, chosen);
    list.cell_texts.reserve(list.choices.size());
    for (const std::string& name : list.choices)
        list.cell_texts.emplace_back(code_of(name));
    return list;
}

entry_part day_of_box(std::string_view label, std::string_view name, const std::string& shown) {
    return {.kind = part_kind::day,
            .text = shown,
            .choices = {},
            .unit = {},
            .label = std::string(label),
            .name = std::string(name)};
}

bool is_offered(std::span<const std::string_view> names, std::string_view name) {
    return std::ranges::count(names, name) > 0;
}

// The crop type that Step 2 has first for the field; nothing for one without a use.
std::optional<std::string> first_crop_type(const std::string& path, const std::string& field) {
    if (path.empty()) return std::nullopt;
    const auto pair = stored_field_use(database(path), field);
    return pair ? std::optional(pair->first) : std::nullopt;
}

}  // namespace

opening crop_module::click(int row, int column) {
    switch (column) {
        case crop_column::field:
            return field_opening(row);
        case crop_column::planned_crop:
            return planned_opening(row);
        case crop_column::previous_crop:
            return previous_opening(row);
        case crop_column::manures:
        case crop_column::previous_manures:
            return manures_opening(row, column);
        case crop_column::spring_status:
            asked_ = questions_of_spring_rain();
            return spring_rain_opening(crops_.cell(row, column));
        default:
            return opens_none(person_, module_messages::calculation);
    }
}

opening crop_module::field_opening(int row) const {
    return {crop_box::field,
            text::field_caption,
            text::field_instruction,
            {list_of(field_names_, crops_.cell(row, crop_column::field))}};
}

opening crop_module::planned_opening(int row) {
    const auto sown = date_in(row, crop_column::sowing);
    if (sown) sowing_shown_ = short_date_text(*sown);
    if (sowing_shown_.empty()) sowing_shown_ = day_of_year(1, 10, 0);
    return {
        crop_box::planned_crop,
        text::planned_caption,
        text::planned_instruction,
        {list_of_crops(planned_crop_list(), planned_list_name(crops_.cell(row, crop_column::planned_crop)),
                       planned_crop_code),
         day_of_box(text::anticipated_harvest_label, "harvest", shown_harvest(row, crop_column::harvest, 1)),
         day_of_box(text::sowing_label, "sowing", sowing_shown_)}};
}

opening crop_module::previous_opening(int row) const {
    return {
        crop_box::previous_crop,
        text::previous_caption,
        text::previous_instruction,
        {list_of_crops(previous_crop_list(), previous_crop_name(crops_.cell(row, crop_column::previous_crop)),
                       [](std::string_view name) { return previous_crop_code(name).value_or(""); }),
         day_of_box(text::harvest_label, "harvest", shown_harvest(row, crop_column::previous_harvest, 0))}};
}

std::optional<date> crop_module::date_in(int row, int column) const {
    return parse_date(crops_.cell(row, column));
}

// A day of the year in which the KEL year starts or of one after it; empty without an assessment.
std::string crop_module::day_of_year(int day, int month, int years_on) const {
    if (!state_.kel_year_start) return {};
    return short_date_text(make_date(day, month, year_of(*state_.kel_year_start) + years_on));
}

std::string crop_module::shown_harvest(int row, int column, int years_on) const {
    const auto stored = date_in(row, column);
    return stored ? short_date_text(*stored) : day_of_year(31, 7, years_on);
}

outcome crop_module::refuse_with_year(const message& reason, int part, date day, int years_on) {
    const int year = year_of(*state_.kel_year_start) + years_on;
    return refuse(person_, reason, part, {{part, short_date_text(add_years(day, year - year_of(day)))}});
}

outcome crop_module::enter_field(int row, const std::string& name) {
    if (name.empty()) return refuse(person_, module_messages::no_field_id);
    const database db(state_.assess_file);
    if (!db.open("Site", "Field Area ID", name).eof())
        return refuse(person_, text::grass_recommendation_exists);
    if (crops_.in_other_row(row, crop_column::field, name))
        return refuse(person_, module_messages::field_in_grid);
    std::string soil = db.lookup("Soil", "Field Data", "Field Name", name).value_or("");
    crops_.set_cell(row, crop_column::field, name);
    crops_.set_cell(row, crop_column::soil, std::move(soil));
    rain_.soil_code = soil_code(crops_.cell(row, crop_column::soil)).value_or(rain_.soil_code);
    guard_malting(row);
    set_winter_rain(row);
    set_spring_rain(row);
    crops_.keep_entry_row(row);
    return box_closes();
}

outcome crop_module::enter_previous_crop(int row, const box_entry& entered) {
    const std::string& name = entered.text(crop_part);
    const auto harvested = entered.day(harvest_part);
    if (!is_offered(previous_crop_list(), name)) return refuse(person_, text::no_previous_crop);
    if (harvested && state_.kel_year_start && *harvested > add_years(*state_.kel_year_start, 1))
        return refuse_with_year(text::previous_harvest_after_year, harvest_part, *harvested, 0);
    if (const auto next = date_in(row, crop_column::harvest); next && harvested && *harvested > *next)
        return refuse(person_, text::previous_harvest_after_harvest, harvest_part);
    if (!previous_type_fits(crops_.cell(row, crop_column::field), name)) return box_stays();
    const std::string code(previous_crop_code(name).value_or(""));
    crops_.set_cell(row, crop_column::previous_crop, code);
    crops_.set_cell(row, crop_column::residue_group, std::to_string(residue_group(code)));
    crops_.set_cell(row, crop_column::previous_harvest, harvested ? short_date_text(*harvested) : "");
    if (residue_group(code) >= 4) guard_malting(row);
    crops_.keep_entry_row(row);
    set_winter_rain(row);
    set_spring_rain(row);
    return box_closes();
}

outcome crop_module::enter_planned_crop(int row, const box_entry& entered) {
    const std::string& name = entered.text(crop_part);
    const auto harvest = entered.day(harvest_part);
    const auto sown = entered.day(sowing_part);
    if (!is_offered(planned_crop_list(), name)) return refuse(person_, text::no_crop);
    if (harvest && state_.kel_year_start && *harvest < *state_.kel_year_start)
        return refuse_with_year(text::harvest_before_year, harvest_part, *harvest, 1);
    if (harvest && sown && *sown > *harvest)
        return refuse(person_, text::sowing_after_harvest, sowing_part,
                      {{sowing_part, short_date_text(add_days(*harvest, -1))}});
    const auto previous = date_in(row, crop_column::previous_harvest);
    if (harvest && previous && *harvest < *previous)
        return refuse(person_, text::harvest_before_previous_harvest, harvest_part);
    if (!planned_type_fits(crops_.cell(row, crop_column::field), name)) return box_stays();
    clear_answers(row);
    crops_.set_cell(row, crop_column::harvest, harvest ? short_date_text(*harvest) : "");
    crops_.set_cell(row, crop_column::sowing, sown ? short_date_text(*sown) : "");
    sowing_shown_ = crops_.cell(row, crop_column::sowing);
    return start_questions(row, name);
}

bool crop_module::previous_type_fits(const std::string& field, const std::string& name) {
    const auto type = first_crop_type(state_.prev1_file, field);
    if (!type || crop_in_type(*type, name, name_column::previous)) return true;
    const bool goes_on = person_.ask(text::previous_crop_mismatch(name, *type)) == answer::yes;
    person_.show_list(goes_on ? text::review_last_year(*type) : text::previous_crops_of_type(*type));
    return goes_on;
}

bool crop_module::planned_type_fits(const std::string& field, const std::string& name) {
    const auto type = first_crop_type(state_.assess_file, field);
    if (!type || crop_in_type(*type, name, name_column::planned)) return true;
    const bool goes_on = person_.ask(text::planned_crop_mismatch(name, *type)) == answer::yes;
    person_.show_list(goes_on ? text::review_this_year(*type) : text::planned_crops_of_type(*type));
    if (*type == crop_types::grass) person_.tell(text::grass_recommendations);
    return goes_on;
}

outcome crop_module::clear_field(int row) {
    for (const int column : {crop_column::field, crop_column::soil, crop_column::notes_ww,
                             crop_column::notes_wb, crop_column::winter_rain, crop_column::spring_rain})
        crops_.set_cell(row, column, "");
    return box_closes();
}

outcome crop_module::clear_planned_crop(int row) {
    crops_.set_cell(row, crop_column::planned_crop, "");
    clear_answers(row);
    return box_closes();
}

outcome crop_module::clear_previous_crop(int row) {
    for (const int column : {crop_column::previous_crop, crop_column::residue_group, crop_column::notes_ww,
                             crop_column::notes_wb})
        crops_.set_cell(row, column, "");
    clear_columns(row, crop_column::winter_rain, crop_column::variety);
    return box_closes();
}

outcome crop_module::erase_row(int row) {
    return erase_data_row(person_, crops_, row);
}

}  // namespace kel
