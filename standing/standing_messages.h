// Every sentence of the verdicts. Names of fields and files are put in as they are; whoever writes them into
// a page sees to its marks.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "standing/farm_standing.h"

namespace kel::standing_messages {

using names = std::vector<std::string>;

/// "Mill Croft, Long Rig and 3 more".
std::string listed(const names& all);
/// "1 field", "12 fields".
std::string counted(std::size_t count, std::string_view one, std::string_view many);
/// A figure that is held against a limit: one decimal, or as many as tell on which side it is.
std::string figure(float value, float limit);

inline constexpr float full_percent = 100;

// The linked years.
inline constexpr std::string_view links_to_itself =
    "The file linked as last year's is this year's own: it is left out.";
inline constexpr std::string_view links_in_a_circle =
    "The file linked as that of two years ago is one of the two newer ones.";
inline constexpr std::string_view half_a_chain = "A file of two years ago is linked, but none of last year.";
inline constexpr std::string_view not_the_year_before =
    "The file linked as last year's is not of the year before: it is left out.";
std::string of_another_farm(const std::string& farm);
std::string last_year_unreadable(const std::string& trouble);

// The profile.
inline constexpr std::string_view no_profile = "This file holds no farm profile.";
inline constexpr std::string_view enter_profile =
    "Enter the farm and its fields in the farm profile and set it.";
inline constexpr std::string_view complete_profile = "Complete the farm profile and set it.";
inline constexpr std::string_view no_town = "The farm profile names no zone or no nearest town.";
inline constexpr std::string_view no_year =
    "The farm profile has no KEL year, without which no application can be judged.";
std::string fields_without_soil(const names& fields);
std::string fields_without_area(const names& fields);
std::string profile_entered(std::size_t fields);

// Step 1. Nitrogen is kg N/year as the result panel shows it.
inline constexpr std::string_view no_land = "The land available for spreading has not been entered.";
inline constexpr std::string_view no_stock =
    "No stock is entered: manure production cannot be compared with the farm limit.";
inline constexpr std::string_view enter_land =
    "Enter the areas of each field and what is deducted from them.";
inline constexpr std::string_view enter_stock = "Enter the stock in the table of manure production.";
inline constexpr std::string_view arrange_for_excess =
    "Be ready to show what becomes of the manure for which there is no land.";
inline constexpr std::string_view field_limits_lower =
    "The limits of the single fields add up to less than the farm limit: spread by those.";
std::string land_missing(const names& fields);
std::string complete_land(const names& fields);
std::string too_little_land(const std::string& production, const std::string& limit);
std::string enough_land(const std::string& production, const std::string& limit);

// Step 2.
inline constexpr std::string_view no_storage = "Neither stores nor the use of the fields have been entered.";
inline constexpr std::string_view go_through_step2 = "Go through the three pages of Step 2 and save.";
inline constexpr std::string_view no_slurry_kept =
    "No slurry is kept: there are neither stores nor housed stock.";
inline constexpr std::string_view no_dirty_water = "The questions for dirty water are not answered.";
inline constexpr std::string_view no_stores = "No slurry store is entered.";
inline constexpr std::string_view no_capacity = "The stores as they are described have no capacity.";
std::string no_rain(const std::string& town);
std::string stores_incomplete(const names& stores);
std::string stock_incomplete(const names& stock);
std::string fields_without_use(const names& fields);
/// `lacks` are the sentences that say why.
std::string level_unknown(const names& lacks);
std::string stores_hold(const store_level& highest);
std::string stores_too_small(const store_level& highest, const std::vector<store_level>& over_full);
std::string make_room(int month);

// Step 3.
inline constexpr std::string_view no_manure = "No applications of slurry or manure are entered.";
inline constexpr std::string_view enter_manure =
    "Enter them in Step 3; a farm that spreads none has nothing to do.";
inline constexpr std::string_view no_last_year =
    "No file of last year is linked: its applications do not count in the twelve months.";
inline constexpr std::string_view last_year_without_applications =
    "Last year's file has no applications: Step 3 does not judge the twelve months.";
std::string manure_gaps(const names& fields);
std::string fill_gaps(const names& fields);
std::string over_field_limit(const std::vector<field_nitrogen>& fields);
std::string near_field_limit(const std::vector<field_nitrogen>& fields);
std::string look_at_limit(const std::vector<field_nitrogen>& fields);
std::string within_field_limit(std::size_t applications, const field_nitrogen& most);
std::string limit_not_judged(std::size_t applications);
std::string in_closed_months(const std::vector<closed_breach>& breaches);
inline constexpr std::string_view look_at_closed =
    "Look at these dates and at the use of the fields in Step 2.";

// Step 4.
inline constexpr std::string_view no_inorganic = "No applications of inorganic nitrogen are entered.";
inline constexpr std::string_view enter_inorganic =
    "Enter them in Step 4; a farm that uses none has nothing to do.";
inline constexpr std::string_view give_reasons =
    "Give the reason in the comments and notify the ORDANE area office within three days.";
inline constexpr std::string_view keep_the_notice =
    "The reasons are given: keep a copy of the notice with them.";
std::string inorganic_entered(std::size_t applications);
std::string inorganic_gaps(const names& fields);
std::string in_closed_period(const std::vector<closed_breach>& breaches);
std::string calendar_not_known(const names& fields);
std::string assess_fields(const names& fields);

// The requirements.
inline constexpr std::string_view no_crops = "No field has a crop other than grass.";
inline constexpr std::string_view no_grass = "No field is in grass.";
inline constexpr std::string_view work_out_crops =
    "Enter the cropped fields, calculate, and leave the results so that they are stored.";
inline constexpr std::string_view work_out_grass =
    "Enter the grass fields, go on to the results, and leave them so that they are stored.";
std::string requirement_missing(const names& fields);
std::string requirements_none(std::size_t fields);
std::string requirements_some(std::size_t done, std::size_t fields);
std::string requirements_all(std::size_t fields);

// Composting and the field record.
std::string composting_recorded(std::size_t calculations);
inline constexpr std::string_view nothing_recorded = "Nothing is applied to any field yet.";
inline constexpr std::string_view no_warnings = "The record of every field is without a warning.";
std::string record_warnings(std::size_t warnings, std::size_t fields);
std::string requirement_exceeded(const std::vector<requirement_excess>& fields);
std::string look_at_record(const names& fields);

}  // namespace kel::standing_messages
