#include "ui/screens/map_view.h"

#include <QFile>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTextStream>
#include <algorithm>
#include <cmath>

namespace kel {

namespace {

constexpr double side = square_twips;
constexpr double map_width = side * grid_columns;
constexpr double map_height = side * grid_rows;

// Fills that stay apart in print and for most colour-blind eyes, in the order in which the zones come up.
constexpr std::array<QRgb, 6> zone_colours{0xffe6b45a, 0xff7fb3d9, 0xffc78fc1,
                                           0xff8cc08a, 0xffd98880, 0xffb0b070};
constexpr QRgb sea_colour = 0xffdde9f0;
constexpr QRgb land_colour = 0xfff4f1e6;
constexpr QRgb coast_colour = 0xff5d6b60;
constexpr QRgb grid_colour = 0x28304050;
constexpr QRgb marker_colour = 0xffb0122a;

QPointF twips_of(double x_squares, double y_squares) {
    return {x_squares * side - left_margin_twips, y_squares * side};
}

// One outline per shape number of coast.csv: Shape, Kind, Name, Point, X, Y in squares.
void read_coast(QPainterPath& land, QPainterPath& border) {
    QFile file(":/coast.csv");
    if (!file.open(QIODevice::ReadOnly)) return;
    QTextStream lines(&file);
    lines.readLine();
    QString shape;
    QPainterPath* path = nullptr;
    const auto close_shape = [&] {
        if (path == &land) land.closeSubpath();
    };
    while (!lines.atEnd()) {
        const QStringList cells = lines.readLine().split(',');
        if (cells.size() != 6) continue;
        const QPointF point = twips_of(cells[4].toDouble(), cells[5].toDouble());
        if (cells[0] != shape) {
            close_shape();
            shape = cells[0];
            path = cells[1] == "border" ? &border : &land;
            path->moveTo(point);
        } else {
            path->lineTo(point);
        }
    }
    close_shape();
}

}  // namespace

map_view::map_view(const std::vector<zone_square>& squares, QWidget* parent) : QWidget(parent) {
    setObjectName("Picture1");
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(240, 290);
    setAccessibleName(tr("Map of Scotland"));
    setToolTip(tr("Click the farm's place, or move the square with the arrow keys and press Enter"));
    land_.setFillRule(Qt::WindingFill);
    read_coast(land_, border_);
    for (const zone_square& s : squares) {
        auto found =
            std::find_if(tints_.begin(), tints_.end(), [&](const tint& t) { return t.zone == s.zone; });
        if (found == tints_.end()) {
            tints_.push_back({s.zone, QColor(zone_colours[tints_.size() % zone_colours.size()]), {}});
            found = std::prev(tints_.end());
        }
        found->area.addRect(QRectF(twips_of(s.square.x, s.square.y), QSizeF(side, side)));
    }
}

QSize map_view::sizeHint() const {
    return {560, static_cast<int>(560 * map_height / map_width)};
}

void map_view::show_grid(bool on) {
    grid_ = on;
    update();
}

void map_view::mark_square(std::optional<map_square> marked) {
    marked_ = marked;
    update();
}

QTransform map_view::twips_to_widget() const {
    const double scale = std::min(width() / map_width, height() / map_height);
    QTransform transform;
    transform.translate((width() - map_width * scale) / 2, (height() - map_height * scale) / 2);
    transform.scale(scale, scale);
    return transform;
}

QPoint map_view::twips_at(const QPointF& position) const {
    const QPointF twips = twips_to_widget().inverted().map(position);
    return {static_cast<int>(std::floor(twips.x())), static_cast<int>(std::floor(twips.y()))};
}

void map_view::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setTransform(twips_to_widget());
    const QRectF sheet(0, 0, map_width, map_height);
    painter.setClipRect(sheet);
    painter.fillRect(sheet, QColor(sea_colour));
    painter.fillPath(land_, QColor(land_colour));
    painter.save();
    painter.setClipPath(land_, Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (const tint& t : tints_)
        painter.fillPath(t.area, t.colour);
    painter.restore();
    QPen pen{QColor(coast_colour)};
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.drawPath(land_);
    pen.setStyle(Qt::DashLine);
    painter.setPen(pen);
    painter.drawPath(border_);
    if (grid_) draw_grid(painter);
    if (marked_) {
        QPen marker{QColor(marker_colour), 2.5};
        marker.setCosmetic(true);
        painter.setPen(marker);
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(QRectF(twips_of(marked_->x, marked_->y), QSizeF(side, side)));
    }
    if (hasFocus()) {
        painter.resetTransform();
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(twips_to_widget().mapRect(sheet).adjusted(1, 1, -1, -1));
    }
}

void map_view::draw_grid(QPainter& painter) const {
    QPen pen{QColor::fromRgba(grid_colour)};
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (int i = 0; i <= grid_columns; ++i) {
        const double x = side * i - left_margin_twips;
        painter.drawLine(QPointF(x, 0), QPointF(x, map_height));
    }
    for (int i = 0; i <= grid_rows; ++i)
        painter.drawLine(QPointF(0, side * i), QPointF(map_width, side * i));
    painter.setRenderHint(QPainter::Antialiasing);
}

std::vector<map_view::legend_entry> map_view::legend() const {
    std::vector<legend_entry> entries;
    for (const tint& t : tints_)
        entries.push_back({t.zone, t.colour});
    return entries;
}

void map_view::mouseMoveEvent(QMouseEvent* event) {
    const QPoint twips = twips_at(event->position());
    emit pointer_moved(twips.x(), twips.y());
}

void map_view::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const QPoint twips = twips_at(event->position());
    emit pointer_moved(twips.x(), twips.y());
    emit map_clicked(twips.x(), twips.y());
}

void map_view::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left:
            emit square_stepped(-1, 0);
            break;
        case Qt::Key_Right:
            emit square_stepped(1, 0);
            break;
        case Qt::Key_Up:
            emit square_stepped(0, -1);
            break;
        case Qt::Key_Down:
            emit square_stepped(0, 1);
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            emit square_confirmed();
            break;
        default:
            QWidget::keyPressEvent(event);
    }
}

}  // namespace kel
