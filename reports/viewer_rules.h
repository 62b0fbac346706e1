// What the viewer's third button does, and saving a report with the pictures it refers to.
#pragma once

#include <string>
#include <string_view>

#include "core/application_state.h"
#include "core/prompts.h"

namespace kel {

enum class third_button_action { back, contents, save };

struct third_button {
    third_button_action action = third_button_action::save;
    std::string page{};  // path to navigate to; only for contents
    bool operator==(const third_button&) const = default;
};

/// By the button's caption; `mode` 1 leads to the contents of the guides, any other to that of the reports.
third_button third_button_of(std::string_view caption, int mode, const installation& places);

/// Asks for a file and copies the last report there, beside it the logo and its own pictures. `report_folder`
/// is the folder of the last save (empty: none yet) and becomes that of this one. Throws file_error naming
/// the file that could not be copied; a report saved over itself stays as it is.
void save_report(const application_state& state, prompts& person, std::string& report_folder,
                 const std::string& documents_folder);

inline constexpr std::string_view save_pdf_title = "Save as PDF";

/// Asks for the file of a PDF, beginning where a report would be saved; its folder becomes that of the last
/// save. Empty when cancelled.
std::string choose_pdf(const application_state& state, prompts& person, std::string& report_folder,
                       const std::string& documents_folder);

}  // namespace kel
