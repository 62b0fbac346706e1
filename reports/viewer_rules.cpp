#include "reports/viewer_rules.h"

#include "core/file_choice.h"
#include "core/whole_file.h"
#include "reports/contents_page.h"

namespace kel {

namespace {

constexpr std::string_view save_title = "Save the report";
constexpr std::string_view report_filter = "HTML Report (*.htm)|*.htm";
constexpr std::string_view pdf_filter = "PDF document (*.pdf)|*.pdf";
constexpr std::string_view guides_contents_page = "help/viewlets/KEL_showme_contents.htm";

// Only last_dir is asked whether a folder is remembered, though the folder itself is that of the last saved
// report.
std::string starting_folder(const application_state& state, const std::string& report_folder,
                            const std::string& documents_folder) {
    return state.last_dir.empty() || report_folder.empty() ? documents_folder : report_folder;
}

// The file chosen, whose folder is that of the next save; empty when cancelled. The filter ends in the
// extension.
std::string choose_file(const application_state& state, prompts& person, std::string_view title,
                        std::string_view filter, std::string& report_folder,
                        const std::string& documents_folder) {
    std::string chosen = with_extension(
        person, title,
        person.file_to_save({.title = std::string(title),
                             .filter = std::string(filter),
                             .folder = starting_folder(state, report_folder, documents_folder)}),
        filter.substr(filter.rfind('.')));
    if (!chosen.empty()) report_folder = folder_of(chosen);
    return chosen;
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
    const std::string chosen =
        choose_file(state, person, save_title, report_filter, report_folder, documents_folder);
    if (chosen.empty()) return;
    copy_whole_file(state.last_report_path, chosen);
    copy_whole_file(join_path(state.places.program_folder, logo_file), join_path(report_folder, logo_file));
    for (const std::string& picture : state.last_report_pictures)
        copy_between(state.places.written_folder, report_folder, picture);
}

std::string choose_pdf(const application_state& state, prompts& person, std::string& report_folder,
                       const std::string& documents_folder) {
    return choose_file(state, person, save_pdf_title, pdf_filter, report_folder, documents_folder);
}

}  // namespace kel
