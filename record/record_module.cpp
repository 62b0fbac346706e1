#include "record/record_module.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/farm_fields.h"
#include "core/file_choice.h"
#include "core/whole_file.h"
#include "record/record_grid.h"
#include "record/record_messages.h"
#include "record/record_report.h"
#include "record/record_source.h"

namespace kel {

namespace text = record_messages;

namespace {

std::vector<std::string> set_fieldlist(const std::string& assessment) {
    if (assessment.empty()) return {};
    return field_names(read_farm_fields(database(assessment)));
}

bool is_assessment(const std::string& path, const application_state& state) {
    const std::array<std::string, 6> files{state.assess_file,  state.prev1_file, state.prev2_file,
                                           state.slot_current, state.slot_prev1, state.slot_prev2};
    return std::any_of(files.begin(), files.end(),
                       [&](const std::string& file) { return !file.empty() && same_file(path, file); });
}

}  // namespace

record_module::record_module(application_state& state, prompts& person)
    : state_(state), person_(person), shown_{{}, empty_record_grid(), empty_warnings_grid(), {}} {}

record_module::view record_module::view_of(const std::string& field, const field_history& history) const {
    const record_year year = record_year_of(state_);
    const field_record record = get_record(history, year);
    return {field, record_grid(record.rows), warnings_grid(analysis(record, history, year)), history};
}

void record_module::record_load_stuff() {
    std::vector<std::string> names = set_fieldlist(state_.assess_file);
    if (names.empty())
        shown_ = {{}, empty_record_grid(), empty_warnings_grid(), {}};
    else
        select_field(std::find(names.begin(), names.end(), field()) == names.end() ? names.front() : field());
    field_names_ = std::move(names);
}

void record_module::select_field(const std::string& field) {
    shown_ = view_of(field, read_history(state_, field));
}

std::string record_module::copied_text() const {
    return kel::copied_text(field(), record(), warnings());
}

void record_module::export_csv(const std::string& documents_folder) {
    const std::string& folder = state_.last_csv_dir.empty() ? documents_folder : state_.last_csv_dir;
    const std::string path = with_extension(person_, text::csv_title,
                                            person_.file_to_save({.title = std::string(text::csv_title),
                                                                  .filter = std::string(text::csv_filter),
                                                                  .folder = folder}),
                                            ".csv");
    if (path.empty()) return;
    state_.last_csv_dir = folder_of(path);
    if (is_assessment(path, state_)) return person_.tell(text::csv_over_assessment);
    write_whole_file(path, csv_text(field(), record(), warnings()), "the CSV file");
    person_.tell(text::csv_saved(path));
}

// Both files are read once for all fields; the field shown is brought up to date from what was read.
page_lines record_module::all_sections() {
    const auto histories = read_histories(state_);
    page_lines body;
    for (const std::string& name : field_names_) {
        const auto found = histories.find(name);
        view section = view_of(name, found == histories.end() ? field_history{} : found->second);
        if (!body.empty()) append(body, section_rule());
        append(body, record_section(name, section.record, section.warnings));
        if (name == field()) shown_ = std::move(section);
    }
    return body;
}

void record_module::report(report_desk& desk) {
    const answer reply = person_.ask(text::which_fields);
    if (reply == answer::cancel) return;
    page_lines body = reply == answer::no ? all_sections() : record_section(field(), record(), warnings());
    const std::vector<std::string> icons = icon_paths();
    lay_out_pictures(state_.places, icons);
    generate_report(desk, record_report_file, std::move(body), screen_id::record, screen_id::record, {},
                    icons);
}

}  // namespace kel
