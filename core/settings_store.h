// The settings store kelstore.ini: six text lines that carry the chain of years and the two option boxes from
// run to run. It belongs to the installation, not to a farm.
#pragma once

#include "core/application_state.h"

namespace kel {

/// Reads flags, slots and, by slot_selected, the working paths. A slot whose file fails its check is emptied;
/// an unreadable store empties all six paths and both flags. Never throws.
void read_store(application_state& state);

/// Writes the store as a whole, old or new after a crash. Throws file_error.
void write_store(const application_state& state);

/// Working paths from the slots and slot_selected; 0 leaves them as they are.
void set_working_files(application_state& state);

}  // namespace kel
