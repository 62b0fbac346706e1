// Holds the explanations of a table against its cells.
#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "core/explanation.h"
#include "core/text_grid.h"

namespace kel::test {

/// Compares the calculated cells of the rows `first` to `end` - 1 with their explanations, and gives how many
/// there were.
template <class Module>
int compared_cells(const Module& module, const text_grid& grid, int first, int end) {
    int compared = 0;
    for (int row = first; row < end; ++row)
        for (int column = 0; column < grid.column_count(); ++column) {
            if (grid.columns()[static_cast<std::size_t>(column)].kind != column_kind::calculated) continue;
            const std::optional<explanation> why =
                module.why(grid, static_cast<std::size_t>(row), static_cast<std::size_t>(column));
            EXPECT_TRUE(why) << row << ", " << column;
            if (!why) continue;
            EXPECT_EQ(why->result(), grid.cell(row, column)) << why->subject() << " in row " << row;
            EXPECT_LE(why->lines().size(), 16U) << why->subject();
            ++compared;
        }
    return compared;
}

/// The account as a person reads it, a line each, the closing line last.
inline std::vector<std::string> told(const std::optional<explanation>& why) {
    if (!why) return {};
    std::vector<std::string> lines{why->subject()};
    for (const explanation_line& line : why->lines())
        lines.push_back(line.text);
    lines.push_back(why->last_line());
    return lines;
}

/// The same as one text.
inline std::string written(const explanation& why) {
    std::string text;
    for (const std::string& line : told(why))
        text += (text.empty() ? "" : "\n") + line;
    return text;
}

}  // namespace kel::test
