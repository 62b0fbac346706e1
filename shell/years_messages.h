// Every text that the years dialog says.
#pragma once

#include <string_view>

#include "core/prompts.h"

namespace kel::years_messages {

inline constexpr std::string_view open_title = "Open an existing assessment";
inline constexpr std::string_view link_title = "Link to the previous assessment";

inline const message no_assessment_open{
    "No Assessment open", "You must create or open a new assessment before you can link to an old one.",
    message_kind::information, message_buttons::ok};

inline const message no_previous_year{
    "No Previous Year 1 Assessment",
    "You must link to a Previous Year 1 assessment before you can link to Previous Year 2 assessment.",
    message_kind::information, message_buttons::ok};

inline const message other_farm_name{"Farm name does not match",
                                     "The farm name in this file does not match the farm name in the current "
                                     "assessment file. Are you sure you "
                                     "want to proceed?",
                                     message_kind::question, message_buttons::yes_no};

inline const message not_previous_year{
    "Linking Assessments", "This assessment cannot be linked as it does not relate to the previous year!",
    message_kind::warning, message_buttons::ok};

inline const message not_year_before_previous{
    "Linking Assessments",
    "This assessment cannot be linked as it does not relate to the previous year 1 assessment",
    message_kind::warning, message_buttons::ok};

inline const message nothing_opened{
    "Cannot proceed",
    "You have not opened any assessment files. Use the top Browse button to locate and open a current "
    "assessment file, or click on Cancel to close the 'Open Assessments / Year Selection' window.",
    message_kind::warning, message_buttons::ok};

inline const message nothing_linked{
    "Linked Assessments",
    "You have not opened any previous linked assessments. Are you sure you want to continue?",
    message_kind::question, message_buttons::yes_no};

inline const message no_current_file{
    "No current assessment file",
    "No current assessment file is open. You must have one open to create a new assessment year.",
    message_kind::warning, message_buttons::ok};

inline constexpr std::string_view create_instruction =
    "To create a new assessment year you must firstly select a date for the start of the year. Either accept "
    "the default (one year on from the last assessment) or click on the change button to select an "
    "alternative "
    "year (note changing the default date may result in the loss of the links between previous assessments). "
    "Secondly, select a new file in which to save the data by clicking on the Browse button and typing in a "
    "file name (note, if you overwrite an existing file that is one of the previous assessment files you "
    "will "
    "not be able to link to previous data).  Finally, click on the Create button.";

inline const message no_new_file{
    "No file",
    "You have selected a file in which to save the data. Please use the browse button to select a file.",
    message_kind::warning, message_buttons::ok};

inline const message new_file_is_linked{"File name",
                                        "The file chosen already exists as one of the linked assessments. If "
                                        "you use this you will not be able to "
                                        "link to data from previous year. Are you sure you want to proceed?",
                                        message_kind::warning, message_buttons::yes_no};

}  // namespace kel::years_messages
