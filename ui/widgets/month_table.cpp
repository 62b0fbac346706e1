#include "ui/widgets/month_table.h"

#include <algorithm>

#include "core/numbers.h"
#include "ui/widgets/grid_view.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace {
constexpr int months = 12;
}

month_table::month_table(grid_view& grid, const arrangement& arranged)
    : QStyledItemDelegate(&grid), grid_(grid), arranged_(arranged) {
    grid_.setItemDelegate(this);
    grid_.keep_stored_order();
    for (int m = 0; m < months; ++m)
        grid_.narrow_column(arranged_.first_month + m, arranged_.widest);
    refresh();
}

void month_table::refresh() {
    grid_.clearSpans();
    const int rows = grid_.model()->rowCount();
    for (int row = 0; row < std::min(arranged_.protected_at_top, rows); ++row)
        span_label(row);
    if (rows > arranged_.protected_at_top) span_label(rows - 1);
}

void month_table::span_label(int row) {
    if (arranged_.first_month > 1) grid_.setSpan(row, 0, 1, arranged_.first_month);
}

bool month_table::is_protected(int row) const {
    return row < arranged_.protected_at_top ||
           row >= grid_.model()->rowCount() - arranged_.protected_at_bottom;
}

void month_table::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    if (!is_protected(index.row())) return;
    option->backgroundBrush = option->palette.window();
    if (index.column() == 0 && grid_.columnSpan(index.row(), 0) > 1) {
        option->text = index.siblingAtColumn(arranged_.first_month - 1).data().toString();
        option->displayAlignment = Qt::AlignVCenter | Qt::AlignRight;
    }
    if (index.column() >= arranged_.first_month && !grid_.fits(index.column(), option->text))
        option->text = fitting_figure(index);
}

QString month_table::fitting_figure(const QModelIndex& index) const {
    const double figure = leading_number(from_qt(index.data().toString()));
    for (const int decimals : {2, 1})
        if (QString text = QString::number(figure, 'f', decimals); grid_.fits(index.column(), text))
            return text;
    return QString::number(figure, 'f', 0);
}

}  // namespace kel
