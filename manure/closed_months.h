// The applications of slurry and manure that lie in closed periods, as the results warn of them.
#pragma once

#include <vector>

#include "core/assessment_store.h"
#include "core/text_grid.h"

namespace kel {

/// Rows of the table whose day is in a month that [Land] of the file has closed for their field, in row
/// order. Farmyard manures that no closed period concerns, fields without a row and rows without a day are
/// not among them. [Land] is read in one pass; throws file_error.
std::vector<int> rows_in_closed_months(const database& db, const text_grid& table);

}  // namespace kel
