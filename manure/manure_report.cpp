#include "manure/manure_report.h"

#include "manure/manure_grids.h"
#include "manure/manure_messages.h"

namespace kel {

namespace {

constexpr std::string_view note =
    "Note: The above represent the extent to which N available (for the planned and next crop) from manures "
    "and slurries may make it possible to reduce applications of inorganic fertilizers. Care must however be "
    "taken to ensure that fertilizer applications (organic or inorganic) do not exceed the crop requirement.";

report_cell heading(std::string text) {
    return {.text = std::move(text)};
}

void add_rows(report_table& table, const text_grid& grid, int rows, int columns) {
    for (int row = 0; row < rows; ++row) {
        std::vector<std::string> texts;
        texts.reserve(static_cast<std::size_t>(columns));
        for (int column = 0; column < columns; ++column)
            texts.push_back(grid.cell(row, column));
        table.add_row(texts);
    }
}

page_lines summary_table(const text_grid& results) {
    report_table table;
    table.add_heading_row({heading("Field Name"), heading("N Available To Planned Crop (kg/ha)"),
                           heading("N Available To Next Crop (kg/ha)")});
    add_rows(table, results, results.row_count(), manure_result_column::warnings);
    return table.lines();
}

page_lines applications_table(const text_grid& applications) {
    report_table table;
    table.add_heading_row({heading("Field Name"), heading("Soil"), heading("Incorporation Time"),
                           heading("Manure Type"), heading("Month Applied"), heading("Area Spread (ha)"),
                           heading("Amount Applied (t or cubic m)"),
                           heading("Application Rate (t or cubic m/ha)")});
    add_rows(table, applications, applications.data_row_count(), manure_column::rate + 1);
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
