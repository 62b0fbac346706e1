#include "profile/profile_module.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <optional>
#include <unordered_set>

#include "core/assessment_files.h"
#include "core/left_behind.h"
#include "core/numbers.h"
#include "core/settings_store.h"
#include "profile/field_import.h"
#include "profile/profile_messages.h"
#include "profile/profile_report.h"
#include "rules/soils.h"

namespace kel {

namespace messages = profile_messages;

namespace {

/// A count of fields as typed; nothing for a text that is no count or a number beyond any farm.
std::optional<int> typed_count(std::string_view text) {
    int count = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, count);
    if (error != std::errc{} || stop != end || count < 0 || count > most_fields) return std::nullopt;
    return count;
}

std::unordered_set<std::string> names_of(const text_grid& fields) {
    std::unordered_set<std::string> names;
    for (int row = 0; row < fields.row_count(); ++row)
        names.insert(fields.cell(row, field_column::name));
    return names;
}

}  // namespace

void profile_module::show_location() {
    farm_.location = state_.farm_town + " - " + state_.farm_zone;
}

loaded_profile profile_module::read_profile(const std::string& path) const {
    loaded_profile fresh{
        farm_, fields_, state_.farm_name, state_.farm_zone, state_.farm_town, state_.kel_year_start, loaded_};
    clear_left_behind(path);
    const database db(path);
    fresh.rows.remember(db);
    if (!read_farm(db, fresh)) person_.tell(messages::data_load_error);
    read_year(db, fresh);
    return fresh;
}

void profile_module::show_profile(loaded_profile fresh) {
    ++loads_;
    saved_farm_ = farm_ = std::move(fresh.farm);
    fields_ = std::move(fresh.fields);
    loaded_ = std::move(fresh.rows);
    history_.begin_anew();
    state_.farm_name = std::move(fresh.farm_name);
    state_.farm_zone = std::move(fresh.farm_zone);
    state_.farm_town = std::move(fresh.farm_town);
    state_.kel_year_start = fresh.kel_year_start;
    if (state_.kel_year_start) year_list_enabled_ = false;
    mark_open_file(state_, person_);
}

void profile_module::ass_year() {
    state_.kel_year_start = read_assessment_year(state_.assess_file);
}

void profile_module::new_farm() {
    ++loads_;
    saved_farm_ = farm_ = {};
    fields_.clear();
    year_list_enabled_ = true;
    history_.begin_anew();
}

opening profile_module::click(int row, int row_selection, int column) const {
    if (row < 0 || row >= fields_.row_count()) return {};
    const std::string& shown = fields_.cell(row, column);
    const std::string told = messages::fills_fields(std::abs(row_selection - row) + 1);
    switch (column) {
        case field_column::name:
            return {profile_box::name,
                    messages::enter_name,
                    {},
                    {{.kind = part_kind::text, .text = shown, .not_typed = "'"}}};
        case field_column::area:
        case field_column::kel_area:
            return {profile_box::area, messages::enter_area, told, {{part_kind::number, shown}}};
        case field_column::soil:
            return {profile_box::soil,
                    messages::select_soil,
                    told,
                    {{part_kind::list, shown, choices_of(soils(), &soil_class::name)}}};
        default:
            return {};
    }
}

outcome profile_module::enter_name(int row, const std::string& text) {
    const bool apostrophe = text.find('\'') != std::string::npos;
    // The row's own name counts: to leave a name as it is, the box is cancelled.
    const bool taken = fields_.find(field_column::name, text) >= 0;
    if (apostrophe) return refuse(person_, messages::invalid_character);
    if (taken) return refuse(person_, messages::name_exists);
    fields_.set_cell(row, field_column::name, text);
    return box_closes();
}

outcome profile_module::enter_area(int row, int row_selection, int column, const std::string& text) {
    const auto [first, last] = std::minmax(row, row_selection);
    for (int r = first; r <= last; ++r) {
        if (column == field_column::area) fields_.set_cell(r, field_column::area, text);
        const bool larger = leading_single(text) > fields_.number(r, field_column::area);
        fields_.set_cell(r, field_column::kel_area, larger ? fields_.cell(r, field_column::area) : text);
    }
    return box_closes();
}

outcome profile_module::enter_soil(int row, int row_selection, const std::string& text) {
    if (text.empty()) return box_stays();
    const auto [first, last] = std::minmax(row, row_selection);
    for (int r = first; r <= last; ++r)
        fields_.set_cell(r, field_column::soil, text);
    return box_closes();
}

outcome profile_module::clear_cell(int row, int column) {
    fields_.set_cell(row, column, {});
    return box_closes();
}

outcome profile_module::erase_row(int row) {
    if (row < 0) return refuse(person_, messages::heading_row);
    fields_.erase_row(row);
    show_field_count();
    return box_closes();
}

std::string profile_module::create_caption() const {
    const double count = leading_number(farm_.field_count);
    return count == 0 ? "Create Fields" : "Create " + shortest_text(count) + " Fields";
}

bool profile_module::import_records(import_mode mode) {
    const auto source = open_import(state_, person_, mode, profile_messages::profile_titles);
    if (!source) return false;
    load_messages told;
    if (import_fields(source->file, mode, fields_, told)) show_field_count();
    told.tell(person_);
    return true;
}

void profile_module::create_fields() {
    const auto count = typed_count(farm_.field_count);
    if (!count) return;
    if (*count < fields_.row_count() && person_.ask(messages::fewer_fields) != answer::yes) return;
    fields_.set_row_count(*count);
    name_nameless_fields(fields_);
}

void profile_module::paste_names_and_sizes(std::string_view clipboard) {
    if (!clipboard.empty()) add_pasted(parse_names_and_sizes(clipboard));
}

void profile_module::paste_names(std::string_view clipboard) {
    if (clipboard.empty()) return;
    if (clipboard.find('\t') != std::string_view::npos)
        person_.tell(messages::more_than_names);
    else
        add_pasted(parse_names(clipboard));
}

void profile_module::add_pasted(const std::vector<pasted_field>& pasted) {
    if (fields_.row_count() > 0) {
        const answer reply = person_.ask(messages::add_or_overwrite);
        if (reply != answer::yes && reply != answer::no) return;
        if (reply == answer::no) fields_.clear();
    }
    auto names = names_of(fields_);
    std::vector<std::string> rejected;
    for (const auto& [name, size] : pasted) {
        if (!names.insert(name).second) {
            rejected.push_back(name);
            continue;
        }
        const int row = fields_.add_row();
        fields_.set_cell(row, field_column::name, name);
        fields_.set_cell(row, field_column::area, size);
        fields_.set_cell(row, field_column::kel_area, size);
    }
    show_field_count();
    if (!rejected.empty()) person_.tell(messages::duplicate_fields(rejected));
}

void profile_module::reopen() {
    read_store(state_);
    if (state_.assess_file.empty()) return mark_open_file(state_, person_);
    try {
        load_profile();
    } catch (...) {
        // What the screens still hold belongs to another farm and must not be saved into this file.
        close_assessment(state_);
        throw;
    }
}

void profile_module::report(report_desk& desk) const {
    generate_report(desk, profile_report_file, profile_report(farm_, fields_), screen_id::profile,
                    screen_id::profile, {}, {}, farm_.name);
}

}  // namespace kel
