#include "composting/composting_report.h"

#include "composting/composting_grid.h"
#include "composting/composting_messages.h"

namespace kel {

namespace {

namespace col = composting_column;

page_lines summary(const text_grid& calculations) {
    report_table table;
    table.add_heading_row(std::vector<std::string>{
        "Field Name", "Soil Mineral N At Harvest (kg/ha)", "Crop Residue Type", "Applied Waste",
        "N Content Of Waste (%)", "Recommended Rate Of Application (t/ha)", "Extra Release Of N (kg N/ha)"});
    table.add_grid(
        calculations, calculations.data_row_count(),
        {col::field, col::soil_n, col::residue, col::waste, col::waste_n, col::rate, col::release});
    return table.lines();
}

void append_field(page_lines& body, const text_grid& calculations, int row) {
    const auto cell = [&](int column) { return calculations.cell(row, column); };
    const auto add = [&](const std::string& line) { append(body, report_paragraph(line)); };
    append(body, report_section("Field: " + cell(col::field)));
    add("Residue type: " + cell(col::residue));
    add("Residue soil mineral N at harvest: " + cell(col::soil_n));
    add("Type of applied waste: " + cell(col::waste));
    add("Nitrogen content: " + cell(col::waste_n) + "%");
    add("Recommended rate of application: " + cell(col::rate) + "t/ha");
    add("Expected extra release of N: " + cell(col::release) + "kg N/ha");
    const std::string_view note = composting_messages::note(cell(col::release));
    if (!note.empty()) add("Note: " + std::string(note));
}

}  // namespace

page_lines composting_result_report(const composting_shown& shown) {
    return label_table({
        {"Crop Residue:", shown.residue},
        {"Residual soil mineral N at harvest (kg/ha):", shown.soil_n},
        {"Waste product:", shown.waste},
        {"N content of the waste product:", shown.waste_n + "%"},
        {"Quantity of waste product to be applied:", shown.rate},
        {"Expected extra release of N:", shown.release},
        {"Notes:", shown.note},
    });
}

page_lines composting_report(const text_grid& calculations) {
    page_lines body =
        report_heading("In Field Composting Of Vegetable Crop Residues To Minimise Nitrate Leaching");
    append(body, report_section("Summary"));
    append(body, summary(calculations));
    append(body, report_section("Field Reports"));
    for (int row = 0; row < calculations.data_row_count(); ++row)
        append_field(body, calculations, row);
    return body;
}

}  // namespace kel
