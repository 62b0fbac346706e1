// The farm profile as an assessment file holds it.
#pragma once

#include <optional>
#include <string>

#include "core/application_state.h"
#include "core/assessment_store.h"
#include "core/loaded_rows.h"
#include "core/text_grid.h"
#include "profile/farm_profile.h"

namespace kel {

/// Everything that opening a file puts on the profile screen and into the application state.
struct loaded_profile {
    farm_details farm;
    text_grid fields{field_columns};
    std::string farm_name;
    std::string farm_zone;
    std::string farm_town;
    std::optional<date> kel_year_start;
    loaded_rows rows{{{"FarmProfile"}, {"Field Data"}}};
};

/// Reads [FarmProfile] and [Field Data] over what `profile` holds; empty zone areas leave what was there.
/// False, and nothing read, if [FarmProfile] has no row. Throws file_error.
bool read_farm(const database& db, loaded_profile& profile);

/// Reads [Type].[Year] into the year box, unless it is empty, and the box into kel_year_start. Throws
/// file_error.
void read_year(const database& db, loaded_profile& profile);

}  // namespace kel
