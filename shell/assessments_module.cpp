#include "shell/assessments_module.h"

#include <array>
#include <exception>
#include <filesystem>
#include <system_error>
#include <vector>

#include "core/file_choice.h"
#include "core/settings_store.h"
#include "core/whole_file.h"
#include "reports/contents_page.h"
#include "reports/printed_reports.h"
#include "shell/assessments_messages.h"
#include "shell/reopen_assessment.h"

namespace kel {

namespace {

namespace fs = std::filesystem;
namespace text = assessments_messages;

// Folders of help topics under install_root, by help file number from 1.
constexpr std::array<std::string_view, 6> help_folders{
    "PEPFAAcode", "PEPFAAdo", "KEL", "4-pointplan", "PEPFAAnandp", "kel_software_help",
};

constexpr std::string_view guides_contents = "Viewer/html/scot_kel/KEL_showme_contents.htm";

bool is_there(const std::string& path) {
    std::error_code ignored;
    return fs::exists(path, ignored);
}

std::vector<std::string> file_names_in(const std::string& folder) {
    std::vector<std::string> names;
    std::error_code trouble;
    for (const auto& entry : fs::directory_iterator(folder, trouble))
        names.push_back(entry.path().filename().string());
    return names;
}

}  // namespace

std::string program_version() {
    return KEL_VERSION;
}

void assessments_module::start_up() {
    set_short_date(state_);
    set_long_date(state_);
    for (std::string* path : {&state_.assess_file, &state_.prev1_file, &state_.slot_current,
                              &state_.slot_prev1, &state_.slot_prev2})
        path->clear();
    title_ = "KEL Calculator (Version " + program_version() + ")";
    desk_.viewer.wait_cursor(true);
    const auto trouble = reopen_assessment(state_, profile_);
    desk_.viewer.wait_cursor(false);
    if (trouble) person_.tell(*trouble);
}

void assessments_module::new_farm() {
    close_assessment(state_);
    for (std::string* path : {&state_.slot_current, &state_.slot_prev1, &state_.slot_prev2})
        path->clear();
    state_.slot_selected = 0;
    profile_.new_farm();
    open_module(screen_id::profile);
}

void assessments_module::open_assessments() {
    state_.picker_caller = picker_module::front;
    screens_.open(screen_id::years);
}

void assessments_module::edit_profile() {
    if (state_.assess_file.empty()) return person_.tell(text::no_profile_to_edit);
    profile_.edit_existing();
    open_module(screen_id::profile);
}

void assessments_module::save_as() {
    try {
        const std::string target = choose_file_to_save(state_, person_, text::save_as_title);
        if (!target.empty()) copy_to(target);
    } catch (const std::exception&) {
        person_.tell(text::save_error);
    }
}

// The slots and the store keep the old path, so that the next start opens the old file again.
void assessments_module::copy_to(const std::string& target) {
    write_store(state_);
    if (same_file(target, state_.assess_file)) return;
    state_.copies->keep(target);
    copy_assessment(state_.assess_file, target);
    go_on_in(state_, person_, target);
}

bool assessments_module::assessment_is_open() {
    if (state_.assess_file.empty()) person_.tell(text::no_assessment_file);
    return !state_.assess_file.empty();
}

answer assessments_module::ask_order(const message& question) {
    return state_.no_related_prompt == 1 ? answer::yes : person_.ask(question);
}

// A module that cannot load its data throws out of open, and this screen then stays in view.
void assessments_module::open_module(screen_id module) {
    if (screens_.exists(module)) screens_.open_in_place_of(screen_id::front, module);
}

void assessments_module::open_if_assessment(screen_id module) {
    if (assessment_is_open()) open_module(module);
}

void assessments_module::step1() {
    open_if_assessment(screen_id::land);
}

void assessments_module::step2() {
    if (!assessment_is_open()) return;
    const answer done = ask_order(text::land_first);
    if (done == answer::yes) open_module(screen_id::storage);
    if (done == answer::no) step1();
}

void assessments_module::step3() {
    if (!assessment_is_open()) return;
    const answer done = ask_order(text::closed_periods_first);
    if (done == answer::yes) {
        state_.manure_caller = manure_opener::front;
        open_module(screen_id::manure);
    }
    if (done == answer::no) step2();
}

void assessments_module::step4() {
    if (!assessment_is_open()) return;
    const answer done = ask_order(text::closed_periods_first);
    if (done == answer::yes) open_module(screen_id::inorganic);
    if (done == answer::no) step2();
}

void assessments_module::crops() {
    open_if_assessment(screen_id::crops);
}
void assessments_module::grassland() {
    open_if_assessment(screen_id::grass);
}
void assessments_module::composting() {
    open_if_assessment(screen_id::straw);
}
void assessments_module::field_record() {
    open_if_assessment(screen_id::record);
}
void assessments_module::season_calendar() {
    open_if_assessment(screen_id::calendar);
}
void assessments_module::blank_sheets() {
    open_if_assessment(screen_id::sheets);
}

// This screen stays open behind the viewer; it is the Step 1 screen that is hidden.
void assessments_module::view_reports() {
    if (!assessment_is_open()) return;
    const auto files = file_names_in(state_.places.written_folder);
    generate_report(desk_, contents_file, contents_body(files), screen_id::land, screen_id::front,
                    {.page = {}, .caption = "Contents", .mode = 0});
}

void assessments_module::print_all_reports() {
    if (!assessment_is_open()) return;
    const auto reports = reports_to_print(state_, person_);
    if (!reports.empty()) screens_.print_pages(reports);
}

void assessments_module::check_farms() {
    screens_.open(screen_id::farms);
}

void assessments_module::show_standing() {
    if (assessment_is_open()) screens_.show_standing();
}

void assessments_module::show_page(std::string_view title, const viewer_request& request, screen_id back) {
    if (!is_there(request.page))
        return person_.tell(text::page_missing(title, file_name_of(request.page), folder_of(request.page)));
    desk_.viewer.show(request);
    state_.viewer_back = back;
}

void assessments_module::show_me() {
    show_page("Show Me", {join_path(state_.places.install_root, guides_contents), "Contents", 1},
              screen_id::front);
}

void assessments_module::guidelines() {
    run_help(3, "TP", "kel_cont.htm", screen_id::front);
}

void assessments_module::whats_this() {
    run_help(6, "TP", "kel_software_intro.htm", screen_id::front);
}

void assessments_module::run_help(int help_file, std::string_view /*window_type*/, std::string_view topic,
                                  screen_id back) {
    const std::string_view folder = help_folders.at(static_cast<std::size_t>(help_file - 1));
    const std::string page = join_path(join_path(state_.places.install_root, folder), topic);
    show_page("Help", {page, "Back", 0}, back);
}

// The store is left as it was last written.
void assessments_module::update() {
    if (person_.ask(text::update_question) != answer::yes) return;
    const std::string updater = join_path(state_.places.program_folder, "updater1.exe");
    if (!is_there(updater) || !screens_.start_updater(updater))
        return person_.tell(text::updater_missing(updater));
    screens_.end();
}

void assessments_module::about() {
    screens_.open(screen_id::about);
}

void assessments_module::show_partner(const std::string& address) {
    desk_.viewer.wait_cursor(true);
    // A report that is in view leads back to its module, in which there may be work: the box stays then.
    const bool over_report = screens_.in_view(screen_id::viewer);
    desk_.viewer.show({address, "Back", 0});
    if (!over_report) {
        state_.viewer_back = screen_id::about;
        desk_.viewer.hide_screen(screen_id::about);
    }
    desk_.viewer.wait_cursor(false);
}

void assessments_module::exit() {
    if (person_.ask(text::exit_question) == answer::yes) close_window();
}

void assessments_module::close_window() {
    try {
        write_store(state_);
    } catch (const file_error& failure) {
        person_.tell(text::settings_not_saved(failure));
    }
    screens_.end();
}

}  // namespace kel
