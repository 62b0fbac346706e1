// What a process that was killed in the middle of a save leaves beside an assessment, apart from the journals
// that the engine rolls back by itself.
#pragma once

#include <string>

namespace kel {

/// Removes from the assessment's folder the new files that nobody is making any more, and the lists of
/// journals that undo nothing any more. Call it as an assessment is opened. Never throws.
void clear_left_behind(const std::string& path);

}  // namespace kel
