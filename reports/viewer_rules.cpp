#include "reports/viewer_rules.h"

#include "core/file_choice.h"
#include "core/whole_file.h"
#include "reports/contents_page.h"

namespace kel {

namespace {

constexpr std::string_view save_title = "Save the report";
constexpr std::string_view report_filter = "HTML Report (*.htm)|*.htm";
constexpr std::string_view guides_contents_page = "help/viewlets/KEL_showme_contents.htm";

// Only last_dir is asked whether a folder is remembered, though the folder itself is that of the last saved
// report.
std::string starting_folder(const application_state& state, const std::string& report_folder,
                            const std::string& documents_folder) {
    return state.last_dir.empty() || report_folder.empty() ? documents_folder : report_folder;
}

}  // namespace

third_button third_button_of(std::string_view caption, int mode, const installation& places) {
    if (caption == "Back") return {third_button_action::back, {}};
    if (caption != "Contents") return {third_button_action::save, {}};
    const std::string page =
        mode == 1 ? join_path(places.program_folder, guides_contents_page) : places.report(contents_file);
    return {third_button_action::contents, page};
}

void save_report(const application_state& state, prompts& person, std::string& report_folder,
                 const std::string& documents_folder) {
    const std::string chosen = with_extension(
        person, save_title,
        person.file_to_save({.title = std::string(save_title),
                             .filter = std::string(report_filter),
                             .folder = starting_folder(state, report_folder, documents_folder)}),
        ".htm");
    if (chosen.empty()) return;
    report_folder = folder_of(chosen);
    copy_whole_file(state.last_report_path, chosen);
    copy_whole_file(join_path(state.places.program_folder, logo_file), join_path(report_folder, logo_file));
    for (const std::string& picture : state.last_report_pictures)
        copy_between(state.places.written_folder, report_folder, picture);
}

}  // namespace kel
