#include "core/carried_columns.h"

#include <map>
#include <string>
#include <vector>

#include "core/assessment_files.h"

namespace kel {

namespace {

constexpr int key = 0;

void take_row(const recordset& source, const std::vector<int>& stored, text_grid& grid, int row) {
    for (int c = 0; c < grid.column_count(); ++c)
        if (grid.columns()[static_cast<std::size_t>(c)].kind == column_kind::carried)
            grid.set_cell(row, c, "");
    std::vector<int> carried = stored;
    for (int c = 0; c < grid.column_count(); ++c)
        if (grid.columns()[static_cast<std::size_t>(c)].kind != column_kind::carried)
            carried[static_cast<std::size_t>(c)] = -1;
    load_grid_row(source, carried, grid, row);
}

}  // namespace

void take_carried(const database& db, std::string_view table, text_grid& grid, int rows) {
    std::multimap<std::string, int> rows_of_key;
    for (int row = 0; row < rows; ++row)
        rows_of_key.emplace(grid.cell(row, key), row);
    recordset file = db.open(table);
    const std::vector<int> stored = stored_columns(file, grid);
    for (; !file.eof(); file.move_next()) {
        const auto found = rows_of_key.lower_bound(file.text(stored[key]));
        if (found == rows_of_key.end() || found->first != file.text(stored[key])) continue;
        take_row(file, stored, grid, found->second);
        rows_of_key.erase(found);
    }
}

}  // namespace kel
