#include "ui/widgets/verdict_label.h"

#include <QPainter>
#include <QTextLayout>

#include "ui/widgets/qt_text.h"

namespace kel {

namespace {

constexpr int lines_shown = 3;
constexpr int characters_wide = 38;
constexpr int fewest_characters_wide = 10;
constexpr int gap_px = 8;
constexpr double pen_share = 0.14;  // of the mark's height

}  // namespace

verdict_label::verdict_label(QWidget* parent) : QWidget(parent) {
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * 0.9);
    setFont(small);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void verdict_label::show_verdict(mark shape, const QString& sentence, const QString& more) {
    if (shape_ == shape && sentence_ == sentence) return;
    shape_ = shape;
    sentence_ = sentence;
    setToolTip(plain_tip(more.isEmpty() ? sentence : sentence + " " + more));
    setAccessibleName(sentence);
    update();
}

QSize verdict_label::sizeHint() const {
    const QFontMetrics metrics = fontMetrics();
    return {mark_size() + gap_px + metrics.averageCharWidth() * characters_wide,
            metrics.lineSpacing() * lines_shown};
}

QSize verdict_label::minimumSizeHint() const {
    const int room = fontMetrics().averageCharWidth() * fewest_characters_wide;
    return {mark_size() + gap_px + room, sizeHint().height()};
}

int verdict_label::mark_size() const {
    return fontMetrics().ascent();
}

void verdict_label::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paint_mark(painter);
    paint_sentence(painter);
}

// In a square of side 1, drawn with the colour of the text.
void verdict_label::paint_mark(QPainter& painter) const {
    if (shape_ == mark::none) return;
    painter.save();
    painter.translate(0, fontMetrics().leading() + 1);
    painter.scale(mark_size(), mark_size());
    painter.setPen(QPen(palette().color(QPalette::WindowText), pen_share, Qt::SolidLine, Qt::RoundCap));
    switch (shape_) {
        case mark::done:
            painter.drawPolyline(QPolygonF({{0.1, 0.55}, {0.4, 0.85}, {0.9, 0.15}}));
            break;
        case mark::open:
            painter.drawEllipse(QRectF(0.15, 0.15, 0.7, 0.7));
            break;
        case mark::look:
            painter.drawLine(QPointF(0.5, 0.1), QPointF(0.5, 0.6));
            painter.drawPoint(QPointF(0.5, 0.9));
            break;
        case mark::wrong:
            painter.drawLine(QPointF(0.15, 0.15), QPointF(0.85, 0.85));
            painter.drawLine(QPointF(0.85, 0.15), QPointF(0.15, 0.85));
            break;
        case mark::none:
            break;
    }
    painter.restore();
}

// The last line that fits takes the rest of the sentence, cut with an ellipsis.
void verdict_label::paint_sentence(QPainter& painter) const {
    painter.setPen(palette().color(QPalette::WindowText));
    const QFontMetrics metrics = fontMetrics();
    const int left = mark_size() + gap_px;
    const int room = width() - left;
    QTextLayout layout(sentence_, font());
    layout.beginLayout();
    for (int number = 0; number < lines_shown; ++number) {
        QTextLine line = layout.createLine();
        if (!line.isValid()) break;
        line.setLineWidth(room);
        const bool last = number + 1 == lines_shown;
        const QString text = last ? metrics.elidedText(sentence_.mid(line.textStart()), Qt::ElideRight, room)
                                  : sentence_.mid(line.textStart(), line.textLength());
        painter.drawText(left, number * metrics.lineSpacing() + metrics.ascent(), text.trimmed());
    }
    layout.endLayout();
}

}  // namespace kel
