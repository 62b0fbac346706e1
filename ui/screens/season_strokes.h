// How the season calendar draws its bands and marks: each with a hatching and a letter of its own, so that
// it is read without its colours. The legend draws with the same strokes.
#pragma once

#include <QColor>
#include <QRectF>
#include <QString>

#include "standing/season_calendar.h"

class QPainter;
class QPalette;

namespace kel {

enum class season_band { manure_closed, no_land, fertiliser_closed };

struct season_colours {
    QColor ground;
    QColor ink;
    QColor faint;
    QColor manure;
    QColor fertiliser;
};
season_colours colours_of(const QPalette& palette);

/// A hatched band with its letter in the middle, where that has room.
void draw_band(QPainter& painter, const QRectF& place, season_band band, const season_colours& colours);
/// A mark round this point, `size` high; one in a closed period has a second frame.
void draw_mark(QPainter& painter, const QPointF& middle, double size, applied_as kind, bool in_closed_period,
               const season_colours& colours);
/// A bar that is as full as `part` of it, over 1 with an exclamation mark.
void draw_use_bar(QPainter& painter, const QRectF& place, double part, bool over,
                  const season_colours& colours);

}  // namespace kel
