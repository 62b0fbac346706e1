#include "core/carried_columns.h"

#include <map>
#include <string>
#include <vector>

#include "core/assessment_files.h"

namespace kel {

namespace {

constexpr int key = 0;

const grid_column& column_of(const text_grid& grid, int column) {
    return grid.columns()[static_cast<std::size_t>(column)];
}

// The columns of the grid that the file is read for: that of the key, and behind it the carried ones.
std::vector<int> columns_to_take(const text_grid& grid) {
    std::vector<int> taken{key};
    for (int c = 0; c < grid.column_count(); ++c)
        if (column_of(grid, c).kind == column_kind::carried && !column_of(grid, c).stored.empty())
            taken.push_back(c);
    return taken;
}

std::vector<std::string_view> stored_names(const text_grid& grid, const std::vector<int>& taken) {
    std::vector<std::string_view> names;
    names.reserve(taken.size());
    for (const int c : taken)
        names.push_back(column_of(grid, c).stored);
    return names;
}

void take_row(const recordset& file, const std::vector<int>& taken, text_grid& grid, int row) {
    for (std::size_t i = 1; i < taken.size(); ++i) {
        const std::string_view stored = file.view(static_cast<int>(i));
        if (stored == grid.row(row)[static_cast<std::size_t>(taken[i])]) continue;
        std::string text = shown_text(column_of(grid, taken[i]), stored);
        if (text != grid.cell(row, taken[i])) grid.set_cell(row, taken[i], std::move(text));
    }
}

}  // namespace

void take_carried(const database& db, std::string_view table, text_grid& grid, int rows) {
    const std::vector<int> taken = columns_to_take(grid);
    recordset file = db.open(table, stored_names(grid, taken));
    int row = 0;  // mostly the rows stand here as they stand there
    for (; !file.eof() && row < rows && file.view(key) == grid.cell(row, key); file.move_next())
        take_row(file, taken, grid, row++);
    std::multimap<std::string, int, std::less<>> rows_of_key;
    for (; row < rows; ++row)
        rows_of_key.emplace(grid.cell(row, key), row);
    for (; !file.eof() && !rows_of_key.empty(); file.move_next()) {
        const auto found = rows_of_key.lower_bound(file.view(key));
        if (found == rows_of_key.end() || found->first != file.view(key)) continue;
        take_row(file, taken, grid, found->second);
        rows_of_key.erase(found);
    }
}

}  // namespace kel
