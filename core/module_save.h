// What every module's Save does first: an assessment must be open, or the person names a file for it.
#pragma once

#include <string_view>

#include "core/application_state.h"
#include "core/prompts.h"

namespace kel {

/// Whether there is a file to save into. With an assessment open nothing is asked. Otherwise the file chosen
/// becomes a copy of the empty assessment and is open from then on; nothing chosen, or last year's file, ends
/// the save. `refusal_title` is the title of the warning for last year's file. Throws file_error when the
/// file cannot be made.
bool choose_save_file(application_state& state, prompts& person,
                      std::string_view refusal_title = "Cannot Save File");

}  // namespace kel
