// Every text that the assessments screen says.
#pragma once

#include <string>
#include <string_view>

#include "core/file_error.h"
#include "core/prompts.h"

namespace kel::assessments_messages {

inline const message no_assessment_file{"Cannot Proceed", "No assessment file has been opened.",
                                        message_kind::warning, message_buttons::ok};

inline const message no_profile_to_edit{
    "Cannot Proceed",
    "No assessment is open. You must open a current assessment to be able to edit the farm profile.",
    message_kind::warning, message_buttons::ok};

inline const message land_first{
    "Land available for spreading manures",
    "Before carrying out this assesment, you should work out whether there is enough land available for "
    "spreading manures. Has this been done?",
    message_kind::question, message_buttons::yes_no_cancel};

inline const message closed_periods_first{
    "Closed Periods",
    "Before carrying out this assesment, you should assess closed periods in step 2. Has this been done?",
    message_kind::question, message_buttons::yes_no_cancel};

inline const message save_error{
    "Save Error", "An error occurred while trying to save the file. It may not have been saved.",
    message_kind::information, message_buttons::ok};

inline const message update_question{
    "Update Software",
    "This will process will close the software and you will need to restart the software." +
        std::string(line_break) + std::string(line_break) + "Do you want to proceed?",
    message_kind::question, message_buttons::yes_no};

inline const message exit_question{"Exit", "Are you sure you want to exit?", message_kind::question,
                                   message_buttons::yes_no};

inline message cannot_open(const file_error& failure) {
    return {"Cannot Open Assessment",
            "The assessment " + failure.file() + " could not be opened: " + failure.trouble() +
                " No assessment is open now. Use \"Open Assessments\" to choose another file.",
            message_kind::stop, message_buttons::ok};
}

inline message settings_not_saved(const file_error& failure) {
    return {"Exit", "The settings in " + failure.file() + " could not be saved: " + failure.trouble(),
            message_kind::stop, message_buttons::ok};
}

inline message updater_missing(const std::string& path) {
    return {"Update Software", "The update program " + path + " was not found or could not be started.",
            message_kind::information, message_buttons::ok};
}

inline message page_missing(std::string_view title, std::string_view page, std::string_view folder) {
    return {std::string(title),
            "The page " + std::string(page) + " was not found in the folder " + std::string(folder) + ".",
            message_kind::information, message_buttons::ok};
}

inline constexpr std::string_view save_as_title = "Save Farm Assessment As...";

}  // namespace kel::assessments_messages
