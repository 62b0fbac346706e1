#include "ui/screens/season_legend.h"

#include <QPainter>
#include <algorithm>
#include <array>

#include "ui/screens/season_strokes.h"

namespace kel {

namespace {

enum class stroke { manure_closed, no_land, fertiliser_closed, manure, exempt, fertiliser, breach };

struct legend_entry {
    stroke drawn;
    const char* words;
};
constexpr std::array<legend_entry, 7> entries{{
    {stroke::manure_closed, QT_TR_NOOP("closed to slurries and manures (farmyard manure is free)")},
    {stroke::no_land, QT_TR_NOOP("no land free")},
    {stroke::fertiliser_closed, QT_TR_NOOP("closed to inorganic nitrogen")},
    {stroke::manure, QT_TR_NOOP("slurry or manure applied")},
    {stroke::exempt, QT_TR_NOOP("farmyard manure of cattle or pigs")},
    {stroke::fertiliser, QT_TR_NOOP("fertiliser")},
    {stroke::breach, QT_TR_NOOP("framed: in a closed period")},
}};

// In heights of the text.
constexpr double swatch_width = 2.4;
constexpr double gap = 1.2;
constexpr double line_height = 1.5;

void draw_swatch(QPainter& painter, const QRectF& place, stroke drawn, const season_colours& colours) {
    const double size = 0.85 * place.height();
    const auto mark = [&](applied_as kind, bool breach) {
        draw_mark(painter, place.center(), breach ? 0.7 * size : size, kind, breach, colours);
    };
    switch (drawn) {
        case stroke::manure_closed:
            return draw_band(painter, place, season_band::manure_closed, colours);
        case stroke::no_land:
            return draw_band(painter, place, season_band::no_land, colours);
        case stroke::fertiliser_closed:
            return draw_band(painter, place, season_band::fertiliser_closed, colours);
        case stroke::manure:
            return mark(applied_as::manure, false);
        case stroke::exempt:
            return mark(applied_as::exempt_manure, false);
        case stroke::fertiliser:
            return mark(applied_as::fertiliser, false);
        case stroke::breach:
            return mark(applied_as::manure, true);
    }
}

// Calls `put` with the place of each entry in lines of that width; returns the height of all.
template <class Put>
double lay_out(const QFontMetrics& metrics, double width, const Put& put) {
    const double em = metrics.height();
    double x = 0;
    double y = 0;
    for (const legend_entry& entry : entries) {
        const double wide =
            (swatch_width + 0.5) * em + metrics.horizontalAdvance(season_legend::tr(entry.words));
        if (x > 0 && x + wide > width) {
            x = 0;
            y += line_height * em;
        }
        put(entry, QRectF(x, y, wide, line_height * em));
        x += wide + gap * em;
    }
    return y + line_height * em;
}

}  // namespace

season_legend::season_legend(QWidget* parent) : QWidget(parent) {
    setObjectName("lblCalendar_legend");
    setAccessibleName(tr("Legend"));
    QStringList words;
    for (const legend_entry& entry : entries)
        words << tr(entry.words);
    setAccessibleDescription(words.join("; "));
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

int season_legend::heightForWidth(int width) const {
    return qRound(lay_out(fontMetrics(), width, [](const legend_entry&, const QRectF&) {}));
}

QSize season_legend::sizeHint() const {
    const int width = 30 * fontMetrics().height();
    return {width, heightForWidth(std::max(width, this->width()))};
}

void season_legend::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    season_colours colours = colours_of(palette());
    const double em = fontMetrics().height();
    lay_out(fontMetrics(), width(), [&](const legend_entry& entry, const QRectF& place) {
        const QRectF swatch(place.left(), place.top() + 0.1 * em, swatch_width * em, 1.25 * em);
        draw_swatch(painter, swatch, entry.drawn, colours);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(place.adjusted((swatch_width + 0.4) * em, 0, em, 0), Qt::AlignVCenter,
                         tr(entry.words));
    });
}

}  // namespace kel
