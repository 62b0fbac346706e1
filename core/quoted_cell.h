// A cell of a table that is written as separated text, for a spreadsheet.
#pragma once

#include <string>
#include <string_view>

namespace kel {

/// In quotation marks, those of its own doubled: it may hold the separator and line breaks.
std::string quoted_cell(std::string_view text);

/// One line of cells, ended as spreadsheets expect it.
template <class Cells>
std::string separated_line(const Cells& cells, char separator) {
    std::string line;
    for (const auto& cell : cells) {
        if (!line.empty()) line += separator;
        line += quoted_cell(cell);
    }
    return line + "\r\n";
}

}  // namespace kel
