// What a new assessment year does not take over from the file it was copied from: crops, inorganic nitrogen,
// manure applications and grass sites. Everything else (profile, land, stores, stock, recommendations) is
// carried on.
#pragma once

#include <string>

#include "core/assessment_store.h"

namespace kel {

enum class year_data_mode {
    move_dates = 1,   // rows stay, their dates move on by the years given
    delete_rows = 2,  // rows go
};

/// Works on [Crops], [Inorganic N], [Manure_applic] and [Site] of the file, as one transaction. Throws
/// file_error; the file is then as it was.
void clear_year_data(const std::string& path, int years, year_data_mode mode);

/// The same within the caller's transaction.
void clear_year_data(const database& db, int years, year_data_mode mode);

}  // namespace kel
