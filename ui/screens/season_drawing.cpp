#include "ui/screens/season_drawing.h"

#include <QFontMetricsF>
#include <QObject>
#include <QPainter>

#include "core/numbers.h"
#include "rules/nitrogen_limits.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace {

// In heights of the text.
constexpr double lane_height = 1.45;
constexpr double lane_gap = 0.2;
constexpr double line_height = 1.1;

QFont bold_of(QFont font) {
    font.setBold(true);
    return font;
}

}  // namespace

season_drawing::season_drawing(QPainter& painter, const season_geometry& at, const season_calendar& season,
                               const std::vector<month_piece>& months, const QPalette& palette,
                               const QFont& font)
    : painter_(painter),
      at_(at),
      season_(season),
      months_(months),
      palette_(palette),
      font_(font),
      colours_(colours_of(palette)) {}

void season_drawing::headings() const {
    const QRectF all(0, 0, at_.width, at_.heading_height());
    painter_.fillRect(all, palette_.color(QPalette::Button));
    painter_.setPen(palette_.color(QPalette::ButtonText));
    painter_.drawText(QRectF(0.4 * at_.em, 0, at_.names_width(), all.height()), Qt::AlignVCenter,
                      QObject::tr("Field"));
    painter_.save();
    painter_.setClipRect(QRectF(at_.names_width(), 0, all.width(), all.height()));
    for (const month_piece& month : months_) {
        const double left = at_.x_of(month.first);
        const double width = at_.x_of(add_days(month.last, 1)) - left;
        painter_.drawText(QRectF(left, 0, width, all.height()), Qt::AlignCenter, qt(month.letters));
    }
    const QRectF use(at_.x_of(add_days(season_.last, 1)), 0, at_.use_width(), all.height());
    painter_.drawText(use, Qt::AlignCenter, QObject::tr("Of 250 kg N/ha"));
    painter_.restore();
    painter_.setPen(colours_.faint);
    painter_.drawLine(all.bottomLeft(), all.bottomRight());
}

void season_drawing::row(int number) const {
    const field_season& field = season_.fields[static_cast<std::size_t>(number)];
    const double top = at_.y_of(number);
    const QRectF all(0, top, at_.width, at_.row_height());
    if (number % 2 == 1) painter_.fillRect(all, palette_.color(QPalette::AlternateBase));
    painter_.save();
    painter_.setClipRect(QRectF(at_.names_width(), top, all.width(), all.height()), Qt::IntersectClip);
    painter_.setPen(QPen(colours_.faint, 1));
    for (const month_piece& month : months_)
        painter_.drawLine(QLineF(at_.x_of(month.first), top, at_.x_of(month.first), all.bottom()));
    lanes(field, top);
    marks(field, top);
    use(field, top);
    painter_.restore();
    names(field, QRectF(0, top, at_.names_width(), all.height()));
    painter_.setPen(colours_.faint);
    painter_.drawLine(QLineF(0, all.bottom() - 1, all.right(), all.bottom() - 1));
}

QRectF season_drawing::lane(double top, int number, date from, date to) const {
    const double left = at_.x_of(from);
    return {left, top + (0.25 + number * (lane_height + lane_gap)) * at_.em, at_.x_of(add_days(to, 1)) - left,
            lane_height * at_.em};
}

void season_drawing::names(const field_season& field, const QRectF& place) const {
    painter_.fillRect(place, palette_.color(QPalette::Button));
    painter_.setPen(palette_.color(QPalette::ButtonText));
    const double room = place.width() - 0.8 * at_.em;
    double y = place.top() + 0.15 * at_.em;
    const auto line = [&](const QFont& font, const QString& words) {
        painter_.setFont(font);
        painter_.drawText(QRectF(place.left() + 0.4 * at_.em, y, room, line_height * at_.em),
                          Qt::AlignVCenter, QFontMetricsF(font).elidedText(words, Qt::ElideRight, room));
        y += line_height * at_.em;
    };
    line(bold_of(font_), qt(field.name));
    line(font_, qt(field.size_ha) + QObject::tr(" ha  ") + qt(field.soil));
    line(font_, qt(field.crops));
}

void season_drawing::lanes(const field_season& field, double top) const {
    const auto bands = [&](int number, const std::vector<season_span>& spans, season_band band) {
        for (const season_span& span : spans)
            draw_band(painter_, lane(top, number, span.first, span.last), band, colours_);
    };
    bands(0, field.no_land, season_band::no_land);
    bands(0, field.manure_closed, season_band::manure_closed);
    bands(1, field.fertiliser_closed, season_band::fertiliser_closed);
    missing(field.manure_missing, top, 0);
    if (field.fertiliser_missing != field.manure_missing) missing(field.fertiliser_missing, top, 1);
}

void season_drawing::missing(const std::string& words, double top, int number) const {
    if (words.empty()) return;
    const QRectF place = lane(top, number, season_.first, season_.last).adjusted(0.4 * at_.em, 0, 0, 0);
    painter_.setPen(colours_.ink);
    painter_.drawText(place, Qt::AlignVCenter,
                      QFontMetricsF(font_).elidedText(qt(words), Qt::ElideRight, place.width()));
}

void season_drawing::marks(const field_season& field, double top) const {
    for (const season_mark& mark : field.marks) {
        const int number = mark.kind == applied_as::fertiliser ? 1 : 0;
        draw_mark(painter_, lane(top, number, mark.day, mark.day).center(), 0.95 * at_.em, mark.kind,
                  mark.in_closed_period, colours_);
    }
}

void season_drawing::use(const field_season& field, double top) const {
    QRectF place = lane(top, 0, add_days(season_.last, 1), season_.last);
    place = QRectF(place.left() + 0.5 * at_.em, place.top(), at_.use_width() - at_.em, place.height());
    QString words = field.peak_missing.empty() ? QObject::tr("none applied") : QObject::tr("not known");
    if (field.peak) {
        const double part = field.peak->n_kg_per_ha / rolling_field_limit_kg_per_ha;
        draw_use_bar(painter_, place.adjusted(0, 0.3 * at_.em, 0, -0.3 * at_.em), part,
                     field.peak->over_limit, colours_);
        words = qt(shortest_text(round_to_3(field.peak->n_kg_per_ha))) +
                (field.peak->over_limit ? QObject::tr(" - OVER") : QString());
    }
    painter_.setPen(colours_.ink);
    painter_.drawText(place.translated(0, (lane_height + lane_gap) * at_.em), Qt::AlignCenter, words);
}

void season_drawing::current(int field, date day, bool strong) const {
    const QRectF place = at_.rect_of(field, day);
    painter_.setBrush(Qt::NoBrush);
    painter_.setPen(QPen(palette_.color(strong ? QPalette::Highlight : QPalette::Mid), 2));
    painter_.drawRect(QRectF(1, place.top() + 1, at_.width - 2, place.height() - 2));
    if (place.left() < at_.names_width()) return;
    painter_.setPen(QPen(colours_.ink, 1));
    const QRectF column = place.adjusted(-1, 2, 1, -2);
    painter_.drawLine(column.topLeft(), column.bottomLeft());
    painter_.drawLine(column.topRight(), column.bottomRight());
}

}  // namespace kel
