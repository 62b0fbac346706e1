#include "ui/widgets/giving_area.h"

#include <QEvent>
#include <QLayout>
#include <QScrollBar>
#include <algorithm>

namespace kel {

namespace {
constexpr int least_lines = 5;
}

giving_area::giving_area(QWidget* content, const QString& name, QWidget* parent) : QScrollArea(parent) {
    setObjectName(name);
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);  // whatever in it takes the focus is brought into view
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    setWidget(content);
    content->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    content->installEventFilter(this);
}

QSize giving_area::sizeHint() const {
    return widget()->sizeHint().expandedTo(widget()->minimumSizeHint());
}

// As wide as it must be to be read without scrolling sideways, unless that is wider than a small screen.
QSize giving_area::minimumSizeHint() const {
    constexpr int small_screen_px = 1000;
    const QSize whole = widget()->minimumSizeHint();
    const int bar = verticalScrollBar()->sizeHint().width();
    return {std::min(whole.width() + bar, small_screen_px),
            std::min(whole.height(), least_lines * fontMetrics().lineSpacing())};
}

bool giving_area::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::LayoutRequest) updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

int characters_px(const QWidget& widget, int count) {
    return count * widget.fontMetrics().averageCharWidth();
}

}  // namespace kel
