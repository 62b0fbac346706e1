// The order in which a person has a table shown. Only what is shown is sorted: modules, files and reports
// keep the rows as they are stored, and whoever shows the table asks here which stored row stands where. Rows
// stay in their places as they are changed, until the person sorts again; the empty entry row stays last.
#pragma once

#include <vector>

#include "core/text_grid.h"

namespace kel {

/// The rows of the table by the cells of a column: numbers by value before dates by day before texts, texts
/// without regard to case and with the numbers in them by value, equal ones as they are stored, empty ones
/// last either way. An empty last row stays last.
std::vector<int> sorted_rows(const text_grid& grid, int column, bool descending);

class shown_rows {
  public:
    /// As they are stored.
    explicit shown_rows(const text_grid& grid) : grid_(&grid) {}

    void sort(int column, bool descending);
    void show_as_stored();
    bool sorted() const { return !stored_.empty(); }
    /// Call it when the table may have other rows: those that were there before keep their places, new ones
    /// stand behind them.
    void follow();

    // A row without a counterpart, as one added since the last call of follow, stands for itself.
    int stored(int shown) const { return mapped(stored_, shown); }
    int shown(int stored) const { return mapped(shown_, stored); }

  private:
    static int mapped(const std::vector<int>& rows, int row) {
        return row >= 0 && row < static_cast<int>(rows.size()) ? rows[static_cast<std::size_t>(row)] : row;
    }
    void take(std::vector<int> stored);
    std::vector<int> earlier_rows(const text_grid::shared_rows& now) const;

    const text_grid* grid_;
    std::vector<int> stored_;       // by shown row; none: as stored
    std::vector<int> shown_;        // by stored row
    bool entry_row_last_ = false;   // it is held there
    text_grid::shared_rows known_;  // the rows as they stood, by which they are known again
};

}  // namespace kel
