// The report on the applications: what they give to the crops, the applications and the warnings.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/text_grid.h"
#include "reports/report_page.h"

namespace kel {

inline constexpr std::string_view manure_report_file = "KEL_report_manureN.htm";

/// Body of the report. `over_limit` are the fields over the limit in the order of the results,
/// `closed_periods` the sentences on applications in closed periods, without their full stops; sections
/// without content are left out.
page_lines manure_report(const text_grid& results, const text_grid& applications,
                         const std::vector<std::string>& over_limit,
                         const std::vector<std::string>& closed_periods);

}  // namespace kel
