// The save of the farm profile. A field is known by its name in every table of every year, so a rename, a new
// soil or a new area is carried through all module tables of the linked years in the same transaction as the
// profile itself.
#pragma once

#include <string>

#include "core/application_state.h"
#include "core/assessment_store.h"
#include "core/text_grid.h"
#include "profile/farm_profile.h"

namespace kel {

/// One field as it was last read and as it is now.
struct field_change {
    std::string old_name;
    std::string new_name;
    std::string area;  // ha
    std::string soil;
};

/// Writes [FarmProfile], [Field Data] and [Type].[Year] of the file (year, zone and town from the state) and
/// carries the fields' changes through the files of the slots and through the saved file itself. Rows left by
/// an erased field whose name another field takes go first. All files change together or none. Returns
/// whether a field's area had changed, so that its land assessment was cleared. Throws file_error.
bool save_prof(const database& db, const farm_details& farm, const text_grid& fields,
               const application_state& state);

/// Renames the field in [Field Data] of a linked file.
void prof_fname_link(const database& linked, const field_change& change);

/// Carries the change into all module tables of a file. A [Land] row whose area differs as a number loses its
/// assessment; returns whether there was one.
bool data_trans(const database& db, const field_change& change);

}  // namespace kel
