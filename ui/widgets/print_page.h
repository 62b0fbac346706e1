// Printing a page with the platform's print dialog.
#pragma once

#include <QString>
#include <memory>
#include <string>

#include "reports/report_page.h"

class QPagedPaintDevice;
class QTextDocument;
class QWidget;

namespace kel {

/// Asks for a printer and prints the document there.
void print_document(const QTextDocument& document, QWidget* parent);
/// The same for a page that is not shown; its pictures lie in `folder`.
void print_page(const page_lines& page, const std::string& folder, QWidget* parent);

/// Prints the document on this paper, with the pictures that its viewer would show.
void print_on(QPagedPaintDevice& paper, const QTextDocument& document);
/// A page as a document of its own; its pictures lie in `folder`.
std::unique_ptr<QTextDocument> page_document(const page_lines& page, const std::string& folder);

}  // namespace kel
