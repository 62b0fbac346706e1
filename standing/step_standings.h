// One verdict for each step. Each reads what it needs from the opened files, adds the figures behind it to
// the farm's standing, and throws file_error for a file that cannot be read.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "core/grid_rows.h"
#include "record/field_history.h"
#include "standing/farm_files.h"
#include "standing/farm_standing.h"
#include "standing/heard_messages.h"

namespace kel {

/// What the files hold of every field, by its name.
using field_histories = std::unordered_map<std::string, field_history>;

step_standing profile_standing(const farm_year& year, farm_standing& farm);
step_standing land_standing(const farm_year& year, farm_standing& farm);
step_standing storage_standing(const farm_year& year, town_rain& rain, farm_standing& farm);
step_standing manure_standing(const farm_year& year, farm_standing& farm);
step_standing inorganic_standing(const farm_year& year, const field_histories& fields, farm_standing& farm);
step_standing crops_standing(const farm_year& year, const field_histories& fields, farm_standing& farm);
step_standing grass_standing(const farm_year& year, const field_histories& fields, farm_standing& farm);
step_standing composting_standing(const farm_year& year, farm_standing& farm);
step_standing record_standing(const farm_year& year, const field_histories& fields, farm_standing& farm);

/// What the files hold of the field; of one that they do not name, nothing.
const field_history& history_of(const field_histories& fields, const std::string& field);

/// Adds a sentence on data that the step lacks.
void add_missing(farm_standing& farm, farm_step step, std::string_view sentence);
/// The same of what a load tells, each sentence once. Whether there was any.
bool add_told(farm_standing& farm, farm_step step, const load_messages& told);

/// A step in which nothing is entered yet.
step_standing not_done(farm_step step, std::string_view verdict, std::string_view next);
/// One that data is missing from.
step_standing incomplete(farm_step step, std::string_view verdict, std::string_view next);

/// Raises what the verdict asks of the farmer; it is never lowered.
void raise(step_standing& standing, severity to);

/// The names of the fields for which something holds, in the order of the profile.
template <class Holds>
std::vector<std::string> fields_where(const std::vector<farm_field>& fields, const Holds& holds) {
    std::vector<std::string> names;
    for (const farm_field& field : fields)
        if (holds(field)) names.push_back(field.name);
    return names;
}

}  // namespace kel
