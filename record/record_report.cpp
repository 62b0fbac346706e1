#include "record/record_report.h"

#include "record/record_grid.h"
#include "record/record_messages.h"

namespace kel {

namespace {

// It keeps the border of an empty cell.
constexpr std::string_view blank = "&nbsp;";

std::string filled(const std::string& text) {
    return text + std::string(blank);
}

page_lines record_table(const text_grid& record) {
    report_table table;
    std::vector<report_cell> headings;
    for (const char* text :
         {"Crop", "Date planted", "Date of fertiliser/ manure application", "Type of inorganic N",
          "Amount of inorganic N (kg/ha)", "Total N applied (kg)", "Manure type", "N content (kg/t or m3)",
          "Quantity applied (t or m3/ha)", "Total N applied (kg)", "Comments"})
        headings.push_back({.text = text});
    table.add_heading_row(headings);
    for (int row = 0; row < record.row_count(); ++row) {
        std::vector<report_cell> cells;
        cells.reserve(static_cast<std::size_t>(record.column_count()));
        for (int column = 0; column < record.column_count(); ++column)
            cells.push_back({.text = filled(record.cell(row, column))});
        table.add_row(cells);
    }
    return std::move(table).lines();
}

// The image tag stays open: the blank that fills the cell follows its path. Viewers cut the path there.
page_lines analysis_table(const text_grid& warnings) {
    const auto columns = [](std::string first, std::string second) {
        return std::vector<report_cell>{{.text = std::move(first), .width = "10%"},
                                        {.text = std::move(second), .width = "90%"}};
    };
    report_table table;
    table.add_heading_row(columns("", std::string(record_messages::warnings_heading)));
    for (int row = 0; row < warnings.row_count(); ++row)
        table.add_row(columns(filled("<img src=" + warnings.cell(row, record_warning_column::icon_path)),
                              filled(warnings.cell(row, record_warning_column::text))));
    return table.lines();
}

}  // namespace

page_lines record_section(const std::string& field, const text_grid& record, const text_grid& warnings) {
    page_lines lines = report_heading(std::string(record_messages::heading) + field);
    append(lines, record_table(record));
    if (warnings.row_count() == 0) return lines;
    append(lines, report_section("Analysis:"));
    append(lines, analysis_table(warnings));
    return lines;
}

page_lines section_rule() {
    return {"<hr>"};
}

}  // namespace kel
