#include "ui/widgets/date_editors.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>

#include "ui/widgets/line_editor.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace {

part_entry entry_of(QDate shown) {
    const date day = from_qt(shown);
    return {.text = short_date_text(day), .day = day};
}

}  // namespace

void set_up_calendar(QCalendarWidget& calendar) {
    calendar.setLocale(QLocale(QLocale::English, QLocale::UnitedKingdom));
    calendar.setFirstDayOfWeek(Qt::Monday);
    calendar.setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calendar.setDateEditEnabled(false);  // what it makes of typed digits is no date
}

QCalendarWidget* new_calendar(const QString& name, QWidget* parent) {
    auto* calendar = new QCalendarWidget(parent);
    calendar->setObjectName(name);
    set_up_calendar(*calendar);
    return calendar;
}

QDate to_qt(date day) {
    return {year_of(day), month_of(day), day_of(day)};
}

date from_qt(QDate day) {
    return make_date(day.day(), day.month(), day.year());
}

day_line::day_line(const QString& name, QCalendarWidget* calendar, QWidget* parent)
    : QWidget(parent),
      calendar_(calendar),
      line_(new_text_box("txt" + name, this)),
      read_as_(new QLabel(this)) {
    line_->setAccessibleName(tr("Date, day first"));
    read_as_->setObjectName("lbl" + name + "_typed");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(line_);
    row->addWidget(read_as_, 1);
    connect(line_, &QLineEdit::textChanged, this, &day_line::follow);
    hide();
}

void day_line::begin(QKeyEvent& key) {
    year_ = calendar_->yearShown();
    before_ = calendar_->selectedDate();
    line_->clear();
    show();
    line_->setFocus();
    QApplication::sendEvent(line_, &key);
}

std::optional<date> day_line::typed() const {
    return typed_date(from_qt(line_->text().trimmed()), year_);
}

void day_line::follow() {
    const auto day = typed();
    read_as_->setText(day ? qt(long_date_text(*day)) : tr("day/month/year"));
    if (day)
        calendar_->setSelectedDate(to_qt(*day));
    else if (line_->text().isEmpty())
        calendar_->setSelectedDate(before_);
}

bool day_line::ready() {
    if (isHidden() || line_->text().isEmpty() || typed()) return true;
    line_->setFocus();
    line_->selectAll();
    return false;
}

calendar_editor::calendar_editor(const QString& name, bool alone, QWidget* parent)
    : entry_editor(parent),
      calendar_(new_calendar("cal" + name, this)),
      typed_(new day_line(name, calendar_, this)) {
    fill_with(typed_);
    layout()->addWidget(calendar_);
    if (alone) connect(calendar_, &QCalendarWidget::activated, this, &entry_editor::confirmed);
}

void calendar_editor::show_part(const entry_part& part) {
    typed_->hide();
    show_text(part.text);
}

void calendar_editor::show_text(const std::string& text) {
    if (const auto day = parse_date(text)) calendar_->setSelectedDate(to_qt(*day));
}

part_entry calendar_editor::entered() const {
    return entry_of(calendar_->selectedDate());
}

std::vector<QWidget*> calendar_editor::stops() const {
    return {calendar_};
}

day_editor::day_editor(const QString& name, QWidget* parent)
    : entry_editor(parent), edit_(new QDateEdit(this)) {
    edit_->setObjectName("dtp" + name);
    edit_->setDisplayFormat("dd/MM/yyyy");
    edit_->setCalendarPopup(true);
    edit_->setCalendarWidget(new_calendar("cal" + name, edit_));
    fill_with(edit_);
}

void day_editor::show_text(const std::string& text) {
    if (const auto day = parse_date(text)) edit_->setDate(to_qt(*day));
}

part_entry day_editor::entered() const {
    return entry_of(edit_->date());
}

void day_editor::take_key(QKeyEvent& key) {
    edit_->setSelectedSection(QDateTimeEdit::DaySection);
    entry_editor::take_key(key);
}

std::vector<QWidget*> day_editor::stops() const {
    return {edit_};
}

}  // namespace kel
