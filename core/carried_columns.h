// Columns that a grid carries for another module. A Save replaces whole rows, and what the other module has
// saved meanwhile must not go with them.
#pragma once

#include <string_view>

#include "core/assessment_store.h"
#include "core/text_grid.h"

namespace kel {

/// Fills the carried cells of the first `rows` rows from the file's rows as they stand; a row is known by the
/// text of its first column, and rows of one text are taken in order. A row that the file lacks keeps its
/// cells. Call it before save_grid, within the same save_transaction.
void take_carried(const database& db, std::string_view table, text_grid& grid, int rows);

}  // namespace kel
