// Brings the assessment that the settings store names back to the screen, at start-up and when the years
// dialog is cancelled.
#pragma once

#include <optional>

#include "core/application_state.h"
#include "core/prompts.h"
#include "profile/profile_module.h"

namespace kel {

/// The profile's reopen; then, if an assessment is open, ass_year. A file that cannot be read leaves
/// no assessment open, keeps the slots, and gives the box that says so.
std::optional<message> reopen_assessment(application_state& state, profile_module& profile);

}  // namespace kel
