#include "reports/report_page.h"

#include <iterator>
#include <utility>

#include "core/whole_file.h"

namespace kel {

namespace {

// The stray closing tags are part of the frame's stated form. The character set line is an addition: without
// it a browser guesses, and a field named in Gaelic comes out garbled; behind it stands what a print says of
// the page's origin. The blank of the last cell and the title's vertical alignment are for the viewer, which
// otherwise draws the rule into the empty cell and the title at its top.
// clang-format off
constexpr std::string_view page_start[] = {
    "<HTML>",
    "<meta http-equiv=Content-Type content=text/html;charset=utf-8>",
};
constexpr std::string_view page_head[] = {
    "<style>",
    "<!--",
    ".turnred a:hover{",
    "color:red",
    "}",
    "a:hover{",
    "color:green",
    "}",
    "-->",
    "</style>",
    "</HEAD>",
    "<body>",
    "</table>",
    "</center></div>",
    "<div align=center><center>",
    "<table border=0 width=100%>",
    "<tr>",
    "<td width=20% align=center><img src=tolmlogoscot.jpg width=68 height=68 alt=KEL></td>",
    "<td width=80% align=center valign=middle><font size=6>Guidelines For Farmers In Scottish KELs</font></td>",
    "</tr>",
    "<tr>",
    "<td width=100% colspan=2 align=center>&nbsp;</td>",
    "</tr>",
    "</table>",
    "</center></div>",
    "<hr>",
};
// clang-format on

constexpr std::string_view credit =
    "Generated from Guidelines For Farmers in Scottish KELs Computer Module, developed for ORDANE by ";

page_lines page_foot(date today, std::string_view developer) {
    const std::string day = std::string(weekday_name(today)) + " " + long_date_text(today);
    return {
        "<hr>",
        "<font size=1>" + std::string(credit) + std::string(developer) + "</font><br>",
        "<font size=1>" + day + "</font>",
        "</body>",
        "</html>",
    };
}

std::string between(std::string_view opening, std::string_view text, std::string_view closing) {
    return std::string(opening) + std::string(text) + std::string(closing);
}

std::string cell_tag(const report_cell& cell, std::string_view align) {
    std::string tag = "<td";
    if (!cell.width.empty()) tag += " width=" + cell.width;
    if (!align.empty()) tag += between(" align=", align, "");
    if (cell.columns > 1) tag += " colspan=" + std::to_string(cell.columns);
    if (cell.rows > 1) tag += " rowspan=" + std::to_string(cell.rows);
    return tag;
}

// A cell with nothing in it would be drawn without its border.
std::string_view cell_text(const report_cell& cell) {
    if (cell.text.empty()) return "&nbsp;";
    return cell.text;
}

std::string heading_cell(const report_cell& cell) {
    // The text's colour goes with the ground's: in a dark theme it would be light on light.
    return cell_tag(cell, cell.align.empty() ? "center" : cell.align) + " bgcolor=#e0e0e0>" +
           between("<font color=black><strong>", cell_text(cell), "</strong></font></td>");
}

std::string value_cell(const report_cell& cell) {
    const std::string tag = cell_tag(cell, cell.align);
    if (cell.shade.empty()) return tag + between(">", cell_text(cell), "</td>");
    return tag + " bgcolor=" + cell.shade + between("><font color=black>", cell_text(cell), "</font></td>");
}

std::vector<report_cell> cells_of(const std::vector<std::string>& texts) {
    std::vector<report_cell> cells;
    cells.reserve(texts.size());
    for (const std::string& text : texts)
        cells.push_back({.text = text});
    return cells;
}

}  // namespace

page_lines report_heading(std::string_view text) {
    return {between("<p align=center><font size=5><strong>", text, "</strong></font></p>")};
}

page_lines report_section(std::string_view text) {
    return {between("<p style=margin-top:24px><font size=4><strong>", text, "</strong></font></p>")};
}

page_lines report_paragraph(std::string_view text) {
    return {between("<p>", text, "</p>")};
}

page_lines report_list(const std::vector<std::string>& points) {
    if (points.empty()) return {};
    page_lines lines{"<ul>"};
    for (const std::string& point : points)
        lines.push_back(between("<li>", point, "</li>"));
    lines.emplace_back("</ul>");
    return lines;
}

void report_table::add_heading_row(const std::vector<report_cell>& cells) {
    headings_.emplace_back("<tr>");
    for (const report_cell& cell : cells)
        headings_.push_back(heading_cell(cell));
    headings_.emplace_back("</tr>");
}

void report_table::add_heading_row(const std::vector<std::string>& texts) {
    add_heading_row(cells_of(texts));
}

void report_table::add_row(const std::vector<report_cell>& cells) {
    rows_.emplace_back("<tr>");
    for (const report_cell& cell : cells)
        rows_.push_back(value_cell(cell));
    rows_.emplace_back("</tr>");
}

void report_table::add_row(const std::vector<std::string>& texts) {
    add_row(cells_of(texts));
}

void report_table::add_grid(const text_grid& grid, int rows, const std::vector<int>& columns) {
    for (int row = 0; row < rows; ++row) {
        std::vector<report_cell> cells;
        cells.reserve(columns.size());
        for (const int column : columns)
            cells.push_back({.text = grid.cell(row, column)});
        add_row(cells);
    }
}

page_lines report_table::lines() const& {
    return report_table(*this).lines();
}

page_lines report_table::lines() && {
    page_lines table{"<table border=1 width=100% cellpadding=3 cellspacing=0>"};
    if (!headings_.empty()) {
        table.emplace_back("<thead>");
        append(table, std::move(headings_));
        table.emplace_back("</thead>");
    }
    append(table, std::move(rows_));
    table.emplace_back("</table>");
    return table;
}

page_lines label_table(const std::vector<std::pair<std::string, std::string>>& rows) {
    report_table table;
    for (const auto& [label, text] : rows)
        table.add_row(std::vector<std::string>{label, text});
    return table.lines();
}

void append(page_lines& body, page_lines piece) {
    body.insert(body.end(), std::move_iterator(piece.begin()), std::move_iterator(piece.end()));
}

page_lines framed_page(page_lines body, date today, std::string_view developer,
                       const std::optional<page_origin>& origin) {
    page_lines page(std::begin(page_start), std::end(page_start));
    if (origin) page.push_back(origin_line(*origin));
    page.insert(page.end(), std::begin(page_head), std::end(page_head));
    append(page, std::move(body));
    append(page, page_foot(today, developer));
    return page;
}

void write_page(const std::string& path, const page_lines& page) {
    std::string text;
    for (const std::string& line : page)
        text.append(line).append("\n");
    write_whole_file(path, text, "the report");
}

}  // namespace kel
