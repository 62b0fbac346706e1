#include "core/told_rows.h"

#include "core/numbers.h"

namespace kel {

namespace {

constexpr std::size_t most_rows = 10;

std::string told_rest(const std::vector<told_row>& rows, std::size_t first, std::string_view things,
                      std::string_view unit) {
    double amount = 0;
    for (std::size_t i = first; i < rows.size(); ++i)
        amount += rows[i].amount;
    return "And " + std::to_string(rows.size() - first) + " more " + std::string(things) + ": together " +
           default_text(static_cast<float>(amount)) + ' ' + std::string(unit);
}

}  // namespace

const std::string& told_cell(const text_grid& grid, int row, int column, std::string_view entered_in,
                             explanation* why) {
    const std::string& text = grid.cell(row, column);
    if (!why) return text;
    std::string_view heading = grid.columns()[static_cast<std::size_t>(column)].heading;
    std::string_view unit;
    if (const auto bracket = heading.rfind(" ("); heading.ends_with(')') && bracket != heading.npos) {
        unit = heading.substr(bracket + 2, heading.size() - bracket - 3);
        heading = heading.substr(0, bracket);
        if (unit == "o") unit = "degrees";  // as the headings write the sign of it
    }
    why->input(heading, text, unit, entered_in);
    return text;
}

float told_number(const text_grid& grid, int row, int column, std::string_view entered_in, explanation* why) {
    return leading_single(told_cell(grid, row, column, entered_in, why));
}

void tell_rows(explanation& why, const std::vector<told_row>& rows, std::string_view things,
               std::string_view unit) {
    const std::size_t told = rows.size() > most_rows ? most_rows - 1 : rows.size();
    for (std::size_t i = 0; i < told; ++i)
        why.step(rows[i].text);
    if (told < rows.size()) why.step(told_rest(rows, told, things, unit));
}

}  // namespace kel
