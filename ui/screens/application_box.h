// The dialog of one application of inorganic fertiliser: an entry box with a calendar and four boxes. A click
// in the calendar picks its date at once. Arrow keys only move in it; the date is picked by Enter or Space,
// or as the focus goes on to another box.
#pragma once

#include <functional>

#include "inorganic/inorganic_module.h"
#include "ui/widgets/entry_box.h"

namespace kel {

class day_calendar;

class application_box : public entry_box {
    Q_OBJECT

  public:
    application_box(const QString& name, grid_view& grid, QWidget* parent);

    using pick_operation = std::function<date_pick(date)>;
    using application_operation = std::function<application_entry(const fertiliser_application&)>;
    void on_pick(pick_operation pick) { pick_ = std::move(pick); }
    void on_application(application_operation enter) { enter_application_ = std::move(enter); }

    /// Puts the calendar on January of the year, with no date chosen.
    void set_year(int year);
    /// Opens over the cell with these texts and the focus in that box.
    void open_application(const fertiliser_application& shown, application_part focus);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* calendar_side();
    QWidget* boxes_side();
    QLabel* label_for(std::string_view text, QWidget* box);
    QWidget* box_of(application_part part) const;
    void limit_content();
    void pick(date picked);
    void pick_moved_day();
    bool enter();
    void show_day(std::optional<date> day);
    fertiliser_application entered() const;

    QString name_;
    std::optional<date> day_;
    bool picking_ = false;
    QLineEdit* type_;
    day_calendar* calendar_ = nullptr;
    QLabel* day_text_ = nullptr;
    QLineEdit* amount_ = nullptr;
    QLineEdit* content_ = nullptr;
    QLineEdit* comments_ = nullptr;
    pick_operation pick_;
    application_operation enter_application_;
};

}  // namespace kel
