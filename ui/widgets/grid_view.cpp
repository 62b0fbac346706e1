#include "ui/widgets/grid_view.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "ui/widgets/find_strip.h"
#include "ui/widgets/first_column.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace {

// Widths are laid out for a view that has its model, and rows of one height.
QTableView& with_model(QTableView& view, QAbstractItemModel* model) {
    view.setModel(model);
    view.verticalHeader()->hide();
    view.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    return view;
}

}  // namespace

void paint_current_cell(QTableView& table) {
    const QRect cell = table.visualRect(table.currentIndex());
    if (cell.isEmpty()) return;
    constexpr int frame_px = 2;
    QPainter painter(table.viewport());
    const QColor ink = table.palette().color(QPalette::Text);
    painter.setPen(QPen(ink, frame_px, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(cell.adjusted(frame_px / 2, frame_px / 2, -frame_px / 2, -frame_px / 2));
}

bool types_character(const QKeyEvent& key) {
    constexpr auto command = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if ((key.modifiers() & command) || key.text().isEmpty()) return false;
    return key.text().front().isPrint() && !key.text().front().isSpace();
}

grid_view::grid_view(const text_grid& grid, const QString& name, QWidget* parent)
    : QTableView(parent), model_(new grid_model(grid, this)), widths_(with_model(*this, model_), *model_) {
    setObjectName(name);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ContiguousSelection);
    setHorizontalScrollMode(ScrollPerPixel);
    setWordWrap(false);
    make_sortable();
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] { keep_first_column(); });
    connect(&widths_, &grid_widths::zoomed, this, [this] { keep_first_column(); });
}

void grid_view::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    widths_.fill_room();
    keep_first_column();
}

void grid_view::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    paint_current_cell(*this);
}

void grid_view::find() {
    if (locked_) return;
    if (!find_) find_ = new find_strip(*this);
    find_->open();
}

// Over half of a narrow grid it would hide more than it tells.
void grid_view::keep_first_column() {
    const bool wanted = horizontalScrollBar()->value() > 0 && columnWidth(0) * 2 < viewport()->width();
    if (!first_ && !wanted) return;
    if (!first_) first_ = new first_column(*this);
    first_->place();
    first_->setVisible(wanted);
}

void grid_view::scrollTo(const QModelIndex& index, ScrollHint hint) {
    QTableView::scrollTo(index, hint);
    if (index.column() == 0 || !first_ || !first_->isVisible()) return;
    const int hidden = columnWidth(0) - visualRect(index).left();
    if (hidden > 0) horizontalScrollBar()->setValue(horizontalScrollBar()->value() - hidden);
}

std::vector<int> grid_view::selected_rows() const {
    int first = currentIndex().row();
    int last = first;
    for (const QItemSelectionRange& part : selectionModel()->selection()) {
        first = std::min(first, part.top());
        last = std::max(last, part.bottom());
    }
    std::vector<int> rows;
    rows.reserve(static_cast<std::size_t>(last - first + 1));
    for (int row = first; row <= last; ++row)
        rows.push_back(stored_row(row));
    return rows;
}

std::vector<grid_cell> grid_view::selected_white_cells() const {
    std::vector<grid_cell> cells;
    for (const QItemSelectionRange& part : selectionModel()->selection())
        for (int shown = part.top(); shown <= part.bottom(); ++shown)
            for (int column = part.left(); column <= part.right(); ++column) {
                const int row = stored_row(shown);
                if (!isColumnHidden(column) && is_white(column) && !model_->grid().cell(row, column).empty())
                    cells.push_back({row, column});
            }
    return cells;
}

// The toolkit selects the column at a press on its heading; here that would lose the current cell.
void grid_view::make_sortable() {
    QHeaderView* header = horizontalHeader();
    disconnect(header, SIGNAL(sectionPressed(int)), this, SLOT(selectColumn(int)));
    disconnect(header, SIGNAL(sectionEntered(int)), this, nullptr);
    connect(header, &QHeaderView::sectionClicked, this, &grid_view::sort_on);
}

void grid_view::sort_on(int column) {
    if (locked_ || !sortable_ || column < 0) return;
    const int row = current_row();
    const int current = current_column();
    model_->sort_on(column);
    horizontalHeader()->setSortIndicatorShown(model_->sorted_column() >= 0);
    horizontalHeader()->setSortIndicator(model_->sorted_column(),
                                         model_->descending() ? Qt::DescendingOrder : Qt::AscendingOrder);
    widths_.lay_out_rows();
    if (row >= 0) go_to(row, current);
}

void grid_view::show_as_stored() {
    model_->show_as_stored();
    horizontalHeader()->setSortIndicatorShown(false);
    widths_.lay_out_rows();
}

void grid_view::keep_stored_order() {
    show_as_stored();
    sortable_ = false;
    horizontalHeader()->setSectionsClickable(false);
}

// What takes no entries is worked out anew, and stands as its heading says.
void grid_view::refresh() {
    const int row = currentIndex().row();
    const int column = std::max(0, current_column());
    model_->refresh();
    if (!takes_entries_) model_->sort_again();
    horizontalHeader()->setSortIndicatorShown(model_->sorted_column() >= 0);
    widths_.lay_out_rows();
    if (row >= 0 && model_->rowCount() > 0 && !currentIndex().isValid())
        setCurrentIndex(model_->index(std::min(row, model_->rowCount() - 1), column));
}

void grid_view::choose_cell(int row, int column) {
    setCurrentIndex(model_->index(shown_row(row), column));
    emit cell_chosen(row, column);
}

bool grid_view::is_white(int column) const {
    const auto columns = model_->grid().columns();
    return columns[static_cast<std::size_t>(column)].kind == column_kind::entered;
}

void grid_view::go_to(int row, int column) {
    go_to_shown(shown_row(row), column);
}

// The view selects from the cell to which an arrow key has come last, so an arrow key does the last step.
void grid_view::go_to_shown(int row, int column) {
    const int before = row > 0 ? row - 1 : row + 1;
    if (before < model_->rowCount()) {
        setCurrentIndex(model_->index(before, column));
        QKeyEvent arrow(QEvent::KeyPress, before < row ? Qt::Key_Down : Qt::Key_Up, Qt::NoModifier);
        QTableView::keyPressEvent(&arrow);
    }
    setCurrentIndex(model_->index(row, column));
}

void grid_view::step(cell_step step) {
    if (step == cell_step::none || !currentIndex().isValid()) return;
    const int on = step == cell_step::left ? -1 : 1;
    const int columns = model_->columnCount();
    int row = currentIndex().row();
    int column = current_column();
    if (step == cell_step::down) {
        ++row;
    } else {
        do {
            column += on;
            if (column < 0 || column == columns) {
                row += on;
                column = on > 0 ? 0 : columns - 1;
            }
        } while (isColumnHidden(column));
    }
    if (row >= 0 && row < model_->rowCount()) go_to_shown(row, column);
}

void grid_view::set_locked(bool locked) {
    locked_ = locked;
    setFocusPolicy(locked ? Qt::NoFocus : Qt::StrongFocus);
}

// Tab walks the cells; behind the last and before the first it goes on to the next control.
bool grid_view::leaves_by_tab(const QKeyEvent* event) const {
    if (model_->rowCount() == 0 || !currentIndex().isValid()) return true;
    const auto last_shown = [this] {
        int c = model_->columnCount() - 1;
        while (c > 0 && isColumnHidden(c))
            --c;
        return c;
    };
    if (event->key() == Qt::Key_Backtab) return currentIndex().row() == 0 && current_column() == 0;
    return currentIndex().row() == model_->rowCount() - 1 && current_column() == last_shown();
}

bool grid_view::begins_entry(const QKeyEvent& event) const {
    return takes_entries_ && types_character(event) && currentIndex().isValid() && is_white(current_column());
}

bool grid_view::take_command(const QKeyEvent& event) {
    const auto with_control = [&](Qt::Key key, Qt::KeyboardModifiers more = {}) {
        return event.key() == key && event.modifiers() == (Qt::ControlModifier | more);
    };
    if (event.matches(QKeySequence::Copy))
        copy_selection();
    else if (with_control(Qt::Key_L, Qt::ShiftModifier))
        sort_on(current_column());
    else if (event.matches(QKeySequence::Find))
        find();
    else if (event.matches(QKeySequence::ZoomIn) || with_control(Qt::Key_Equal))
        widths_.zoom(1);
    else if (event.matches(QKeySequence::ZoomOut))
        widths_.zoom(-1);
    else if (with_control(Qt::Key_0))
        widths_.zoom(0);
    else if (!takes_entries_)
        return false;
    else if (event.key() == Qt::Key_Delete)
        emit clear_wanted();
    else if (event.matches(QKeySequence::Paste))
        emit paste_wanted();
    else if (with_control(Qt::Key_D))
        emit fill_wanted();
    else
        return false;
    return true;
}

void grid_view::keyPressEvent(QKeyEvent* event) {
    if (locked_) return;
    const bool chooses =
        event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_F2;
    const bool tab = event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
    if (tab && (event->modifiers() & Qt::ControlModifier)) {
        event->ignore();  // switches the pages around the grid
    } else if (chooses && currentIndex().isValid()) {
        emit cell_chosen(current_row(), current_column());
    } else if (begins_entry(*event)) {
        emit cell_typed(current_row(), current_column(), *event);
    } else if (take_command(*event)) {
        event->accept();
    } else if (tab && leaves_by_tab(event)) {
        event->ignore();  // the window then moves the focus on
    } else {
        QTableView::keyPressEvent(event);
    }
}

void grid_view::mousePressEvent(QMouseEvent* event) {
    if (!locked_) QTableView::mousePressEvent(event);
}

void grid_view::mouseDoubleClickEvent(QMouseEvent* event) {
    if (!locked_) QTableView::mouseDoubleClickEvent(event);
}

void grid_view::mouseReleaseEvent(QMouseEvent* event) {
    if (locked_) return;
    QTableView::mouseReleaseEvent(event);
    // A range drawn with the pointer is chosen as a whole, like a single cell.
    if (event->button() == Qt::LeftButton && currentIndex().isValid() &&
        indexAt(event->position().toPoint()).isValid())
        emit cell_chosen(current_row(), current_column());
}

std::optional<grid_view::cell_range> grid_view::selected_cells() const {
    if (!currentIndex().isValid()) return std::nullopt;
    const grid_cell current{currentIndex().row(), current_column()};
    cell_range range{current, current};
    for (const QItemSelectionRange& part : selectionModel()->selection()) {
        range.first.row = std::min(range.first.row, part.top());
        range.first.column = std::min(range.first.column, part.left());
        range.last.row = std::max(range.last.row, part.bottom());
        range.last.column = std::max(range.last.column, part.right());
    }
    return range;
}

cell_block grid_view::texts_of(const cell_range& range) const {
    cell_block block;
    for (int row = range.first.row; row <= range.last.row; ++row) {
        std::vector<std::string>& cells = block.emplace_back();
        for (int c = range.first.column; c <= range.last.column; ++c)
            if (!isColumnHidden(c)) cells.push_back(model_->grid().cell(stored_row(row), c));
    }
    return block;
}

void grid_view::copy_selection() const {
    if (const auto range = selected_cells())
        QApplication::clipboard()->setText(qt(block_text(texts_of(*range))));
}

}  // namespace kel
