// The questions of a crop in their chain, the manures of a row, and the cells that follow from others.
#include "core/numbers.h"
#include "crops/crop_messages.h"
#include "crops/crop_module.h"
#include "rules/crop_lists.h"
#include "rules/manure_lookups.h"

namespace kel {

namespace {

namespace text = crop_messages;

}  // namespace

void crop_module::clear_columns(int row, int first, int last) {
    for (int column = first; column <= last; ++column)
        crops_.set_cell(row, column, "");
}

// All that was answered or follows from it; the manures keep their figures.
void crop_module::clear_answers(int row) {
    clear_columns(row, crop_column::notes_ww, crop_column::turnip_rape);
    clear_columns(row, crop_column::winter_rain, crop_column::spring_status);
}

// The intended market keeps its figure.
bool crop_module::guard_malting(int row) {
    const malting_refusal refusal = low_n_malting_check(crop_row_of(crops_, row));
    if (refusal == malting_refusal::none) return true;
    person_.tell(refusal == malting_refusal::soil ? text::malting_on_soil : text::malting_after_crop);
    crops_.set_cell(row, crop_column::planned_crop, "");
    clear_columns(row, crop_column::notes_ww, crop_column::notes_wb);
    clear_columns(row, crop_column::undersowing, crop_column::spring_status);
    return false;
}

void crop_module::set_winter_rain(int row) {
    const crop_row cells = crop_row_of(crops_, row);
    const auto found =
        winter_rain_adjustment(winter_status_, {cells.crop, cells.residue_group, cells.soil}, rain_);
    if (found) crops_.set_cell(row, crop_column::winter_rain, std::to_string(*found));
}

void crop_module::set_spring_rain(int row) {
    const crop_row cells = crop_row_of(crops_, row);
    const auto found = spring_rain_adjustment(crops_.cell(row, crop_column::spring_status),
                                              {cells.crop, cells.residue_group, cells.soil}, rain_);
    if (found) crops_.set_cell(row, crop_column::spring_rain, std::to_string(*found));
}

// False: the crop is refused and its cell empty.
bool crop_module::write_code(int row, std::string_view code) {
    crops_.set_cell(row, crop_column::planned_crop, std::string(code));
    const bool stands = guard_malting(row);
    set_winter_rain(row);
    set_spring_rain(row);
    crops_.keep_entry_row(row);
    return stands;
}

outcome crop_module::start_questions(int row, const std::string& name) {
    asked_ = questions_of(name);
    const bool code_is_asked = !asked_.empty() && (asked_.front() == crop_question::potato_kind ||
                                                   asked_.front() == crop_question::grass_kind);
    if (!code_is_asked && !write_code(row, planned_crop_code(name))) return box_closes();
    return next_question();
}

outcome crop_module::next_question() const {
    return asked_.empty() ? box_closes() : leads_to(question_opening(asked_.front()));
}

opening crop_module::ask_summer_rain() {
    asked_ = questions_of_summer_rain();
    return question_opening(asked_.front());
}

outcome crop_module::enter_answer(int row, const box_entry& entered) {
    if (asked_.empty()) return box_closes();
    const auto choice = entered.choice();
    switch (asked_.front()) {
        case crop_question::potato_kind:
            if (!choice) return refuse(person_, text::no_potato_type);
            write_code(row, potato_types()[static_cast<std::size_t>(*choice)].code);
            break;
        case crop_question::grass_kind:
            if (choice) write_code(row, *choice == 0 ? "G" : "G/C");
            break;
        case crop_question::delayed_sowing:
            if (choice == 1 && !holds_number(entered.number())) return refuse(person_, text::no_delay_length);
            if (choice) write_delay(row, *choice == 1 ? leading_single(entered.number()) : 0);
            break;
        case crop_question::spring_rain:
            if (choice) write_spring_status(row, *choice);
            break;
        case crop_question::summer_rain:
            if (choice) write_summer_rain(row, *choice);
            break;
        default:
            if (choice) write_answer(row, asked_.front(), *choice);
            break;
    }
    asked_ = asked_.subspan(1);
    return next_question();
}

void crop_module::write_delay(int row, float days) {
    const std::string& code = crops_.cell(row, crop_column::planned_crop);
    crops_.set_cell(row, crop_column::delayed_sowing, shortest_text(delayed_sowing_kg_per_ha(code, days)));
}

void crop_module::write_spring_status(int row, int choice) {
    crops_.set_cell(row, crop_column::spring_status, std::string(spring_status_of(choice)));
    set_spring_rain(row);
}

// The figure of a vegetable stands where other crops have their market.
void crop_module::write_summer_rain(int row, int choice) {
    const int more = choice == 0 ? wet_summer_kg_per_ha(crops_.cell(row, crop_column::soil)) : 0;
    crops_.set_cell(row, crop_column::market, std::to_string(more));
    set_winter_rain(row);
    set_spring_rain(row);
}

void crop_module::write_answer(int row, crop_question question, int choice) {
    const crop_answer& answer = answers_to(question)[static_cast<std::size_t>(choice)];
    const answer_columns columns = columns_of(question);
    crops_.set_cell(row, columns.figure, std::to_string(answer.value));
    if (columns.word >= 0) crops_.set_cell(row, columns.word, std::string(answer.word));
}

opening crop_module::manures_opening(int row, int column) const {
    const bool current = column == crop_column::manures;
    return {crop_box::manures,
            current ? text::manures_caption : text::previous_manures_caption,
            current ? text::manures_instruction : text::previous_manures_instruction,
            {{.kind = part_kind::number,
              .text = crops_.cell(row, column),
              .choices = {},
              .unit = std::string(text::manures_unit)}}};
}

outcome crop_module::enter_manures(int row, int column, const std::string& figure) {
    crops_.set_cell(row, column, figure);
    return box_closes();
}

// The figure of the stored applications; nothing without both harvest dates. The bounds stay in `state`.
std::optional<std::string> crop_module::stored_manures(application_state& state, int row, int column,
                                                       explanation* why) const {
    const auto previous_harvest = date_in(row, crop_column::previous_harvest);
    const auto harvest = date_in(row, crop_column::harvest);
    if (!previous_harvest || !harvest) return std::nullopt;
    const std::string& field = crops_.cell(row, crop_column::field);
    const float found = column == crop_column::manures
                            ? n_for_this_crop(state, field, previous_harvest, harvest, why)
                            : n_from_previous_crop(state, field, *previous_harvest, harvest, why);
    return shortest_text(round_shown_half_even(found, 2));
}

outcome crop_module::transfer(int row, int column) {
    const auto found = stored_manures(state_, row, column);
    return found ? box_stays(0, {{0, *found}}) : refuse(person_, text::cannot_transfer);
}

outcome crop_module::open_manures(int /*row*/, int column) {
    const bool current = column == crop_column::manures;
    if (!current && state_.prev1_file.empty()) return refuse(person_, text::not_linked);
    state_.manure_caller = current ? manure_opener::new_crop : manure_opener::old_crop;
    screens_.open_in_place_of(screen_id::crops, screen_id::manure);
    return box_stays();
}

}  // namespace kel
