#include "ui/widgets/paper_document.h"

#include <QAbstractEventDispatcher>
#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QPaintDevice>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextOption>
#include <QTextTable>
#include <QTimerEvent>
#include <algorithm>

#include "ui/widgets/page_address.h"

namespace kel {

namespace {

constexpr double cell_padding_px = 2.5;
constexpr double border_px = 0.5;
constexpr int border_grey = 110;
// A word of more letters is no word, and may break where no paper has room for it.
constexpr int longest_word = 24;
constexpr QChar break_here(0x200B);

template <class Action>
void for_each_fragment(const QTextDocument& document, Action action) {
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        for (auto it = block.begin(); !it.atEnd(); ++it)
            action(it.fragment());
}

// Formats are set when all are known: two neighbours of one format become one fragment.
struct new_format {
    int position;
    int length;
    QTextCharFormat format;
};

new_format format_of(const QTextFragment& fragment, const QTextCharFormat& format) {
    return {.position = fragment.position(), .length = fragment.length(), .format = format};
}

void set_formats(QTextDocument& document, const QList<new_format>& formats) {
    QTextCursor cursor(&document);
    for (const new_format& wanted : formats) {
        cursor.setPosition(wanted.position);
        cursor.setPosition(wanted.position + wanted.length, QTextCursor::KeepAnchor);
        cursor.setCharFormat(wanted.format);
    }
}

// Sizes are relative to the document's, or of the page's own in points or pixels.
bool is_small(const QTextFormat& format) {
    constexpr double pt_of_px = 0.75;
    if (format.intProperty(QTextFormat::FontSizeAdjustment) < 0) return true;
    if (format.hasProperty(QTextFormat::FontPointSize))
        return format.doubleProperty(QTextFormat::FontPointSize) < smallest_text_pt;
    return format.hasProperty(QTextFormat::FontPixelSize) &&
           format.intProperty(QTextFormat::FontPixelSize) * pt_of_px < smallest_text_pt;
}

// Where a word of more than longest_word letters may break.
QList<int> breaks_of(const QString& text) {
    QList<int> breaks;
    int letters = 0;
    for (int i = 0; i < text.size(); ++i) {
        letters = text[i].isSpace() ? 0 : letters + 1;
        if (letters > longest_word / 2 && !text[i].isLowSurrogate()) {
            breaks << i;
            letters = 1;
        }
    }
    return breaks;
}

// The layout goes on in steps that grow, each begun by a timer. One who asks for all of it gets steps of the
// first size, each of which looks through all tables that are left: the timer's events are sent at once.
void lay_out_in_growing_steps(QAbstractTextDocumentLayout& layout) {
    constexpr int most_steps = 1000;  // more than any page takes
    const auto* events = QAbstractEventDispatcher::instance();
    bool goes_on = events != nullptr;
    for (int step = 0; goes_on && step < most_steps; ++step) {
        const auto timers = events->registeredTimers(&layout);
        goes_on = !timers.isEmpty();
        for (const auto& timer : timers) {
            QTimerEvent now(timer.timerId);
            QCoreApplication::sendEvent(&layout, &now);
        }
    }
}

}  // namespace

paper_document::paper_document(const QString& html, const QUrl& folder) {
    setUndoRedoEnabled(false);
    setDocumentMargin(0);
    setBaseUrl(folder);
    QFont font = QApplication::font();
    font.setPointSizeF(smallest_text_pt);
    font.setHintingPreference(QFont::PreferNoHinting);
    setDefaultFont(font);
    QTextOption whole_words;
    whole_words.setWrapMode(QTextOption::WordWrap);
    whole_words.setUseDesignMetrics(true);
    setDefaultTextOption(whole_words);
    setHtml(html);
    raise_small_text();
    set_tables();
}

QVariant paper_document::loadResource(int type, const QUrl& name) {
    const QUrl url = file_of_page(baseUrl(), name);
    // Without any answer the toolkit would read the file by itself.
    if (url.isEmpty() || type != QTextDocument::ImageResource) return QByteArray();
    const auto known = pictures_.constFind(url);
    if (known != pictures_.constEnd()) return *known;
    return *pictures_.insert(url, QImage(url.toLocalFile()));
}

void paper_document::raise_small_text() {
    const auto formats = allFormats();
    if (std::none_of(formats.begin(), formats.end(), is_small)) return;
    QList<new_format> raised;
    for_each_fragment(*this, [&](const QTextFragment& fragment) {
        const QTextCharFormat format = fragment.charFormat();
        if (!is_small(format)) return;
        QTextCharFormat plain = format;
        plain.clearProperty(QTextFormat::FontSizeAdjustment);
        plain.clearProperty(QTextFormat::FontPixelSize);
        plain.setFontPointSize(smallest_text_pt);
        raised << format_of(fragment, plain);
    });
    set_formats(*this, raised);
}

void paper_document::set_tables() {
    for (QTextFrame* frame : rootFrame()->childFrames()) {
        auto* table = qobject_cast<QTextTable*>(frame);
        if (!table || table->format().border() == 0) continue;
        QTextTableFormat format = table->format();
        format.setBorder(border_px);
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setBorderBrush(QColor(border_grey, border_grey, border_grey));
        format.setCellPadding(cell_padding_px);
        table->setFormat(format);
    }
}

void paper_document::fit_pictures(double width_px, double dpi) {
    const double widest = width_px * 96 / dpi;
    QList<new_format> fitted;
    for_each_fragment(*this, [&](const QTextFragment& fragment) {
        QTextImageFormat format = fragment.charFormat().toImageFormat();
        if (!format.isValid()) return;
        const QImage picture = resource(QTextDocument::ImageResource, QUrl(format.name())).value<QImage>();
        const double width = format.width() > 0 ? format.width() : picture.width();
        if (width <= widest) return;
        const double height = format.height() > 0 ? format.height() : picture.height();
        format.setWidth(widest);
        format.setHeight(height * widest / width);
        fitted << format_of(fragment, format);
    });
    set_formats(*this, fitted);
}

double paper_document::lay_out(QPaintDevice* device, double width_px) {
    fit_pictures(width_px, device->logicalDpiX());
    // A font of another device would be looked up anew for each word.
    setDefaultFont(QFont(defaultFont(), device));
    documentLayout()->setPaintDevice(device);
    setTextWidth(width_px);
    lay_out_in_growing_steps(*documentLayout());
    double taken = 0;
    for (const QTextFrame* frame : rootFrame()->childFrames())
        taken = std::max(taken, documentLayout()->frameBoundingRect(const_cast<QTextFrame*>(frame)).width());
    return taken;
}

void paper_document::break_long_words() {
    for (QTextBlock block = begin(); block.isValid(); block = block.next()) {
        const QList<int> breaks = breaks_of(block.text());
        QTextCursor cursor(block);
        for (auto at = breaks.rbegin(); at != breaks.rend(); ++at) {
            cursor.setPosition(block.position() + *at);
            cursor.insertText(QString(break_here));
        }
    }
}

int paper_document::most_columns() const {
    int most = 0;
    for (const QTextFrame* frame : rootFrame()->childFrames())
        if (const auto* table = qobject_cast<const QTextTable*>(frame))
            most = std::max(most, table->columns());
    return most;
}

}  // namespace kel
