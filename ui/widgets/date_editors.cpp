#include "ui/widgets/date_editors.h"

#include <QCalendarWidget>
#include <QDateEdit>

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

calendar_editor::calendar_editor(const QString& name, bool alone, QWidget* parent)
    : entry_editor(parent), calendar_(new_calendar("cal" + name, this)) {
    fill_with(calendar_);
    if (alone) connect(calendar_, &QCalendarWidget::activated, this, &entry_editor::confirmed);
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

std::vector<QWidget*> day_editor::stops() const {
    return {edit_};
}

}  // namespace kel
