#include "land/spreading_limits.h"

#include <algorithm>

#include "core/numbers.h"

namespace kel {

namespace {

constexpr std::string_view limits_source = "The limits on nitrogen in organic manures of the KEL rules";

std::string with(float value, std::string_view unit) {
    return shortest_text(value) + std::string(unit);
}

// "12.5 ha x 250 kg N/ha = 3125 kg N/year"
float times_limit(float area_ha, float limit_kg_per_ha, explanation* why) {
    const float limit = limit_kg_per_ha * area_ha;
    if (why) {
        why->step(with(area_ha, " ha x ") + with(limit_kg_per_ha, " kg N/ha = ") + with(limit, " kg N/year"));
        why->source(std::string(limits_source));
    }
    return limit;
}

land_balance balance_of(const std::string& limit_shown, const std::string& production_shown,
                        explanation* why) {
    const float limit = leading_single(limit_shown);
    const float production = leading_single(production_shown);
    if (why) {
        why->rule("Which is more is told by the two figures as they are shown, rounded to 2 decimals.");
        why->step("Farm limit: " + limit_shown);
        why->step("Production: " + production_shown);
    }
    if (limit < production) return land_balance::too_little;
    return limit > production ? land_balance::to_spare : land_balance::equal;
}

void tell_difference(const spreading_result& result, explanation& why) {
    const bool short_of_land = result.balance == land_balance::too_little;
    const float more = short_of_land ? result.production_kg : result.farm_limit_kg;
    const float less = short_of_land ? result.farm_limit_kg : result.production_kg;
    if (result.balance != land_balance::equal)
        why.step("The difference is that of the figures before they are rounded: " + with(more, " - ") +
                 with(less, " = ") + with(more - less, " kg N/year"));
    why.step("Field limits together " + with(result.field_limits_kg, " kg N/year, farm limit ") +
             with(result.farm_limit_kg, " kg N/year: ") +
             (result.field_limits_lower ? "lower, so that a note says so"
                                        : "not lower, so that there is no note"));
}

}  // namespace

float available_area(const field_areas& areas, explanation* why) {
    const float whole = areas.grass_ha + areas.other_ha;
    const float deducted = areas.buffer_ha + areas.slope_ha + areas.other_deduction_ha;
    const float left = whole - deducted;
    if (why) {
        why->rule("The available area is the area of the field less what is deducted from it.");
        why->step("Area: " + with(areas.grass_ha, " + ") + with(areas.other_ha, " = ") + with(whole, " ha"));
        why->step("Deducted: " + with(areas.buffer_ha, " + ") + with(areas.slope_ha, " + ") +
                  with(areas.other_deduction_ha, " = ") + with(deducted, " ha"));
        why->step("Left: " + with(whole, " - ") + with(deducted, " = ") + with(left, " ha"));
        if (left < 0) why->step("An area is never below 0, so that it counts as 0 ha.");
    }
    return std::max(0.0F, left);
}

float field_limit(float available_ha, explanation* why) {
    if (why) why->rule("A field may take the same nitrogen on each available hectare, in grass or not.");
    return times_limit(available_ha, field_limit_kg_per_ha, why);
}

float deduction_room(float grass_ha, float other_ha, float deducted_ha, float also_deducted_ha,
                     explanation* why) {
    const float room = grass_ha + other_ha - (deducted_ha + also_deducted_ha);
    if (why) {
        why->rule("At most what the two other deductions leave of the field can be deducted; more is cut.");
        why->step("Room: " + with(grass_ha, " + ") + with(other_ha, " - (") + with(deducted_ha, " + ") +
                  with(also_deducted_ha, ") = ") + with(room, " ha"));
    }
    return room;
}

float other_land_limit(const farm_sums& sums, explanation* why) {
    return times_limit(sums.other_ha, other_land_limit_kg_per_ha, why);
}

float grassland_limit(const farm_sums& sums, explanation* why) {
    return times_limit(sums.grass_ha, grassland_limit_kg_per_ha, why);
}

float farm_limit(const farm_sums& sums, explanation* why) {
    const float other_land = other_land_limit(sums, why);
    const float grassland = grassland_limit(sums, why);
    if (why) {
        why->rule(
            "The farm limit is that of the land not in grass and that of the grassland together. Areas "
            "that are deducted count in full.");
        why->step(with(other_land, " + ") + with(grassland, " = ") +
                  with(other_land + grassland, " kg N/year"));
    }
    return other_land + grassland;
}

std::string shown_per_year(float n_kg, explanation* why) {
    if (why) why->step("Rounded to 2 decimals, halves to the even digit: " + two_decimals(n_kg));
    return two_decimals(n_kg) + " kg N/year";
}

area_pair split_field_area(float entered_ha, float field_ha) {
    const bool too_much = entered_ha > field_ha;
    const float entered = too_much ? field_ha : entered_ha;
    return {two_decimals(entered), two_decimals(field_ha - entered), too_much};
}

spreading_result compare_with_limits(const farm_sums& sums, explanation* why) {
    spreading_result result;
    result.production_kg = sums.production_kg;
    result.farm_limit_kg = farm_limit(sums);
    result.field_limits_kg = sums.field_limits_kg;
    result.production = shown_per_year(result.production_kg);
    result.farm_limit = shown_per_year(result.farm_limit_kg);
    result.field_limits = shown_per_year(result.field_limits_kg);
    result.other_land_limit = shown_per_year(other_land_limit(sums));
    result.grassland_limit = shown_per_year(grassland_limit(sums));
    result.balance = balance_of(result.farm_limit, result.production, why);
    result.field_limits_lower = result.field_limits_kg < result.farm_limit_kg;
    if (why) tell_difference(result, *why);
    return result;
}

std::string two_decimals(float value) {
    return shortest_text(round_half_even(value, 2));
}

}  // namespace kel
