#include "reports/manures_section.h"

namespace kel {

page_lines manures_section(const std::vector<std::array<std::string, 4>>& applications,
                           std::string_view date_heading) {
    if (applications.empty())
        return report_paragraph("No Manures/slurries have been applied in the last two years");
    report_table table;
    table.add_heading_row(std::vector<std::string>{"Manure/Slurry Type", "Incorporation Time",
                                                   std::string(date_heading),
                                                   "Application Rate (tonnes/ha)"});
    for (const auto& row : applications)
        table.add_row(std::vector<std::string>(row.begin(), row.end()));
    page_lines lines = report_paragraph("Manures/slurries known to have been applied in the last two years:");
    append(lines, table.lines());
    return lines;
}

}  // namespace kel
