#include "ui/widgets/print_job.h"

#include <QApplication>
#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QScopeGuard>
#include <QStringDecoder>
#include <algorithm>
#include <stdexcept>

#include "core/file_error.h"
#include "ui/widgets/paper_page.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace {

constexpr const char* creator = "KEL Calculator";
constexpr double foot_pt = smallest_text_pt;
constexpr QMarginsF margins{15, 15, 15, 15};  // mm
constexpr int pdf_dots_per_inch = 1200;

QFont foot_font() {
    QFont font = QApplication::font();
    font.setPointSizeF(foot_pt);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

// Two lines and a rule above them.
double foot_height(QPagedPaintDevice& device) {
    return QFontMetricsF(foot_font(), &device).lineSpacing() * 2.8;
}

bool upright_first(const QPagedPaintDevice& device) {
    return device.pageLayout().orientation() == QPageLayout::Portrait;
}

QPageLayout laid(const QPagedPaintDevice& device, bool across) {
    QPageLayout layout = device.pageLayout();
    layout.setOrientation(across ? QPageLayout::Landscape : QPageLayout::Portrait);
    return layout;
}

}  // namespace

printed_page page_of_file(const std::string& path) {
    QFile file(qt(path));
    if (!file.open(QIODevice::ReadOnly)) throw file_error(path, from_qt(file.errorString()) + '.');
    const QByteArray bytes = file.readAll();
    QStringDecoder decoder = QStringDecoder::decoderForHtml(bytes);
    return {.html = decoder(bytes),
            .folder = QUrl::fromLocalFile(qt(path)),
            .origin = read_origin({bytes.constData(), static_cast<std::size_t>(bytes.size())})};
}

printed_page page_of_lines(const page_lines& lines, const std::string& folder) {
    std::string page;
    for (const std::string& line : lines)
        page.append(line).append("\n");
    return {.html = qt(page), .folder = QUrl::fromLocalFile(qt(folder) + '/'), .origin = read_origin(page)};
}

std::vector<printed_page> pages_of_files(const std::vector<std::string>& paths) {
    std::vector<printed_page> pages;
    pages.reserve(paths.size());
    for (const std::string& path : paths)
        pages.push_back(page_of_file(path));
    return pages;
}

print_job::print_job(const std::vector<printed_page>& pages, QPagedPaintDevice& device, date today)
    : device_(device), upright_(upright_first(device)), today_(today) {
    // A person who chose landscape gets it for all pages.
    const QSizeF across = room(true);
    const paper_room rooms{upright_ ? room(false) : across, across};
    const QSizeF least = rooms.upright.boundedTo(rooms.across);
    if (std::min(least.width(), least.height()) < foot_height(device))
        throw std::runtime_error("The paper is too small to print on.");
    for (const printed_page& page : pages) {
        pages_.push_back(std::make_unique<paper_page>(page.html, page.folder, &device, rooms));
        origins_.push_back(page.origin);
        for (int sheet = 0; sheet < pages_.back()->sheets(); ++sheet)
            sheets_.push_back({pages_.size() - 1, sheet});
    }
}

print_job::~print_job() = default;

QSizeF print_job::room(bool across) const {
    const QSizeF paper = laid(device_, across).paintRectPixels(device_.logicalDpiX()).size();
    return {paper.width(), paper.height() - foot_height(device_)};
}

bool print_job::lies_across(int sheet) const {
    return !upright_ || pages_[sheets_[static_cast<std::size_t>(sheet)].page]->lies_across();
}

sheet_foot print_job::foot(int sheet) const {
    const auto& origin = origins_[sheets_[static_cast<std::size_t>(sheet)].page];
    const date day = origin && origin->made ? *origin->made : today_;
    return {.farm = origin ? qt(origin->farm) : QString(),
            .number = QObject::tr("Page %1 of %2").arg(sheet + 1).arg(sheets()),
            .year = origin ? qt(year_text(*origin)) : QString(),
            .day = qt(long_date_text(day))};
}

void print_job::draw(int sheet, QPainter& painter) const {
    const numbered_sheet& drawn = sheets_[static_cast<std::size_t>(sheet)];
    pages_[drawn.page]->draw(drawn.sheet, painter);
    draw_foot(sheet, painter);
}

void print_job::draw_foot(int sheet, QPainter& painter) const {
    const sheet_foot texts = foot(sheet);
    const QSizeF above = room(lies_across(sheet));
    const QFontMetricsF metrics(foot_font(), painter.device());
    const double line = metrics.lineSpacing();
    QRectF place(0, above.height() + 0.8 * line, above.width(), line);
    painter.setFont(foot_font());
    painter.setPen(QPen(Qt::black, 0));
    painter.drawLine(QPointF(0, place.top() - 0.2 * line), QPointF(above.width(), place.top() - 0.2 * line));
    const auto draw_line = [&](const QString& left, const QString& right) {
        const double room_left = place.width() - metrics.horizontalAdvance(right + "  ");
        painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter, right);
        painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                         metrics.elidedText(left, Qt::ElideRight, room_left));
        place.translate(0, line);
    };
    draw_line(texts.farm, texts.number);
    draw_line(texts.year, texts.day);
}

bool print_job::print(int first, int last) {
    const auto turn = [this](int sheet) {
        device_.setPageOrientation(lies_across(sheet) ? QPageLayout::Landscape : QPageLayout::Portrait);
    };
    turn(first);
    QPainter painter;
    if (!painter.begin(&device_)) return false;
    for (int sheet = first; sheet <= last; ++sheet) {
        if (sheet > first) {
            turn(sheet);
            if (!device_.newPage()) return false;
        }
        draw(sheet, painter);
    }
    return painter.end();
}

void print_with_dialog(const std::vector<printed_page>& pages, date today, QWidget* parent) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageMargins(margins, QPageLayout::Millimeter);
    printer.setDocName(creator);
    QPrintDialog dialog(&printer, parent);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange);
    if (dialog.exec() != QDialog::Accepted) return;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const auto waiting = qScopeGuard([] { QApplication::restoreOverrideCursor(); });
    print_job job(pages, printer, today);
    const bool range = printer.printRange() == QPrinter::PageRange && printer.fromPage() > 0;
    const int first = range ? std::min(printer.fromPage(), job.sheets()) - 1 : 0;
    const int last = range ? std::clamp(printer.toPage() - 1, first, job.sheets() - 1) : job.sheets() - 1;
    if (job.print(first, last)) return;
    const QString& name =
        printer.outputFileName().isEmpty() ? printer.printerName() : printer.outputFileName();
    throw file_error(from_qt(name), "it could not be printed.");
}

std::string pdf_of(const std::vector<printed_page>& pages, const QString& title, date today) {
    QByteArray content;
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setTitle(title);
        writer.setCreator(creator);
        writer.setResolution(pdf_dots_per_inch);
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setPageMargins(margins, QPageLayout::Millimeter);
        print_job job(pages, writer, today);
        if (!job.print(0, job.sheets() - 1)) throw std::runtime_error("The PDF could not be made.");
    }
    return content.toStdString();
}

}  // namespace kel
