// The table of applications as a grid: columns as data and the way from the file.
#pragma once

#include <string>
#include <vector>

#include "core/assessment_store.h"
#include "core/explanation.h"
#include "core/text_grid.h"

namespace kel {

namespace inorganic_column {
enum : int { field = 0, day = 1, type = 2, amount = 3, content = 4, total_n = 5, comments = 6 };
}

namespace inorganic_table {

/// An empty grid: its headings, without an entry row.
text_grid set_grid();
/// Every row of [Inorganic N] as it stands, in table order, then the entry row.
text_grid get_data(const database& db);
/// The names of the farm's fields, in table order.
std::vector<std::string> set_fieldlist(const database& db);

/// Total N of the row from its amount and content, as its cell shows it: kg N/ha under a heading that says
/// kg.
std::string total_n_text(const text_grid& grid, int row, explanation* why = nullptr);
/// Writes it.
void recalculate(text_grid& grid, int row);

/// Replaces the rows of [Inorganic N]. Call within a save_transaction.
void save(const database& db, const text_grid& grid);

}  // namespace inorganic_table
}  // namespace kel
