// The record and its warnings as grids, and as text for other programs.
#pragma once

#include <string>
#include <vector>

#include "core/text_grid.h"
#include "record/record_analysis.h"
#include "record/record_rows.h"

namespace kel {

namespace record_column {
enum : int {
    crop = 0,
    date_planted = 1,
    day = 2,
    inorganic_type = 3,
    amount = 4,
    inorganic_n = 5,
    manure = 6,
    n_content = 7,
    rate = 8,
    manure_n = 9,
    comments = 10,
};
}

namespace record_warning_column {
enum : int { icon = 0, text = 1, icon_path = 2 };
}

/// Grids with headings and without a row; neither is stored nor has an entry row.
text_grid empty_record_grid();
text_grid empty_warnings_grid();

text_grid record_grid(const std::vector<record_row>& rows);
text_grid warnings_grid(const std::vector<record_warning>& warnings);

/// For the clipboard: cells between quotation marks, parted by tabs. A quotation mark within is doubled, so
/// that a spreadsheet reads the cell back.
std::string copied_text(const std::string& field, const text_grid& record, const text_grid& warnings);
/// The same as a CSV file in UTF-8, parted by commas.
std::string csv_text(const std::string& field, const text_grid& record, const text_grid& warnings);

}  // namespace kel
