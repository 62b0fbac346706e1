// Printing a page with the platform's print dialog.
#pragma once

#include <QString>

#include "reports/report_page.h"

class QTextDocument;
class QWidget;

namespace kel {

/// Asks for a printer and prints the document there.
void print_document(const QTextDocument& document, QWidget* parent);
/// The same for a page that is not shown; its pictures lie in `folder`.
void print_page(const page_lines& page, const std::string& folder, QWidget* parent);

}  // namespace kel
