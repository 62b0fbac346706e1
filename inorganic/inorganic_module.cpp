#include "inorganic/inorganic_module.h"

#include <utility>

#include "core/file_choice.h"
#include "core/module_messages.h"
#include "core/numbers.h"
#include "inorganic/application_rules.h"
#include "inorganic/inorganic_messages.h"
#include "inorganic/inorganic_report.h"
#include "rules/closed_period_lookups.h"

namespace kel {

inorganic_module::inorganic_module(application_state& state, prompts& person)
    : state_(state), person_(person), applications_(inorganic_table::set_grid()) {
    applications_.add_row();
}

void inorganic_module::inorganic_load_stuff() {
    text_grid applications = inorganic_table::set_grid();
    applications.add_row();
    std::vector<std::string> names;
    if (!state_.assess_file.empty()) {
        const database db(state_.assess_file);
        names = inorganic_table::set_fieldlist(db);
        applications = inorganic_table::get_data(db);
    }
    applications_ = std::move(applications);
    field_names_ = std::move(names);
    if (state_.kel_year_start) state_.limits = year_limits_of(*state_.kel_year_start);
}

std::optional<int> inorganic_module::calendar_year() const {
    if (!state_.kel_year_start) return std::nullopt;
    return year_of(*state_.kel_year_start) + 1;
}

inorganic_box inorganic_module::click(int row, int column) {
    if (column == inorganic_column::field) return inorganic_box::field;
    if (applications_.cell(row, inorganic_column::field).empty()) {
        person_.tell(inorganic_messages::no_field_selected);
        return inorganic_box::none;
    }
    return inorganic_box::application;
}

fertiliser_application inorganic_module::application_of(int row) const {
    return {
        .day = parse_date(applications_.cell(row, inorganic_column::day)),
        .type = applications_.cell(row, inorganic_column::type),
        .amount = applications_.cell(row, inorganic_column::amount),
        .content = applications_.cell(row, inorganic_column::content),
        .comments = applications_.cell(row, inorganic_column::comments),
    };
}

bool inorganic_module::enter_field(int row, const std::string& name) {
    if (name.empty()) {
        person_.tell(inorganic_messages::no_field_id);
        return false;
    }
    applications_.set_cell(row, inorganic_column::field, name);
    applications_.keep_entry_row(row);
    return true;
}

date_pick inorganic_module::pick_date(int row, date picked) {
    // Without a year no date lies within it.
    if (!state_.kel_year_start) {
        person_.tell(inorganic_messages::date_outside_calendar);
        return {};
    }
    const calendar_window window = calendar_window_of(*state_.kel_year_start);
    if (picked < window.first || picked > window.last) {
        person_.tell(inorganic_messages::date_outside_calendar);
        return {.day = picked < window.first ? window.first : window.last, .comments = {}};
    }
    const std::string& field = applications_.cell(row, inorganic_column::field);
    switch (closed_for_inorganic(state_.assess_file, field, picked, state_)) {
        case closed_answer::field_unknown:
            person_.tell(inorganic_messages::field_not_assessed);
            break;
        case closed_answer::closed:
            person_.tell(inorganic_messages::closed_period);
            return {.day = picked, .comments = std::string(inorganic_messages::closed_period_comment)};
        case closed_answer::open:
            break;
    }
    return {.day = picked, .comments = {}};
}

bool inorganic_module::in_year_assessed(date day) const {
    return state_.kel_year_start && day >= state_.limits.year_start && day <= state_.limits.year_end;
}

application_entry inorganic_module::refuse(const message& reason, application_part focus) {
    person_.tell(reason);
    return {.closes = false, .focus = focus};
}

application_entry inorganic_module::enter_application(int row, const fertiliser_application& entered) {
    using namespace inorganic_messages;
    using part = application_part;
    if (!entered.day) return refuse(no_date, part::day);
    if (!in_year_assessed(*entered.day)) return refuse(date_outside_year, part::none);
    if (entered.type.empty()) return refuse(no_type, part::type);
    if (!holds_number(entered.amount)) return refuse(no_amount, part::amount);
    if (!holds_number(entered.content)) return refuse(no_content, part::content);
    applications_.set_cell(row, inorganic_column::day, short_date_text(*entered.day));
    applications_.set_cell(row, inorganic_column::type, entered.type);
    applications_.set_cell(row, inorganic_column::amount, entered.amount);
    applications_.set_cell(row, inorganic_column::content, entered.content);
    applications_.set_cell(row, inorganic_column::comments, entered.comments);
    inorganic_table::recalculate(applications_, row);
    return {.closes = true};
}

void inorganic_module::delete_row(int row) {
    if (row >= 0 && row < applications_.data_row_count()) applications_.erase_row(row);
}

bool inorganic_module::save() {
    if (!have_file_to_save(state_, person_)) return false;
    const database db(state_.assess_file);
    save_transaction transaction(db);
    inorganic_table::save(db, applications_);
    transaction.commit();
    return true;
}

bool inorganic_module::close() {
    return person_.ask(module_messages::close_module) != answer::no;
}

void inorganic_module::report(report_desk& desk) {
    generate_report(desk, inorganic_report_file, inorganic_report(applications_), screen_id::inorganic,
                    screen_id::inorganic);
}

}  // namespace kel
