#include "profile/profile_report.h"

namespace kel {

namespace {

page_lines fields_table(const text_grid& fields) {
    report_table table;
    std::vector<report_cell> headings;
    for (int column = 0; column <= field_column::soil; ++column)
        headings.push_back({std::string(fields.columns()[static_cast<std::size_t>(column)].heading)});
    table.add_heading_row(headings);
    table.add_grid(fields, fields.row_count(),
                   {field_column::name, field_column::area, field_column::kel_area, field_column::soil});
    return table.lines();
}

}  // namespace

page_lines profile_report(const farm_details& farm, const text_grid& fields) {
    page_lines body = report_heading("Farm Profile");
    append(body, report_paragraph("Farm name: " + farm.name));
    append(body, report_paragraph("Location: " + farm.location));
    append(body, report_paragraph("Total area of farm: " + farm.total_area + " ha"));
    append(body, report_paragraph("KEL area of farm: " + farm.kel_area + " ha"));
    append(body, report_paragraph("Number of fields: " + farm.field_count));
    append(body, fields_table(fields));
    return body;
}

}  // namespace kel
