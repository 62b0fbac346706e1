// The report on the nitrogen recommendations, field by field.
#pragma once

#include <string_view>

#include "core/text_grid.h"
#include "reports/report_page.h"
#include "rules/manure_history.h"

namespace kel {

inline constexpr std::string_view crop_report_file = "KEL_report_croprec.htm";

/// Body of the report: one part for each row of results, which has the same number as its row of crops.
page_lines crop_report(const text_grid& crops, const text_grid& results, const manure_history& manures);

}  // namespace kel
