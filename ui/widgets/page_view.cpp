#include "ui/widgets/page_view.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QImage>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <array>

#include "ui/widgets/page_address.h"

namespace kel {

namespace {

constexpr int page_margin_px = 16;
constexpr std::array<int, 11> zoom_percents{60, 75, 90, 100, 110, 125, 150, 175, 200, 250, 300};
constexpr std::size_t usual_zoom = 3;
static_assert(zoom_percents[usual_zoom] == 100);

// The chart is drawn for paper and has more dots than the screen shows.
QImage for_screen(const QImage& picture, double pixel_ratio) {
    constexpr double screen_dots_per_m = 3780;
    const double finer = picture.dotsPerMeterX() / screen_dots_per_m;
    if (picture.isNull() || finer < 1.5) return picture;
    QImage shown = picture.scaled(picture.size() * (pixel_ratio / finer), Qt::IgnoreAspectRatio,
                                  Qt::SmoothTransformation);
    shown.setDevicePixelRatio(pixel_ratio);
    return shown;
}

}  // namespace

page_view::page_view(QWidget* parent) : QTextBrowser(parent), zoom_step_(usual_zoom) {
    setOpenLinks(false);
    setAccessibleName(tr("Page"));
    // Pages are written for white paper, whatever the desktop's theme is.
    QPalette paper = palette();
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    paper.setColor(QPalette::Link, QColor(0, 70, 160));
    setPalette(paper);
    document()->setDocumentMargin(page_margin_px);
    // A table of full width may come out wider than the page by what its columns were rounded up; that is
    // less than the margin, in which there is nothing to be seen.
    connect(horizontalScrollBar(), &QScrollBar::rangeChanged, this, [this](int, int furthest) {
        setHorizontalScrollBarPolicy(furthest > page_margin_px ? Qt::ScrollBarAsNeeded
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

QVariant page_view::loadResource(int type, const QUrl& name) {
    const QUrl url = file_of_page(source(), name);
    // Without any answer the toolkit would read the file by itself.
    if (url.isEmpty()) return QByteArray();
    if (type == QTextDocument::ImageResource)
        return for_screen(QImage(url.toLocalFile()), devicePixelRatioF());
    return QTextBrowser::loadResource(type, url);
}

int page_view::zoom_percent() const {
    return zoom_percents.at(zoom_step_);
}

void page_view::zoom(int steps) {
    const auto last = static_cast<int>(zoom_percents.size()) - 1;
    zoom_step_ = steps == 0
                     ? usual_zoom
                     : static_cast<std::size_t>(std::clamp(static_cast<int>(zoom_step_) + steps, 0, last));
    const QScrollBar* bar = verticalScrollBar();
    const double place = bar->maximum() > 0 ? double(bar->value()) / bar->maximum() : 0;
    QFont larger = font();
    larger.setPointSizeF(QApplication::font(this).pointSizeF() * zoom_percent() / 100);
    setFont(larger);
    verticalScrollBar()->setValue(qRound(place * verticalScrollBar()->maximum()));
}

void page_view::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) return QTextBrowser::wheelEvent(event);
    if (event->angleDelta().y() != 0) zoom(event->angleDelta().y() > 0 ? 1 : -1);
    event->accept();
}

}  // namespace kel
