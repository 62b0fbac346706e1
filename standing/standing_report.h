// The page "Where the farm stands": the verdict on each step, the fields that need a look, and what is
// missing.
#pragma once

#include <string_view>

#include "reports/report_page.h"
#include "standing/farm_standing.h"

namespace kel {

inline constexpr std::string_view standing_report_file = "KEL_report_standing.htm";

/// Body of the page; names are escaped.
page_lines standing_report(const farm_standing& farm);

}  // namespace kel
