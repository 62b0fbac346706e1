#include "record/record_grid.h"

#include <array>

#include "core/prompts.h"
#include "core/quoted_cell.h"
#include "record/record_messages.h"

namespace kel {

namespace {

constexpr auto calculated = column_kind::calculated;
constexpr auto carried = column_kind::carried;

// The record; inorganic nitrogen fills columns 3 to 5 and 10, a manure columns 6 to 9.
// clang-format off
constexpr std::array<grid_column, 11> record_columns{{
    // heading                                stored  kind    width
    {"Crop",                                  "", calculated, 18},
    {"Date planted",                          "", calculated, 11},
    {"Date fertiliser/ manure applied",       "", calculated, 13},
    {"Type of inorganic N",                   "", calculated, 18},
    {"Amount inorganic N applied kg/ha",      "", calculated, 13},
    {"Total N applied",                       "", calculated, 10},
    {"Manure type",                           "", calculated, 34},
    {"Analysis of N content (kg/t or m3)",    "", calculated, 13},
    {"Quantity applied (t or m3/ha)",         "", calculated, 12},
    {"Total N applied",                       "", calculated, 10},
    {"Additional comments",                   "", calculated, 19},
}};

constexpr std::array<grid_column, 3> warnings_columns{{
    // heading                            stored  kind    width
    {"",                                  "", calculated,   6},
    {record_messages::warnings_heading,   "", calculated, 120},
    {"",                                  "", carried,     10},
}};
// clang-format on

// Headings and rows, one to a line.
std::string table_text(const text_grid& grid, char separator) {
    std::vector<std::string_view> headings;
    headings.reserve(grid.columns().size());
    for (const grid_column& column : grid.columns())
        headings.push_back(column.heading);
    std::string table = separated_line(headings, separator);
    for (int row = 0; row < grid.row_count(); ++row)
        table += separated_line(grid.row(row), separator);
    return table;
}

std::string warnings_text(const text_grid& warnings) {
    std::string text = "Warnings:" + std::string(line_break);
    for (int row = 0; row < warnings.row_count(); ++row)
        text.append(warnings.cell(row, record_warning_column::text)).append(line_break);
    return text;
}

}  // namespace

text_grid empty_record_grid() {
    return text_grid(record_columns);
}

text_grid empty_warnings_grid() {
    return text_grid(warnings_columns);
}

text_grid record_grid(const std::vector<record_row>& rows) {
    text_grid grid = empty_record_grid();
    for (const record_row& r : rows) {
        const int row = grid.add_row();
        int column = 0;
        const std::string day = short_date_text(r.day);
        for (const std::string* text :
             {&r.crop, &r.date_planted, &day, &r.inorganic_type, &r.amount, &r.inorganic_n, &r.manure,
              &r.n_content, &r.rate, &r.manure_n, &r.comments})
            grid.set_cell(row, column++, *text);
    }
    return grid;
}

text_grid warnings_grid(const std::vector<record_warning>& warnings) {
    text_grid grid = empty_warnings_grid();
    for (const record_warning& warning : warnings) {
        const int row = grid.add_row();
        grid.set_cell(row, record_warning_column::icon, std::string(icon_word(warning.kind)));
        grid.set_cell(row, record_warning_column::text, warning.text);
        grid.set_cell(row, record_warning_column::icon_path, std::string(icon_path(warning.kind)));
    }
    return grid;
}

std::string copied_text(const std::string& field, const text_grid& record, const text_grid& warnings) {
    const std::string ending(line_break);
    std::string text = std::string(record_messages::heading) + '\t' + quoted_cell(field) + ending + ending;
    text += table_text(record, '\t');
    if (warnings.row_count() > 0) text += ending + warnings_text(warnings);
    return text;
}

std::string csv_text(const std::string& field, const text_grid& record, const text_grid& warnings) {
    std::string text = std::string(record_messages::heading) + field + std::string(line_break);
    text += table_text(record, ',');
    if (warnings.row_count() > 0) text += warnings_text(warnings);
    return text;
}

}  // namespace kel
