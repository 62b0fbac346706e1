// The assessment file dialogs: where they open, what becomes of the name that was typed, and the folder they
// remember.
#pragma once

#include <string>
#include <string_view>

#include "core/application_state.h"
#include "core/prompts.h"

namespace kel {

/// The assessment chosen, or an empty text when cancelled. `last_dir` becomes its folder.
std::string choose_file_to_open(application_state& state, prompts& person, std::string_view title);

/// The file to save to, or an empty text when cancelled. A name without the extension gets ".kel"; if that is
/// the name of another file, the person is asked first. `last_dir` becomes its folder.
std::string choose_file_to_save(application_state& state, prompts& person, std::string_view title);

/// The path with the extension (".kel"), or an empty text if that turned out to be another file's name that
/// the person does not want to replace. `title` is that of the dialog.
std::string with_extension(prompts& person, std::string_view title, std::string path,
                           std::string_view extension);

/// Asked where the dialog could not: the extension was added to the name afterwards.
message replace_file(std::string_view title, std::string_view file_name);

/// Whether two paths lead to the same file, also by different spellings.
bool same_file(const std::string& a, const std::string& b);

}  // namespace kel
