#include "ui/widgets/grid_model.h"

#include <QApplication>
#include <QPalette>

#include "ui/widgets/qt_text.h"

namespace kel {

namespace {

constexpr qsizetype longest_tip = 500;

// Grey that stays readable in a light and in a dark theme: between the palette's base and its window colour.
QColor calculated_ground() {
    const QPalette palette = QApplication::palette();
    const QColor base = palette.color(QPalette::Base);
    return base.lightness() > 127 ? base.darker(112) : base.lighter(160);
}

// Figures, ranges and dates; a code that begins with a digit is none.
bool is_figure(const std::string& text) {
    return !text.empty() && text.find_first_not_of("0123456789.-/ ") == std::string::npos;
}

}  // namespace

grid_model::grid_model(const text_grid& grid, QObject* parent)
    : QAbstractTableModel(parent), grid_(&grid), shown_rows_(grid.row_count()) {}

void grid_model::refresh() {
    const int rows = grid_->row_count();
    if (rows > shown_rows_) {
        beginInsertRows({}, shown_rows_, rows - 1);
        shown_rows_ = rows;
        endInsertRows();
    } else if (rows < shown_rows_) {
        beginRemoveRows({}, rows, shown_rows_ - 1);
        shown_rows_ = rows;
        endRemoveRows();
    }
    if (rows > 0) emit dataChanged(index(0, 0), index(rows - 1, columnCount() - 1));
}

int grid_model::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : shown_rows_;
}

int grid_model::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : grid_->column_count();
}

QVariant grid_model::data(const QModelIndex& index, int role) const {
    // Between a change of the grid and the refresh that shows it a row may be gone.
    if (!index.isValid() || index.row() >= grid_->row_count()) return {};
    const grid_column& column = grid_->columns()[static_cast<std::size_t>(index.column())];
    switch (role) {
        case Qt::DisplayRole:
        case Qt::EditRole:
            return qt(grid_->cell(index.row(), index.column()));
        case Qt::ToolTipRole:
            return plain_tip(qt(grid_->cell(index.row(), index.column())).left(longest_tip));
        case Qt::TextAlignmentRole: {
            const std::string& text = grid_->cell(index.row(), index.column());
            const bool figures_column = index.column() > 0 && is_figure(text);
            return QVariant(Qt::AlignVCenter | (figures_column ? Qt::AlignRight : Qt::AlignLeft));
        }
        case Qt::BackgroundRole:
            return column.kind == column_kind::calculated ? QVariant(calculated_ground()) : QVariant();
        case Qt::AccessibleTextRole:
            return qt(column.heading) + ": " + qt(grid_->cell(index.row(), index.column()));
        default:
            return {};
    }
}

QVariant grid_model::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return qt(grid_->columns()[static_cast<std::size_t>(section)].heading);
}

}  // namespace kel
