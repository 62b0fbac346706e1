#include "inorganic/inorganic_module.h"

#include <utility>

#include "core/module_messages.h"
#include "core/module_save.h"
#include "core/numbers.h"
#include "inorganic/application_rules.h"
#include "inorganic/inorganic_messages.h"
#include "inorganic/inorganic_report.h"
#include "rules/closed_period_lookups.h"

namespace kel {

namespace {

// The dialog opens with the focus where the table was clicked.
int part_of(int column) {
    switch (column) {
        case inorganic_column::type:
            return application_part::type;
        case inorganic_column::amount:
            return application_part::amount;
        case inorganic_column::content:
            return application_part::content;
        case inorganic_column::comments:
            return application_part::comments;
        default:
            return application_part::day;
    }
}

// The calendar goes to this day instead; to none for an empty text.
outcome refuse_day(prompts& person, std::string day) {
    return refuse(person, inorganic_messages::date_outside_calendar, outcome::focus_stays,
                  {{application_part::day, std::move(day)}});
}

}  // namespace

inorganic_module::inorganic_module(application_state& state, prompts& person)
    : state_(state), person_(person), applications_(inorganic_table::set_grid()) {
    applications_.add_row();
}

void inorganic_module::inorganic_load_stuff() {
    text_grid applications = inorganic_table::set_grid();
    applications.add_row();
    std::vector<std::string> names;
    loaded_rows loaded = loaded_;
    if (!state_.assess_file.empty()) {
        const database db(state_.assess_file);
        loaded.remember(db);
        names = inorganic_table::set_fieldlist(db);
        applications = inorganic_table::get_data(db);
    }
    applications_ = std::move(applications);
    loaded_ = std::move(loaded);
    field_names_ = std::move(names);
    history_.begin_anew();
    if (state_.kel_year_start) state_.limits = year_limits_of(*state_.kel_year_start);
}

std::optional<int> inorganic_module::calendar_year() const {
    if (!state_.kel_year_start) return std::nullopt;
    return year_of(*state_.kel_year_start) + 1;
}

opening inorganic_module::click(int row, int column) {
    using namespace inorganic_messages;
    const std::string& field = applications_.cell(row, inorganic_column::field);
    if (column == inorganic_column::field)
        return {inorganic_box::field, field_caption, {}, {{part_kind::list, field, field_names_}}};
    if (field.empty()) return opens_none(person_, no_field_selected);
    return application_of(row, part_of(column));
}

opening inorganic_module::application_of(int row, int focus) const {
    const auto cell = [&](int column) { return applications_.cell(row, column); };
    opening shown(inorganic_box::application, inorganic_messages::application_caption, {},
                  {{part_kind::calendar, cell(inorganic_column::day)},
                   {part_kind::text, cell(inorganic_column::type)},
                   {part_kind::number, cell(inorganic_column::amount)},
                   {part_kind::number, cell(inorganic_column::content)},
                   {part_kind::text, cell(inorganic_column::comments)}});
    constexpr int columns[] = {inorganic_column::day, inorganic_column::type, inorganic_column::amount,
                               inorganic_column::content, inorganic_column::comments};
    for (std::size_t part = 0; part < shown.parts.size(); ++part)
        shown.parts[part].column = columns[part];
    shown.focus = focus;
    return shown;
}

outcome inorganic_module::enter_field(int row, const std::string& name) {
    if (name.empty()) return refuse(person_, inorganic_messages::no_field_id);
    applications_.set_cell(row, inorganic_column::field, name);
    applications_.keep_entry_row(row);
    return box_closes();
}

outcome inorganic_module::pick_date(int row, date picked) {
    using namespace inorganic_messages;
    // Without a year no date lies within it.
    if (!state_.kel_year_start) return refuse_day(person_, "");
    const calendar_window window = calendar_window_of(*state_.kel_year_start);
    if (picked < window.first) return refuse_day(person_, short_date_text(window.first));
    if (picked > window.last) return refuse_day(person_, short_date_text(window.last));
    std::vector<outcome::new_text> changes{{application_part::day, short_date_text(picked)}};
    const std::string& field = applications_.cell(row, inorganic_column::field);
    const closed_answer answer = closed_for_inorganic(state_.assess_file, field, picked, state_);
    if (answer == closed_answer::field_unknown) person_.tell(inorganic_messages::field_not_assessed);
    if (answer == closed_answer::closed) {
        person_.tell(closed_period);
        changes.push_back({application_part::comments, std::string(closed_period_comment)});
    }
    return box_stays(outcome::focus_stays, std::move(changes));
}

bool inorganic_module::in_year_assessed(date day) const {
    return state_.kel_year_start && day >= state_.limits.year_start && day <= state_.limits.year_end;
}

outcome inorganic_module::enter_application(int row, const box_entry& entered) {
    using namespace inorganic_messages;
    using namespace application_part;
    if (!entered.day(day)) return refuse(person_, no_date, day);
    if (!in_year_assessed(*entered.day(day))) return refuse(person_, date_outside_year, outcome::focus_stays);
    if (entered.text(type).empty()) return refuse(person_, no_type, type);
    if (!holds_number(entered.text(amount))) return refuse(person_, no_amount, amount);
    if (!holds_number(entered.text(content))) return refuse(person_, no_content, content);
    applications_.set_cell(row, inorganic_column::day, short_date_text(*entered.day(day)));
    applications_.set_cell(row, inorganic_column::type, entered.text(type));
    applications_.set_cell(row, inorganic_column::amount, entered.text(amount));
    applications_.set_cell(row, inorganic_column::content, entered.text(content));
    applications_.set_cell(row, inorganic_column::comments, entered.text(comments));
    inorganic_table::recalculate(applications_, row);
    return box_closes();
}

outcome inorganic_module::enter_pasted(int row, const box_entry& pasted) {
    using namespace application_part;
    box_entry entered = pasted;
    std::string& comment = entered.parts[comments].text;
    const auto picked = pasted.day(day);
    if (picked && *picked != parse_date(applications_.cell(row, inorganic_column::day))) {
        outcome picking = pick_date(row, *picked);
        for (const auto& [part, text] : picking.changes) {
            if (part == day && parse_date(text) != picked) return picking;
            if (part == comments && !comment.starts_with(text)) comment = text + comment;
        }
    }
    if (const auto limit = content_after_content(entered.text(content)))
        entered.parts[content].text = std::string(*limit);
    return enter_application(row, entered);
}

void inorganic_module::delete_row(int row) {
    if (row >= 0 && row < applications_.data_row_count()) applications_.erase_row(row);
}

bool inorganic_module::save() {
    const auto target = file_to_save(state_, person_);
    if (!target) return false;
    module_save file(state_, person_, loaded_, *target);
    if (!file) return false;
    inorganic_table::save(file.db(), applications_);
    file.commit();
    history_.begin_anew();
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
