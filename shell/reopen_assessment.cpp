#include "shell/reopen_assessment.h"

#include "core/file_error.h"
#include "core/settings_store.h"
#include "shell/assessments_messages.h"

namespace kel {

std::optional<message> reopen_assessment(application_state& state, profile_module& profile) {
    const std::string before = state.assess_file;
    read_store(state);
    if (state.assess_file != before) ++state.assessment;
    if (state.assess_file.empty()) return std::nullopt;
    try {
        profile.load_profile();
        profile.ass_year();
        return std::nullopt;
    } catch (const file_error& failure) {
        ++state.assessment;
        state.assess_file.clear();
        state.prev1_file.clear();
        state.prev2_file.clear();
        return assessments_messages::cannot_open(failure);
    }
}

}  // namespace kel
