// A block of cells put into a table cell by cell, each through the module's own click and entry, as if a
// person had typed them row by row from the left. A box whose parts stand in several columns of the row is
// filled from all of them at once; the answers that stand in one column together are parted there by
// answer_divider. A question that follows an answer is answered as it opens where its own text is refused, so
// that no entry stays half done. Grey cells and empty ones of the block are passed over; a first row of the
// table's own headings says which columns the others belong to. The first column says what a row is for:
// a line whose first cell is another's, or is refused, is left out.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/entry.h"
#include "core/paste_prompts.h"
#include "core/pasted_block.h"

namespace kel {

using cell_entry = std::function<outcome(grid_cell, const box_entry&)>;

/// How a table takes entries.
struct entry_target {
    const text_grid& grid;
    std::function<opening(int row, int column)> click;
    /// What the Enter of a box does; null for a box that takes none.
    std::function<const cell_entry*(box_id)> enter;
    /// The year of dates without one, where their part shows none; null or 0: such dates are refused.
    std::function<int()> year{};
    /// The row that a person sees below this one, where that is not the next of the table.
    std::function<int(int row)> row_below{};
};

/// Between two answers that stand in one cell.
inline constexpr std::string_view answer_divider = " / ";

/// What was said of a cell.
struct pasted_note {
    int line;        // of the block, from 1
    grid_cell cell;  // the row -1: the line found no row
    std::string text;
    bool entered;  // it was entered all the same
    bool operator==(const pasted_note&) const;
};

/// Enters the block with its first cell at this one. `person` is the one whom the module speaks to; what it
/// says is added to the notes, in order. Throws what an entry throws: what was entered until then stays, and
/// the last note says where it stopped.
void enter_block(const entry_target& target, paste_prompts& person, const cell_block& block, grid_cell at,
                 std::vector<pasted_note>& notes);

/// What a pasted text is to a part of a box; `why` is set and nothing returned if it cannot be that. Dates
/// without a year are of that of the date that the part shows, or else of `year`.
std::optional<part_entry> pasted_entry(const entry_part& part, const std::string& text, int year,
                                       std::string& why);

}  // namespace kel
