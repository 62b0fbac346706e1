// What the circumstances of a crop add to its requirement: the answers to its questions and the two rainfall
// rules. A figure that adds nitrogen is positive.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "core/assessment_store.h"

namespace kel {

class explanation;

/// An answer, what it adds in kg/ha (of a variety: the percentage taken off), and the word that it leaves for
/// the advice.
struct crop_answer {
    std::string_view text;
    int value;
    std::string_view word = {};
};

std::span<const crop_answer> wheat_market_answers();
std::span<const crop_answer> barley_market_answers();
std::span<const crop_answer> undersowing_answers();
std::span<const crop_answer> take_all_answers();
std::span<const crop_answer> turnip_rape_answers();
std::span<const crop_answer> variety_answers();

/// kg/ha for sowing `days` late; nothing is taken off crops that are not asked.
float delayed_sowing_kg_per_ha(std::string_view crop_code, float days);

namespace rain_status {
inline constexpr std::string_view high = "High";
inline constexpr std::string_view low = "Low";
}  // namespace rain_status

/// The two soils on which vegetables need more than on the others.
bool is_shallow_or_sand(std::string_view soil);
/// kg/ha that a vegetable on the soil needs more after a wet summer.
int wet_summer_kg_per_ha(std::string_view soil);

/// What decides the rainfall adjustments of a row: its cells as they stand.
struct rained_on {
    std::string_view crop;  // planned code
    std::string_view residue_group;
    std::string_view soil;
};

/// What the rules fall back on where their tables have no value: the soil and the figures of the row before.
struct rain_memory {
    std::string_view soil_code = {};
    int winter_kg_per_ha = 0;
    int spring_kg_per_ha = 0;
    bool operator==(const rain_memory&) const = default;
};

// The adjustment in kg/ha for a status; nothing: the row is not complete and its cell stays as it is.
std::optional<int> winter_rain_adjustment(std::string_view status, const rained_on& row, rain_memory& memory,
                                          explanation* why = nullptr);
std::optional<int> spring_rain_adjustment(std::string_view status, const rained_on& row, rain_memory& memory,
                                          explanation* why = nullptr);

/// The status that the mean rainfall of the town from October to February suggests: high above 450 mm.
/// Nothing for a town without figures. Throws file_error.
std::optional<std::string_view> winter_rain_default(const database& climate, std::string_view town,
                                                    explanation* why = nullptr);

}  // namespace kel
