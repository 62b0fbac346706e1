// Every text of the season calendar and of the blank sheets.
#pragma once

#include <string>
#include <string_view>

namespace kel::season_messages {

inline constexpr std::string_view calendar_title = "Season calendar";
inline constexpr std::string_view manure_sheet_title = "Record sheet: slurry and manure";
inline constexpr std::string_view fertiliser_sheet_title = "Record sheet: fertiliser";

// What is missing.
inline constexpr std::string_view no_assessment = "No assessment is open.";
inline constexpr std::string_view no_year =
    "The farm profile has no KEL year yet. Choose it in the farm profile.";
inline constexpr std::string_view no_fields = "The farm profile has no fields yet.";
inline constexpr std::string_view no_land_row =
    "Land available for spreading is not entered. Enter the field in Step 1.";
inline constexpr std::string_view no_crops =
    "Closed periods are not assessed. Enter the field's crops and harvest in Step 2.";
inline constexpr std::string_view no_soil = "The soil is missing. Choose it in the farm profile.";
inline constexpr std::string_view no_zone =
    "The farm profile names no KEL. The end of the closed period for fertiliser in spring depends on it.";

// The limit on organic nitrogen.
inline constexpr std::string_view last_year_has_none =
    "Last year's file has no applications, so the limit is not tested.";
inline constexpr std::string_view no_last_year =
    "No file of last year is linked: only this year's applications count towards the 250 kg N/ha.";
inline constexpr std::string_view application_without_n =
    "An application has no nitrogen yet. Complete it in Step 3.";
inline constexpr std::string_view application_without_day =
    "An application has no date within the KEL year. Complete it in Step 3.";

// The rules, each a sentence; `days` as "1 August to 31 October 2025".
std::string manure_closed(const std::string& days, const std::string& soil, const std::string& crops);
std::string manure_closed_as_stored(const std::string& days);
std::string no_land(const std::string& days);
std::string fertiliser_closed(const std::string& days, const std::string& zone, const std::string& crops);
inline constexpr std::string_view exempt_open =
    "Farmyard manure of cattle and pigs may be spread on any day.";
/// A month that would be closed by what the file now says of soil and crops, but was not when they were
/// entered.
inline constexpr std::string_view soil_has_changed =
    "The soil is not the one for which closed months were settled. Enter the field's crops in Step 2 again.";
std::string unreadable_crops(const std::string& crops);
std::string last_year_not_counted(const std::string& trouble);
/// Rows of applications that the calendar leaves out.
std::string of_unknown_fields(int applications);
std::string outside_year(int applications);

}  // namespace kel::season_messages
