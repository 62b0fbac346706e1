// The report on the nitrogen requirement of grassland: the recommendation of each field, and what the
// stocking route came to.
#pragma once

#include <string>
#include <string_view>

#include "core/text_grid.h"
#include "reports/report_page.h"
#include "rules/manure_history.h"

namespace kel {

inline constexpr std::string_view grass_report_file = "KEL_report_grassrec.htm";

/// Body of the report: the rows of `results`, which go with those of the site table, each with the manures of
/// its field, and the rows of the silage table; either may have none. `figures_source` tells where the
/// figures come from.
page_lines grass_report(const text_grid& site, const text_grid& results, const manure_history& manures,
                        const text_grid& silage, const std::string& figures_source);

}  // namespace kel
