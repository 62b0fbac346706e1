// Every text of the module: the labels of its screen, what its steps ask and what its boxes say.
#pragma once

#include <string>
#include <string_view>

#include "core/module_messages.h"
#include "core/prompts.h"

namespace kel::crop_messages {

// The screen.
inline constexpr std::string_view title = "Crops: Assessment of Nitrogen Requirement";
inline constexpr std::string_view default_instruction =
    "For each cropped field, enter the required data into each of the white cells in the table below (grey "
    "cells are filled in automatically).";
inline constexpr std::string_view results_instruction =
    "Below are the nitrogen application recommendations for the fields assessed. For full details a report "
    "should be produced.";
inline constexpr std::string_view results_label = "For full details a report should be generated!";

// The winter rainfall question.
inline constexpr std::string_view winter_question =
    "Is winter rainfall (1 Oct - 1 Mar) more or less than 450 mm?";
inline constexpr std::string_view winter_instruction =
    "The winter rainfall has been selected automatically using the climatic conditions suggested by the "
    "location of your farm. However, if this is know to be incorrect, it can be changed on this page by "
    "selecting the appropriate option yourself.";
inline constexpr std::string_view more_than_450_mm = "More than 450 mm (18 inches)";
inline constexpr std::string_view less_than_450_mm = "Less than 450 mm (18 inches)";
inline const message no_winter_answer{
    "Winter rainfall", "No rainfall is known for the location of the farm. Please select an answer."};

// The steps of a row: caption and instruction.
inline constexpr std::string_view field_caption = "Select a field";
inline constexpr std::string_view field_instruction =
    "Select the field you wish to calculate a recommendation for from the list below, then click on the "
    "Enter "
    "button. The Clear Cell button will remove the field name from the table, and the Delete Row button will "
    "remove the entire row from the table.";
inline constexpr std::string_view planned_caption = "Select the planned crop";
inline constexpr std::string_view planned_instruction =
    "Select the crop to be grown from the list below and the anticipated harvest date, then click on the "
    "Enter button. The Clear Cell button will remove the field name from the table, and the Delete Row "
    "button "
    "will remove the entire row from the table.";
inline constexpr std::string_view previous_caption = "Select the previous crop";
inline constexpr std::string_view previous_instruction =
    "Select the previous crop grown from the list below and the harvest date, then click on the Enter "
    "button. "
    "The Clear Cell button will remove the field name from the table, and the Delete Row button will remove "
    "the entire row from the table.";
inline constexpr std::string_view manures_caption = "Nitrogen from manures";
inline constexpr std::string_view manures_instruction =
    "Please enter the amount of Nitrogen supplied from manures that have been applied to the current crop in "
    "the field this year. Alternatively you can import the figure if you have calculated the Nitrogen "
    "supplied by manures in a previous calculation.";
inline constexpr std::string_view previous_manures_caption = "Nitrogen from manures to the previous crop";
inline constexpr std::string_view previous_manures_instruction =
    "Please enter the amount of Nitrogen supplied from manures that have been applied to a previous crop in "
    "the field. Alternatively you can import the figure if you have calculated the Nitrogen supplied by "
    "manures in a previous calculation.";
inline constexpr std::string_view manures_unit = "kg/ha";
inline constexpr std::string_view harvest_label = "Harvest date:";
inline constexpr std::string_view anticipated_harvest_label = "Anticipated harvest date:";
inline constexpr std::string_view sowing_label = "Sowing date:";

// What a crop is asked: the question and its instruction.
inline constexpr std::string_view wheat_market_question = "Is the grain intended for?";
inline constexpr std::string_view barley_market_question =
    "Is the grain to be used to produce malt for distilling or brewing?";
inline constexpr std::string_view market_instruction =
    "Select the intended market for the crop, then click on the Enter button.";
inline constexpr std::string_view take_all_question = "Is take-all expected?";
inline constexpr std::string_view take_all_instruction =
    "State whether take-all is expected or not, then click on the Enter button.";
inline constexpr std::string_view undersowing_question = "Was the crop undersown?";
inline constexpr std::string_view undersowing_instruction =
    "State whether the crop was undersown or not, then click on the Enter button.";
inline constexpr std::string_view delay_question = "Was sowing delayed, and if so by how many days?";
inline constexpr std::string_view delay_instruction =
    "State whether sowing was delayed or not, and if so say by how many days, then click on the Enter "
    "button.";
inline constexpr std::string_view not_delayed = "No";
inline constexpr std::string_view delayed_by = "Yes by";
inline constexpr std::string_view days = "days";
inline constexpr std::string_view turnip_rape_question = "Was the crop turnip rape?";
inline constexpr std::string_view turnip_rape_instruction =
    "State whether the crop is turnip rape or not, then click on the Enter button.";
inline constexpr std::string_view potato_caption = "Select the potato type";
inline constexpr std::string_view potato_instruction =
    "Select the type of crop from the list below, then click on the Enter button.";
inline constexpr std::string_view variety_question = "What variety of potato?";
inline constexpr std::string_view variety_instruction =
    "Select the variety of crop, then click on the Enter button.";
inline constexpr std::string_view grass_question = "Was the crop grass or grass/clover?";
inline constexpr std::string_view grass = "Grass";
inline constexpr std::string_view grass_clover = "Grass/clover";
inline constexpr std::string_view spring_caption = "Spring rainfall";
inline constexpr std::string_view spring_question =
    "Is rainfall between the first and final spring N dressings more or less than 200 mm?";
inline constexpr std::string_view spring_instruction =
    "State whether the rainfall between the first and final spring N dressings was more than 200mm (8 "
    "inches) "
    "or not, then click on the Enter button.";
inline constexpr std::string_view more_than_200_mm = "More than 200 mm (8 inches)";
inline constexpr std::string_view less_than_200_mm = "Less than 200 mm (8 inches)";
// Of vegetables; no step asks it yet.
inline constexpr std::string_view summer_question =
    "Is the summer rainfall likely to be in excess of 200 mm more than the water holding capacity of the "
    "soil?";

// The boxes. A message is a warning with OK unless it says otherwise.
inline const message grass_recommendation_exists{
    "Recommendation Duplication",
    "That field already has a recommendation for grass. Please select another field.",
    message_kind::information};

inline const message no_previous_crop{"Crop Type", "No crop type has been entered!"};
inline const message previous_harvest_after_year{"Invalid date",
                                                 "The harvest date of the previous crop is set to a date "
                                                 "after the current KEL year ends. Please select an "
                                                 "alternative date."};
inline const message previous_harvest_after_harvest{
    "Invalid date",
    "The harvest date is set to a date that is after the anticpated harvest date of the current crop. Please "
    "select an alternative date."};

inline const message no_crop{"Crop", "No crop has been selected"};
inline const message harvest_before_year{
    "Invalid date",
    "The anticipated harvest date is set to a date before the current KEL year starts. Please select an "
    "alternative date."};
inline const message sowing_after_harvest{
    "Sowing date?",
    "The sowing date is currently set as after the anticipated harvest date. Please correct this."};
inline const message harvest_before_previous_harvest{
    "Invalid date",
    "The anticipated harvest date is set to a date that is before the harvest date of the previous crop. "
    "Please select an alternative date."};

/// The crop chosen is not of the type that Step 2 of last year or of this year has for the field.
message previous_crop_mismatch(const std::string& crop, const std::string& type);
message planned_crop_mismatch(const std::string& crop, const std::string& type);
/// What the crops of the type are, after No and after Yes to either question.
titled_list previous_crops_of_type(const std::string& type);
titled_list review_last_year(const std::string& type);
titled_list planned_crops_of_type(const std::string& type);
titled_list review_this_year(const std::string& type);
inline const message grass_recommendations{
    "Grass Recommendations",
    "Recommendations for established grass crops are calculated in a seperate module that can be accessed "
    "from the Assessments screen.",
    message_kind::information};

inline const message malting_after_crop{
    "Information",
    "Low N malting barley should not be grown after this crop, since it leaves high nitrogen residues!",
    message_kind::information};
inline const message malting_on_soil{
    "Information", "Low N malting barley should not be grown on these soils!", message_kind::information};
inline const message no_potato_type{"Potato Type", "No potato type has been selected!"};
inline const message no_delay_length{"Delay length", "No delay length has been entered",
                                     message_kind::information};

inline const message cannot_transfer{"Cannot transfer data",
                                     "Cannot transfer data as one or more dates are unknown. Please complete "
                                     "the cropping details."};
inline const message not_linked{"Linked Assessment",
                                "You are not linked to an old file from which to import data!"};

inline const message crop_missing{
    "Cannot proceed", "A crop has not been entered for one or more of the fields. Please enter the crop."};
inline const message previous_crop_missing{
    "Cannot proceed",
    "A previous crop has not been entered for one or more of the fields. Please enter the previous crop."};
inline constexpr std::string_view cannot_save_title = "Cannot Save";

}  // namespace kel::crop_messages
