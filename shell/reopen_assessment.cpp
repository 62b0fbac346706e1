#include "shell/reopen_assessment.h"

#include "core/file_error.h"
#include "shell/assessments_messages.h"

namespace kel {

std::optional<message> reopen_assessment(application_state& state, profile_module& profile) {
    try {
        profile.reopen();
        if (!state.assess_file.empty()) profile.ass_year();
        return std::nullopt;
    } catch (const file_error& failure) {
        close_assessment(state);
        return assessments_messages::cannot_open(failure);
    }
}

}  // namespace kel
