// Whole-file operations on assessments: the save and load of a grid by stored column names, and what the
// years dialog asks of other files.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/assessment_store.h"
#include "core/text_grid.h"

namespace kel {

/// A cell's text as the file has it and as the grid has it: a date is ISO-8601 there and day first here; all
/// other text is the same.
std::string stored_text(const grid_column& column, const std::string& shown);
std::string shown_text(const grid_column& column, std::string_view stored);

/// Where each column of the grid is stored in the table; -1 for one that is not.
std::vector<int> stored_columns(const recordset& table, const text_grid& grid);

/// The rows written by a module's Save: every row of the table goes, then the first `rows` rows of the grid
/// are written by stored column name. Empty cells stay unset. Call it within a save_transaction.
void save_grid(const database& db, std::string_view table, const text_grid& grid, int rows);

/// Copies the current row of `source` into row `row` of the grid by stored column name; empty texts leave the
/// cell.
void load_grid_row(const recordset& source, text_grid& grid, int row);
/// The same with the columns of the grid looked up once for all rows, by stored_columns.
void load_grid_row(const recordset& source, const std::vector<int>& stored, text_grid& grid, int row);

/// Farm name and year of another file, for the years dialog; empty if its table has no row.
std::string read_farm_name(const std::string& path);
std::optional<date> read_assessment_year(const std::string& path);
/// Whether the one may be linked as the year before the other. Years of a chain start on the same calendar
/// day; 366 days apart if a 29 February lies between.
bool is_year_before(std::optional<date> older, std::optional<date> newer);
/// Writes [Type].[Year]. Call it within a save_transaction. Throws file_error, also for a table without its
/// row.
void write_assessment_year(const database& db, date year_start);
/// 1 if the file opens and [Type] can be opened, otherwise 0. A file that another program keeps locked counts
/// as one: it is there, and its place in the chain must not be lost. Never throws.
int check_assessment_file(const std::string& path);

}  // namespace kel
