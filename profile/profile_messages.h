// Every text that the farm profile and the location screen say.
#pragma once

#include <string>
#include <vector>

#include "core/prompts.h"
#include "core/record_import.h"

namespace kel::profile_messages {

// Loading.
inline const message data_load_error{"Data Load Error",
                                     "A problem was encountered while trying to load the farm data, some of "
                                     "all of the data may have been lost.",
                                     message_kind::stop};

// Entry boxes of the grid.
inline constexpr std::string_view enter_name = "Enter field name or ID.";
inline constexpr std::string_view enter_area = "Enter area (ha).";
/// Told in the box of an area or a soil over a range of rows; nothing for one.
inline std::string fills_fields(int fields) {
    return fields == 1 ? "" : "Goes into " + std::to_string(fields) + " selected fields.";
}
inline constexpr std::string_view select_soil = "Select soil type.";

inline const message invalid_character{
    "Invalid Character",
    "The field name contains an appostrophe. This is an invalid character in the field name. "
    "Please remove character/rename the field"};
inline const message name_exists{"Invalid name",
                                 "That field name already exists. All field names on a farm must be unique. "
                                 "Please type in an alternative name."};
inline const message heading_row{"Cannot Delete", "This row cannot be deleted!", message_kind::information};

// Create Fields and the pastes.
inline const message fewer_fields{
    "Delete Fields",
    "The number of fields already listed exceeds the number you want to create. If you proceed you will "
    "erase "
    "the fields beyond this number at the bottom of the grid. Do you want to proceed?",
    message_kind::warning, message_buttons::yes_no};
inline const message add_or_overwrite{"Add fields to list",
                                      "Do you want to add these to the current list of fields (Yes) or "
                                      "overwrite the current list of fields (No)?",
                                      message_kind::question, message_buttons::yes_no_cancel};
inline const message more_than_names{
    "Paste Field Names",
    "You are trying to paste more than just a list of field names. Please check what you have copied"};
inline message duplicate_fields(const std::vector<std::string>& names) {
    std::string text =
        "The following fields were not entered in the grid as they had duplicate field names. "
        "All field names must be unique.";
    text += line_break;
    for (const std::string& name : names)
        text.append(line_break).append(name);
    return {"Duplicate fields", std::move(text), message_kind::information};
}

// Set Profile, in the order of its tests.
inline const message no_name{"Farm name", "No farm name has been entered!"};
inline const message no_location{"Farm location", "No farm location has been entered!"};
inline const message no_area{"Farm area", "No farm area has been entered!"};
inline const message no_fields{"Number of fields", "No number of fields has been entered!"};
inline const message no_year{"Year", "No year has been selected!"};
inline const message missing_data{"Missing data", "There is data missing from the fields table!"};
inline const message kel_area_query{
    "KEL Area Query",
    "The KEL area for the farm does not match the total KEL area for all the fields listed. "
    "Do you want to calculate the farm KEL area using the figures from the field list",
    message_kind::question, message_buttons::yes_no};
inline const message kel_area_to_adjust{
    "KEL Area Query",
    "You will need to adjust either the Farm KEL Area or the field KEL areas before you can save the data."};
inline const message kel_area_above_total{"Farm Area Mis-match",
                                          "The KEL area of the farm is greater than the total area of the "
                                          "farm.  Please check and adjust the figures."};
inline constexpr std::string_view new_file_title = "Set up a new profile";
inline const message areas_changed{
    "Change in field areas",
    "One or more of the fields have changed in size. You will need to re-assess the land availability for "
    "spreading manure for these fields (the old data has been deleted).",
    message_kind::stop};

// Fields of another farm.
inline constexpr import_titles profile_titles{"Add data from another profile",
                                              "Replace with data from another profile"};
inline const message name_in_new_file{"Field Name",
                                      "A field in the new file is named the same as one in the open Farm "
                                      "Profile. This field will not be added to the "
                                      "list!"};

// Location.
inline constexpr std::string_view town_prompt = "Please the select the nearest town to your farm:";
inline const message no_kel{"KEL", "No KEL has been selected!"};
inline const message no_town{"Nearest town", "You haven't selected the nearest town to your farm!"};

}  // namespace kel::profile_messages
