// A text grid as a table model: shows it, never edits or judges it. Calculated cells are grey, carried
// columns are for the file and hidden by the view.
#pragma once

#include <QAbstractTableModel>

#include "core/text_grid.h"

namespace kel {

class grid_model : public QAbstractTableModel {
    Q_OBJECT

  public:
    explicit grid_model(const text_grid& grid, QObject* parent = nullptr);

    const text_grid& grid() const { return *grid_; }
    /// Shows the grid as it now is; the current cell stays where it was.
    void refresh();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    const text_grid* grid_;
    int shown_rows_;
};

}  // namespace kel
