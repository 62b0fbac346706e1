// Calculate and what follows from it, save and close.
#include <utility>

#include "core/file_choice.h"
#include "core/module_messages.h"
#include "manure/closed_months.h"
#include "manure/manure_messages.h"
#include "manure/manure_module.h"
#include "manure/manure_report.h"

namespace kel {

namespace text = manure_messages;
namespace col = manure_column;

namespace {

// What Calculate takes from the files, read in one go.
struct files_read {
    std::vector<farm_field> fields;
    std::vector<int> closed_rows;
    std::optional<std::vector<dated_rate>> last_year;
};

files_read read_files(const application_state& state, const text_grid& table, bool with_last_year) {
    files_read files;
    if (!state.assess_file.empty()) {
        const database db(state.assess_file);
        files.fields = read_farm_fields(db);
        files.closed_rows = rows_in_closed_months(db, table);
    }
    // The table of last year's applications holds those of that file: none counts twice.
    if (with_last_year && !state.prev1_file.empty())
        files.last_year = dated_rates(database(state.prev1_file));
    return files;
}

}  // namespace

bool manure_module::calculate() {
    const files_read files = read_files(state_, applications_, !for_previous_year());
    instructions_ = text::result_instruction();
    if (files.fields.empty()) return person_.tell(text::no_fields), false;
    auto sums = sum_by_field(files.fields, applications_);
    if (!sums) return person_.tell(text::missing_data), false;
    results_ = *std::move(sums);
    warnings_ = text::warnings_heading;
    mark_over_limit(files.last_year);
    fm_closed_rep(files.closed_rows);
    results_shown_ = true;
    return true;
}

void manure_module::mark_over_limit(const std::optional<std::vector<dated_rate>>& last_year) {
    const auto over = fields_over_limit(dated_rates(applications_), last_year);
    over_limit_.clear();
    for (int row = 0; row < results_.row_count(); ++row) {
        const std::string& field = results_.cell(row, manure_result_column::field);
        if (!over.contains(field)) continue;
        over_limit_.push_back(field);
        results_.set_cell(row, manure_result_column::warnings, "Yes");
    }
    if (!over_limit_.empty()) instructions_ += text::limit_warning(over_limit_);
}

// The mark goes to the results row that bears the number of the application's row, if there is one.
void manure_module::fm_closed_rep(const std::vector<int>& closed_rows) {
    closed_rows_ = closed_rows;
    closed_periods_.clear();
    for (const int row : closed_rows) {
        closed_periods_.push_back(text::closed_warning(applications_.cell(row, col::manure),
                                                       applications_.cell(row, col::field),
                                                       applications_.cell(row, col::date)));
        warnings_.append(line_break).append(line_break).append(closed_periods_.back());
        if (row < results_.row_count()) results_.set_cell(row, manure_result_column::warnings, "Yes");
    }
}

void manure_module::back() {
    results_shown_ = false;
    instructions_ = text::instruction;
}

std::optional<save_target> manure_module::save_file() {
    if (!for_previous_year()) return file_to_save(state_, person_, text::this_years_file.title);
    if (!state_.prev1_file.empty()) return save_target{state_.prev1_file, {}};
    const std::string chosen = choose_file_to_save(state_, person_, "Save the assessment");
    if (chosen.empty()) return std::nullopt;
    if (same_file(chosen, state_.assess_file)) return person_.tell(text::this_years_file), std::nullopt;
    return save_target{chosen, state_.places.blank_assessment(), &application_state::prev1_file};
}

bool manure_module::save() {
    const auto target = save_file();
    if (!target) return false;
    module_save file(state_, person_, loaded_, *target);
    if (!file) return false;
    save_applications(file.db(), applications_);
    file.commit();
    history_.begin_anew();
    return true;
}

bool manure_module::close() {
    return person_.ask(module_messages::close_module) != answer::no;
}

// Step 1 is the screen that is hidden; this one stays open behind the viewer.
void manure_module::report(report_desk& desk) {
    if (!results_shown_) return;
    generate_report(desk, manure_report_file,
                    manure_report(results_, applications_, over_limit_, closed_periods_), screen_id::land,
                    screen_id::manure);
}

}  // namespace kel
