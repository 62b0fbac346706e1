// Every text of the module: the labels of its screen and what its boxes say.
#pragma once

#include <string>
#include <string_view>

#include "core/prompts.h"

namespace kel::inorganic_messages {

// The screen.
inline constexpr std::string_view title = "Inorganic Nitrogen Applications";
inline constexpr std::string_view instruction =
    "Click on the table below to enter the applications of inorganic fertiliser in the KEL year, one in a "
    "row: first the field, then the details of the application. The grey cells contain figures that are "
    "calculated automatically.";

// The dialogs.
inline constexpr std::string_view field_caption = "Select a field:";
inline constexpr std::string_view application_caption = "Inorganic N Application:";
inline constexpr std::string_view date_label = "Date applied:";
inline constexpr std::string_view type_label = "Type (description):";
inline constexpr std::string_view amount_label = "Quantity applied (kg/ha):";
inline constexpr std::string_view content_label = "Nitrogen content (%):";
inline constexpr std::string_view comments_label = "Comments:";

/// Takes the place of the comments when the date picked is in a closed period.
inline constexpr std::string_view closed_period_comment = "Reason for application during closed period: ";

// The boxes. A message is a warning with OK unless it says otherwise.
inline const message no_field_selected{
    "No field selected",
    "Please select the field to which the application is being made before "
    "entering the details of the application."};
inline const message no_field_id{"Field ID", "No field ID has been entered!"};
inline const message date_outside_calendar{
    "Invalid date",
    "This is not within the KEL year for the current assessment. Please select another date."};
inline const message field_not_assessed{
    "Closed periods", "This field has not been assessed for closed periods.", message_kind::information};
inline const message closed_period{
    "Closed period for Inorganic Fertilisers",
    "This is application is during a closed period. If you proceed with this application you must justify "
    "the need for the fertiliser in the comments box.  You should also:\r\n\r\n"
    "- notify your ORDANE Area office in writing, within 3 days of applying the fertiliser\r\n\r\n"
    "- include details of the date the application was made, the quantity that was applied and the N "
    "content of the fertiliser applied\r\n\r\n"
    "- keep a record of the agronomic justification for the application of N at that time of year",
    message_kind::stop};
inline const message no_date{"Application date", "No application date has been selected"};
inline const message date_outside_year{"Invalid date",
                                       "The date entered is not within the KEL year being assessed!"};
inline const message no_type{"Fertiliser type", "No fertiliser type/description has been entered"};
inline const message no_amount{"Quantity applied", "No quantity applied has been entered"};
inline const message no_content{"Nitrogen content", "No Nitrogen content has been entered"};

}  // namespace kel::inorganic_messages
