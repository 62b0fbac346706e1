// A text grid as a table model: shows it, never edits or judges it. Calculated cells are grey, carried
// columns are for the file and hidden by the view. Its rows are the shown ones, which need not be in the
// order of the grid's.
#pragma once

#include <QAbstractTableModel>

#include "core/shown_rows.h"
#include "core/text_grid.h"

namespace kel {

class grid_model : public QAbstractTableModel {
    Q_OBJECT

  public:
    explicit grid_model(const text_grid& grid, QObject* parent = nullptr);

    const text_grid& grid() const { return *grid_; }
    /// Shows the grid as it now is, and announces the rows that have changed; the current cell stays where it
    /// was.
    void refresh();

    const shown_rows& order() const { return order_; }
    /// Shows the rows by the cells of the column: smallest first, at the next call largest first, then again
    /// as they are stored.
    void sort_on(int column);
    void show_as_stored();
    /// By the same column as before, where the cells have changed.
    void sort_again();
    /// The column by which the rows are shown; -1: as stored.
    int sorted_column() const { return sorted_column_; }
    bool descending() const { return descending_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    template <class Change>
    void change_order(Change change);
    text_grid::shared_rows rows_in_order() const;
    void announce_changes();

    const text_grid* grid_;
    shown_rows order_;
    int shown_rows_;                // how many
    text_grid::shared_rows shown_;  // as they were announced last
    int sorted_column_ = -1;
    bool descending_ = false;
};

}  // namespace kel
