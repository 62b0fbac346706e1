#include "grass/grass_report.h"

#include "grass/grass_grids.h"
#include "grass/grass_messages.h"
#include "reports/manures_section.h"
#include "rules/crop_catalogue.h"

namespace kel {

namespace {

namespace col = site_column;
namespace result = grass_result_column;

std::string previous_crop(const text_grid& site, int row) {
    return std::string(ley_long_name(site.cell(row, col::previous))) +
           " (Residue Group = " + site.cell(row, col::residue_group) + ")";
}

page_lines site_table(const text_grid& site, int row) {
    return label_table({{"Soil Type:", site.cell(row, col::soil)},
                        {"Planned use:", site.cell(row, col::use)},
                        {"Previous crop:", previous_crop(site, row)},
                        {"Clover content:", site.cell(row, col::clover)},
                        {"No. of cuts:", site.cell(row, col::cuts)},
                        {"No. of applications to aftermath/grazing:", site.cell(row, col::applications)}});
}

page_lines result_table(const text_grid& results, int row) {
    report_table table;
    table.add_heading_row(std::vector<std::string>{"Crop Requirement (kg/ha)",
                                                   "Management adjustment (kg/ha)",
                                                   "Supplied by Manures (kg/ha)", "To be applied (kg/ha)"});
    table.add_row(std::vector<std::string>{
        results.cell(row, result::requirement), results.cell(row, result::adjustment),
        results.cell(row, result::manures), results.cell(row, result::to_be_applied)});
    return table.lines();
}

page_lines silage_table(const text_grid& silage) {
    report_table table;
    std::vector<std::string> headings;
    std::vector<int> columns;
    for (int c = 0; c < silage.column_count(); ++c) {
        headings.emplace_back(silage.columns()[static_cast<std::size_t>(c)].heading);
        columns.push_back(c);
    }
    table.add_heading_row(headings);
    table.add_grid(silage, silage.row_count(), columns);
    return table.lines();
}

}  // namespace

page_lines grass_report(const text_grid& site, const text_grid& results, const manure_history& manures,
                        const text_grid& silage, const std::string& figures_source) {
    page_lines body = report_heading("Nitrogen Requirements for Established Grass");
    for (int row = 0; row < results.row_count(); ++row) {
        const std::string& field = results.cell(row, result::field);
        append(body, report_section(field));
        append(body, site_table(site, row));
        const auto applied = manures.of(field);
        append(body, manures_section(applied, "Date Of Application"));
        if (!applied.empty()) append(body, {"<br>"});  // or the two tables stand as one
        append(body, result_table(results, row));
    }
    if (results.row_count() > 0 && !figures_source.empty()) append(body, report_paragraph(figures_source));
    if (silage.row_count() > 0) {
        append(body, report_section(grass_messages::silage_section));
        append(body, silage_table(silage));
    }
    return body;
}

}  // namespace kel
