#include "reports/contents_page.h"

#include <algorithm>

namespace kel {

namespace {

constexpr std::string_view note =
    "Note: The reports below are those that were last generated using this software. They may not "
    "necessarily "
    "relate to the same farm, unless they have all been generated using the same file recently.";

constexpr std::string_view crops_file = "KEL_report_croprec.htm";

std::string link_to(std::string_view file_name) {
    return "<a href=" + std::string(file_name) + ">Click here to view report</a>";
}

std::vector<report_cell> contents_row(const report_file& report, bool exists) {
    // The 30% of the crops row is a known slip of this page and part of its stated form.
    const std::string text_width = exists && report.file_name == crops_file ? "30%" : "70%";
    return {
        {.text = std::string(report.row_text), .width = text_width},
        {.text = exists ? link_to(report.file_name) : "No report generated", .width = "30%"},
    };
}

bool is_optional(const report_file& report) {
    return std::any_of(optional_reports.begin(), optional_reports.end(),
                       [&](const auto& page) { return page.report.file_name == report.file_name; });
}

}  // namespace

std::vector<report_file> all_reports() {
    std::vector<report_file> all(report_files.begin(), report_files.end());
    std::size_t leading = 0;
    for (const auto& [report, first] : optional_reports)
        all.insert(first ? all.begin() + static_cast<std::ptrdiff_t>(leading++) : all.end(), report);
    return all;
}

page_lines contents_body(const std::vector<std::string>& files) {
    report_table table;
    for (const report_file& report : all_reports()) {
        const bool exists = std::find(files.begin(), files.end(), report.file_name) != files.end();
        if (exists || !is_optional(report)) table.add_row(contents_row(report, exists));
    }
    page_lines body = report_heading("Reports Generated");
    append(body, report_paragraph(note));
    append(body, report_paragraph("<strong><big>Contents</big></strong>"));
    append(body, table.lines());
    return body;
}

}  // namespace kel
