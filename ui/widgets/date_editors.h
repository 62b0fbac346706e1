// Parts that are a date: a calendar in view, or one line from which a calendar drops down.
#pragma once

#include <QDate>

#include "ui/widgets/entry_editor.h"

class QCalendarWidget;
class QDateEdit;
class QLabel;
class QLineEdit;

namespace kel {

/// A calendar with English names and Monday first, whatever the machine's locale is.
QCalendarWidget* new_calendar(const QString& name, QWidget* parent);
void set_up_calendar(QCalendarWidget& calendar);

QDate to_qt(date day);
date from_qt(QDate day);

/// A line in which a date is typed, day first, and which shows it in a calendar meanwhile; out of sight until
/// a person begins to type one. Without a year it is that of the calendar. Emptied, it gives that its day
/// back.
class day_line : public QWidget {
    Q_OBJECT

  public:
    /// The line's name begins with txt.
    day_line(const QString& name, QCalendarWidget* calendar, QWidget* parent);

    void begin(QKeyEvent& key);
    QLineEdit* line() const { return line_; }
    /// False: what is typed is no date; the line then has the focus.
    bool ready();

  private:
    std::optional<date> typed() const;
    void follow();

    QCalendarWidget* calendar_;
    QLineEdit* line_;
    QLabel* read_as_;
    int year_ = 0;
    QDate before_;  // what the calendar showed, which counts again once nothing is typed
};

/// Arrows, Page Up and Page Down move; Enter or a double click on a day confirms.
class calendar_editor : public entry_editor {
    Q_OBJECT

  public:
    calendar_editor(const QString& name, bool alone, QWidget* parent);

    void show_part(const entry_part& part) override;
    void show_text(const std::string& text) override;
    part_entry entered() const override;
    void take_key(QKeyEvent& key) override { typed_->begin(key); }
    bool ready() override { return typed_->ready(); }
    std::vector<QWidget*> stops() const override;

  private:
    QCalendarWidget* calendar_;
    day_line* typed_;
};

class day_editor : public entry_editor {
    Q_OBJECT

  public:
    day_editor(const QString& name, QWidget* parent);

    void show_part(const entry_part& part) override { show_text(part.text); }
    void show_text(const std::string& text) override;
    part_entry entered() const override;
    void take_key(QKeyEvent& key) override;
    std::vector<QWidget*> stops() const override;

  private:
    QDateEdit* edit_;
};

}  // namespace kel
