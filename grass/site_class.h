// The site class of a grass field, 1 (moist) to 5 (dry): how much rain falls from April to September, how
// high the farm lies, and what soil the field has.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "core/assessment_store.h"

namespace kel {

class explanation;

/// An answer to the question for the rainfall from April to September.
struct rain_level {
    int rain_class;           // 1 (most rain) to 4
    std::string_view answer;  // as it is asked
    std::string_view stored;  // as [Grass_data] holds it
    float above_mm;           // a sum over this falls into the class
};
std::span<const rain_level> rain_levels();
/// Null for any other text.
const rain_level* rain_level_stored_as(std::string_view stored);
/// The level of a sum in mm; a sum on a bound falls into the drier level.
const rain_level& rain_level_of(float apr_to_sep_mm);

/// An answer to the question for the altitude.
struct altitude_level {
    int altitude_step;  // what the altitude adds to the site class
    std::string_view answer;
    std::string_view stored;
};
std::span<const altitude_level> altitude_levels();
/// Null for any other text.
const altitude_level* altitude_level_stored_as(std::string_view stored);

/// Rain from April to September in mm of the climate table's first row, whatever the farm's town is; nothing
/// from an empty table. Throws file_error.
std::optional<float> apr_to_sep_rain_mm(const database& climate, explanation* why = nullptr);

/// 1 to 5; 0 for a soil that is none of the profile's, at any altitude. Nothing for a rain class other than 1
/// to 4 on a known soil. From the guidelines for farmers in the zones.
std::optional<int> site_class(std::string_view soil, int rain_class, int altitude_step,
                              explanation* why = nullptr);

}  // namespace kel
