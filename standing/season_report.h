// The season calendar as a page: a row for each field and a column for each month, with letters and shades of
// grey, so that it reads the same on any printer.
#pragma once

#include <string_view>

#include "reports/report_page.h"
#include "standing/season_calendar.h"

namespace kel {

inline constexpr std::string_view season_report_file = "KEL_report_calendar.htm";

/// Letters of what was applied.
std::string_view letter_of(applied_as kind);

/// Body of the report.
page_lines season_report(const season_calendar& season);

}  // namespace kel
