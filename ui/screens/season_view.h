// The season calendar as a drawing: a row for each field with a lane for slurries and manures and one for
// inorganic nitrogen, and a bar of how much of the limit is used. Hatching and letters say everything that
// colours say. Only the rows in view are drawn.
#pragma once

#include <QAbstractScrollArea>

#include "standing/season_calendar.h"
#include "standing/season_months.h"
#include "ui/screens/season_drawing.h"

namespace kel {

/// A day of a field, by its row.
struct season_place {
    int field = 0;
    date day{};
    bool operator==(const season_place&) const = default;
};

class season_view : public QAbstractScrollArea {
    Q_OBJECT

  public:
    explicit season_view(QWidget* parent = nullptr);

    /// Shows it from now on; it must live until another one is shown. The current day stays where it can.
    void show_season(const season_calendar& season);
    const season_place& current() const { return current_; }
    void go_to(const season_place& place);

    /// One step larger or smaller; 0: the usual size.
    void zoom(int steps);

    /// Where a day lies in the viewport, and what lies there; nothing outside the days.
    QRectF rect_of(const season_place& place) const;
    std::optional<season_place> place_at(const QPointF& point) const;

  signals:
    /// The day that is to be told has become another one: under the pointer, or the current one.
    void place_changed(const season_place& place);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    season_geometry geometry() const;
    int rows_in_view() const;
    void lay_out();
    void step_to(int field, int days);
    date month_step(int months) const;

    const season_calendar* season_ = nullptr;
    std::vector<month_piece> months_;
    season_place current_;
    int zoom_step_;
};

}  // namespace kel
