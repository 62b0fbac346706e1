// The opening questions of the module: where their answers come from in advance, and where they are kept.
#pragma once

#include <optional>

#include "core/application_state.h"
#include "core/assessment_store.h"

namespace kel {

/// Places in rain_levels() and altitude_levels(); nothing where no source has an answer.
struct opening_answers {
    std::optional<int> rain;
    std::optional<int> altitude;
};

class explanation;

/// Who is told of which answer; null: nobody.
struct opening_accounts {
    explanation* rain = nullptr;
    explanation* altitude = nullptr;
};

/// From this assessment, else last year's; the rain else from the climate tables. A stored text that is no
/// answer counts as none. Tells where each came from. Throws file_error.
opening_answers answers_in_advance(const database& assessment, const application_state& state,
                                   const opening_accounts& why = {});

// Keep an answer in [Grass_data] of the assessment, in one transaction. Throw file_error.
void store_rain(const application_state& state, int answer);
void store_altitude(const application_state& state, int answer);

}  // namespace kel
