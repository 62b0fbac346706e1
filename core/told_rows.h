// What an explanation tells of a table: a cell that went in, and the rows of a sum, one line each with one
// for those that would make it too long to read.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/explanation.h"
#include "core/text_grid.h"

namespace kel {

/// The cell as an input, "Area In Grass: 4.2 ha (Step 1)", named by its column's heading, whose last bracket
/// is the unit. Without `why` nothing is told.
const std::string& told_cell(const text_grid& grid, int row, int column, std::string_view entered_in,
                             explanation* why);
/// The same as a number.
float told_number(const text_grid& grid, int row, int column, std::string_view entered_in, explanation* why);

struct told_row {
    std::string text;  // "Low Moss: 4.2 ha"
    double amount;     // what it adds to the sum
};

/// Adds a step for each row. Of more than 10 the first 9 are told, then how many `things` follow and what
/// they add up to, in `unit`.
void tell_rows(explanation& why, const std::vector<told_row>& rows, std::string_view things,
               std::string_view unit);

}  // namespace kel
