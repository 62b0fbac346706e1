#include "ui/widgets/entry_box.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScopedValueRollback>
#include <algorithm>

#include "ui/widgets/entry_editor.h"
#include "ui/widgets/entry_form.h"
#include "ui/widgets/grid_view.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace {
constexpr int box_width_px = 400;
constexpr int columns = 4;
enum : int { caption_row, instruction_row, form_row, button_row };
}  // namespace

entry_box::entry_box(const QString& name, grid_view& grid, QWidget* parent)
    : QFrame(parent),
      name_(name),
      grid_(grid),
      caption_(new QLabel(this)),
      instruction_(new QLabel(this)),
      layout_(new QGridLayout(this)) {
    setObjectName("fra" + name);
    setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    setAutoFillBackground(true);
    setFixedWidth(box_width_px);
    QFont bold = caption_->font();
    bold.setBold(true);
    caption_->setFont(bold);
    caption_->setWordWrap(true);
    instruction_->setWordWrap(true);
    instruction_->setTextFormat(Qt::PlainText);
    layout_->addWidget(caption_, caption_row, 0, 1, columns);
    layout_->addWidget(instruction_, instruction_row, 0, 1, columns);
    QPushButton* enter = new_button("E&nter", "enter");
    enter->setDefault(true);
    connect(enter, &QPushButton::clicked, this, &entry_box::confirm);
    connect(new_button("Cancel", "cancel"), &QPushButton::clicked, this, &entry_box::cancel);
    hide();
}

QPushButton* entry_box::new_button(const QString& caption, const QString& suffix) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName("cmd" + name_ + "_" + suffix);
    button->setAutoDefault(false);
    layout_->addWidget(button, button_row, static_cast<int>(buttons_.size()));
    buttons_.push_back(button);
    return button;
}

QPushButton* entry_box::add_button(const QString& caption, const QString& suffix, box_operation action) {
    QPushButton* button = new_button(caption, suffix);
    connect(button, &QPushButton::clicked, this,
            [this, run = std::move(action)] { perform(run, cell_step::none); });
    return button;
}

void entry_box::put_cancel_last() {
    std::rotate(buttons_.begin() + 1, buttons_.begin() + 2, buttons_.end());
    for (QPushButton* button : buttons_)
        layout_->removeWidget(button);
    int column = 0;
    for (QPushButton* button : buttons_)
        layout_->addWidget(button, button_row, column++);
}

void entry_box::use_form(entry_form* form) {
    form_ = form;
    layout_->addWidget(form_, form_row, 0, 1, columns);
    connect(form_, &entry_form::confirmed, this, &entry_box::confirm);
}

void entry_box::make_form(const std::vector<entry_part>& parts) {
    if (form_ && (form_ != made_form_ || made_form_->suits(parts))) return;
    discard(made_form_);
    made_form_ = new parts_form(name_, parts, this);
    use_form(made_form_);
}

// The form's controls first, then the buttons.
void entry_box::chain_stops() {
    std::vector<QWidget*> chain = form_->stops();
    chain.insert(chain.end(), buttons_.begin(), buttons_.end());
    for (std::size_t i = 1; i < chain.size(); ++i)
        setTabOrder(chain[i - 1], chain[i]);
}

void entry_box::open(const opening& shown) {
    typed_ = false;
    one_part_ = shown.parts.size() <= 1;
    make_form(shown.parts);
    form_->show_opening(shown);
    chain_stops();
    caption_->setText(qt(shown.caption));
    instruction_->setText(qt(shown.instruction));
    instruction_->setVisible(!shown.instruction.empty());
    grid_.set_locked(true);
    for (QWidget* control : *disabled_meanwhile_)
        control->setEnabled(false);
    place_beside_cell();
    show();
    raise();
    // A box without a part is a choice between its buttons.
    (shown.parts.empty() ? enter_button() : form_->focus_stop(shown.focus))->setFocus();
}

void entry_box::open_typed(const opening& shown, QKeyEvent* key) {
    open(shown);
    typed_ = true;
    if (!key || shown.parts.empty()) return;
    form_->take_key(shown.focus, *key);
    chain_stops();
    place_beside_cell();
}

void entry_box::close_box() {
    if (isHidden()) return;
    typed_ = false;  // a box that goes with the focus in it moves that on, as Tab does
    hide();
    for (QWidget* control : *disabled_meanwhile_)
        control->setEnabled(true);
    grid_.set_locked(false);
    grid_.setFocus();
    emit closed();
}

void entry_box::cancel() {
    close_box();
    emit settled();
}

void entry_box::confirm() {
    confirm_and(typed_ ? cell_step::down : cell_step::none);
}

void entry_box::confirm_and(cell_step step) {
    if (form_->ready()) perform(enter_, step);
}

void entry_box::perform(const box_operation& action, cell_step step) {
    const QPointer<QWidget> focused = focusWidget();
    const bool typed = typed_;
    const outcome result = action({grid_.current_row(), grid_.current_column()}, form_->entered());
    if (!result.closes) return stay(result, focused);
    close_box();
    if (result.next && !result.next->box.none()) {
        emit led_to(*result.next, typed);
    } else {
        emit settled();
        grid_.step(step);
    }
}

bool entry_box::at_end(bool next) const {
    QWidget* focused = focusWidget();
    if (!focused || qobject_cast<QPushButton*>(focused)) return false;
    const std::vector<QWidget*> stops = form_->stops();
    const QWidget* end = next ? stops.back() : stops.front();
    return one_part_ || focused == end || end->isAncestorOf(focused);
}

bool entry_box::focusNextPrevChild(bool next) {
    if (!typed_ || !at_end(next)) return QFrame::focusNextPrevChild(next);
    confirm_and(next ? cell_step::right : cell_step::left);
    return true;
}

void entry_box::stay(const outcome& result, QWidget* focused) {
    if (!isVisible()) return;
    for (const outcome::new_text& change : result.changes)
        form_->show_text(change.part, change.text);
    if (result.focus != outcome::focus_stays) focused = form_->focus_stop(result.focus);
    if (focused) focused->setFocus();
}

// For one who types a letter picks an option, also in the questions that follow.
void entry_box::pass_on(QKeyEvent& key) {
    if (passing_on_) return;
    const QScopedValueRollback<bool> passing(passing_on_, true);
    form_->take_key(0, key);
}

void entry_box::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        cancel();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        auto* button = qobject_cast<QPushButton*>(focusWidget());
        if (button && button->hasFocus())
            button->click();
        else
            confirm();
    } else if (typed_ && one_part_ && types_character(*event)) {
        pass_on(*event);
    } else {
        QFrame::keyPressEvent(event);
    }
}

// The box is part of its window, but its keys must not reach the window's default button behind it.
bool entry_box::event(QEvent* event) {
    const bool handled = QFrame::event(event);
    if (event->type() == QEvent::KeyPress) event->accept();
    return handled;
}

void entry_box::place_beside_cell() {
    // Word-wrapped labels settle their height only once the width is given.
    layout_->activate();
    setFixedWidth(std::max(box_width_px, layout_->totalMinimumSize().width()));
    const int height = std::max(heightForWidth(minimumWidth()), layout_->totalMinimumSize().height());
    resize(minimumWidth(), std::max(height, sizeHint().height()));
    const QRect cell = grid_.visualRect(grid_.currentIndex());
    const QPoint below = grid_.viewport()->mapTo(parentWidget(), cell.bottomLeft());
    const QPoint above = grid_.viewport()->mapTo(parentWidget(), cell.topLeft());
    const int room_right = std::max(0, parentWidget()->width() - width() - 4);
    const int room_below = std::max(0, parentWidget()->height() - this->height() - 4);
    int y = below.y() + 4;
    if (y > room_below && above.y() - this->height() - 4 >= 0) y = above.y() - this->height() - 4;
    move(std::clamp(below.x(), 0, room_right), std::clamp(y, 0, room_below));
}

}  // namespace kel
