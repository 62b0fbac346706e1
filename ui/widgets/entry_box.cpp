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
#include "ui/widgets/grid_view.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace {

QLineEdit* new_filtered_box(const QString& name, const char* pattern, QWidget* parent) {
    auto* box = new QLineEdit(parent);
    box->setObjectName(name);
    box->setValidator(new QRegularExpressionValidator(QRegularExpression(pattern), box));
    return box;
}

constexpr int box_width_px = 400;
constexpr int list_height_px = 220;

}  // namespace

QLineEdit* new_number_box(const QString& name, QWidget* parent) {
    return new_filtered_box(name, "[0-9]*\\.?[0-9]*", parent);
}

QLineEdit* new_whole_number_box(const QString& name, QWidget* parent) {
    return new_filtered_box(name, "[0-9]*", parent);
}

QCalendarWidget* new_calendar(const QString& name, QWidget* parent) {
    auto* calendar = new QCalendarWidget(parent);
    calendar->setObjectName(name);
    calendar->setLocale(QLocale(QLocale::English, QLocale::UnitedKingdom));
    calendar->setFirstDayOfWeek(Qt::Monday);
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calendar->setDateEditEnabled(false);  // what it makes of typed digits is no date
    return calendar;
}

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
    enter_button_ = add_button("E&nter", "enter", [this] { return enter_(); });
    cancel_button_ = add_button("Cancel", "cancel", [] { return true; });
    enter_button_->setDefault(true);
    hide();
}

QPushButton* entry_box::add_button(const QString& caption, const QString& suffix, const operation& action) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName("cmd" + name_ + "_" + suffix);
    button->setAutoDefault(false);
    layout_->addWidget(button, 3, buttons_++);
    connect(button, &QPushButton::clicked, this, [this, action] { run(action); });
    return button;
}

QPushButton* entry_box::add_clear(const operation& clear) {
    return add_button("Clear &Cell", "clear", clear);
}
QPushButton* entry_box::add_erase(const operation& erase) {
    return add_button("Erase &Row", "erase", erase);
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
    caption_->setText(caption);
    instruction_->setText(instruction);
    instruction_->setVisible(!instruction.isEmpty());
    grid_.set_locked(true);
    for (QWidget* control : *disabled_meanwhile_)
        control->setEnabled(false);
    show_in_editor(caption, text);
    place_beside_cell();
    show();
    raise();
    editor()->setFocus();
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
            run(enter_);
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
    const int height = std::max(heightForWidth(box_width_px), layout_->totalMinimumSize().height());
    resize(box_width_px, std::max(height, sizeHint().height()));
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
