// Every text of the module: its two views, the results and what its boxes say.
#pragma once

#include <string>
#include <string_view>

#include "core/prompts.h"

namespace kel::composting_messages {

// The screen.
inline constexpr std::string_view title =
    "In Field Composting of Vegetable Crop Residues to Minimise Nitrate Leaching.";
inline constexpr std::string_view instruction =
    "This module will allow you to determine the quantity of straw or PMS to incorporate into composting "
    "vegetable crop residues in order to reduce nitrogen leaching. In addition, you will be able to "
    "determine the extent to which fertiliser nitrogen additions need to be adjusted to account for the "
    "extra nitrogen available to the next crop as a result of composting.\r\n\r\n"
    "For further information consult the Booklet 1 of the KEL Guidelines (click on information the button "
    "below).";
inline constexpr std::string_view panel_instruction =
    "Use the buttons available through this frame to add data to or edit the contents of, a new or "
    "previously saved database of calculations.";

// The questions.
inline constexpr std::string_view residue_question = "1. What type of crop residue are you composting?";
inline constexpr std::string_view soil_question =
    "2. What was the residual soil mineral N at harvest (kg/ha)?";
inline constexpr std::string_view waste_question =
    "3. What sort of waste product do you wish to incorporate?";
inline constexpr std::string_view content_question =
    "4. What is the N content of the waste product to be used (%)?";
inline constexpr std::string_view sludge_option = "Paper mill sludge";
inline constexpr std::string_view straw_option = "Straw";

// The results.
inline constexpr std::string_view rate_label = "Quantity of waste product to be applied =";
inline constexpr std::string_view release_label = "Expected extra release of N =";
/// t DM/ha of the waste ("PMS" or "Straw") and kg N/ha, as texts.
std::string rate_text(const std::string& rate, const std::string& waste);
std::string release_text(const std::string& release);
/// By the sign of the release; empty for none.
std::string_view note(const std::string& release);

// The panel and its box.
/// Of the calculation that stands; all empty without one.
std::string panel_caption(const std::string& residue, const std::string& soil_n, const std::string& waste,
                          const std::string& waste_n);
inline constexpr std::string_view panel_caption_alone = "Recorded calculations:";
inline constexpr std::string_view field_caption = "Enter a field ID";
inline constexpr std::string_view field_instruction =
    "Select the field of the calculation from the list below.";

// The boxes. A message is a warning with OK unless it says otherwise.
inline const message no_residue{"Crop residue type", "No crop residue type has been selected!"};
inline const message no_soil_n{"SMN", "No SMN has been entered!"};
inline const message no_content{"N content", "No N content has been entered!"};
inline const message high_content{"N value",
                                  "The entered N value seems high, please confirm this value is correct!",
                                  message_kind::warning, message_buttons::yes_no};
inline const message unknown_residue{"Residue type", "Error, residue type not supported!"};
inline const message no_quantity{"N value",
                                 "With this N content the waste product locks up no nitrogen, so that no "
                                 "quantity of it can be worked out."};
inline const message how_to_add{
    "Add to Database", "Click on the Add Result to Database button to save the current assessment result.",
    message_kind::information};
inline const message no_result{"No result calculated", "There is no result to add to the database."};
inline const message no_field_id{"Field ID", "No field ID has been entered!"};
inline const message no_calculation_in_row{"Cannot Edit", "There is no calculation in this row!",
                                           message_kind::information};
/// Title of the warning of a save into last year's file.
inline constexpr std::string_view cannot_save = "Cannot Save";
message field_does_not_exist(const std::string& name);

}  // namespace kel::composting_messages
