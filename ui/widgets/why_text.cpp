#include "ui/widgets/why_text.h"

#include <QKeyEvent>
#include <algorithm>
#include <optional>

namespace kel {

namespace {

constexpr int smallest = -3;
constexpr int largest = 12;

/// By how many steps the key changes the text; 0 is the usual size again.
std::optional<int> zoom_of(const QKeyEvent& key) {
    if (!key.modifiers().testFlag(Qt::ControlModifier)) return std::nullopt;
    switch (key.key()) {
        case Qt::Key_Plus:
        case Qt::Key_Equal:
            return 1;
        case Qt::Key_Minus:
            return -1;
        case Qt::Key_0:
            return 0;
        default:
            return std::nullopt;
    }
}

}  // namespace

why_text::why_text(QWidget* parent) : QTextBrowser(parent) {
    setOpenLinks(false);
    setTabChangesFocus(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void why_text::set_zoom(int steps) {
    const int wanted = std::clamp(steps, smallest, largest);
    zoomIn(wanted - zoom_);
    zoom_ = wanted;
}

void why_text::show_page(const QString& html) {
    if (html == page_) return;
    page_ = html;
    setHtml(html);
}

// Ahead of the window, which has the same keys for its table.
bool why_text::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && zoom_of(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QTextBrowser::event(event);
}

void why_text::keyPressEvent(QKeyEvent* event) {
    if (const auto steps = zoom_of(*event))
        set_zoom(*steps == 0 ? 0 : zoom_ + *steps);
    else
        QTextBrowser::keyPressEvent(event);
}

void why_text::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) return QTextBrowser::wheelEvent(event);
    if (event->angleDelta().y() != 0) set_zoom(zoom_ + (event->angleDelta().y() > 0 ? 1 : -1));
    event->accept();
}

}  // namespace kel
