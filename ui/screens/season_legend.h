// What the strokes of the season calendar mean, drawn with the same strokes.
#pragma once

#include <QWidget>

namespace kel {

class season_legend : public QWidget {
    Q_OBJECT

  public:
    explicit season_legend(QWidget* parent = nullptr);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace kel
