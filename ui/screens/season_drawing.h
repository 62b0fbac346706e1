// Draws the rows of the season calendar where its geometry puts them.
#pragma once

#include <QFont>
#include <QPalette>
#include <algorithm>
#include <vector>

#include "standing/season_calendar.h"
#include "standing/season_months.h"
#include "ui/screens/season_strokes.h"

class QPainter;

namespace kel {

/// Where things lie in the viewport, in its pixels.
struct season_geometry {
    double em = 16;  // height of the text, which everything grows with
    double width = 0;
    double height = 0;
    double day_width = 1;
    int scrolled_x = 0;
    int scrolled_y = 0;
    date first{};

    double heading_height() const { return 1.7 * em; }
    double row_height() const { return 3.6 * em; }
    double names_width() const { return std::clamp(0.18 * width, 6 * em, 13 * em); }
    double use_width() const { return 8.5 * em; }
    /// Beside the names, for marks of the first day.
    double margin() const { return 0.6 * em; }
    double x_of(date day) const {
        return names_width() + margin() + days_between(first, day) * day_width - scrolled_x;
    }
    double y_of(int field) const { return heading_height() + field * row_height() - scrolled_y; }
    QRectF rect_of(int field, date day) const { return {x_of(day), y_of(field), day_width, row_height()}; }
};

class season_drawing {
  public:
    season_drawing(QPainter& painter, const season_geometry& at, const season_calendar& season,
                   const std::vector<month_piece>& months, const QPalette& palette, const QFont& font);

    void headings() const;
    void row(int number) const;
    /// The current row and day; `strong` with the focus.
    void current(int field, date day, bool strong) const;

  private:
    QRectF lane(double top, int number, date from, date to) const;
    void names(const field_season& field, const QRectF& place) const;
    void lanes(const field_season& field, double top) const;
    void missing(const std::string& words, double top, int number) const;
    void marks(const field_season& field, double top) const;
    void use(const field_season& field, double top) const;

    QPainter& painter_;
    const season_geometry& at_;
    const season_calendar& season_;
    const std::vector<month_piece>& months_;
    const QPalette& palette_;
    const QFont& font_;
    season_colours colours_;
};

}  // namespace kel
