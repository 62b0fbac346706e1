// Files that are not databases are written whole: aside, then renamed over the old one, which stays when the
// folder is read-only or the disc full.
#pragma once

#include <string>
#include <string_view>

namespace kel {

/// Puts `content` in place of the file. `what` names it for the person ("the settings"). Throws file_error.
void write_whole_file(const std::string& path, std::string_view content, std::string_view what);

/// Plain copy of a whole file that is not open; an existing target is replaced. Throws file_error.
void copy_whole_file(const std::string& from, const std::string& to);
/// The same for an assessment that others may have open: none of them saves meanwhile, and what a save that
/// was cut off has left is undone first.
void copy_assessment(const std::string& from, const std::string& to);
/// A plain copy for a path within two folders; one that the second lacks below it is made.
void copy_between(const std::string& from_folder, const std::string& to_folder, const std::string& path);

}  // namespace kel
