// Sheets to be filled in by hand in the cab: the farm's fields down the side, with their area and the months
// in which they are closed in grey, and empty columns for what is applied.
#pragma once

#include <string_view>

#include "reports/report_page.h"
#include "standing/season_calendar.h"

namespace kel {

enum class blank_sheet { manure, fertiliser };

std::string_view file_of(blank_sheet kind);

inline constexpr int most_lines_of_a_field = 5;

/// Body of the page. `lines` for each field, 1 to most_lines_of_a_field; each is at least 8 mm high.
page_lines blank_sheet_page(const season_calendar& season, blank_sheet kind, int lines);

}  // namespace kel
