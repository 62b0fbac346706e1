// The working copy of a table. A screen shows it, a module edits it, the store loads and saves it by the
// columns' stored names. Rows are counted from 0 without the heading; in the modules the last row is the
// empty entry row, which is neither saved nor counted.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kel {

enum class column_kind {
    entered,     // a click opens the column's entry box
    calculated,  // grey; only the module writes it
    carried,     // kept for the file, not shown
};

struct grid_column {
    std::string_view heading;
    std::string_view stored;  // the column in the file; empty: not stored
    column_kind kind;
    int width;             // in characters of the body font
    bool is_date = false;  // day-first text here, a typed date in the file
};

class text_grid {
  public:
    /// `columns` must outlive the grid: it is one of the constant column tables of the modules.
    explicit text_grid(std::span<const grid_column> columns) : columns_(columns) {}

    std::span<const grid_column> columns() const { return columns_; }
    int column_count() const { return static_cast<int>(columns_.size()); }
    int row_count() const { return static_cast<int>(rows_.size()); }

    const std::string& cell(int row, int column) const;
    /// The cells of a row, until it is written to.
    std::span<const std::string> row(int row) const;
    void set_cell(int row, int column, std::string text);
    /// Rows as they stand, shared until one of those who hold them is written to.
    using shared_rows = std::vector<std::shared_ptr<std::vector<std::string>>>;
    shared_rows rows_from(int first, int count) const;
    /// Puts rows into the place of `count` of them and returns those.
    shared_rows replace_rows(int first, int count, shared_rows rows);
    /// Numbers of cells, by the leading-number rule.
    float number(int row, int column) const;

    void clear() { rows_.clear(); }
    /// Adds an empty row at the bottom and returns its number.
    int add_row();
    /// Throws std::out_of_range for a row that is not there, as every access to a cell does.
    void erase_row(int row);
    /// Cuts or extends to `rows` rows; new ones are empty.
    void set_row_count(int rows);
    /// Adds an entry row if `row` is the last one, as after every entry.
    void keep_entry_row(int row);
    /// The rows that hold data in a grid with an entry row: all but the last.
    int data_row_count() const { return row_count() == 0 ? 0 : row_count() - 1; }

    /// First row whose cell equals `text`, or -1.
    int find(int column, std::string_view text) const;
    /// Whether another row than this one has the text in the column.
    bool in_other_row(int row, int column, std::string_view text) const;
    /// Single precision sum of a column over the first `rows` rows.
    float sum(int column, int rows) const;

    bool operator==(const text_grid& other) const;

  private:
    using cells = std::vector<std::string>;

    std::shared_ptr<cells> empty_row() const { return std::make_shared<cells>(columns_.size()); }

    std::span<const grid_column> columns_;
    // Shared with the copies of the grid until one of them is written to: a Save works on a copy, and mostly
    // changes few of its rows.
    shared_rows rows_;
};

}  // namespace kel
