// The page of the report viewer: local pages with relative links. Nothing in a page can run and no network is
// touched; a web address goes to the desktop's browser.
#pragma once

#include <QTextBrowser>

namespace kel {

/// The bytes of a plain local file, and none of anything else. Report text is not escaped, so a page may ask
/// for any file, also for one that never ends; an answer without a value would have the toolkit read it.
QVariant plain_file(const QUrl& url);

class page_view : public QTextBrowser {
    Q_OBJECT

  public:
    explicit page_view(QWidget* parent = nullptr);
    /// Shows a local page or hands a web address to the desktop, telling so on the page. False: there is no
    /// such page.
    bool navigate(const QString& page);

  protected:
    QVariant loadResource(int type, const QUrl& name) override;

  private:
    bool follow(const QUrl& url);
};

}  // namespace kel
