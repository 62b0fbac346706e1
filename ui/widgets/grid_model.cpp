#include "ui/widgets/grid_model.h"

#include <QApplication>
#include <QPalette>
#include <algorithm>
#include <utility>

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
    : QAbstractTableModel(parent),
      grid_(&grid),
      order_(grid),
      shown_rows_(grid.row_count()),
      shown_(rows_in_order()) {}

void grid_model::refresh() {
    const int rows = grid_->row_count();
    order_.follow();
    if (!order_.sorted()) sorted_column_ = -1;  // no row is left
    if (rows > shown_rows_) {
        beginInsertRows({}, shown_rows_, rows - 1);
        shown_rows_ = rows;
        endInsertRows();
    } else if (rows < shown_rows_) {
        beginRemoveRows({}, rows, shown_rows_ - 1);
        shown_rows_ = rows;
        endRemoveRows();
    }
    announce_changes();
}

text_grid::shared_rows grid_model::rows_in_order() const {
    const text_grid::shared_rows stored = grid_->rows_from(0, grid_->row_count());
    text_grid::shared_rows rows;
    rows.reserve(stored.size());
    for (int row = 0; row < grid_->row_count(); ++row)
        rows.push_back(stored[static_cast<std::size_t>(order_.stored(row))]);
    return rows;
}

// A row that nobody has written to is still the same one.
void grid_model::announce_changes() {
    const text_grid::shared_rows before = std::exchange(shown_, rows_in_order());
    const int rows = static_cast<int>(std::min(before.size(), shown_.size()));
    const auto same = [&](int row) {
        const auto& was = before[static_cast<std::size_t>(row)];
        const auto& now = shown_[static_cast<std::size_t>(row)];
        return was == now || *was == *now;
    };
    for (int row = 0; row < rows; ++row) {
        if (same(row)) continue;
        const int first = row;
        while (row + 1 < rows && !same(row + 1))
            ++row;
        emit dataChanged(index(first, 0), index(row, columnCount() - 1));
    }
}

// Whoever holds a place in the table keeps it on its row.
template <class Change>
void grid_model::change_order(Change change) {
    emit layoutAboutToBeChanged();
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    std::vector<int> stored;
    stored.reserve(static_cast<std::size_t>(before.size()));
    for (const QModelIndex& held : before)
        stored.push_back(order_.stored(held.row()));
    change();
    for (qsizetype i = 0; i < before.size(); ++i)
        after.append(index(order_.shown(stored[static_cast<std::size_t>(i)]), before[i].column()));
    changePersistentIndexList(before, after);
    shown_ = rows_in_order();
    emit layoutChanged();
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

void grid_model::sort_on(int column) {
    if (column == sorted_column_ && descending_) return show_as_stored();
    descending_ = column == sorted_column_;
    sorted_column_ = column;
    change_order([this] { order_.sort(sorted_column_, descending_); });
}

void grid_model::sort_again() {
    if (sorted_column_ >= 0) change_order([this] { order_.sort(sorted_column_, descending_); });
}

void grid_model::show_as_stored() {
    if (sorted_column_ < 0) return;
    sorted_column_ = -1;
    change_order([this] { order_.show_as_stored(); });
}

int grid_model::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : shown_rows_;
}

int grid_model::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : grid_->column_count();
}

QVariant grid_model::data(const QModelIndex& index, int role) const {
    // Between a change of the grid and the refresh that shows it a row may be gone.
    const int row = order_.stored(index.row());
    if (!index.isValid() || row >= grid_->row_count()) return {};
    const grid_column& column = grid_->columns()[static_cast<std::size_t>(index.column())];
    const std::string& text = grid_->cell(row, index.column());
    switch (role) {
        case Qt::DisplayRole:
        case Qt::EditRole:
            return qt(text);
        case Qt::ToolTipRole:
            return plain_tip(qt(text).left(longest_tip));
        case Qt::TextAlignmentRole: {
            const bool figures_column = index.column() > 0 && is_figure(text);
            return QVariant(Qt::AlignVCenter | (figures_column ? Qt::AlignRight : Qt::AlignLeft));
        }
        case Qt::BackgroundRole:
            return column.kind == column_kind::calculated ? QVariant(calculated_ground()) : QVariant();
        case Qt::AccessibleTextRole:
            return qt(column.heading) + ": " + qt(text);
        default:
            return {};
    }
}

QVariant grid_model::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::DisplayRole) return qt(grid_->columns()[static_cast<std::size_t>(section)].heading);
    if (role != Qt::AccessibleDescriptionRole || section != sorted_column_) return {};
    return descending_ ? tr("Sorted, largest first") : tr("Sorted, smallest first");
}

}  // namespace kel
