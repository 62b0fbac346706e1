// Parts that are a date: a calendar in view, or one line from which a calendar drops down.
#pragma once

#include "ui/widgets/entry_editor.h"

class QCalendarWidget;
class QDate;
class QDateEdit;

namespace kel {

/// A calendar with English names and Monday first, whatever the machine's locale is.
QCalendarWidget* new_calendar(const QString& name, QWidget* parent);
void set_up_calendar(QCalendarWidget& calendar);

QDate to_qt(date day);
date from_qt(QDate day);

/// Arrows, Page Up and Page Down move; Enter or a double click on a day confirms.
class calendar_editor : public entry_editor {
    Q_OBJECT

  public:
    calendar_editor(const QString& name, bool alone, QWidget* parent);

    void show_part(const entry_part& part) override { show_text(part.text); }
    void show_text(const std::string& text) override;
    part_entry entered() const override;
    std::vector<QWidget*> stops() const override;

  private:
    QCalendarWidget* calendar_;
};

class day_editor : public entry_editor {
    Q_OBJECT

  public:
    day_editor(const QString& name, QWidget* parent);

    void show_part(const entry_part& part) override { show_text(part.text); }
    void show_text(const std::string& text) override;
    part_entry entered() const override;
    std::vector<QWidget*> stops() const override;

  private:
    QDateEdit* edit_;
};

}  // namespace kel
