// The text of the panel "Why?": read, selected and copied with the pointer or by keyboard, larger and smaller
// with Ctrl and plus, minus or the wheel.
#pragma once

#include <QTextBrowser>

namespace kel {

class why_text : public QTextBrowser {
    Q_OBJECT

  public:
    explicit why_text(QWidget* parent);

    int zoom() const { return zoom_; }
    void set_zoom(int steps);
    /// Shows the page from its top, unless it is the one in view.
    void show_page(const QString& html);

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    int zoom_ = 0;
    QString page_;
};

}  // namespace kel
