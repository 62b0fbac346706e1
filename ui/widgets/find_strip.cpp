#include "ui/widgets/find_strip.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <algorithm>

#include "ui/widgets/grid_view.h"

namespace kel {

namespace {
constexpr int text_characters = 22;
constexpr int told_characters = 14;
}  // namespace

find_strip::find_strip(grid_view& grid)
    : QFrame(&grid), grid_(grid), text_(new QLineEdit(this)), told_(new QLabel(this)) {
    setObjectName("fraFind");
    setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    setAutoFillBackground(true);
    auto* caption = new QLabel(tr("Find:"), this);
    caption->setBuddy(text_);
    text_->setObjectName("txtFind");
    text_->setAccessibleName(tr("Find in the table"));
    text_->setPlaceholderText(tr("Part of a name"));
    text_->setToolTip(tr("Enter: next row, Shift+Enter: previous row, Esc: back to the table"));
    text_->setMinimumWidth(fontMetrics().averageCharWidth() * text_characters);
    text_->installEventFilter(this);
    told_->setObjectName("lblFind");
    told_->setMinimumWidth(fontMetrics().averageCharWidth() * told_characters);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 2, 8, 2);
    row->addWidget(caption);
    row->addWidget(text_);
    row->addWidget(told_);
    connect(text_, &QLineEdit::textEdited, this, [this] { go_on(0); });
    hide();
}

void find_strip::open() {
    adjustSize();
    move(std::max(0, grid_.width() - width() - grid_.frameWidth()), 0);
    show();
    raise();
    text_->selectAll();
    text_->setFocus();
    tell({});
}

std::vector<find_strip::place> find_strip::places() const {
    std::vector<place> found;
    const QString wanted = text_->text();
    if (wanted.isEmpty()) return found;
    const QAbstractItemModel& table = *grid_.model();
    const auto has = [&](int row, int column) {
        return table.index(row, column).data().toString().contains(wanted, Qt::CaseInsensitive);
    };
    for (int row = 0; row < table.rowCount(); ++row)
        if (has(row, 0)) found.push_back({row, 0});
    if (!found.empty()) return found;
    for (int row = 0; row < table.rowCount(); ++row)
        for (int column = 1; column < table.columnCount(); ++column)
            if (!grid_.isColumnHidden(column) && has(row, column)) {
                found.push_back({row, column});
                break;
            }
    return found;
}

// 0: the first one from the current row on, so that typing on stays where it is as long as that fits.
void find_strip::go_on(int by) {
    const std::vector<place> found = places();
    if (found.empty()) return tell(text_->text().isEmpty() ? QString() : tr("Not found"));
    const int count = static_cast<int>(found.size());
    const int current = grid_.currentIndex().row();
    const auto from = std::ranges::find_if(
        found, [&](const place& at) { return by > 0 ? at.shown_row > current : at.shown_row >= current; });
    const int next = static_cast<int>(from - found.begin()) + (by < 0 ? by : 0);
    const int at = (next + count) % count;
    const place& there = found[static_cast<std::size_t>(at)];
    grid_.go_to(grid_.stored_row(there.shown_row), there.column);
    tell(tr("%1 of %2").arg(at + 1).arg(count));
}

void find_strip::tell(const QString& text) {
    if (told_->text() == text) return;
    told_->setText(text);
    QAccessibleEvent changed(told_, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&changed);
}

void find_strip::leave() {
    hide();
    grid_.setFocus();
}

// What the line has no use for, as F2, would else go on to the grid.
void find_strip::keyPressEvent(QKeyEvent* event) {
    event->accept();
}

// None of its keys may reach the grid, on which they would open a box. It goes when something else is turned
// to.
bool find_strip::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::ActiveWindowFocusReason)
        hide();
    if (event->type() != QEvent::KeyPress) return QFrame::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    switch (key->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            go_on(key->modifiers() & Qt::ShiftModifier ? -1 : 1);
            return true;
        case Qt::Key_Down:
        case Qt::Key_Up:
            go_on(key->key() == Qt::Key_Up ? -1 : 1);
            return true;
        case Qt::Key_Escape:
            leave();
            return true;
        default:
            return false;
    }
}

}  // namespace kel
