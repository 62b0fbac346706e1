// Reads what the assessment and the linked file of the year before hold of its fields. Every table is read
// once, for one field or for all of them.
#pragma once

#include <string>
#include <unordered_map>

#include "core/application_state.h"
#include "core/assessment_store.h"
#include "record/field_history.h"

namespace kel {

/// The year assessed, as the state has it.
record_year record_year_of(const application_state& state);

/// What the files hold of one field. Throws file_error.
field_history read_history(const application_state& state, const std::string& field);

/// Of every field that they name. Throws file_error.
std::unordered_map<std::string, field_history> read_histories(const application_state& state);
/// The same of files that are open; last year's may be null.
std::unordered_map<std::string, field_history> read_histories(const database& file,
                                                              const database* last_year);

}  // namespace kel
