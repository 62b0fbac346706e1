// The assessment file dialogs of the shell: where they open, what becomes of the name that was typed, and the
// folder they remember.
#pragma once

#include <string>
#include <string_view>

#include "core/application_state.h"
#include "core/prompts.h"

namespace kel {

/// The assessment chosen, or an empty text when cancelled. `last_dir` becomes its folder.
std::string choose_file_to_open(application_state& state, prompts& person, std::string_view title);

/// The file to save to, or an empty text when cancelled. A name without an extension gets ".kel"; if that is
/// the name of another file, the person is asked first. `last_dir` becomes its folder.
std::string choose_file_to_save(application_state& state, prompts& person, std::string_view title);

/// Whether two paths lead to the same file, also by different spellings.
bool same_file(const std::string& a, const std::string& b);

}  // namespace kel
