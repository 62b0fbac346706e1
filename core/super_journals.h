// A save over several files keeps, beside the first one, a small list of the journals that belong together
// (farm.kel-mj...). The engine does not take it away when the save fails, as on a full disc, or is killed.
#pragma once

#include <string>

namespace kel {

/// Removes the lists beside the file of which no journal is left: nothing is undone by them any more. Call it
/// with the file locked for writing. Never throws.
void remove_spent_super_journals(const std::string& path);

/// Whether there is such a list, spent or not.
bool has_super_journal(const std::string& path);

}  // namespace kel
