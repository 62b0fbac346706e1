// Every sentence of the verdicts. Names of fields and files are put in as they are; whoever writes them into
// a page sees to its marks.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kel::standing_messages {

/// "Mill Croft, Long Rig and 3 more".
std::string listed(const std::vector<std::string>& names);
/// "1 field", "12 fields".
std::string counted(std::size_t count, std::string_view one, std::string_view many);

// The linked years.
std::string links_to_itself();
std::string links_in_a_circle();
std::string half_a_chain();
std::string not_the_year_before();
std::string of_another_farm(const std::string& farm);
std::string last_year_unreadable(const std::string& trouble);

// The profile.
inline constexpr std::string_view no_profile = "This file holds no farm profile.";
inline constexpr std::string_view enter_profile =
    "Enter the farm and its fields in the farm profile and set it.";
inline constexpr std::string_view no_town = "The farm profile names no zone or no nearest town.";
std::string fields_without_soil(const std::vector<std::string>& fields);
std::string fields_without_area(const std::vector<std::string>& fields);
std::string profile_entered(std::size_t fields);

// Step 1.
inline constexpr std::string_view no_land = "The land available for spreading has not been entered.";
inline constexpr std::string_view no_stock =
    "The land is entered, but no stock is: manure production cannot be compared with the limit.";
inline constexpr std::string_view enter_land =
    "Enter the areas of each field and what is deducted from them.";
inline constexpr std::string_view enter_stock = "Enter the stock in the table of manure production.";
std::string land_missing(const std::vector<std::string>& fields);
/// kg N/year as the result panel shows them.
std::string too_little_land(const std::string& production, const std::string& limit);
std::string enough_land(const std::string& production, const std::string& limit);
inline constexpr std::string_view arrange_for_excess =
    "Be ready to show what becomes of the manure for which there is no land.";
inline constexpr std::string_view field_limits_lower =
    "The limits of the single fields add up to less than the farm limit: spread by those.";
std::string complete_land(const std::vector<std::string>& fields);

}  // namespace kel::standing_messages
