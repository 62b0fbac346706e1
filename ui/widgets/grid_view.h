// The grid of every module: arrow keys and Tab move, Enter, F2 or a click chooses a cell, ranges can be
// selected and copied as tab-separated text. The first column stays in view while the others are scrolled.
// While an entry box is open the grid keeps its selection and takes no input.
#pragma once

#include <QTableView>

#include "ui/widgets/grid_model.h"

namespace kel {

class first_column;

class grid_view : public QTableView {
    Q_OBJECT

  public:
    grid_view(const text_grid& grid, const QString& name, QWidget* parent = nullptr);

    struct row_range {
        int first;
        int last;
    };
    int current_row() const { return currentIndex().row(); }
    int current_column() const { return currentIndex().column(); }
    /// The rows of the selection, at least the current one.
    row_range selected_rows() const;

    /// Makes the column as narrow as its heading in one line and this text allow.
    void narrow_column(int column, const QString& widest);
    /// Makes the column as wide as its longest text needs, at least as wide as it was laid out.
    void fit_column(int column);
    /// Whether a cell of the column shows the text in full.
    bool fits(int column, const QString& text) const;
    /// Wraps the texts of this column, which takes the width that the others leave; each row becomes as high
    /// as its text needs.
    void wrap_column(int column);

    /// Shows the grid as it now is and puts the current cell back within it.
    void refresh();
    void choose_cell(int row, int column);
    /// Not behind the first column, where that is laid over the others.
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    void set_locked(bool locked);
    bool locked() const { return locked_; }

  signals:
    /// A cell was clicked, or Enter or F2 pressed on it.
    void cell_chosen(int row, int column);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void lay_out_columns();
    void lay_out_rows();
    void copy_selection() const;
    bool leaves_by_tab(const QKeyEvent* event) const;
    int laid_out_width(int column) const;
    void keep_first_column();
    grid_model* model_;
    first_column* first_ = nullptr;  // made at the first scroll sideways
    bool locked_ = false;
    int wrapped_column_ = -1;  // none
};

}  // namespace kel
