#include "ui/widgets/entry_box.h"

#include <QButtonGroup>
#include <QCalendarWidget>
#include <QEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/widgets/choice_list.h"
#include "ui/widgets/entry_form.h"
#include "ui/widgets/grid_view.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace {

constexpr int box_width_px = 400;
constexpr int list_height_px = 220;

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
    layout_->addWidget(caption_, 0, 0, 1, 4);
    layout_->addWidget(instruction_, 1, 0, 1, 4);
    const auto close = [](grid_cell, const box_entry&) { return box_closes(); };
    enter_button_ = add_button("E&nter", "enter", nullptr);
    connect(enter_button_, &QPushButton::clicked, this, [this] { confirm(); });
    cancel_button_ = add_button("Cancel", "cancel", close);
    enter_button_->setDefault(true);
    hide();
}

QPushButton* entry_box::add_button(const QString& caption, const QString& suffix, box_operation action) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName("cmd" + name_ + "_" + suffix);
    button->setAutoDefault(false);
    layout_->addWidget(button, 3, buttons_++);
    if (action)
        connect(button, &QPushButton::clicked, this, [this, run = std::move(action)] { perform(run); });
    all_buttons_.push_back(button);
    return button;
}

QPushButton* entry_box::add_plain_button(const QString& caption, const QString& suffix,
                                         const operation& action) {
    QPushButton* button = add_button(caption, suffix, box_operation());
    connect(button, &QPushButton::clicked, this, [this, action] { run(action); });
    return button;
}

void entry_box::use_form(entry_form* form) {
    form_ = form;
    layout_->addWidget(form_, 2, 0, 1, 4);
    connect(form_, &entry_form::confirmed, this, &entry_box::confirm);
}

void entry_box::make_form(const std::vector<entry_part>& parts) {
    if (form_ && (form_ != made_form_ || made_form_->suits(parts))) return;
    delete made_form_;
    made_form_ = new parts_form(name_, parts, this);
    use_form(made_form_);
}

// The editors first, then the buttons.
void entry_box::chain_stops() {
    std::vector<QWidget*> chain = form_->stops();
    chain.insert(chain.end(), all_buttons_.begin(), all_buttons_.end());
    for (std::size_t i = 1; i < chain.size(); ++i)
        setTabOrder(chain[i - 1], chain[i]);
}

void entry_box::open(const opening& shown) {
    make_form(shown.parts);
    form_->show_opening(shown);
    chain_stops();
    open_frame(qt(shown.caption), qt(shown.instruction));
    form_->focus_stop(shown.focus)->setFocus();
}

void entry_box::confirm() {
    if (!form_) return run(enter_);
    if (form_->ready()) perform(enter_box_);
}

void entry_box::perform(const box_operation& action) {
    QPointer<QWidget> focused = focusWidget();
    const box_entry typed = form_ ? form_->entered() : box_entry{};
    const outcome result = action({grid_.current_row(), grid_.current_column()}, typed);
    if (result.closes) {
        close_box();
        if (result.next) emit led_to(*result.next);
    } else if (isVisible()) {
        for (const outcome::new_text& change : result.changes)
            form_->show_text(change.part, change.text);
        QWidget* stop =
            result.focus == outcome::focus_stays ? focused.data() : form_->focus_stop(result.focus);
        if (stop) stop->setFocus();
    }
}

QPushButton* entry_box::add_clear(const operation& clear) {
    return add_plain_button("Clear &Cell", "clear", clear);
}
QPushButton* entry_box::add_erase(const operation& erase) {
    return add_plain_button("Erase &Row", "erase", erase);
}

QLineEdit* entry_box::use_number_box() {
    line_ = new_number_box("txt" + name_, this);
    layout_->addWidget(line_, 2, 0, 1, 4);
    setTabOrder(line_, enter_button_);
    return line_;
}

QLineEdit* entry_box::use_text_box() {
    line_ = new QLineEdit(this);
    line_->setObjectName("txt" + name_);
    layout_->addWidget(line_, 2, 0, 1, 4);
    setTabOrder(line_, enter_button_);
    return line_;
}

choice_list* entry_box::use_list(const QStringList& items) {
    if (!list_) {
        list_ = new choice_list(this);
        list_->setObjectName("lst" + name_);
        list_->setFixedHeight(list_height_px);
        list_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
        layout_->addWidget(list_, 2, 0, 1, 4);
        setTabOrder(list_, enter_button_);
        connect(list_, &QListWidget::itemDoubleClicked, this, [this] { run(enter_); });
    }
    list_->clear();
    list_->addItems(items);
    return list_;
}

QCalendarWidget* entry_box::use_calendar() {
    calendar_ = new_calendar("cal" + name_, this);
    layout_->addWidget(calendar_, 2, 0, 1, 4);
    setTabOrder(calendar_, enter_button_);
    connect(calendar_, &QCalendarWidget::activated, this, [this] { run(enter_); });
    return calendar_;
}

void entry_box::use_choices(const QStringList& texts) {
    delete options_;
    options_ = new QWidget(this);
    choices_ = new QButtonGroup(options_);
    auto* lines = new QVBoxLayout(options_);
    lines->setContentsMargins(0, 0, 0, 0);
    for (const QString& text : texts) {
        auto* option = new QRadioButton(text, options_);
        option->setObjectName(QString("opt%1_%2").arg(name_).arg(lines->count() + 1));
        option->installEventFilter(this);
        choices_->addButton(option, lines->count());
        lines->addWidget(option);
    }
    layout_->addWidget(options_, 2, 0, 1, 4);
    setTabOrder(options_, enter_button_);
}

// The toolkit lets the arrows move the focus past options of which none is checked; here they choose, as the
// person sees it.
bool entry_box::eventFilter(QObject* watched, QEvent* event) {
    auto* option = qobject_cast<QRadioButton*>(watched);
    if (!option || event->type() != QEvent::KeyPress || choices_->checkedButton())
        return QFrame::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool on = key == Qt::Key_Down || key == Qt::Key_Right;
    if (!on && key != Qt::Key_Up && key != Qt::Key_Left) return QFrame::eventFilter(watched, event);
    const auto options = choices_->buttons();
    const auto next = std::clamp<qsizetype>(options.indexOf(option) + (on ? 1 : -1), 0, options.size() - 1);
    options[next]->setChecked(true);
    options[next]->setFocus();
    return true;
}

void entry_box::show_unit(const QString& unit) {
    if (!unit_) {
        unit_ = new QLabel(this);
        unit_->setObjectName("lbl" + name_ + "_unit");
        unit_->setBuddy(line_);
        layout_->addWidget(line_, 2, 0, 1, 3);
        layout_->addWidget(unit_, 2, 3);
    }
    unit_->setText(unit);
}

QWidget* entry_box::editor() const {
    if (line_) return line_;
    if (list_) return list_;
    if (calendar_) return calendar_;
    QAbstractButton* chosen_option = choices_->checkedButton();
    return chosen_option ? chosen_option : choices_->button(0);
}

void entry_box::show_in_editor(const QString& caption, const QString& text) {
    if (line_) {
        line_->setText(text);
        line_->selectAll();
    }
    if (list_) {
        const auto found = list_->findItems(text, Qt::MatchExactly);
        list_->setCurrentItem(found.isEmpty() ? nullptr : found.front());
        if (!found.isEmpty()) list_->scrollToItem(found.front());
    }
    if (calendar_)
        if (const auto day = parse_date(from_qt(text)))
            calendar_->setSelectedDate({year_of(*day), month_of(*day), day_of(*day)});
    if (choices_)
        for (QAbstractButton* option : choices_->buttons())
            if (option->text() == text) option->setChecked(true);
    if (options_)
        options_->setAccessibleName(caption);
    else
        editor()->setAccessibleName(caption);
}

void entry_box::open(const QString& caption, const QString& instruction, const QString& text) {
    show_in_editor(caption, text);
    open_frame(caption, instruction);
    editor()->setFocus();
}

void entry_box::open_frame(const QString& caption, const QString& instruction) {
    caption_->setText(caption);
    instruction_->setText(instruction);
    instruction_->setVisible(!instruction.isEmpty());
    grid_.set_locked(true);
    for (QWidget* control : *disabled_meanwhile_)
        control->setEnabled(false);
    place_beside_cell();
    show();
    raise();
}

void entry_box::close_box() {
    if (isHidden()) return;
    hide();
    for (QWidget* control : *disabled_meanwhile_)
        control->setEnabled(true);
    grid_.set_locked(false);
    grid_.setFocus();
    emit closed();
}

std::string entry_box::entered_text() const {
    return from_qt(line_->text());
}

std::optional<std::string> entry_box::chosen() const {
    if (choices_) {
        const QAbstractButton* option = choices_->checkedButton();
        return option ? std::optional(from_qt(option->text())) : std::nullopt;
    }
    return list_->chosen();
}

date entry_box::chosen_date() const {
    const QDate day = calendar_->selectedDate();
    return make_date(day.day(), day.month(), day.year());
}

void entry_box::run(const operation& action) {
    if (action()) {
        close_box();
    } else if (isVisible()) {
        editor()->setFocus();
    }
}

void entry_box::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close_box();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        auto* button = qobject_cast<QPushButton*>(focusWidget());
        if (button && button->hasFocus()) {
            button->click();
        } else {
            confirm();
        }
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
