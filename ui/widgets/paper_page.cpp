#include "ui/widgets/paper_page.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <algorithm>

namespace kel {

namespace {

// From so many columns on a table is wide, however short its words are.
constexpr int columns_of_wide_table = 8;
// A table of full width is wider than the text by its border.
constexpr double wider_at_most = 1.01;

}  // namespace

paper_page::paper_page(const QString& html, const QUrl& folder, QPaintDevice* device, const paper_room& room)
    : document_(std::make_unique<paper_document>(html, folder)) {
    lay_out(device, room);
    fill_sheets();
}

void paper_page::lay_out(QPaintDevice* device, const paper_room& room) {
    const auto fits = [&](const QSizeF& size) {
        room_ = size;
        return document_->lay_out(device, size.width()) <= size.width() * wider_at_most;
    };
    const bool may_turn = room.across.width() > room.upright.width();
    across_ = may_turn && document_->most_columns() >= columns_of_wide_table;
    if (!across_ && fits(room.upright)) return;
    across_ = may_turn;
    if (fits(across_ ? room.across : room.upright)) return;
    document_->break_long_words();
    fits(room_);
}

// The sheets as they fill up.
struct paper_page::filling {
    const paper_document& document;
    std::vector<pieces>& sheets;
    double room;
    double used = 0;
    double gap = 0;  // to what is put next on the same sheet

    bool at_top() const { return sheets.back().empty(); }
    double free() const { return room - used - (at_top() ? 0 : gap); }
    void next_sheet() {
        if (!at_top()) sheets.emplace_back();
        used = 0;
    }

    void put(double top, double bottom) {
        if (!at_top()) used += gap;
        gap = 0;
        pieces& sheet = sheets.back();
        // What lies as it lies in the document goes on in one piece.
        const bool goes_on = !at_top() && top >= sheet.back().bottom &&
                             std::abs(sheet.back().at + top - sheet.back().top - used) < 0.5;
        if (goes_on)
            sheet.back().bottom = bottom;
        else
            sheet.push_back({top, bottom, used});
        used += bottom - top;
    }

    // On a new sheet the rows of a table stand below its headings.
    void put_strip(const paper_strip& strip) {
        if (strip.height() > free() && strip.height() <= room) next_sheet();
        if (at_top() && strip.headings_height() > 0 && strip.headings_height() + strip.height() <= room)
            put(strip.headings_top, strip.headings_bottom);
        double top = strip.top;
        while (strip.bottom - top > free()) {
            const double lowest = top + free();
            if (lowest > top) {
                const double cut = place_to_cut(document, {.top = top, .bottom = strip.bottom}, lowest);
                put(top, cut);
                top = cut;
            }
            next_sheet();
        }
        put(top, strip.bottom);
    }
};

void paper_page::fill_sheets() {
    sheets_.emplace_back();
    filling paper{*document_, sheets_, room_.height()};
    const QList<paper_strip> strips = strips_of(*document_);
    double above = 0;
    for (qsizetype first = 0; first < strips.size();) {
        qsizetype last = first;
        while (last + 1 < strips.size() && strips[last].with_next)
            ++last;
        const double height = strips[last].bottom - strips[first].top;
        paper.gap = std::max(0.0, strips[first].top - above);
        // Those that belong together go to the next sheet together, if they have room there.
        if (height > paper.free() && strips[first].headings_height() + height <= paper.room)
            paper.next_sheet();
        for (; first <= last; ++first) {
            paper.gap = std::max(0.0, strips[first].top - above);
            if (!strips[first].rule || !paper.at_top()) paper.put_strip(strips[first]);
            above = strips[first].bottom;
        }
    }
}

void paper_page::draw(int sheet, QPainter& painter) const {
    QAbstractTextDocumentLayout::PaintContext context;
    // Paper is white, whatever the desktop's theme is.
    context.palette.setColor(QPalette::Text, Qt::black);
    for (const piece& drawn : sheets_[static_cast<std::size_t>(sheet)]) {
        painter.save();
        painter.translate(0, drawn.at - drawn.top);
        context.clip = QRectF(0, drawn.top, room_.width() * wider_at_most, drawn.bottom - drawn.top);
        painter.setClipRect(context.clip);
        document_->documentLayout()->draw(&painter, context);
        painter.restore();
    }
}

}  // namespace kel
