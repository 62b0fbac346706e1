// One verdict for each step. Each reads what it needs from the opened files, adds the figures behind it to
// the farm's standing, and throws file_error for a file that cannot be read.
#pragma once

#include "standing/farm_files.h"
#include "standing/farm_standing.h"

namespace kel {

step_standing profile_standing(const farm_year& year, farm_standing& farm);
step_standing land_standing(const farm_year& year, farm_standing& farm);

/// Adds a sentence on data that the step lacks.
inline void add_missing(farm_standing& farm, farm_step step, std::string sentence) {
    farm.missing.push_back({step, std::move(sentence)});
}

/// A step in which nothing is entered yet.
inline step_standing not_done(farm_step step, std::string_view verdict, std::string_view next) {
    return {step, false, severity::not_done, std::string(verdict), std::string(next)};
}

}  // namespace kel
