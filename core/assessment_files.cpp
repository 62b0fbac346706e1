#include "core/assessment_files.h"

#include <chrono>

namespace kel {

// A text that is no date goes through as it stands: the module that reads it says what is wrong.
std::string stored_text(const grid_column& column, const std::string& shown) {
    const auto d = column.is_date ? parse_date(shown) : std::nullopt;
    return d ? iso_date_text(*d) : shown;
}

std::string shown_text(const grid_column& column, std::string_view stored) {
    const auto d = column.is_date ? parse_date(stored) : std::nullopt;
    return d ? short_date_text(*d) : std::string(stored);
}

std::vector<int> stored_columns(const recordset& table, const text_grid& grid) {
    std::vector<int> stored;
    for (const grid_column& column : grid.columns())
        stored.push_back(column.stored.empty() ? -1 : table.column(column.stored));
    return stored;
}

void save_grid(const database& db, std::string_view table, const text_grid& grid, int rows) {
    db.delete_rows(table);
    recordset target = db.open(table);
    const std::vector<int> stored = stored_columns(target, grid);
    for (int row = 0; row < rows; ++row) {
        const std::span<const std::string> cells = grid.row(row);
        target.add_new();
        for (std::size_t c = 0; c < cells.size(); ++c) {
            const grid_column& column = grid.columns()[c];
            if (stored[c] < 0 || cells[c].empty()) continue;
            if (column.is_date)
                target.set(stored[c], stored_text(column, cells[c]));
            else
                target.set_kept(stored[c], cells[c]);
        }
        target.update();
    }
}

void load_grid_row(const recordset& source, text_grid& grid, int row) {
    load_grid_row(source, stored_columns(source, grid), grid, row);
}

void load_grid_row(const recordset& source, const std::vector<int>& stored, text_grid& grid, int row) {
    for (int c = 0; c < grid.column_count(); ++c) {
        const int from = stored[static_cast<std::size_t>(c)];
        if (from < 0) continue;
        const std::string_view text = source.view(from);
        if (text.empty()) continue;
        grid.set_cell(row, c, shown_text(grid.columns()[static_cast<std::size_t>(c)], text));
    }
}

std::string read_farm_name(const std::string& path) {
    const recordset profile = database(path).open("FarmProfile");
    return profile.eof() ? std::string{} : profile.text("Name");
}

std::optional<date> read_assessment_year(const std::string& path) {
    const recordset type = database(path).open("Type");
    return type.eof() ? std::nullopt : type.date_value("Year");
}

bool is_year_before(std::optional<date> older, std::optional<date> newer) {
    if (!older || !newer) return false;
    const auto days = (std::chrono::sys_days(*newer) - std::chrono::sys_days(*older)).count();
    return days == 365 || days == 366;
}

void write_assessment_year(const database& db, date year_start) {
    recordset type = db.open("Type");
    if (type.eof())
        throw file_error(db.path(), "its table [Type] has lost its row, so the year cannot be kept.");
    type.edit();
    type.set("Year", year_start);
    type.update();
}

int check_assessment_file(const std::string& path) {
    try {
        database(path).open("Type");
        return 1;
    } catch (const file_error& failure) {
        return failure.in_use() ? 1 : 0;
    } catch (const std::exception&) {
        return 0;
    }
}

}  // namespace kel
