// The report on the applications of inorganic fertiliser, as the table shows them.
#pragma once

#include <string_view>

#include "core/text_grid.h"
#include "reports/report_page.h"

namespace kel {

inline constexpr std::string_view inorganic_report_file = "KEL_report_inorganic.htm";

/// Body of the report; the entry row is left out.
page_lines inorganic_report(const text_grid& applications);

}  // namespace kel
