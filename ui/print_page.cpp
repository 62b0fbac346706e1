#include "ui/print_page.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>
#include <QUrl>

#include "ui/qt_text.h"

namespace kel {

void print_document(const QTextDocument& document, QWidget* parent) {
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, parent);
    if (dialog.exec() == QDialog::Accepted) document.print(&printer);
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
