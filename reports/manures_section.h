// The manures of a field's last two years, as the reports on crops and on grassland have them.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "reports/report_page.h"

namespace kel {

/// A row is manure type, incorporation time, date and rate; no rows: the sentence that says so. The reports
/// write the heading of the dates differently.
page_lines manures_section(const std::vector<std::array<std::string, 4>>& applications,
                           std::string_view date_heading);

}  // namespace kel
