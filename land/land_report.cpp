#include "land/land_report.h"

#include <string>
#include <utility>
#include <vector>

#include "land/land_grids.h"
#include "land/land_messages.h"

namespace kel {

namespace {

report_cell heading(std::string text, int columns = 1, int rows = 1) {
    return {.text = std::move(text), .columns = columns, .rows = rows, .width = {}, .align = {}};
}

report_cell over_two_rows(std::string text) {
    return heading(std::move(text), 1, 2);
}

page_lines summary(const spreading_result& result) {
    page_lines lines = label_table(
        {{"Total N production as organic manures:", result.production},
         {"Grassland limit:", result.grassland_limit},
         {"Non-Grassland limit:", result.other_land_limit},
         {"Overall limit on spreading organic manures (incl. grazing deposition):", result.farm_limit}});
    append(lines, report_paragraph(land_messages::comment(result)));
    if (const std::string note = land_messages::note(result); !note.empty())
        append(lines, report_paragraph(note));
    return lines;
}

page_lines stock_table(const text_grid& animals) {
    report_table table;
    table.add_heading_row(std::vector<std::string>{"Stock Unit", "Number Of Stock Units",
                                                   "Total N Excreted By One Stock Unit (kg/yr)",
                                                   "Total N Excreted By All These Animals (kg/yr)"});
    table.add_grid(animals, animals.data_row_count(),
                   {stock_column::stock, stock_column::number, stock_column::unit_n, stock_column::total_n});
    return table.lines();
}

page_lines field_table(const text_grid& land) {
    report_table table;
    table.add_heading_row(
        {over_two_rows("Field Name"), over_two_rows("Area In Grass (ha)"),
         over_two_rows("Area Not In Grass (ha)"), heading("Areas To Be Deducted", 3),
         over_two_rows("Available Area (ha)"),
         over_two_rows("Field Spreading Limit (Excl. grazing deposition)<br>(kg organic N)")});
    table.add_heading_row(
        {heading("Buffer Areas (ha)"), heading("Slope Areas (ha)"), heading("Other Areas (ha)")});
    table.add_grid(
        land, land.data_row_count(),
        {land_column::field, land_column::grass, land_column::not_in_grass, land_column::buffer,
         land_column::slope, land_column::other_deduction, land_column::available, land_column::field_limit});
    return table.lines();
}

}  // namespace

page_lines land_report(const spreading_result& result, const text_grid& land, const text_grid& animals) {
    page_lines body = report_heading("Is Enough Land Available For Spreading All Organic Manures?");
    append(body, report_section("Summary"));
    append(body, summary(result));
    append(body, report_section(land_messages::stock_tab));
    append(body, stock_table(animals));
    append(body, report_section(land_messages::land_tab));
    append(body, field_table(land));
    return body;
}

}  // namespace kel
