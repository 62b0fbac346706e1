// Holds a part of a window that gives way: as large as what is in it where there is room, and scrolled where
// there is not, so that what stands below it stays within reach on a small screen or with large text.
#pragma once

#include <QScrollArea>

namespace kel {

class giving_area : public QScrollArea {
    Q_OBJECT

  public:
    /// Takes the content. `name` is that of the area.
    giving_area(QWidget* content, const QString& name, QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

/// So many characters of the widget's font in pixels, as a width that follows the size of the text.
int characters_px(const QWidget& widget, int count);

}  // namespace kel
