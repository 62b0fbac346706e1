// Every text of the module: its screen, the warnings of the analysis, the boxes and the heads of its files.
#pragma once

#include <string>
#include <string_view>

#include "core/prompts.h"

namespace kel::record_messages {

// The screen.
inline constexpr std::string_view title = "Field Record";
inline constexpr std::string_view field_label = "Field:";
inline constexpr std::string_view copy_tip =
    "Copy the data below to paste into another application (e.g. MS Excel)";
inline constexpr std::string_view warnings_heading = "Warnings";
/// Of the copy and the CSV file, ahead of the field's name.
inline constexpr std::string_view heading = "Field Record: ";

// Warnings for information.
inline constexpr std::string_view no_requirement =
    "No crop nitrogen requirement has been calculated for this field.";
std::string unreadable_day(const std::string& text);

// Alerts.
/// kg N/ha as texts.
std::string requirement_exceeded(const std::string& applied, const std::string& required);
inline constexpr std::string_view limit_breached =
    "Limit breached: The application of manures has exceeded the 250 kg/ha of total Nitrogen within a 12 "
    "month "
    "period. You should review the slurry and manure applications made to this field.";

// Closed periods.
inline constexpr std::string_view not_assessed =
    "Closed Periods: This field has not been assessed for closed periods.";
std::string manure_breach(const std::string& day);
std::string manure_uncertain(const std::string& day);
std::string inorganic_breach(const std::string& day);
std::string inorganic_uncertain(const std::string& day);

// The boxes.
inline const message which_fields{
    "Generate Report",
    "Do you want to produce a report for just the current field (Yes) or all the fields (No)?",
    message_kind::question, message_buttons::yes_no_cancel};
inline constexpr std::string_view csv_title = "CSV Export";
inline constexpr std::string_view csv_filter = "CSV file (*.csv)|*.csv";
message csv_saved(const std::string& path);
inline const message csv_over_assessment{
    std::string(csv_title), "This is an assessment file. Please choose another name for the CSV file."};

}  // namespace kel::record_messages
