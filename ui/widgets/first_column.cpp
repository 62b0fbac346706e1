#include "ui/widgets/first_column.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QScrollBar>

#include "ui/widgets/grid_view.h"

namespace kel {

first_column::first_column(grid_view& grid) : QTableView(&grid), grid_(grid) {
    setModel(grid.model());
    setSelectionModel(grid.selectionModel());
    setFocusPolicy(Qt::NoFocus);
    setFrameShape(QFrame::NoFrame);
    setWordWrap(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAccessibleName(grid.accessibleName());
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setDefaultAlignment(grid.horizontalHeader()->defaultAlignment());
    horizontalHeader()->setHighlightSections(false);
    disconnect(horizontalHeader(), SIGNAL(sectionPressed(int)), this, SLOT(selectColumn(int)));
    connect(horizontalHeader(), &QHeaderView::sectionClicked, &grid_, &grid_view::sort_on);
    for (int c = 1; c < model()->columnCount(); ++c)
        setColumnHidden(c, true);
    for (int row = 0; row < model()->rowCount(); ++row)
        setRowHeight(row, grid.rowHeight(row));
    connect(grid.verticalHeader(), &QHeaderView::sectionResized, this,
            [this](int row, int, int height) { setRowHeight(row, height); });
    connect(grid.verticalScrollBar(), &QScrollBar::valueChanged, verticalScrollBar(), &QScrollBar::setValue);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, grid.verticalScrollBar(), &QScrollBar::setValue);
}

void first_column::place() {
    const int heading = grid_.horizontalHeader()->height();
    const QHeaderView& shown = *grid_.horizontalHeader();
    horizontalHeader()->setFixedHeight(heading);
    horizontalHeader()->setSectionsClickable(shown.sectionsClickable());
    horizontalHeader()->setSortIndicatorShown(shown.isSortIndicatorShown());
    horizontalHeader()->setSortIndicator(shown.sortIndicatorSection(), shown.sortIndicatorOrder());
    verticalHeader()->setDefaultSectionSize(grid_.verticalHeader()->defaultSectionSize());
    setColumnWidth(0, grid_.columnWidth(0));
    setGeometry(grid_.frameWidth(), grid_.frameWidth(), grid_.columnWidth(0),
                heading + grid_.viewport()->height());
    verticalScrollBar()->setValue(grid_.verticalScrollBar()->value());
}

void first_column::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    paint_current_cell(*this);
}

void first_column::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void first_column::mouseReleaseEvent(QMouseEvent* event) {
    const QModelIndex at = indexAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !at.isValid() || grid_.locked()) return;
    grid_.setFocus();
    grid_.choose_cell(grid_.stored_row(at.row()), 0);
}

}  // namespace kel
