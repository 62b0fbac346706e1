#include "inorganic/inorganic_report.h"

#include <vector>

#include "inorganic/inorganic_grid.h"
#include "inorganic/inorganic_messages.h"

namespace kel {

namespace {

std::string_view heading_width(int column) {
    if (column == inorganic_column::field) return "15%";
    return column == inorganic_column::comments ? "25%" : "12%";
}

std::vector<report_cell> headings(const text_grid& applications) {
    std::vector<report_cell> cells;
    cells.reserve(applications.columns().size());
    for (int c = 0; c < applications.column_count(); ++c)
        cells.push_back({.text = std::string(applications.columns()[static_cast<std::size_t>(c)].heading),
                         .width = std::string(heading_width(c))});
    return cells;
}

std::vector<std::string> values(const text_grid& applications, int row) {
    std::vector<std::string> texts;
    texts.reserve(applications.columns().size());
    for (int c = 0; c < applications.column_count(); ++c)
        texts.push_back(applications.cell(row, c) + "&nbsp;");
    return texts;
}

}  // namespace

page_lines inorganic_report(const text_grid& applications) {
    report_table table;
    table.add_heading_row(headings(applications));
    for (int row = 0; row < applications.data_row_count(); ++row)
        table.add_row(values(applications, row));
    page_lines body = report_heading(inorganic_messages::title);
    append(body, table.lines());
    return body;
}

}  // namespace kel
