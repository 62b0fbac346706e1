// Land available for spreading organic manures, and the limits on the nitrogen in them: 250 kg N per hectare
// for grassland and 170 for land not in grass over the farm, 250 for the available area of each single field.
// All in single precision.
#pragma once

#include <string>

#include "core/explanation.h"

namespace kel {

inline constexpr float grassland_limit_kg_per_ha = 250.0F;
inline constexpr float other_land_limit_kg_per_ha = 170.0F;
inline constexpr float field_limit_kg_per_ha = 250.0F;

struct field_areas {
    float grass_ha = 0;
    float other_ha = 0;
    float buffer_ha = 0;
    float slope_ha = 0;
    float other_deduction_ha = 0;
};

/// Both areas less the three deductions, in hectares; never below 0.
float available_area(const field_areas& areas, explanation* why = nullptr);

/// kg N per year that may be spread on a field. It is 250 kg for each available hectare, in grass or not; the
/// 170 of the farm limit has no part in it.
float field_limit(float available_ha, explanation* why = nullptr);

/// Hectares left for one deduction beside the two others. Below 0 when those exceed the areas already.
float deduction_room(float grass_ha, float other_ha, float deducted_ha, float also_deducted_ha,
                     explanation* why = nullptr);

/// A field's area split into what was entered and the rest, as cell texts of hectares with at most 2
/// decimals, ties to even.
struct area_pair {
    std::string entered;
    std::string rest;
    bool cut_to_field = false;  // more was entered than the field has
    bool operator==(const area_pair&) const = default;
};
area_pair split_field_area(float entered_ha, float field_ha);

/// What Calculate works on: sums over the farm.
struct farm_sums {
    float grass_ha = 0;  // areas before any deduction
    float other_ha = 0;
    float field_limits_kg = 0;
    float production_kg = 0;
};

/// kg N per year that may be spread on the farm, and the two parts of it. Deductions have no part in them.
float other_land_limit(const farm_sums& sums, explanation* why = nullptr);
float grassland_limit(const farm_sums& sums, explanation* why = nullptr);
float farm_limit(const farm_sums& sums, explanation* why = nullptr);

/// A sum as the result shows it: "1234.5 kg N/year".
std::string shown_per_year(float n_kg, explanation* why = nullptr);

enum class land_balance { too_little, equal, to_spare };

/// Production against the limits, kg N per year: the values, and the texts that are shown.
struct spreading_result {
    float production_kg = 0;
    float farm_limit_kg = 0;
    float field_limits_kg = 0;
    std::string production;
    std::string farm_limit;
    std::string field_limits;
    std::string other_land_limit;
    std::string grassland_limit;
    land_balance balance = land_balance::equal;
    bool field_limits_lower = false;
    bool operator==(const spreading_result&) const = default;
};

/// Which is more, limit or production, is told by the numbers shown; whether the field limits are lower than
/// the farm limit, by the numbers themselves.
spreading_result compare_with_limits(const farm_sums& sums, explanation* why = nullptr);

/// Number with at most 2 decimals, ties to even, in the shortest text.
std::string two_decimals(float value);

}  // namespace kel
