#include "storage/dirty_water_page.h"

#include "core/dates.h"
#include "core/numbers.h"
#include "storage/storage_messages.h"

namespace kel {

namespace {

// The number that a person sees, without the noise of widening it.
double stored_single(float value) {
    return leading_number(shortest_text(value));
}

}  // namespace

dirty_water_page::dirty_water_page(application_state& state, prompts& person)
    : state_(state), person_(person) {}

std::string dirty_water_page::instruction() const {
    return form_ == dirty_water_form::estimate ? storage_messages::estimate_instruction()
                                               : storage_messages::actual_instruction();
}

void dirty_water_page::load(const std::optional<dirty_water_answers>& stored) {
    answers_ = {};
    form_ = dirty_water_form::estimate;
    if (stored) show_stored(*stored);
}

// The estimate goes first; a row without an answer changes nothing.
void dirty_water_page::show_stored(const dirty_water_answers& stored) {
    if (!stored.cows.empty()) {
        form_ = dirty_water_form::estimate;
        answers_.cows = stored.cows;
        if (!stored.pig_pens.empty()) answers_.pig_pens = stored.pig_pens;
        answers_.actual.clear();
    } else if (!stored.actual.empty()) {
        form_ = dirty_water_form::actual;
        answers_ = {.cows = {}, .pig_pens = {}, .actual = stored.actual};
    }
}

void dirty_water_page::empty_other_boxes(dirty_water_form form) {
    if (form == dirty_water_form::estimate) {
        answers_.actual.clear();
    } else {
        answers_.cows.clear();
        answers_.pig_pens.clear();
    }
}

void dirty_water_page::show_form(dirty_water_form form) {
    form_ = form;
    empty_other_boxes(form);
}

void dirty_water_page::set_cows(const std::string& text) {
    if (text == answers_.cows) return;
    answers_.cows = text;
    empty_other_boxes(dirty_water_form::estimate);
}

void dirty_water_page::set_pig_pens(const std::string& text) {
    if (text == answers_.pig_pens) return;
    answers_.pig_pens = text;
    empty_other_boxes(dirty_water_form::estimate);
}

void dirty_water_page::set_actual(const std::string& text) {
    if (text == answers_.actual) return;
    answers_.actual = text;
    empty_other_boxes(dirty_water_form::actual);
}

void dirty_water_page::take_last_year() {
    if (state_.prev1_file.empty()) {
        person_.tell(storage_messages::linked_file_missing);
        return;
    }
    const auto stored = read_dirty_water(database(state_.prev1_file));
    if (stored)
        show_stored(*stored);
    else
        answers_ = {.cows = "0", .pig_pens = "0", .actual = "0"};
}

bool dirty_water_page::complete() {
    const message* missing = missing_answer(answers_);
    if (missing) person_.tell(*missing);
    return !missing;
}

const message* missing_answer(const dirty_water_answers& answers) {
    if (holds_number(answers.actual)) return nullptr;
    if (!holds_number(answers.cows)) return &storage_messages::no_cow_figure;
    if (!holds_number(answers.pig_pens)) return &storage_messages::no_pig_pen_figure;
    return nullptr;
}

std::optional<dirty_water_answers> read_dirty_water(const database& db) {
    const recordset row = db.open("Store_in");
    if (row.eof()) return std::nullopt;
    return dirty_water_answers{row.text("Water_cow"), row.text("Water_pig"), row.text("Water_actual")};
}

void write_store_in(const database& db, const monthly_values& rain_mm, const dirty_water_answers& answers) {
    db.delete_rows("Store_in");
    recordset row = db.open("Store_in");
    row.add_new();
    for (int month = 1; month <= months_in_year; ++month)
        row.set(month_name(month), stored_single(rain_mm[static_cast<std::size_t>(month - 1)]));
    const auto set_filled = [&row](std::string_view column, const std::string& text) {
        if (!text.empty()) row.set(column, text);
    };
    set_filled("Water_cow", answers.cows);
    set_filled("Water_pig", answers.pig_pens);
    set_filled("Water_actual", answers.actual);
    row.update();
}

}  // namespace kel
