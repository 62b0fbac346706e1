#include "ui/widgets/grid_widths.h"

#include <QApplication>
#include <QEvent>
#include <QFontMetricsF>
#include <QHeaderView>
#include <QTableView>
#include <algorithm>
#include <string_view>
#include <unordered_set>

#include "ui/widgets/grid_model.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace {

constexpr int cell_padding_px = 12;
constexpr int narrow_padding_px = 8;
constexpr int row_padding_px = 8;
constexpr int smallest_percent = 50;
constexpr int largest_percent = 300;
constexpr double widest_own = 200;  // characters

// Of the font that does not round, so that widths come back as they were.
double character_px(const QTableView& view) {
    return QFontMetricsF(view.font()).averageCharWidth();
}

}  // namespace

grid_widths::grid_widths(QTableView& view, const grid_model& model)
    : QObject(&view), view_(view), model_(model) {
    QHeaderView* header = view_.horizontalHeader();
    header->setDefaultAlignment(Qt::AlignCenter | static_cast<Qt::Alignment>(Qt::TextWordWrap));
    header->setHighlightSections(false);
    view_.verticalHeader()->setDefaultSectionSize(view_.fontMetrics().height() + row_padding_px);
    lay_out_columns();
    header->viewport()->installEventFilter(this);
    connect(header, &QHeaderView::sectionResized, this, &grid_widths::resized);
}

int grid_widths::laid_out(int column) const {
    const grid_column& laid = model_.grid().columns()[static_cast<std::size_t>(column)];
    return laid.width * view_.fontMetrics().averageCharWidth() + cell_padding_px;
}

QString grid_widths::heading(int column) const {
    return model_.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
}

void grid_widths::lay_out_columns() {
    for (int c = 0; c < model_.columnCount(); ++c) {
        const grid_column& column = model_.grid().columns()[static_cast<std::size_t>(c)];
        view_.setColumnHidden(c, column.kind == column_kind::carried);
        view_.setColumnWidth(c, laid_out(c));
    }
    lay_out_headings();
}

void grid_widths::lay_out_headings() {
    QHeaderView* header = view_.horizontalHeader();
    int height = 0;
    for (int c = 0; c < model_.columnCount(); ++c) {
        if (view_.isColumnHidden(c)) continue;
        const QRect room(0, 0, view_.columnWidth(c) - cell_padding_px, QWIDGETSIZE_MAX);
        height = std::max(height, header->fontMetrics()
                                      .boundingRect(room, Qt::AlignCenter | Qt::TextWordWrap, heading(c))
                                      .height());
    }
    header->setFixedHeight(height + cell_padding_px);
}

void grid_widths::narrow(int column, const QString& widest) {
    const int needed = std::max(view_.horizontalHeader()->fontMetrics().horizontalAdvance(heading(column)),
                                view_.fontMetrics().horizontalAdvance(widest));
    view_.setColumnWidth(column, needed + narrow_padding_px);
}

void grid_widths::fit(int column) {
    if (own_.contains(column)) return;
    int width = laid_out(column);
    std::unordered_set<std::string_view> measured;  // a column has few texts, many times over
    for (int row = 0; row < model_.grid().row_count(); ++row) {
        const std::string& text = model_.grid().cell(row, column);
        if (measured.insert(text).second)
            width = std::max(width, view_.fontMetrics().horizontalAdvance(qt(text)) + cell_padding_px);
    }
    view_.setColumnWidth(column, width);
}

bool grid_widths::fits(int column, const QString& text) const {
    return view_.fontMetrics().horizontalAdvance(text) + narrow_padding_px <= view_.columnWidth(column);
}

void grid_widths::wrap(int column) {
    wrapped_ = column;
    view_.setWordWrap(true);
    lay_out_rows();
}

// Measured here and not by the table, which leaves out the columns that are not in view.
void grid_widths::lay_out_rows() {
    if (wrapped_ < 0) return;
    const QRect room(0, 0, view_.columnWidth(wrapped_) - narrow_padding_px, QWIDGETSIZE_MAX);
    for (int row = 0; row < model_.rowCount(); ++row) {
        const QString text = model_.index(row, wrapped_).data().toString();
        const int text_height = view_.fontMetrics().boundingRect(room, Qt::TextWordWrap, text).height();
        view_.setRowHeight(row, std::max(view_.fontMetrics().height(), text_height) + row_padding_px);
    }
}

// The first column, which holds names, unless one is wrapped.
void grid_widths::fill_room() {
    const int wide = std::max(0, wrapped_);
    if (own_.contains(wide)) return;
    const int others = view_.horizontalHeader()->length() - view_.columnWidth(wide);
    view_.setColumnWidth(wide, std::max(laid_out(wide), view_.viewport()->width() - others));
}

void grid_widths::resized(int column) {
    if (dragging_) {
        own_.insert(column);
        lay_out_headings();
    }
    lay_out_rows();
}

bool grid_widths::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick) dragging_ = true;
    if (type == QEvent::MouseButtonRelease) dragging_ = false;
    return QObject::eventFilter(watched, event);
}

void grid_widths::zoom(int steps) {
    constexpr int step_percent = 10;
    set_zoom(steps == 0 ? 100 : zoom_percent_ + steps * step_percent);
}

void grid_widths::set_zoom(int percent) {
    const double before = character_px(view_);
    zoom_percent_ = std::clamp(percent, smallest_percent, largest_percent);
    QFont font = QApplication::font(&view_);
    font.setPointSizeF(font.pointSizeF() * zoom_percent_ / 100);
    view_.setFont(font);
    view_.horizontalHeader()->setFont(font);
    const double factor = character_px(view_) / before;
    for (int c = 0; c < model_.columnCount(); ++c)
        if (!view_.isColumnHidden(c)) view_.setColumnWidth(c, qRound(view_.columnWidth(c) * factor));
    view_.verticalHeader()->setDefaultSectionSize(view_.fontMetrics().height() + row_padding_px);
    lay_out_headings();
    fill_room();
    lay_out_rows();
    emit zoomed();
}

grid_widths::own_widths grid_widths::own() const {
    own_widths widths;
    for (const int column : own_)
        widths[column] = view_.columnWidth(column) / character_px(view_);
    return widths;
}

void grid_widths::take_own(const own_widths& widths) {
    for (const auto& [column, characters] : widths) {
        if (column < 0 || column >= model_.columnCount() || view_.isColumnHidden(column)) continue;
        if (!(characters >= 1 && characters <= widest_own)) continue;
        own_.insert(column);
        view_.setColumnWidth(column, qRound(characters * character_px(view_)));
    }
    lay_out_headings();
    lay_out_rows();
}

}  // namespace kel
