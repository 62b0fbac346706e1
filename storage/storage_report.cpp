#include "storage/storage_report.h"

#include <array>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/numbers.h"
#include "rules/rainfall.h"
#include "storage/production_grid.h"
#include "storage/slurry_production.h"
#include "storage/stores_page.h"

namespace kel {

namespace {

using texts = std::vector<std::string>;

constexpr std::array<std::string_view, months_in_year> month_letters{"J", "F", "M", "A", "M", "J",
                                                                     "J", "A", "S", "O", "N", "D"};

std::string figure(double value) {
    return default_text(value);
}

std::string figure(float value) {
    return default_text(value);
}

report_cell cell(std::string text, int columns = 1, int rows = 1) {
    return {.text = std::move(text), .columns = columns, .rows = rows};
}

void add_month_letters(std::vector<report_cell>& cells) {
    for (const std::string_view letter : month_letters)
        cells.push_back(cell(std::string(letter)));
}

// A row that begins with a text over `columns` columns and goes on with the months.
std::vector<report_cell> month_row(std::string label, int columns, const texts& months) {
    std::vector<report_cell> cells{cell(std::move(label), columns)};
    for (const std::string& text : months)
        cells.push_back(cell(text));
    return cells;
}

texts figures(const monthly_values& values) {
    texts shown;
    for (const float value : values)
        shown.push_back(figure(value));
    return shown;
}

texts whole_numbers(const monthly_values& values) {
    texts shown;
    for (const float value : values)
        shown.push_back(format_fixed(value, 0));
    return shown;
}

page_lines summary(const storage_balance& balance) {
    report_table table;
    std::vector<report_cell> headings{cell("")};
    add_month_letters(headings);
    table.add_heading_row(headings);
    table.add_row(month_row("Inputs (cubic m)", 1, whole_numbers(balance.inputs)));
    table.add_row(month_row("Outputs (cubic m)", 1, whole_numbers(balance.outputs)));
    table.add_row(month_row("% Full At Month End", 1, whole_numbers(balance.percent)));
    page_lines lines = table.lines();
    append(lines, report_paragraph("<img src=" + std::string(storage_chart_file) + " width=720 height=340>"));
    if (!balance.warning.empty()) append(lines, report_paragraph(balance.warning));
    return lines;
}

page_lines store_list(const text_grid& stores) {
    using namespace store_column;
    constexpr std::array<int, 9> order{name, shape, length, width, depth, diameter, angle, area, percent};
    report_table table;
    table.add_heading_row({cell("Store Name"), cell("Shape"), cell("Length<br>(m)"), cell("Width<br>(m)"),
                           cell("Depth<br>(m)"), cell("Diameter<br>(m)"),
                           cell("Bank<br>Angle<br>(<sup>o</sup>)"), cell("Drainage<br>Area<br>(sq. m)"),
                           cell("% Full<br>At<br>Start")});
    for (int row = 0; row < stores.data_row_count(); ++row) {
        texts shown;
        for (const int column : order)
            shown.push_back(stores.cell(row, column).empty() ? "-" : stores.cell(row, column));
        table.add_row(shown);
    }
    return table.lines();
}

texts stock_line(const text_grid& production, int row) {
    using namespace production_column;
    texts shown;
    for (const int column : {stock, number, percent, unit_volume, total_volume})
        shown.push_back(production.cell(row, column));
    for (int month = 0; month < months_in_year; ++month)
        shown.push_back(production.cell(row, january + month) == on_slurry_system ? "Y" : "N");
    return shown;
}

page_lines production_table(const text_grid& production) {
    report_table table;
    table.add_heading_row({cell("Stock Type", 1, 2), cell("Number", 1, 2),
                           cell("Percentage Collected As Slurry", 1, 2),
                           cell("Slurry Per Month (cubic m)", 2), cell("On Slurry System?", months_in_year)});
    std::vector<report_cell> second{cell("Per Animal"), cell("Total")};
    add_month_letters(second);
    table.add_heading_row(second);
    for (int row = first_stock_row; row < empty_stock_row(production); ++row)
        table.add_row(stock_line(production, row));
    table.add_row(month_row("Total Production (cubic m)", 5, figures(stock_totals(production))));
    return table.lines();
}

page_lines rain_table(const text_grid& stores, const monthly_values& rain_mm) {
    report_table table;
    table.add_heading_row({cell("Store Name", 1, 2), cell("Drainage Area (sq. m)", 1, 2),
                           cell("Rainfall Input (cubic m)", months_in_year)});
    std::vector<report_cell> letters;
    add_month_letters(letters);
    table.add_heading_row(letters);
    table.add_row(month_row("Mean Rainfall (mm)", 2, figures(rain_mm)));
    for (int row = 0; row < stores.data_row_count(); ++row) {
        texts shown{stores.cell(row, store_column::name), stores.cell(row, store_column::area)};
        for (std::string& text : figures(store_rain(stores, row, rain_mm)))
            shown.push_back(std::move(text));
        table.add_row(shown);
    }
    const monthly_values total = compute_store_totals(stores, rain_mm).monthly_rain_input;
    table.add_row(month_row("Total Rainfall Input (cubic m)", 2, figures(total)));
    return table.lines();
}

page_lines water_table(std::string_view caption, std::string_view number_heading, const std::string& number,
                       double cubic_m_per_month) {
    report_table table;
    table.add_heading_row(
        {cell(std::string(number_heading)), cell("Dirty Water Production (cubic m per month)")});
    table.add_row(texts{number, figure(cubic_m_per_month)});
    page_lines lines = report_paragraph(caption);
    append(lines, table.lines());
    return lines;
}

page_lines dirty_water(const dirty_water_answers& answers) {
    page_lines lines;
    if (holds_number(answers.actual))
        append(lines,
               report_paragraph("Actual Dirty Water Production: " + answers.actual + " cubic m per month"));
    if (!holds_number(answers.cows)) return lines;
    append(lines, water_table("Dairy Cows", "Average Number Of Dairy Cows", answers.cows,
                              reported_cow_water(leading_number(answers.cows))));
    append(lines, water_table("Pig Pen Washing", "Pig Pens Washed Per Month", answers.pig_pens,
                              reported_pen_water(leading_number(answers.pig_pens))));
    return lines;
}

texts spreading_line(const land_plan& plan, int row) {
    texts shown;
    for (const int column : {plan_column::field, plan_column::soil, plan_column::crop})
        shown.push_back(plan.land.cell(row, column));
    for (int month = 0; month < months_in_year; ++month)
        shown.push_back(plan.spreading.cell(row, spreading_column::january + month));
    return shown;
}

page_lines spreading_table(const land_plan& plan) {
    report_table table;
    table.add_heading_row({cell("Field Name", 1, 2), cell("Soil Type", 1, 2), cell("Crop Type", 1, 2),
                           cell("Slurry Spreading (cubic m/ha)", months_in_year)});
    std::vector<report_cell> letters;
    add_month_letters(letters);
    table.add_heading_row(letters);
    for (int row = 0; row < plan.fields(); ++row)
        table.add_row(spreading_line(plan, row));
    table.add_row(month_row("Total Slurry Spread (cubic m)", 3, figures(monthly_spreading(plan))));
    return table.lines();
}

page_lines subheading(std::string_view text) {
    return report_paragraph("<strong>" + std::string(text) + "</strong>");
}

page_lines stores_sections(const storage_report_data& data) {
    page_lines body = report_section("Summary");
    append(body, summary(*data.balance));
    append(body, report_section("Stores"));
    append(body, store_list(data.stores));
    append(body, report_section("Inputs To Slurry Stores"));
    append(body, subheading("Monthly Slurry Production:"));
    append(body, production_table(data.production));
    append(body, subheading("Rainfall Input:"));
    append(body, rain_table(data.stores, data.rain_mm));
    append(body, subheading("Dirty Water Production:"));
    append(body, dirty_water(data.dirty_water));
    append(body, report_section("Outputs From Slurry Stores"));
    return body;
}

}  // namespace

page_lines storage_report(const storage_report_data& data) {
    page_lines body =
        report_heading("Is There Enough Storage For Slurry and Closed Periods for Spreading Slurry/Manure");
    if (data.balance) append(body, stores_sections(data));
    append(body, subheading("Monthly Slurry Spreading & Closed Periods:"));
    append(body, spreading_table(data.plan));
    return body;
}

}  // namespace kel
