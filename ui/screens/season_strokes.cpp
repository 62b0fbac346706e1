#include "ui/screens/season_strokes.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPalette>
#include <algorithm>

#include "standing/season_report.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace {

// Brown and blue stay apart for most colour-blind eyes; the lighter pair is for dark themes.
struct pair_of_colours {
    QRgb manure;
    QRgb fertiliser;
};
constexpr pair_of_colours on_light{0xff8a4500, 0xff1f5f99};
constexpr pair_of_colours on_dark{0xffffb774, 0xff8cc4f2};

QColor mixed(const QColor& a, const QColor& b, double part) {
    const auto mix = [part](int x, int y) { return qRound(x * part + y * (1 - part)); };
    return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

QString letter_of(season_band band) {
    switch (band) {
        case season_band::manure_closed:
            return "S";
        case season_band::no_land:
            return "L";
        default:
            return "N";
    }
}

// Lines from the left up or down, drawn one by one: a pattern of the toolkit would not grow with the screen.
void hatch(QPainter& painter, const QRectF& place, bool rising, const QColor& colour) {
    constexpr double gap = 6;
    painter.setPen(QPen(colour, 1.4));
    const double height = place.height();
    QList<QLineF> lines;
    for (double x = place.left() - height; x < place.right(); x += gap)
        lines << (rising ? QLineF(x, place.bottom(), x + height, place.top())
                         : QLineF(x, place.top(), x + height, place.bottom()));
    painter.drawLines(lines);
}

void dot(QPainter& painter, const QRectF& place, const QColor& colour) {
    QPen pen(colour, 1.2);
    pen.setDashPattern({1, 4});
    painter.setPen(pen);
    for (const double part : {0.25, 0.5, 0.75}) {
        const double y = place.top() + part * place.height();
        painter.drawLine(QLineF(place.left(), y, place.right(), y));
    }
}

void draw_letter(QPainter& painter, const QRectF& place, const QString& letter,
                 const season_colours& colours) {
    QFont bold = painter.font();
    bold.setBold(true);
    const QFontMetricsF metrics(bold, painter.device());
    const double width = metrics.horizontalAdvance(letter) + 6;
    if (place.width() < width) return;
    QRectF box(0, 0, width, std::min(place.height(), metrics.height()));
    box.moveCenter(place.center());
    painter.fillRect(box, colours.ground);
    painter.setPen(colours.ink);
    painter.save();
    painter.setFont(bold);
    painter.drawText(box, Qt::AlignCenter, letter);
    painter.restore();
}

}  // namespace

season_colours colours_of(const QPalette& palette) {
    const QColor ground = palette.color(QPalette::Base);
    const QColor ink = palette.color(QPalette::Text);
    const pair_of_colours pair = ground.lightness() > 127 ? on_light : on_dark;
    return {ground, ink, mixed(ink, ground, 0.3), QColor(pair.manure), QColor(pair.fertiliser)};
}

void draw_band(QPainter& painter, const QRectF& place, season_band band, const season_colours& colours) {
    const QColor colour = band == season_band::manure_closed       ? colours.manure
                          : band == season_band::fertiliser_closed ? colours.fertiliser
                                                                   : colours.faint;
    painter.save();
    painter.setClipRect(place, Qt::IntersectClip);
    if (band == season_band::no_land) {
        dot(painter, place, colour);
    } else {
        painter.fillRect(place, mixed(colour, colours.ground, 0.18));
        hatch(painter, place, band == season_band::manure_closed, colour);
    }
    painter.setPen(QPen(colour, 1.2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(place.adjusted(0.6, 0.6, -0.6, -0.6));
    draw_letter(painter, place, letter_of(band), colours);
    painter.restore();
}

void draw_mark(QPainter& painter, const QPointF& middle, double size, applied_as kind, bool in_closed_period,
               const season_colours& colours) {
    QRectF place(0, 0, size, size);
    place.moveCenter(middle);
    const bool hollow = kind == applied_as::exempt_manure;
    const QColor colour = kind == applied_as::fertiliser ? colours.fertiliser : colours.manure;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (in_closed_period) {
        painter.setPen(QPen(colours.ink, 2));
        painter.setBrush(colours.ground);
        painter.drawRect(place.adjusted(-3, -3, 3, 3));
    }
    painter.setPen(QPen(colour, 1.5));
    painter.setBrush(hollow ? colours.ground : colour);
    if (kind == applied_as::fertiliser)
        painter.drawRect(place);
    else
        painter.drawEllipse(place);
    QFont bold = painter.font();
    bold.setBold(true);
    bold.setPixelSize(std::max(6, qRound(size * 0.72)));
    painter.setFont(bold);
    painter.setPen(hollow ? colours.ink : colours.ground);
    painter.drawText(place, Qt::AlignCenter, qt(kel::letter_of(kind)));
    painter.restore();
}

void draw_use_bar(QPainter& painter, const QRectF& place, double part, bool over,
                  const season_colours& colours) {
    QRectF full = place;
    full.setWidth(place.width() * std::clamp(part, 0.0, 1.0));
    painter.fillRect(full, over ? colours.ink : colours.manure);
    painter.setPen(QPen(colours.ink, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(place);
}

}  // namespace kel
