// Every text of the module: the labels of its screen, what its boxes say and how its result is worded.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/module_messages.h"
#include "core/prompts.h"
#include "land/spreading_limits.h"

namespace kel::land_messages {

// The screen.
inline constexpr std::string_view title = "Is enough land available for spreading all organic manures?";
inline constexpr std::string_view land_tab = "Land Available For Spreading";
inline constexpr std::string_view stock_tab = "Manure Production";
inline constexpr std::string_view result_panel =
    "Manure production in relation to the availability of land for spreading";

std::string land_instruction();
std::string stock_instruction();

// The entry boxes: caption and instruction.
inline constexpr std::string_view field_caption = "Enter field ID";
inline constexpr std::string_view field_instruction = "Select the field ID from the list box below.";
inline constexpr std::string_view grass_caption = "Enter field area in grass (in hectares)";
inline constexpr std::string_view grass_instruction =
    "Enter the area (hectares) of the field that is in grass in the box below (the area NOT in grass will be "
    "automatically calculated).";
inline constexpr std::string_view not_in_grass_caption = "Enter field area NOT in grass (in hectares)";
inline constexpr std::string_view not_in_grass_instruction =
    "Enter the area (hectares) of the field that is NOT in grass in the box below (the area in grass will be "
    "automatically calculated).";
inline constexpr std::string_view deduction_caption = "Enter area to be deducted (in hectares)";
inline constexpr std::string_view buffer_instruction =
    "Buffers: field areas within 10m of either side of any watercourse (including ditches and piped ditches) "
    "or "
    "within 50m of any spring, well, borehole or similar water supply.";
inline constexpr std::string_view slope_instruction =
    "Slopes = field areas on very steep slopes where there is a high risk of runoff throughout the year.";
inline constexpr std::string_view other_deduction_instruction =
    "Other = field areas where the requirements of conservation management prohibit applications of organic "
    "manures or where spreading equipment cannot be used effectively. Land that has never had manure "
    "applications "
    "is unlikely to be suitable for spreading.";
inline constexpr std::string_view stock_caption = "Select stock unit";
inline constexpr std::string_view stock_box_instruction =
    "Select each of the livestock categories present on the farm from the list provided.";
inline constexpr std::string_view number_caption = "Enter number of stock units";
inline constexpr std::string_view number_instruction =
    "Enter the number of animals in this category in the box below.";

// The boxes. A message is a warning with OK unless it says otherwise.
using module_messages::field_in_grid;
using module_messages::no_field_id;
inline const message& close_module = module_messages::close_the_module;
inline const message no_area{"No Area", "No area has been entered!"};
inline const message area_adjusted{
    "Area adjustment",
    "The area you have set is greater than the area of the field, the area will be "
    "altered to the maximum possible",
    message_kind::information};
inline const message no_deduction{"No Area", "No area to be deducted has been entered!"};
inline const message figure_amended{"Figure amended",
                                    "The amount of land entered exceeds the amount available. It has been "
                                    "adjusted accordingly. Please check the figures."};
inline const message no_livestock{"No Livestock Selected", "No livestock category selected!"};
inline const message no_livestock_number{"No Livestock Number", "No livestock number has been entered!"};

// The result.
struct panel_line {
    std::string_view label;
    std::string value;
};
/// The five lines of the result panel, in its order.
std::array<panel_line, 5> panel_lines(const spreading_result& result);
/// Production against the farm limit, with the difference in kg N/year.
std::string comment(const spreading_result& result);
/// Shown beneath if the field limits are lower than the farm limit; otherwise empty.
std::string note(const spreading_result& result);

}  // namespace kel::land_messages
