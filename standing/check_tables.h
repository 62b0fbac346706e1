// The list of a folder's farms as a table for the screen, a spreadsheet, a page and a terminal.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/dates.h"
#include "core/text_grid.h"
#include "standing/folder_check.h"

namespace kel {

/// "Verdict", "Farm", "KEL year from" ... and one for each step.
std::span<const grid_column> check_columns();
/// A file in these columns, paths as they stand below the folder.
std::vector<std::string> check_cells(const checked_file& file, std::string_view folder);

/// "3 farms in 5 files: 1 cannot be read, 2 wrong, ..."
std::string check_summary(const std::vector<checked_file>& files);

std::string check_csv(const std::vector<checked_file>& files, std::string_view folder);
/// A page of its own that needs no other file; `today` stands in its head.
std::string check_html(const std::vector<checked_file>& files, std::string_view folder, date today);
/// For a terminal: a line for each file, and below it what there is to look at.
std::string check_text(const std::vector<checked_file>& files, std::string_view folder);

}  // namespace kel
