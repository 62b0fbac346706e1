// The two reports: the calculation that stands, and all that are recorded.
#pragma once

#include <string>
#include <string_view>

#include "core/text_grid.h"
#include "reports/report_page.h"

namespace kel {

inline constexpr std::string_view composting_result_file = "nutrient_report.htm";
inline constexpr std::string_view composting_report_file = "KEL_report_compost.htm";

/// One calculation as it is shown: what was answered and the texts of the result.
struct composting_shown {
    std::string residue;
    std::string soil_n;
    std::string waste;
    std::string waste_n;
    std::string rate;
    std::string release;
    std::string note;
};

/// Body of the printed result.
page_lines composting_result_report(const composting_shown& shown);
/// Body of the report on the recorded calculations; the entry row is left out.
page_lines composting_report(const text_grid& calculations);

}  // namespace kel
