// Screens under measure: what was done counts only once it has been painted.
#pragma once

#include <QObject>

class QWidget;

namespace kel::bench {

/// Counts the paintings of a widget.
class paint_watch : public QObject {
  public:
    explicit paint_watch(QWidget* watched);

    /// Lets the event loop run until the widget has been painted since the last call. Throws
    /// std::runtime_error if that does not happen.
    void wait_until_painted();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    int paintings_ = 0;
};

}  // namespace kel::bench
