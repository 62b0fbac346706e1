#include "land/spreading_limits.h"

#include <algorithm>

#include "core/numbers.h"

namespace kel {

namespace {

std::string shown(float n_kg) {
    return two_decimals(n_kg) + " kg N/year";
}

land_balance balance_of(const std::string& limit_shown, const std::string& production_shown) {
    const float limit = leading_single(limit_shown);
    const float production = leading_single(production_shown);
    if (limit < production) return land_balance::too_little;
    return limit > production ? land_balance::to_spare : land_balance::equal;
}

}  // namespace

float available_area(const field_areas& areas) {
    const float deducted = areas.buffer_ha + areas.slope_ha + areas.other_deduction_ha;
    return std::max(0.0F, areas.grass_ha + areas.other_ha - deducted);
}

float field_limit(float available_ha) {
    return available_ha * field_limit_kg_per_ha;
}

float deduction_room(float grass_ha, float other_ha, float deducted_ha, float also_deducted_ha) {
    return grass_ha + other_ha - (deducted_ha + also_deducted_ha);
}

area_pair split_field_area(float entered_ha, float field_ha) {
    const bool too_much = entered_ha > field_ha;
    const float entered = too_much ? field_ha : entered_ha;
    return {two_decimals(entered), two_decimals(field_ha - entered), too_much};
}

spreading_result compare_with_limits(const farm_sums& sums) {
    const float other_land = other_land_limit_kg_per_ha * sums.other_ha;
    const float grassland = grassland_limit_kg_per_ha * sums.grass_ha;
    spreading_result result;
    result.production_kg = sums.production_kg;
    result.farm_limit_kg = other_land + grassland;
    result.field_limits_kg = sums.field_limits_kg;
    result.production = shown(result.production_kg);
    result.farm_limit = shown(result.farm_limit_kg);
    result.field_limits = shown(result.field_limits_kg);
    result.other_land_limit = shown(other_land);
    result.grassland_limit = shown(grassland);
    result.balance = balance_of(result.farm_limit, result.production);
    result.field_limits_lower = result.field_limits_kg < result.farm_limit_kg;
    return result;
}

std::string two_decimals(float value) {
    return shortest_text(round_half_even(value, 2));
}

}  // namespace kel
