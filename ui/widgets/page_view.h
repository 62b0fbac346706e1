// The page of the report viewer: local pages with relative links. Nothing in a page can run and no network is
// touched; a web address goes to the desktop's browser.
#pragma once

#include <QTextBrowser>

namespace kel {

class page_view : public QTextBrowser {
    Q_OBJECT

  public:
    explicit page_view(QWidget* parent = nullptr);
    /// Shows a local page or hands a web address to the desktop, telling so on the page. False: there is no
    /// such page.
    bool navigate(const QString& page);

    /// Larger or smaller text by so many steps; 0 is the usual size again.
    void zoom(int steps);
    int zoom_percent() const;

  protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    bool follow(const QUrl& url);
    std::size_t zoom_step_;
};

}  // namespace kel
