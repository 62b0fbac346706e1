// Every text of the module: the labels of its pages, what its boxes say and how its result is worded.
#pragma once

#include <string>
#include <string_view>

#include "core/prompts.h"

namespace kel::storage_messages {

// The pages.
inline constexpr std::string_view title = "Is there enough storage for slurry?";
inline constexpr std::string_view production_tab = "Slurry Production";
inline constexpr std::string_view land_tab = "Land Availability";
inline constexpr std::string_view spreading_tab = "Slurry Spreading";

inline constexpr std::string_view water_instruction =
    "Step 1: Estimate dirty water production by answering the questions below.";
inline constexpr std::string_view stores_instruction =
    "Step 2: Calculate the slurry storage volume available on the farm by filling in the details below for "
    "each store you have. If there are no slurry stores then click on Continue, but note you will not be "
    "able "
    "to identify and slurry storage capacity problems that may arise on the farm, you will only be able to "
    "assess land availability for slurry and manure spreading.";
inline constexpr std::string_view stores_again_instruction =
    "Step 2: Calculate the storage volume available on the farm by filling in the details below for each "
    "store "
    "you have.";
/// Three paragraphs; the note is the last one.
std::string plan_instruction();
std::string estimate_instruction();
std::string actual_instruction();

// The entry boxes: caption and instruction.
inline constexpr std::string_view stock_caption = "Select stock unit";
inline constexpr std::string_view stock_instruction =
    "Select the stock unit on a slurry based system from the list below.";
inline constexpr std::string_view number_caption = "Enter number of stock units";
inline constexpr std::string_view number_instruction =
    "Enter the average number of animals of this type in the box below.";
inline constexpr std::string_view percent_caption = "Enter proportion of waste collected as slurry (%)";
inline constexpr std::string_view percent_instruction =
    "Enter the percentage of the waste of these animals that is collected as slurry in the box below.";
inline constexpr std::string_view month_caption = "Slurry based system";
inline constexpr std::string_view month_instruction =
    "Are these animals on the slurry based system in this month?";
inline constexpr std::string_view field_use_caption = "Enter field use";
inline constexpr std::string_view field_use_instruction =
    "Select the use of the field in this KEL year from the lists below.";
inline constexpr std::string_view first_crop_label = "First crop:";
inline constexpr std::string_view second_crop_label = "Second/ following crop:";
inline constexpr std::string_view harvest_label =
    "Expected date when first crop will be harvested (n.a. for grass / grass).";
inline constexpr std::string_view land_month_caption = "Enter area available for spreading (in hectares)";
inline constexpr std::string_view land_month_instruction =
    "Enter the area (hectares) of the field that can take slurry in this month in the box below.";
inline constexpr std::string_view slurry_applic_caption = "Enter slurry application rate (cubic m/ha)";
inline constexpr std::string_view slurry_applic_instruction =
    "Enter the rate (cubic metres per hectare) at which slurry is to be spread on this field in this month "
    "in "
    "the box below.";

// The boxes. A message is a warning with OK unless it says otherwise.

// First page.
inline const message no_cow_figure{"Dairy Cow Figure", "No dairy cow figure has been entered!"};
inline const message no_pig_pen_figure{"No pig pen washing figure",
                                       "No pig pen washing figure has been entered!"};
inline const message linked_file_missing{"Linked file missing",
                                         "No file has been selected as last years assessment!"};
/// The climate tables do not have the farm's town.
message no_rainfall(const std::string& town);

// Second page.
inline const message store_name_exists{"Store Name",
                                       "The store name already exists. Please type in an alternative name."};
inline const message no_store_shape{"Slurry store shape", "No slurry store shape has been selected!"};
inline const message no_tank_depth{"Slurry store depth", "No slurry store depth has been entered!"};
inline const message no_store_depth{"No slurry store depth", "No slurry store depth has been entered!"};
inline const message no_store_length{"No slurry store length", "No slurry store length has been entered!"};
inline const message no_store_width{"No slurry store width", "No slurry store width has been entered!"};
inline const message no_store_diameter{"No slurry store diameter",
                                       "No slurry store diameter has been entered!"};
inline const message no_bank_angle{"No slurry store bank angle",
                                   "No slurry store bank angle has been entered!"};
inline const message no_store_percent{"No initial level of slurry storage",
                                      "No initial level of slurry storage has been entered!"};
inline const message no_store_name{"Store Name", "No name has been entered!"};
inline const message no_drainage_area{"No surface area", "No surface area has been entered!"};
inline const message empty_store_not_edited{"Cannot Edit", "This row cannot be edited!",
                                            message_kind::information};
inline const message empty_store_not_deleted{"Cannot Edit", "This row cannot be deleted!",
                                             message_kind::information};
inline const message no_stores{"No slurry stores",
                               "No slurry stores have been entered. Are you sure you want to continue?",
                               message_kind::question, message_buttons::yes_no};
inline const message capacity_not_assessed{"Slurry storage assessment",
                                           "Slurry store capacity limitations throughout the KEL year cannot "
                                           "be assessed, so will not be calculated."};

// Third page.
inline const message no_storage_assessment{
    "No slurry storage assessment",
    "No slurry stores have been entered into this assessment. You need only complete the land availability "
    "section.",
    message_kind::information};
inline const message protected_row{"Protected Row", "No data can be enterd into this row"};

// Slurry production table.
inline const message no_livestock{"Livestock Category", "No livestock category selected!"};
inline const message no_livestock_number{"Livestock Number", "No livestock number entered!"};
inline const message no_percentage{"Percentage", "No percentage entered!"};
inline const message invalid_percentage{"Invalid Number", "This is not a valid percentage!"};
inline const message no_production{
    "Slurry production",
    "No slurry production value can be calculated, please ensure that the stock unit type, number of stock "
    "units and proportion of waste collected as slurry have been entered!"};
inline const message calculation{"Calculation", "This element is calculated automatically!"};
inline const message cannot_delete{"Cannot Delete", "This row cannot be deleted!"};

// Land table.
inline const message profile_cell{
    "Cannot Edit",
    "This cell cannot be edited on this page, if you wish to change field information return to the profile!",
    message_kind::information};
inline const message available_area_cell{"Cannot Edit",
                                         "This cell cannot be edited on this page, if you wish to change "
                                         "land availablity information return to the "
                                         "land availability for spreading section!",
                                         message_kind::information};
inline const message closed_period{"Closed Period",
                                   "This is a closed period. No slurry or manures can be applied.",
                                   message_kind::information};
inline const message no_land_availability{"Land availability", "No land availability has been entered!"};
inline const message more_than_available{
    "Invalid Number", "The entered value is greater than the maximum area of land available in this field!"};

// Field use.
inline const message no_first_crop{"Field use", "No first crop has been selected"};
inline const message no_second_crop{"Field use", "No second crop has been selected"};
inline const message invalid_harvest_date{
    "Invalid date", "The harvest date entered is not within the KEL year being assessed!"};
message crop_type_mismatch(std::string_view first_crop, std::string_view last_second_crop);
inline const message review_last_year{
    "Crop type in step 2",
    "You should review step 2 in last years assessment for this field and confirm the crop type is correct."};
inline const message no_crop_last_year{
    "Crop type in step 2",
    "No crop has been set for this field in the file for the previous year. You should review step 2 in last "
    "years assessment for this field and confirm the crop type is correct."};
message crop_mismatch(std::string_view first_crop, std::string_view calculated_crop);
inline const message review_recommendation{
    "Crop recommendation",
    "You should review the recommendation for this field and confirm the crop is correct."};

// Spreading table and transfer.
inline const message no_land_in_month{
    "Land Availability",
    "There is no land available in this field for spreading slurry. Check the land availability details for "
    "this field."};
inline const message no_application_rate{"Slurry application rate",
                                         "No slurry application rate has been entered!"};
inline const message no_slurry_at_this_time{
    "Slurry application", "No slurry can be applied to this field at this time!", message_kind::information};
inline const message overwrite_data{"Overwrite data",
                                    "This will overwrite the figures in the grid below with the slurry "
                                    "figures entered in the slurry & manure "
                                    "applications module. Are you sure you want to proceed?",
                                    message_kind::question, message_buttons::yes_no};
inline const message nothing_to_transfer{
    "No slurry applications to transfer",
    "No slurry or manure applications have been entered into the slurry/manure application module. There is "
    "nothing to transfer.",
    message_kind::information};
inline const message closed_period_breach{"Closed period breach",
                                          "Some of the slurry applications are during closed periods. They "
                                          "have not been transferred to this module. "
                                          "You should review your slurry applications"};
inline const message land_availability_breach{
    "Land availability",
    "Some of the slurry applications are to fields that have zero land availability. They have not been "
    "transferred to this module. You should review your slurry applications and/or land availability."};

// The warning panel.
inline constexpr std::string_view over_100_percent =
    "Storage capacity has been exceeded, over 100% for some months";
inline constexpr std::string_view over_150_percent =
    "Storage capacity has been exceeded, over 150% for some months";

/// A field of an imported [Land] that the farm profile lacks.
message imported_field_does_not_exist(const std::string& name);

}  // namespace kel::storage_messages
