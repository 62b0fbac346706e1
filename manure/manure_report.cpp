#include "manure/manure_report.h"

#include "manure/manure_grids.h"
#include "manure/manure_messages.h"

namespace kel {

namespace {

namespace col = manure_column;
using texts = std::vector<std::string>;

constexpr std::string_view note =
    "Note: The above represent the extent to which N available (for the planned and next crop) from manures "
    "and slurries may make it possible to reduce applications of inorganic fertilizers. Care must however be "
    "taken to ensure that fertilizer applications (organic or inorganic) do not exceed the crop requirement.";

page_lines summary_table(const text_grid& results) {
    report_table table;
    table.add_heading_row(
        texts{"Field Name", "N Available To Planned Crop (kg/ha)", "N Available To Next Crop (kg/ha)"});
    table.add_grid(
        results, results.row_count(),
        {manure_result_column::field, manure_result_column::current_crop, manure_result_column::next_crop});
    return table.lines();
}

page_lines applications_table(const text_grid& applications) {
    report_table table;
    table.add_heading_row(texts{"Field Name", "Soil", "Incorporation Time", "Manure Type", "Month Applied",
                                "Area Spread (ha)", "Amount Applied (t or cubic m)",
                                "Application Rate (t or cubic m/ha)"});
    table.add_grid(applications, applications.data_row_count(),
                   {col::field, col::soil, col::incorporation, col::manure, col::date, col::area, col::amount,
                    col::rate});
    return table.lines();
}

page_lines limit_warnings(const std::vector<std::string>& fields) {
    page_lines lines = report_section("Limit Warnings");
    append(lines, report_paragraph(manure_messages::over_limit));
    for (auto field = fields.rbegin(); field != fields.rend(); ++field)
        append(lines, report_paragraph(*field));
    append(lines, report_paragraph(manure_messages::examine_applications));
    return lines;
}

page_lines closed_period_warnings(const std::vector<std::string>& sentences) {
    page_lines lines = report_section("Closed Period Warnings");
    for (const std::string& sentence : sentences)
        append(lines, report_paragraph(sentence + "."));
    return lines;
}

}  // namespace

page_lines manure_report(const text_grid& results, const text_grid& applications,
                         const std::vector<std::string>& over_limit,
                         const std::vector<std::string>& closed_periods) {
    page_lines body = report_heading(
        "How Much Will Organic Manure Applications Reduce The Requirement For Inorganic Fertiliser "
        "Nitrogen?");
    append(body, report_section("Summary"));
    append(body, summary_table(results));
    append(body, report_paragraph(note));
    append(body, report_section("Manure Applications"));
    append(body, applications_table(applications));
    if (!over_limit.empty()) append(body, limit_warnings(over_limit));
    if (!closed_periods.empty()) append(body, closed_period_warnings(closed_periods));
    return body;
}

}  // namespace kel
