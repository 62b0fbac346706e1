#include "land/land_messages.h"

#include "core/numbers.h"

namespace kel::land_messages {

namespace {

std::string instruction(std::string_view tab_text) {
    std::string text = "Click on the white cells in tables below, to enter information on:";
    text.append(line_break).append(line_break).append(tab_text);
    return text;
}

constexpr std::string_view assess_with_field_limits =
    "However, it should be noted that this has been based on the total farm limit (which includes grazing "
    "deposition), individual field based limits (which do not include grazing deposition) may amend the "
    "figures, so "
    "the result should be assessed in association with the field limits displayed in the Land Available for "
    "Spreading "
    "table!";

std::string too_little_land(float excess_kg) {
    return "N production in the form of organic manures exceeds that which can be spread in the KEL by " +
           shortest_text(excess_kg) +
           " kg N/year. As such you must be able to provide evidence that alternative arrangements have been "
           "made to "
           "deal with the excess. ";
}

std::string land_to_spare(float scope_kg) {
    return "N production in the form of oganic manures is less than that which can be spread in the KEL. As "
           "such "
           "there is potentially scope for bringing " +
           shortest_text(scope_kg) + " kg N/year onto the farm in the form of organic manures. ";
}

constexpr std::string_view just_enough_land =
    "N production in the form of organic manures is equal to that which can be spread in the KEL. ";

std::string balance_text(const spreading_result& result) {
    switch (result.balance) {
        case land_balance::too_little:
            return too_little_land(result.production_kg - result.farm_limit_kg);
        case land_balance::to_spare:
            return land_to_spare(result.farm_limit_kg - result.production_kg);
        case land_balance::equal:
            break;
    }
    return std::string(just_enough_land);
}

}  // namespace

std::string land_instruction() {
    return instruction(
        "Land Available For Spreading - field name (selected from those in the profile, field area (under "
        "grass, and "
        "other crops), areas in which spreading should not occur). (Note: unlike the other limits, field "
        "based "
        "spreading limits apply to a rolling 12 month period and not the KEL year.)");
}

std::string stock_instruction() {
    return instruction(
        "Manure Production - stock types present on the farm and stock numbers in each category.");
}

std::array<panel_line, 5> panel_lines(const spreading_result& result) {
    return {{
        {"Total N production as organic manures =", result.production},
        {"Overall farm based limit on spreading organic manures =", result.farm_limit},
        {"Total of field based limits on spreading organic manures =", result.field_limits},
        {"Non-Grassland limit =", result.other_land_limit},
        {"Grassland limit =", result.grassland_limit},
    }};
}

std::string comment(const spreading_result& result) {
    return balance_text(result).append(assess_with_field_limits);
}

std::string note(const spreading_result& result) {
    if (!result.field_limits_lower) return {};
    return "NOTE: the total of the field based limits is " + result.field_limits +
           ", which is lower than the farm based limit of " + shortest_text(result.farm_limit_kg) +
           " kg N/year. Thus you may not be able to apply the full farm based limit without breaching field "
           "limits.";
}

}  // namespace kel::land_messages
