// The map of Scotland: the coast, the zones tinted, the grid and the marker of the chosen square. Everything
// is drawn from figures in the map's twips, so it is sharp at any size. The pointer reports twips; the arrow
// keys move the square.
#pragma once

#include <QColor>
#include <QPainterPath>
#include <QWidget>
#include <optional>
#include <string>
#include <vector>

#include "profile/location.h"

namespace kel {

class map_view : public QWidget {
    Q_OBJECT

  public:
    map_view(const std::vector<zone_square>& squares, QWidget* parent);

    struct legend_entry {
        std::string zone;
        QColor colour;
    };
    std::vector<legend_entry> legend() const;

    void show_grid(bool on);
    /// Marks the square of these numbers, or none.
    void mark_square(std::optional<map_square> square);
    QSize sizeHint() const override;

  signals:
    void pointer_moved(int x_twips, int y_twips);
    void map_clicked(int x_twips, int y_twips);
    void square_stepped(int dx, int dy);
    void square_confirmed();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    struct tint {
        std::string zone;
        QColor colour;
        QPainterPath area;
    };
    QTransform twips_to_widget() const;
    QPoint twips_at(const QPointF& position) const;
    void draw_grid(QPainter& painter) const;
    QPainterPath land_;
    QPainterPath border_;
    std::vector<tint> tints_;
    std::optional<map_square> marked_;
    bool grid_ = true;
};

}  // namespace kel
