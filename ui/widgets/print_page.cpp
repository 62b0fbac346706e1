#include "ui/widgets/print_page.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>
#include <QUrl>

#include "ui/widgets/page_view.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace {

constexpr double layout_width_px = 960;

class unshown_page : public QTextDocument {
  protected:
    QVariant loadResource(int /*type*/, const QUrl& name) override { return plain_file(name); }
};

}  // namespace

// Laid out as wide as on the screen and scaled to the paper, so that wide tables keep their words whole. The
// copy asks the one who shows the document, or the document itself, for the pictures.
void print_on(QPagedPaintDevice& paper, const QTextDocument& document) {
    QObject* viewer = document.parent() ? document.parent() : const_cast<QTextDocument*>(&document);
    const std::unique_ptr<QTextDocument> sheet(document.clone(viewer));
    sheet->setBaseUrl(document.baseUrl());
    const QRectF area = paper.pageLayout().paintRect(QPageLayout::Point);
    sheet->setPageSize({layout_width_px, layout_width_px * area.height() / area.width()});
    sheet->print(&paper);
}

void print_document(const QTextDocument& document, QWidget* parent) {
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, parent);
    if (dialog.exec() == QDialog::Accepted) print_on(printer, document);
}

std::unique_ptr<QTextDocument> page_document(const page_lines& page, const std::string& folder) {
    QString html;
    for (const std::string& line : page)
        html += qt(line) + '\n';
    auto document = std::make_unique<unshown_page>();
    document->setBaseUrl(QUrl::fromLocalFile(qt(folder) + '/'));
    document->setHtml(html);
    return document;
}

void print_page(const page_lines& page, const std::string& folder, QWidget* parent) {
    print_document(*page_document(page, folder), parent);
}

}  // namespace kel
