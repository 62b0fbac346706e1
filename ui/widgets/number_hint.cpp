#include "ui/widgets/number_hint.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLineEdit>
#include <algorithm>

#include "core/numbers.h"
#include "ui/widgets/qt_text.h"

namespace kel {

number_hint::number_hint(QLineEdit& box) : QLabel(&box), box_(box) {
    setObjectName("lblHint");
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setMargin(3);
    hide();
    box_.installEventFilter(this);
    connect(&box_, &QLineEdit::textChanged, this, &number_hint::follow);
    connect(&box_, &QObject::destroyed, this, &QObject::deleteLater);  // it then stands in the box's window
}

// The number that the rules make of the text begins it; a box for numbers does not even take the comma.
void number_hint::follow() {
    const QString text = box_.text();
    if (text.isEmpty() || text.contains('.')) left_out_ = false;
    if (box_.window()->focusWidget() != &box_ || !(left_out_ || text.contains(','))) return hide();
    tell(tr("Read as %1: use a point for decimals").arg(qt(shortest_text(leading_number(from_qt(text))))));
}

void number_hint::tell(const QString& text) {
    QWidget* window = box_.window();
    if (parentWidget() != window) setParent(window);
    setText(text);
    adjustSize();
    const QPoint below = box_.mapTo(window, box_.rect().bottomLeft());
    move(std::clamp(below.x(), 0, std::max(0, window->width() - width())),
         std::min(below.y() + 2, window->height() - height()));
    show();
    raise();
    box_.setAccessibleDescription(text);
}

bool number_hint::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool pasted = key->matches(QKeySequence::Paste);
        const QString put = pasted ? QApplication::clipboard()->text() : key->text();
        if (box_.validator() && put.contains(',')) {
            left_out_ = true;
            follow();
        }
    }
    const bool leaves = event->type() == QEvent::FocusOut || event->type() == QEvent::Hide;
    if (leaves) {
        left_out_ = false;
        hide();
        box_.setAccessibleDescription({});
    }
    return QLabel::eventFilter(watched, event);
}

}  // namespace kel
