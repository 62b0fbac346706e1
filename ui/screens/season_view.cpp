#include "ui/screens/season_view.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <array>
#include <cmath>

#include "ui/widgets/qt_text.h"

namespace kel {

namespace {

constexpr std::array<int, 11> zoom_percents{60, 75, 90, 100, 110, 125, 150, 175, 200, 250, 300};
constexpr int usual_zoom = 3;
static_assert(zoom_percents[usual_zoom] == 100);

// In heights of the text.
constexpr double narrowest_month = 2.6;

}  // namespace

season_view::season_view(QWidget* parent) : QAbstractScrollArea(parent), zoom_step_(usual_zoom) {
    setObjectName("calSeason");
    setAccessibleName(tr("Season calendar"));
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setMouseTracking(true);
    viewport()->setBackgroundRole(QPalette::Base);
    verticalScrollBar()->setSingleStep(20);
}

void season_view::show_season(const season_calendar& season) {
    season_ = &season;
    months_ = season.missing.empty() ? months_of(season.first, season.last) : std::vector<month_piece>{};
    const int last = std::max(0, static_cast<int>(season.fields.size()) - 1);
    current_ = {std::min(current_.field, last), std::clamp(current_.day, season.first, season.last)};
    lay_out();
    viewport()->update();
    emit place_changed(current_);
}

season_geometry season_view::geometry() const {
    season_geometry at{.em = double(fontMetrics().height()),
                       .width = double(viewport()->width()),
                       .height = double(viewport()->height()),
                       .scrolled_x = horizontalScrollBar()->value(),
                       .scrolled_y = verticalScrollBar()->value()};
    if (!season_) return at;
    at.first = season_->first;
    const double days = days_between(season_->first, season_->last) + 1;
    const double room = at.width - at.names_width() - at.margin() - at.use_width();
    at.day_width = std::max(room, narrowest_month * at.em * static_cast<double>(months_.size())) / days;
    return at;
}

int season_view::rows_in_view() const {
    const season_geometry at = geometry();
    return std::max(1, static_cast<int>((at.height - at.heading_height()) / at.row_height()));
}

void season_view::lay_out() {
    const season_geometry at = geometry();
    const int fields = season_ ? static_cast<int>(season_->fields.size()) : 0;
    const double height = at.heading_height() + fields * at.row_height();
    const double days = season_ ? days_between(season_->first, season_->last) + 1 : 0;
    const double width = at.names_width() + at.margin() + days * at.day_width + at.use_width();
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setRange(0, std::max(0, static_cast<int>(std::ceil(height)) - viewport()->height()));
    horizontalScrollBar()->setPageStep(viewport()->width());
    // A rounding of the days' width is not worth a bar.
    const int too_wide = static_cast<int>(std::floor(width)) - viewport()->width();
    horizontalScrollBar()->setRange(0, too_wide > 1 ? too_wide : 0);
}

QRectF season_view::rect_of(const season_place& place) const {
    return geometry().rect_of(place.field, place.day);
}

std::optional<season_place> season_view::place_at(const QPointF& point) const {
    const season_geometry at = geometry();
    if (months_.empty() || point.y() < at.heading_height() || point.x() < at.x_of(season_->first) ||
        point.x() < at.names_width())
        return std::nullopt;
    const int field = static_cast<int>((point.y() - at.y_of(0)) / at.row_height());
    const int days = static_cast<int>((point.x() - at.x_of(season_->first)) / at.day_width);
    if (field >= static_cast<int>(season_->fields.size())) return std::nullopt;
    if (days > days_between(season_->first, season_->last)) return std::nullopt;
    return season_place{field, add_days(season_->first, days)};
}

void season_view::go_to(const season_place& place) {
    if (!season_ || season_->fields.empty() || months_.empty()) return;
    const int last = static_cast<int>(season_->fields.size()) - 1;
    current_ = {std::clamp(place.field, 0, last), std::clamp(place.day, season_->first, season_->last)};
    const season_geometry at = geometry();
    const QRectF rect = at.rect_of(current_.field, current_.day);
    const auto scroll = [](QScrollBar* bar, double low, double high, double from, double to) {
        if (low < from) bar->setValue(bar->value() + static_cast<int>(std::floor(low - from)));
        if (high > to) bar->setValue(bar->value() + static_cast<int>(std::ceil(high - to)));
    };
    scroll(verticalScrollBar(), rect.top(), rect.bottom(), at.heading_height(), at.height);
    scroll(horizontalScrollBar(), rect.left(), rect.right(), at.names_width(), at.width);
    viewport()->update();
    emit place_changed(current_);
}

void season_view::step_to(int field, int days) {
    go_to({field, add_days(current_.day, days)});
}

// The first day of the month, and of the one before it if that is where the current day stands.
date season_view::month_step(int months) const {
    const auto at =
        std::ranges::find_if(months_, [&](const month_piece& month) { return current_.day <= month.last; });
    const auto place = at - months_.begin() + (months < 0 && current_.day > at->first ? 0 : months);
    if (place >= static_cast<std::ptrdiff_t>(months_.size())) return season_->last;
    return months_[static_cast<std::size_t>(std::max<std::ptrdiff_t>(0, place))].first;
}

void season_view::keyPressEvent(QKeyEvent* event) {
    if (months_.empty()) return QAbstractScrollArea::keyPressEvent(event);
    const bool by_month = event->modifiers().testFlag(Qt::ControlModifier);
    const int field = current_.field;
    switch (event->key()) {
        case Qt::Key_Left:
            return by_month ? go_to({field, month_step(-1)}) : step_to(field, -1);
        case Qt::Key_Right:
            return by_month ? go_to({field, month_step(1)}) : step_to(field, 1);
        case Qt::Key_Up:
            return step_to(field - 1, 0);
        case Qt::Key_Down:
            return step_to(field + 1, 0);
        case Qt::Key_PageUp:
            return step_to(field - rows_in_view(), 0);
        case Qt::Key_PageDown:
            return step_to(field + rows_in_view(), 0);
        case Qt::Key_Home:
            return go_to({by_month ? 0 : field, season_->first});
        case Qt::Key_End:
            return go_to({by_month ? static_cast<int>(season_->fields.size()) : field, season_->last});
        default:
            return QAbstractScrollArea::keyPressEvent(event);
    }
}

void season_view::mousePressEvent(QMouseEvent* event) {
    if (const auto place = place_at(event->position())) go_to(*place);
}

void season_view::mouseMoveEvent(QMouseEvent* event) {
    emit place_changed(place_at(event->position()).value_or(current_));
}

bool season_view::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::Leave && !months_.empty()) emit place_changed(current_);
    return QAbstractScrollArea::viewportEvent(event);
}

void season_view::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) return QAbstractScrollArea::wheelEvent(event);
    if (event->angleDelta().y() != 0) zoom(event->angleDelta().y() > 0 ? 1 : -1);
    event->accept();
}

void season_view::zoom(int steps) {
    const int last = static_cast<int>(zoom_percents.size()) - 1;
    zoom_step_ = steps == 0 ? usual_zoom : std::clamp(zoom_step_ + steps, 0, last);
    QFont larger = font();
    larger.setPointSizeF(QApplication::font(this).pointSizeF() *
                         zoom_percents.at(static_cast<std::size_t>(zoom_step_)) / 100);
    setFont(larger);
}

void season_view::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    lay_out();
}

void season_view::changeEvent(QEvent* event) {
    QAbstractScrollArea::changeEvent(event);
    if (event->type() != QEvent::FontChange) return;
    lay_out();
    if (!months_.empty()) go_to(current_);
}

void season_view::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(viewport());
    if (!season_ || months_.empty() || season_->fields.empty()) {
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap,
                         season_ ? qt(season_->missing) : QString());
        return;
    }
    const season_geometry at = geometry();
    const season_drawing drawing(painter, at, *season_, months_, palette(), font());
    const int fields = static_cast<int>(season_->fields.size());
    const int first = std::clamp(static_cast<int>(at.scrolled_y / at.row_height()), 0, fields);
    painter.save();
    painter.setClipRect(QRectF(0, at.heading_height(), at.width, at.height));
    for (int row = first; row < fields && at.y_of(row) < at.height; ++row)
        drawing.row(row);
    drawing.current(current_.field, current_.day, hasFocus());
    painter.restore();
    drawing.headings();
}

}  // namespace kel
