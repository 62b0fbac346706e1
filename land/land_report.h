// The report on land available for spreading: summary, stock and fields as the screen shows them.
#pragma once

#include <string_view>

#include "core/text_grid.h"
#include "land/spreading_limits.h"
#include "reports/report_page.h"

namespace kel {

inline constexpr std::string_view land_report_file = "KEL_report_landspread.htm";

/// Body of the report; the entry rows of the grids are left out.
page_lines land_report(const spreading_result& result, const text_grid& land, const text_grid& animals);

}  // namespace kel
