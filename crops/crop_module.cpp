#include "crops/crop_module.h"

#include <utility>

#include "core/grid_rows.h"
#include "core/module_save.h"
#include "crops/crop_messages.h"
#include "crops/crop_report.h"
#include "rules/manure_history.h"
#include "rules/recommendations.h"

namespace kel {

namespace {

namespace text = crop_messages;

bool is_rain_status(std::string_view status) {
    return status == rain_status::high || status == rain_status::low;
}

bool any_empty(const text_grid& crops, int column) {
    for (int row = 0; row < crops.data_row_count(); ++row)
        if (crops.cell(row, column).empty()) return true;
    return false;
}

}  // namespace

crop_module::crop_module(application_state& state, prompts& person, screens& others)
    : state_(state),
      person_(person),
      screens_(others),
      crops_(empty_crop_grid()),
      results_(empty_crop_results()) {}

std::string_view crop_module::instruction() const {
    switch (phase_) {
        case crop_phase::winter_question:
            return text::winter_instruction;
        case crop_phase::results:
            return text::results_instruction;
        default:
            return text::default_instruction;
    }
}

void crop_module::open() {
    const database climate(state_.places.climate_tables());
    load(std::string(winter_rain_default(climate, state_.farm_town).value_or("")));
    sowing_shown_.clear();
    working_ = {};
    rain_ = {};
    phase_ = crop_phase::winter_question;
    history_.begin_anew();
}

void crop_module::crop_load_stuff() {
    if (state_.assessment != opened_assessment_) return open();
    load(winter_status_);
    if (phase_ == crop_phase::results) phase_ = crop_phase::table;
}

void crop_module::load(std::string winter_status) {
    text_grid crops = empty_crop_grid();
    std::vector<std::string> names;
    load_messages told;
    loaded_rows loaded = loaded_;
    bool winter_is_stored = false;
    if (!state_.assess_file.empty()) {
        const database db(state_.assess_file);
        loaded.remember(db);
        const std::vector<farm_field> fields = read_farm_fields(db);
        const known_fields known(fields);
        names = kel::field_names(fields);
        const recordset first = db.open("Crops");
        winter_is_stored = !first.eof() && is_rain_status(first.text("Winter Rainfall Status"));
        if (winter_is_stored) winter_status = first.text("Winter Rainfall Status");
        crops.clear();
        append_rows(db, "Crops", crops, {.fields = &known}, told);
        crops.add_row();
    }
    crops_ = std::move(crops);
    loaded_ = std::move(loaded);
    results_ = empty_crop_results();
    field_names_ = std::move(names);
    winter_status_ = std::move(winter_status);
    winter_is_stored_ = winter_is_stored;
    opened_assessment_ = state_.assessment;
    history_.begin_anew();
    told.tell(person_);
}

std::vector<std::string> crop_module::winter_answers() {
    return {std::string(text::more_than_450_mm), std::string(text::less_than_450_mm)};
}

std::optional<int> crop_module::winter_answer() const {
    if (winter_status_.empty()) return std::nullopt;
    return winter_status_ == rain_status::high ? 0 : 1;
}

bool crop_module::enter_winter_rain(std::optional<int> choice) {
    if (!choice) {
        person_.tell(text::no_winter_answer);
        return false;
    }
    winter_status_ = *choice == 0 ? rain_status::high : rain_status::low;
    phase_ = crop_phase::table;
    return true;
}

bool crop_module::calculate() {
    for (const auto& [column, missing] :
         {std::pair{crop_column::planned_crop, text::crop_missing},
          std::pair{crop_column::previous_crop, text::previous_crop_missing}}) {
        if (!any_empty(crops_, column)) continue;
        person_.tell(missing);
        return false;
    }
    results_ = empty_crop_results();
    before_results_ = {working_, rain_};
    for (int row = 0; row < crops_.data_row_count(); ++row) {
        const calculated_crop crop = calculate_crop(crops_, row, winter_status_, working_, rain_);
        if (crop.winter_rain)
            crops_.set_cell(row, crop_column::winter_rain, std::to_string(*crop.winter_rain));
        if (crop.spring_rain)
            crops_.set_cell(row, crop_column::spring_rain, std::to_string(*crop.spring_rain));
        add_crop_result(results_, crops_.cell(row, crop_column::field), crop.found);
    }
    phase_ = crop_phase::results;
    return true;
}

void crop_module::save_rec() {
    if (state_.assess_file.empty()) return;
    std::vector<recommendation> found;
    found.reserve(static_cast<std::size_t>(results_.row_count()));
    for (int row = 0; row < results_.row_count(); ++row)
        found.push_back(
            {results_.cell(row, crop_result_column::field), results_.cell(row, crop_result_column::total)});
    const database db(state_.assess_file);
    save_transaction transaction(db, *state_.copies);
    save_recommendations(db, found);
    transaction.commit();
}

// The table first: a file that cannot be written must not keep the person in the results.
void crop_module::back() {
    if (phase_ != crop_phase::results) return;
    phase_ = crop_phase::table;
    save_rec();
}

bool crop_module::save() {
    const auto target = file_to_save(state_, person_, text::cannot_save_title);
    if (!target) return false;
    for (int row = 0; row < crops_.data_row_count(); ++row)  // hidden, and the same in every row
        crops_.set_cell(row, crop_column::winter_status, winter_status_);
    module_save file(state_, person_, loaded_, *target);
    if (!file) return false;
    save_crops(file.db(), crops_);
    file.commit();
    history_.begin_anew();
    return true;
}

bool crop_module::close() {
    if (phase_ == crop_phase::winter_question) return true;
    if (phase_ == crop_phase::results) {
        back();
        phase_ = crop_phase::results;
    }
    return person_.ask(module_messages::close_the_module) != answer::no;
}

void crop_module::report(report_desk& desk) {
    if (phase_ != crop_phase::results) return;
    const manure_history manures(open_manure_years(state_));
    generate_report(desk, crop_report_file, crop_report(crops_, results_, manures), screen_id::land,
                    screen_id::crops);
}

}  // namespace kel
