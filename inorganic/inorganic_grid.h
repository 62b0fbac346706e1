// The table of applications as a grid: columns as data and the way from the file.
#pragma once

#include "core/assessment_store.h"
#include "core/text_grid.h"

namespace kel {

namespace inorganic_column {
enum : int { field = 0, date = 1, type = 2, amount = 3, content = 4, total_n = 5, comments = 6 };
}

/// An empty grid with its headings, without its entry row.
text_grid inorganic_headings();

/// Every row of [Inorganic N] as it stands, in table order.
void add_applications(const database& db, text_grid& grid);

/// Total N (kg N/ha, under a heading that says kg) from amount and content of the row.
void recalculate_application(text_grid& grid, int row);

/// Replaces the rows of [Inorganic N]. Call within a save_transaction.
void save_applications(const database& db, const text_grid& grid);

}  // namespace kel
