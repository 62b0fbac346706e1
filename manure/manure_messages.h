// Every text of the module: the labels of its screen, what its boxes say and how its warnings are worded.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/prompts.h"

namespace kel::manure_messages {

// The screen.
inline constexpr std::string_view title =
    "How much will manure applications reduce the requirement for inorganic fertiliser nitrogen?";
inline constexpr std::string_view instruction =
    "Enter the required figures describing manure applications in the white cells in the table below (the "
    "grey cells contain figures that are calculated automatically). Then click on the Calculate button to "
    "determine how much the requirement of inorganic fertiliser N will be reduced for the planned (and "
    "subsequent) crop. The data can be saved to the assessment file by clicking on the Save button. Click on "
    "the Exit button to return to the Front Page.";
/// Replaces the instruction at Calculate.
std::string result_instruction();
inline constexpr std::string_view warnings_heading = "Warnings:";

// The entry boxes: caption and instruction.
inline constexpr std::string_view field_caption = "Enter field ID";
inline constexpr std::string_view field_instruction = "Select the field ID from the list box below.";
inline constexpr std::string_view manure_caption = "Enter manure or slurry type";
inline constexpr std::string_view manure_instruction =
    "Select the type of manure or slurry from the list box below.";
inline constexpr std::string_view incorporation_caption = "Enter incorporation time";
inline constexpr std::string_view incorporation_instruction =
    "Select the time within which it is worked into the soil.";
inline constexpr std::string_view date_caption = "Enter date applied";
inline constexpr std::string_view date_instruction = "Select the date of the application below.";
inline constexpr std::string_view area_caption = "Enter area spread (in hectares)";
inline constexpr std::string_view area_instruction =
    "Enter the area of the field on which it is spread in the box below.";
inline constexpr std::string_view amount_caption = "Enter amount applied";
inline constexpr std::string_view amount_instruction =
    "Enter the total amount applied to the area spread in the box below.";
inline constexpr std::string_view n_content_caption = "Enter total N content";
inline constexpr std::string_view n_content_instruction =
    "Enter the nitrogen content found by an analysis in the box below.";
inline constexpr std::string_view area_unit = "ha";
inline constexpr std::string_view tonne = "tonne";
inline constexpr std::string_view cubic_metre = "cubic m";
inline constexpr std::string_view kg_per_tonne = "kg/tonne";
inline constexpr std::string_view kg_per_cubic_metre = "kg/cubic m";

// The boxes. A message is a warning with OK unless it says otherwise.
inline const message calculation{"Calculation", "This cell is calculated automatically!",
                                 message_kind::information};
inline const message no_field_area_id{"Field area ID", "No field area ID has been entered!"};
inline const message no_manure{"Manure or slurry type", "No manure or slurry type has been entered!"};
inline const message no_field_id{"Field ID", "No field ID has been entered!"};
inline const message not_assessed{
    "Closed period", "This field has not been assessed for closed periods. Are you sure you want to proceed?",
    message_kind::stop, message_buttons::yes_no};
inline const message land_not_assessed{
    "Land availability for spreading",
    "The land availability for spreading has not been assessed yet, that should be done before carrying out "
    "this assessment!"};
inline const message unknown_manure{"Manure type", "This is not a supported manure type!"};
inline constexpr std::string_view outside_kel_year =
    "The date entered is not within the KEL year being assessed!";
inline constexpr std::string_view outside_previous_year =
    "The date entered is not within the previous KEL year!";
message invalid_date(const std::string& refusal);
inline const message closed_period{
    "Closed period",
    "This application is during a closed period for this crop and soil type on this field. Are you sure you "
    "want to proceed?",
    message_kind::stop, message_buttons::yes_no};
inline const message availability_unknown{
    "Land Availability?",
    "NOTE: This field has not been assessed for land availability for spreading. You may be breaching KEL "
    "regulations. Do you want to proceed with recording the application to this field?",
    message_kind::stop, message_buttons::yes_no};
inline const message no_land_available{
    "Land Availability",
    "No land is available in this field in this month for spreading manure of slurry. If this is incorrect, "
    "you should review the land availability and storage/closed periods assessments. Do you want to proceed "
    "with recording the application to this field?",
    message_kind::stop, message_buttons::yes_no};
inline const message no_area{"Application area", "No application area has been entered!"};
message field_without_land(const std::string& field);
inline const message area_too_large{
    "Invalid Number", "The area you are trying to enter is greater than the available area of the field!"};
inline const message no_amount{"Amount", "No amount applied has been entered!"};
inline const message no_n_content{"N analysis figure", "No N analysis figure has been entered!"};
inline const message invalid_application_month{"Invalid application month",
                                               "An invalid application month has been entered!"};
inline const message invalid_soil_type{"Invalid soil type", "An invalid soil type has been entered!"};
inline const message no_fields{"Cannot Proceed", "No fields exist in the farm profile."};
inline const message missing_data{
    "Missing data", "There is data missing from the table, please ensure all cells have been filled in!"};
inline const message this_years_file{
    "Cannot Save",
    "This is this years file and cannot be saved to at this time, you need to save the data to last years "
    "file!"};

// The warnings of the results.
inline constexpr std::string_view over_limit =
    "It would appear that some of the applications you have made have taken you over the 250 kg N/ha field "
    "limit for the following fields:";
inline constexpr std::string_view examine_applications =
    "You should examine the applications made this year, and if necessary last year, to ensure that you have "
    "not applied more than 250 Kg N/ha to the available spreading area of any field!";
/// Both sentences with the fields between them, one a line, as they follow the result instruction.
std::string limit_warning(const std::vector<std::string>& fields);
/// A row of another assessment whose field the farm profile lacks.
message imported_field_does_not_exist(const std::string& name);
/// Without a full stop at its end.
std::string closed_warning(const std::string& manure, const std::string& field, const std::string& day);

}  // namespace kel::manure_messages
