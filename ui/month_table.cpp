#include "ui/month_table.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QToolTip>
#include <algorithm>

#include "ui/grid_view.h"

namespace kel {

namespace {
constexpr int padding_px = 8;
constexpr int months = 12;
}  // namespace

month_table::month_table(grid_view& grid, const layout& layout)
    : QStyledItemDelegate(&grid), grid_(grid), layout_(layout) {
    grid_.setItemDelegate(this);
    for (int m = 0; m < months; ++m)
        grid_.setColumnWidth(layout_.first_month + m, 0);
    refresh();
}

void month_table::refresh() {
    grid_.clearSpans();
    const int rows = grid_.model()->rowCount();
    for (int row = 0; row < std::min(layout_.protected_at_top, rows); ++row)
        span_label(row);
    if (rows > layout_.protected_at_top) span_label(rows - 1);
    for (int m = 0; m < months; ++m)
        fit_month(layout_.first_month + m);
}

void month_table::span_label(int row) {
    if (layout_.first_month > 1) grid_.setSpan(row, 0, 1, layout_.first_month);
}

void month_table::fit_month(int column) {
    const auto* model = grid_.model();
    const QString heading = model->headerData(column, Qt::Horizontal).toString();
    const QString total = model->index(model->rowCount() - 1, column).data().toString();
    const QFontMetrics cells = grid_.fontMetrics();
    const int needed = std::max({grid_.horizontalHeader()->fontMetrics().horizontalAdvance(heading),
                                 cells.horizontalAdvance(layout_.widest), cells.horizontalAdvance(total)});
    grid_.setColumnWidth(column, std::max(grid_.columnWidth(column), needed + padding_px));
}

bool month_table::is_protected(int row) const {
    return row < layout_.protected_at_top || row >= grid_.model()->rowCount() - layout_.protected_at_bottom;
}

void month_table::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    if (!is_protected(index.row())) return;
    option->backgroundBrush = option->palette.window();
    const bool holds_label = index.column() == 0 && grid_.columnSpan(index.row(), 0) > 1;
    if (!holds_label) return;
    option->text = index.siblingAtColumn(layout_.first_month - 1).data().toString();
    option->displayAlignment = Qt::AlignVCenter | Qt::AlignRight;
}

// A text that its cell cuts off can be read in full under the pointer.
bool month_table::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                            const QModelIndex& index) {
    const QString text = index.data().toString();
    const bool cut =
        option.fontMetrics.horizontalAdvance(text) + padding_px > grid_.visualRect(index).width();
    if (event->type() != QEvent::ToolTip || !cut)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    QToolTip::showText(event->globalPos(), text, view);
    return true;
}

}  // namespace kel
