#include "ui/widgets/page_view.h"

#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QScrollBar>

namespace kel {

namespace {

constexpr int table_rounding_px = 2;

// The tag of an icon in the field record is not closed, so that what fills its cell follows the address.
QUrl address_alone(const QUrl& name) {
    const QString path = name.path(QUrl::FullyDecoded);
    const auto end = path.indexOf(QChar::Nbsp);
    if (end < 0) return name;
    QUrl alone = name;
    alone.setPath(path.left(end));
    return alone;
}

}  // namespace

QVariant plain_file(const QUrl& url) {
    QFile file(url.toLocalFile());
    const bool plain = url.isLocalFile() && QFileInfo(file).isFile() && file.open(QIODevice::ReadOnly);
    return plain ? file.readAll() : QByteArray();
}

page_view::page_view(QWidget* parent) : QTextBrowser(parent) {
    setOpenLinks(false);
    setAccessibleName(tr("Page"));
    // Pages are written for white paper, whatever the desktop's theme is.
    QPalette paper = palette();
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    paper.setColor(QPalette::Link, QColor(0, 70, 160));
    setPalette(paper);
    document()->setDocumentMargin(16);
    // A table of full width may come out wider than the page by what its columns were rounded up.
    connect(horizontalScrollBar(), &QScrollBar::rangeChanged, this, [this](int, int furthest) {
        setHorizontalScrollBarPolicy(furthest > table_rounding_px ? Qt::ScrollBarAsNeeded
                                                                  : Qt::ScrollBarAlwaysOff);
    });
    connect(this, &QTextBrowser::anchorClicked, this,
            [this](const QUrl& link) { follow(source().resolved(link)); });
}

bool page_view::navigate(const QString& page) {
    const bool web = page.startsWith("http://") || page.startsWith("https://");
    if (!follow(web ? QUrl(page) : QUrl::fromLocalFile(page))) return false;
    // A report made anew has the address of the one before it.
    if (!web) reload();
    return true;
}

bool page_view::follow(const QUrl& url) {
    if (url.scheme().startsWith("http") || url.scheme() == "mailto") {
        QDesktopServices::openUrl(url);
        setHtml(tr("<p>The page <b>%1</b> is shown in your web browser.</p>")
                    .arg(url.toDisplayString().toHtmlEscaped()));
        return true;
    }
    if (!url.isLocalFile() || !QFileInfo(url.toLocalFile()).isFile()) {
        setHtml(tr("<p>There is no page <b>%1</b>.</p>")
                    .arg(url.toDisplayString(QUrl::PreferLocalFile).toHtmlEscaped()));
        return false;
    }
    setSource(url);
    return true;
}

QVariant page_view::loadResource(int /*type*/, const QUrl& name) {
    return plain_file(source().resolved(address_alone(name)));
}

}  // namespace kel
