#include "ui/widgets/print_page.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>
#include <QUrl>
#include <memory>

#include "ui/widgets/qt_text.h"

namespace kel {

namespace {
constexpr double layout_width_px = 960;
}

void print_document(const QTextDocument& document, QWidget* parent) {
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, parent);
    if (dialog.exec() != QDialog::Accepted) return;
    // Laid out as wide as on the screen and scaled to the paper, so that wide tables keep their words whole.
    const std::unique_ptr<QTextDocument> sheet(document.clone());
    const QRectF paper = printer.pageRect(QPrinter::Point);
    sheet->setPageSize({layout_width_px, layout_width_px * paper.height() / paper.width()});
    sheet->print(&printer);
}

void print_page(const page_lines& page, const std::string& folder, QWidget* parent) {
    QString html;
    for (const std::string& line : page)
        html += qt(line) + '\n';
    QTextDocument document;
    document.setBaseUrl(QUrl::fromLocalFile(qt(folder) + '/'));
    document.setHtml(html);
    print_document(document, parent);
}

}  // namespace kel
