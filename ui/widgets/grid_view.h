// The grid of every module: arrow keys and Tab move, Enter, F2 or a click chooses a cell, a character typed
// on a white cell begins an entry, Delete clears, ranges can be selected, copied and pasted as tab-separated
// text. The first column stays in view while the others are scrolled. While an entry box is open the grid
// keeps its selection and takes no input. A click on a heading sorts what is shown. Rows here and in the
// signals are those of the table behind the grid, unless they are called shown rows; the model's are shown.
#pragma once

#include <QTableView>

#include <optional>
#include <vector>

#include "core/entry.h"
#include "core/pasted_block.h"
#include "ui/widgets/grid_model.h"
#include "ui/widgets/grid_widths.h"

namespace kel {

class find_strip;
class first_column;

/// Where the current cell goes after an entry.
enum class cell_step { none, down, right, left };

/// A frame round the current cell, in a colour that stands out from the selected cells and from the others,
/// whether the table has the focus or not.
void paint_current_cell(QTableView& table);

/// Whether the key types a character, rather than to command something.
bool types_character(const QKeyEvent& key);

class grid_view : public QTableView {
    Q_OBJECT

  public:
    grid_view(const text_grid& grid, const QString& name, QWidget* parent = nullptr);

    int current_row() const { return stored_row(currentIndex().row()); }
    int current_column() const { return currentIndex().column(); }
    int stored_row(int shown) const { return model_->order().stored(shown); }
    int shown_row(int stored) const { return model_->order().shown(stored); }
    /// The rows of the selection from top to bottom, at least the current one.
    std::vector<int> selected_rows() const;

    /// The rectangle of the selection, in shown rows; nothing without a current cell.
    struct cell_range {
        grid_cell first;
        grid_cell last;
    };
    std::optional<cell_range> selected_cells() const;
    /// The texts of its shown cells.
    cell_block texts_of(const cell_range& range) const;
    void copy_selection() const;
    /// The white cells of the selection that hold something.
    std::vector<grid_cell> selected_white_cells() const;

    /// Sorts what is shown by the column, the other way round, or not, in turn; with a box open nothing.
    void sort_on(int column);
    void show_as_stored();
    /// The headings sort nothing: rows have their meaning by their place.
    void keep_stored_order();

    /// Makes the column as narrow as its heading in one line and this text allow.
    void narrow_column(int column, const QString& widest) { widths_.narrow(column, widest); }
    /// Makes the column as wide as its longest text needs, at least as wide as it was laid out.
    void fit_column(int column) { widths_.fit(column); }
    /// Whether a cell of the column shows the text in full.
    bool fits(int column, const QString& text) const { return widths_.fits(column, text); }
    /// Wraps the texts of this column, which takes the width that the others leave; each row becomes as high
    /// as its text needs.
    void wrap_column(int column) { widths_.wrap(column); }
    grid_widths& widths() { return widths_; }
    const grid_widths& widths() const { return widths_; }
    /// Opens the strip in which a row is looked for by part of a name.
    void find();

    /// Shows the grid as it now is and puts the current cell back within it.
    void refresh();
    void choose_cell(int row, int column);
    /// Not behind the first column, where that is laid over the others.
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    void set_locked(bool locked);
    bool locked() const { return locked_; }
    /// Makes typing and Delete mean something in its white cells.
    void take_entries() { takes_entries_ = true; }
    bool is_white(int column) const;
    const text_grid& shown() const { return model_->grid(); }
    bool shows(const text_grid& grid) const { return &model_->grid() == &grid; }
    /// Makes the cell the current one, and the one from which Shift and the arrows select.
    void go_to(int row, int column);
    /// Right and left pass over hidden columns and go on in the next or the previous row.
    void step(cell_step step);

  signals:
    /// A cell was clicked, or Enter or F2 pressed on it.
    void cell_chosen(int row, int column);
    /// This key was typed on a white cell.
    void cell_typed(int row, int column, const QKeyEvent& key);
    /// Delete was pressed: the white cells of the selection are to be cleared.
    void clear_wanted();
    void paste_wanted();
    /// The rows of the selection are to take what its first one holds.
    void fill_wanted();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    bool leaves_by_tab(const QKeyEvent* event) const;
    void keep_first_column();
    bool begins_entry(const QKeyEvent& event) const;
    bool take_command(const QKeyEvent& event);
    void go_to_shown(int row, int column);
    void make_sortable();
    grid_model* model_;
    grid_widths widths_;
    first_column* first_ = nullptr;  // made at the first scroll sideways
    find_strip* find_ = nullptr;     // made as it is first asked for
    bool locked_ = false;
    bool takes_entries_ = false;
    bool sortable_ = true;
};

}  // namespace kel
