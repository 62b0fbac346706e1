// Cells as spreadsheets put them on the clipboard: tabs between them, a line for each row. A cell that holds
// a tab, a line break or begins with a quotation mark stands in quotation marks, its own ones doubled.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kel {

using cell_block = std::vector<std::vector<std::string>>;

/// Lines end in carriage return and line feed, or in either alone; the last one need not. Rows may differ in
/// length.
cell_block parse_block(std::string_view text);
std::size_t cells_of(const cell_block& block);
std::string block_text(const cell_block& block);

}  // namespace kel
