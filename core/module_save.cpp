#include "core/module_save.h"

#include <string>

#include "core/assessment_files.h"

namespace kel {

bool choose_save_file(application_state& state, prompts& person, std::string_view refusal_title) {
    if (!state.assess_file.empty()) return true;
    const std::string chosen =
        person.file_to_save({"Save the assessment", std::string(assessment_filter), dialog_folder(state)});
    if (chosen.empty()) return false;
    state.last_dir = folder_of(chosen);
    if (chosen == state.prev1_file) {
        person.tell(
            {std::string(refusal_title), "This is last years file and cannot be saved to at this time!"});
        return false;
    }
    copy_assessment(state.places.blank_assessment(), chosen);
    state.assess_file = chosen;
    return true;
}

}  // namespace kel
