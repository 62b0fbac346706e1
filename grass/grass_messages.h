// Every text of the module: what stands above its pages and in its boxes, and what its message boxes say. A
// message is a warning with OK unless it says otherwise.
#pragma once

#include <string>
#include <string_view>

#include "core/prompts.h"

namespace kel::grass_messages {

inline constexpr std::string_view title = "Nitrogen Requirement of Grassland";

// What stands above the pages.
inline constexpr std::string_view rain_instruction =
    "The April to September rainfall figure has been selected automatically using the climatic conditions "
    "suggested by the location of your farm. However, if this is know to be incorrect, it can be changed on "
    "this page by selecting the appropriate option yourself.";
inline constexpr std::string_view altitude_instruction =
    "The altitude has been selected automatically using the climatic conditions suggested by the location of "
    "your farm. However, if this is know to be incorrect, it can be changed on this page by selecting the "
    "appropriate option yourself.";
inline constexpr std::string_view table_instruction =
    "For each field, enter the required data into each of the white cells in the table below (grey cells are "
    "filled in automatically).";
inline constexpr std::string_view results_instruction =
    "Below are the nitrogen application recommendations for the fields assessed. For full details a report "
    "should be produced.";
inline constexpr std::string_view livestock_instruction =
    "Enter the livestock of the farm in the table below, one type of stock in a row. The grey cells contain "
    "figures that are calculated automatically.";
inline constexpr std::string_view stocking_instruction =
    "For each field, select whether it is grazed or cut for silage. For each grazed field, enter which "
    "animals "
    "graze it, how many there are, and for what percentage of the year.";
inline constexpr std::string_view silage_instruction =
    "All the stock of the farm is fed from its grass, by grazing or by silage. Below are the livestock units "
    "fed "
    "by each field and the nitrogen that it requires for them.";

/// `file`: the name of the database with the reference tables.
inline std::string figures_without_source(const std::string& file) {
    return "Requirements and adjustments are those of the tables in " + file +
           ", which do not say where they come from.";
}

inline constexpr std::string_view silage_section = "Grazing and silage areas";

// The opening questions.
inline constexpr std::string_view rain_question = "Select average level of April to September rainfall";
inline constexpr std::string_view altitude_question = "Select altitude of farm";

// The boxes of the site table.
inline constexpr std::string_view field_caption = "Field Area ID";
inline constexpr std::string_view field_instruction = "Please select a Field from the list below.";
inline constexpr std::string_view previous_caption = "Previous Grass/Clover Crop";
inline constexpr std::string_view previous_instruction =
    "Please select the Previous crop for the field from the list below and select an (estimated) date for "
    "the "
    "end of the growing season of that crop.";
inline constexpr std::string_view previous_label = "Previous crop:";
inline constexpr std::string_view season_end_label = "End of season:";
inline constexpr std::string_view clover_caption = "Clover Content";
inline constexpr std::string_view clover_instruction =
    "Please select whether the sward contains a High or Low content of clover by clicking on the appropriate "
    "option below.";
inline constexpr std::string_view use_caption = "Select crop use.";
inline constexpr std::string_view use_instruction =
    "Please select what the grass crop is being used for, by clicking on one of the options below.";
inline constexpr std::string_view cuts_caption = "Select the number of cuts";
inline constexpr std::string_view cuts_instruction =
    "Please select the number of cuts made to the sward from the drop down list below.";
inline constexpr std::string_view applications_caption =
    "Select the number of applications to aftermath/grazing.";
inline constexpr std::string_view applications_instruction =
    "Please select the number of applications made to the aftermath/grazing from the drop down list below.";
inline constexpr std::string_view manure_caption = "Nitrogen supplied by manures";
inline constexpr std::string_view manure_current_instruction =
    "Please enter the amount of Nitrogen supplied from manures that have been applied to the field this "
    "year. "
    "Alternatively you can import the figure if you have calculated the Nitrogen supplied by manures in a "
    "previous calculation.";
inline constexpr std::string_view manure_previous_instruction =
    "Please enter the amount of Nitrogen supplied from manures that have been applied to the field in a "
    "previous year. Alternatively you can import the figure if you have calculated the Nitrogen supplied by "
    "manures in a previous calculation.";
inline constexpr std::string_view manure_unit = "kg/ha";

// The boxes of the livestock and the stocking table.
inline constexpr std::string_view stock_caption = "Select livestock category";
inline constexpr std::string_view stock_number_caption = "Enter livestock numbers";
inline constexpr std::string_view stock_time_caption = "Enter the % of the year that the animals are on farm";
inline constexpr std::string_view area_use_caption =
    "Is the selected area to be used for grazing or silage production?";
inline constexpr std::string_view grazing_choice = "Grazing";
inline constexpr std::string_view silage_choice = "Silage production";
inline constexpr std::string_view group_type_caption = "What type of animal will be grazed in this field?";
inline constexpr std::string_view group_number_caption =
    "How many animals of the selected type will be grazed in this area?";
inline constexpr std::string_view group_time_caption =
    "For what percentage of the year will these animals be grazed in this area?";
inline constexpr std::string_view change_database_caption =
    "Do you wish to merge the tables currently open with the new ones, overwite them or start a brand new "
    "assessment?";
inline constexpr std::string_view merge_choice = "Merge";
inline constexpr std::string_view overwrite_choice = "Overwrite";
inline constexpr std::string_view new_assessment_choice = "New assessment";

// The recommendation page.
inline constexpr std::string_view decrease_label = "Area for a decrease in rate";
inline constexpr std::string_view increase_label = "Area for an increase in rate";

inline std::string livestock_units_summary(const std::string& farm, const std::string& grazed,
                                           const std::string& left) {
    return "Livestock units of the farm: " + farm + ". Fed by grazing: " + grazed +
           ". Left for silage: " + left + ".";
}

// The tabs.
inline constexpr std::string_view livestock_tab = "Livestock Units";
inline constexpr std::string_view stocking_tab = "Land Availability";

// The file dialogs.
inline constexpr std::string_view save_title = "Save assesment profile";
inline constexpr std::string_view merge_title = "Add data from another assessment";
inline constexpr std::string_view overwrite_title = "Replace with data from another assessment";

// The message boxes of the site table.
inline const message unknown_soil_error{"Error", "Unknown Error relating to soils"};
inline const message no_field_id{"No Field ID", "No field ID has been selected!"};
inline const message crop_recommended{
    "Recommendation Duplication",
    "That field already has a recommendation for a crop. Please select another field.",
    message_kind::information};
inline message not_grass(const std::string& type) {
    return {"Crop mis-match",
            "This field was not set to Grass for the crop type entered in step 2 (" + type +
                ").  Do you want to proceed anyway?",
            message_kind::question, message_buttons::yes_no};
}
inline message not_grass_last_year(const std::string& type) {
    return {"Crop mis-match - Previous year",
            "This field was not set to Grass for the crop type entered in step 2 of last years assessment (" +
                type + ").  Do you want to proceed anyway?",
            message_kind::question, message_buttons::yes_no};
}
inline const message review_last_year{
    "Crop type in step 2 - Previous year",
    "You should review step 2 in last years assessment for this field and confirm the crop type is correct."};
// The lists of a crop type's members, and the line beneath the first.
inline std::string members_heading(const std::string& type) {
    return type + " crop types include the following crops: ";
}
inline constexpr std::string_view members_note =
    "Recommendations for these crops are calculated in a seperate module that can be accessed from the "
    "Assessments screen";
inline std::string review_heading(const std::string& type) {
    return "You should review step 2 for this field and confirm the crop type is correct. " + type +
           " includes: ";
}

inline const message no_previous_crop{"Previous Crop", "No previous grass/clover crop has been selected!"};
inline message season_not_in_year(int year) {
    return {"Invalid Date", "The End of Season date must be within the year " + std::to_string(year) +
                                ". Please select another date"};
}
inline const message no_value{"No value", "No value has been selected!"};
inline const message season_end_unknown{
    "Cannot transfer data",
    "Cannot transfer data as end of growing season date is unknown. Please complete the previous cropping "
    "details."};
inline const message no_linked_file{"No Linked File",
                                    "You are not linked to an old file from which to import data!"};

inline message no_clover(const std::string& field) {
    return {"Cannot calculate recommendation", "No clover content has been entered for Field " + field};
}
inline message no_site_class(const std::string& field) {
    return {"Cannot calculate recommendation", "No Site Class for Field " + field};
}
inline message no_residue_group(const std::string& field) {
    return {"Cannot calculate recommendation", "No previous crop has been entered for Field " + field};
}

// The message boxes of the stocking route.
inline const message stock_calculation{"", "This element is calculated automatically!",
                                       message_kind::information};
inline const message no_stock_type{"", "No livestock category selected!"};
inline const message no_stock_number{"No Livestock Number", "No livestock numbers have been entered!"};
inline const message no_stock_time{"", "No livestock numbers have been entered!"};
/// `rate` in LU/ha with 1 decimal.
inline message average_stocking_rate(const std::string& rate) {
    return {
        "For Information",
        "Given the livestock units present on the farm, the average stocking rate for the farm (grazing and "
        "silage) should be approximately " +
            rate + " LU/ha.",
        message_kind::information};
}
inline const message no_average_stocking_rate{
    "For Information",
    "None of the fields has an area, so the average stocking rate of the farm cannot be worked out.",
    message_kind::information};
inline const message not_grazed{"", "This is not a grazed area!"};
inline const message no_area_use{"", "This area has not been selected for grazing!"};
inline const message no_farm_stock{
    "", "No livestock types have been selected, please complete step 1 before proceeding!"};
inline const message no_group_type{"", "No livestock type has been entered!"};
inline const message no_group_number{"No Animal Number", "No animal number has been entered!"};
inline const message no_group_time{"", "No grazing time has been entered!"};
inline const message no_decrease{
    "", "No field area has been selected for a reduction in silage production rate!"};
inline const message no_increase{
    "", "No field area has been selected for an increase in silage production rate!"};
inline const message same_area{
    "",
    "The field areas selected for a reduction and increase in silage production rate cannot be the same!"};
/// `fields`: names in a row.
inline message no_area(const std::string& fields) {
    return {"Field Area Size",
            "The livestock units per hectare cannot be worked out for the fields without an "
            "area: " +
                fields};
}

inline const message last_years_file{"Cannot Save",
                                     "This is last years file and cannot be saved to at this time!"};

}  // namespace kel::grass_messages
