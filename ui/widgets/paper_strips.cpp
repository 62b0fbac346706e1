#include "ui/widgets/paper_strips.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QPaintDevice>
#include <QScreen>
#include <QTextBlock>
#include <QTextFrame>
#include <QTextLayout>
#include <QTextTable>
#include <algorithm>
#include <cmath>

namespace kel {

namespace {

// A paragraph of so few lines is not parted.
constexpr int lines_that_stay_together = 4;

QRectF rect_of(const QTextDocument& document, const QTextBlock& block) {
    return document.documentLayout()->blockBoundingRect(block);
}

bool is_rule(const QTextBlock& block) {
    return block.blockFormat().hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth);
}

bool is_heading(const QTextBlock& block) {
    if (is_rule(block)) return true;
    bool any = false;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        if (it.fragment().text().trimmed().isEmpty()) continue;
        any = true;
        if (it.fragment().charFormat().fontWeight() < QFont::Bold) return false;
    }
    return any;
}

// A table has an empty paragraph before and behind it, which is not shown.
bool hidden_beside_table(const QTextFrame::iterator& it) {
    const QTextBlock block = it.currentBlock();
    if (block.length() > 1 || is_rule(block)) return false;
    QTextFrame::iterator before = it;
    QTextFrame::iterator behind = it;
    return (!(++behind).atEnd() && behind.currentFrame()) ||
           (it != it.parentFrame()->begin() && (--before).currentFrame());
}

void append_block(const QTextDocument& document, const QTextBlock& block, QList<paper_strip>& strips) {
    const QRectF rect = rect_of(document, block);
    const int lines = block.layout()->lineCount();
    const bool heading = is_heading(block) || (!block.textList() && block.next().textList());
    if (lines <= lines_that_stay_together) {
        strips << paper_strip{
            .top = rect.top(), .bottom = rect.bottom(), .with_next = heading, .rule = is_rule(block)};
        return;
    }
    for (int i = 0; i < lines; ++i) {
        const QTextLine line = block.layout()->lineAt(i);
        const double top = rect.top() + line.y();
        // Neither its first nor its last line stands alone.
        const bool stays = i == 0 || i == lines - 2;
        strips << paper_strip{
            .top = top, .bottom = top + line.height(), .with_next = stays || (heading && i == lines - 1)};
    }
}

// What lies above the text of a cell, in pixels of the device.
double above_text(const QTextDocument& document, const QTextTable& table) {
    const double screen = std::round(QGuiApplication::primaryScreen()->logicalDotsPerInchX());
    const double scale = document.documentLayout()->paintDevice()->logicalDpiX() / screen;
    const QTextTableFormat format = table.format();
    const double border =
        format.borderCollapse() ? format.border() / 2 : format.border() + format.cellSpacing();
    return (border + format.cellPadding()) * scale;
}

// The toolkit's rectangle of a table begins at the text of its first cell.
QRectF rect_of(const QTextDocument& document, QTextTable& table) {
    const double above = above_text(document, table);
    return document.documentLayout()->frameBoundingRect(&table).translated(0, -above);
}

// The top of the text in a row, that of its highest cell.
double row_text_top(const QTextDocument& document, const QTextTable& table, int row) {
    double top = -1;
    for (int column = 0; column < table.columns(); ++column) {
        const QTextTableCell cell = table.cellAt(row, column);
        if (cell.row() != row) continue;
        const double of_cell = rect_of(document, cell.firstCursorPosition().block()).top();
        top = top < 0 ? of_cell : std::min(top, of_cell);
        const auto aligned = cell.format().toTableCellFormat().verticalAlignment();
        if (aligned == QTextCharFormat::AlignNormal || aligned == QTextCharFormat::AlignTop) break;
    }
    return top;
}

bool begins_in_row_above(const QTextTable& table, int row) {
    for (int column = 0; column < table.columns(); ++column)
        if (table.cellAt(row, column).row() != row) return true;
    return false;
}

void append_table(const QTextDocument& document, QTextTable& table, QList<paper_strip>& strips) {
    const QRectF frame = rect_of(document, table);
    const double above = above_text(document, table);
    const int headings = std::min(table.format().headerRowCount(), table.rows() - 1);
    const qsizetype first = strips.size();
    double headings_bottom = frame.top();
    for (int row = 0; row < table.rows(); ++row) {
        const double top = row == 0 ? frame.top() : row_text_top(document, table, row) - above;
        const bool joined = row > 0 && (row < headings || begins_in_row_above(table, row));
        if (row > 0 && !joined) strips.back().bottom = top;
        if (row == headings) headings_bottom = top;
        if (joined) continue;
        strips << paper_strip{.top = top, .with_next = row < headings};
        if (row > headings) strips.back().headings_top = frame.top();
        strips.back().headings_bottom = row > headings ? headings_bottom : strips.back().headings_top;
    }
    strips.back().bottom = frame.bottom();
    // What stands right above a table says what it is.
    if (first > 0) strips[first - 1].with_next = true;
}

void append_frame(const QTextDocument& document, QTextFrame& frame, QList<paper_strip>& strips) {
    for (auto it = frame.begin(); !it.atEnd(); ++it) {
        if (auto* table = qobject_cast<QTextTable*>(it.currentFrame()))
            append_table(document, *table, strips);
        else if (it.currentFrame())
            append_frame(document, *it.currentFrame(), strips);
        else if (!hidden_beside_table(it))
            append_block(document, it.currentBlock(), strips);
    }
}

}  // namespace

QList<paper_strip> strips_of(const QTextDocument& document) {
    QList<paper_strip> strips;
    append_frame(document, *document.rootFrame(), strips);
    return strips;
}

double place_to_cut(const QTextDocument& document, const paper_strip& strip, double lowest) {
    double place = lowest;
    bool moved = true;
    // A line that is cut moves the place to its top, where another cell's line may be cut.
    while (moved) {
        moved = false;
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            const QRectF rect = rect_of(document, block);
            if (rect.top() >= place || rect.bottom() <= place || rect.bottom() <= strip.top) continue;
            for (int i = 0; i < block.layout()->lineCount(); ++i) {
                const double top = rect.top() + block.layout()->lineAt(i).y();
                if (top >= place || top + block.layout()->lineAt(i).height() <= place) continue;
                place = top;
                moved = true;
            }
        }
    }
    return place > strip.top ? place : lowest;
}

}  // namespace kel
