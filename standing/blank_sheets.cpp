#include "standing/blank_sheets.h"

#include <algorithm>
#include <array>

#include "standing/season_messages.h"
#include "standing/season_months.h"

namespace kel {

namespace {

namespace text = season_messages;

constexpr std::string_view closed_shade = "#b4b4b4";
constexpr std::string_view partly_shade = "#e0e0e0";
// A blank of this size makes a line 8 mm high, whatever the font.
constexpr std::string_view high_blank = "<span style=font-size:20pt>&nbsp;</span>";

struct blank_column {
    std::string_view heading;
    std::string_view width;
};
constexpr std::size_t blank_columns = 5;

// clang-format off
struct sheet_kind {
    blank_sheet kind;
    std::string_view file;
    std::string_view title;
    std::string_view closed_to;
    std::array<blank_column, blank_columns> columns;
};
constexpr std::array<sheet_kind, 2> sheets{{
    {blank_sheet::manure,     "KEL_sheet_manure.htm",     text::manure_sheet_title,     "slurries and manures",
     {{{"Date", "8%"}, {"Type", "11%"}, {"Amount (t or cubic m)", "9%"}, {"Area spread (ha)", "7%"}, {"Incorporation (hours)", "11%"}}}},
    {blank_sheet::fertiliser, "KEL_sheet_fertiliser.htm", text::fertiliser_sheet_title, "inorganic nitrogen",
     {{{"Date", "8%"}, {"Type", "11%"}, {"Amount (kg/ha)", "7%"}, {"N content (%)", "7%"}, {"Comments", "13%"}}}},
}};
// clang-format on

const sheet_kind& sheet_of(blank_sheet kind) {
    return *std::ranges::find(sheets, kind, &sheet_kind::kind);
}

report_cell month_cell(const std::vector<season_span>& closed, const month_piece& month, int lines) {
    const month_closing how = closing_of(closed, month);
    report_cell cell{.text = how.days, .rows = lines, .align = "center"};
    if (how.how != closing::open) cell.shade = how.how == closing::wholly ? closed_shade : partly_shade;
    return cell;
}

std::vector<report_cell> heading_cells(const sheet_kind& sheet, const std::vector<month_piece>& months) {
    std::vector<report_cell> cells{{.text = "Field", .width = "10%"}, {.text = "Area (ha)", .width = "5%"}};
    for (const month_piece& month : months)
        cells.push_back({.text = std::string(month.letters.substr(0, 1)), .width = "3%"});
    for (const blank_column& column : sheet.columns)
        cells.push_back({.text = std::string(column.heading), .width = std::string(column.width)});
    return cells;
}

void add_field(report_table& table, const field_season& field, blank_sheet kind,
               const std::vector<month_piece>& months, int lines) {
    const bool manure = kind == blank_sheet::manure;
    const std::string& missing = manure ? field.manure_missing : field.fertiliser_missing;
    const std::vector<season_span>& closed = manure ? field.manure_closed : field.fertiliser_closed;
    std::vector<report_cell> cells{
        {.text = "<strong>" + escaped(field.name) + "</strong>", .rows = lines},
        {.text = escaped(field.size_ha), .rows = lines, .align = "right"},
    };
    if (!missing.empty())
        cells.push_back(
            {.text = escaped(missing), .columns = static_cast<int>(months.size()), .rows = lines});
    else
        for (const month_piece& month : months)
            cells.push_back(month_cell(closed, month, lines));
    for (int row = 0; row < lines; ++row) {
        cells.push_back({.text = std::string(high_blank)});
        cells.resize(cells.size() + blank_columns - 1);
        table.add_row(cells);
        cells.clear();
    }
}

}  // namespace

std::string_view file_of(blank_sheet kind) {
    return sheet_of(kind).file;
}

page_lines blank_sheet_page(const season_calendar& season, blank_sheet kind, int lines) {
    const sheet_kind& sheet = sheet_of(kind);
    page_lines body = report_heading(sheet.title);
    if (!season.missing.empty()) {
        append(body, report_paragraph(escaped(season.missing)));
        return body;
    }
    std::string note = escaped(season.farm) + ", KEL year " + long_date_text(season.first) + " to " +
                       long_date_text(season.last) + ". Grey months are closed to " +
                       std::string(sheet.closed_to) + "; light grey: on the days named.";
    if (kind == blank_sheet::manure) note.append(" ").append(text::exempt_open);
    append(body, report_paragraph(note));
    const std::vector<month_piece> months = months_of(season.first, season.last);
    report_table table;
    table.add_heading_row(heading_cells(sheet, months));
    for (const field_season& field : season.fields)
        add_field(table, field, kind, months, std::clamp(lines, 1, most_lines_of_a_field));
    append(body, std::move(table).lines());
    return body;
}

}  // namespace kel
