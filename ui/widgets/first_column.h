// The first column of a grid, laid over the grid while that is scrolled sideways, so that a row keeps its
// name in view. It shows the grid's own rows and selection; a click on it chooses the grid's cell.
#pragma once

#include <QTableView>

namespace kel {

class grid_view;

class first_column : public QTableView {
    Q_OBJECT

  public:
    explicit first_column(grid_view& grid);

    /// Lays it over the column as that now stands.
    void place();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    grid_view& grid_;
};

}  // namespace kel
