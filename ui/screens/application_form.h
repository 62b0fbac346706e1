// The form of one application of inorganic fertiliser: a calendar and four boxes. A click in the calendar
// picks its date at once. Arrow keys only move in it; the date is picked by Enter or Space, or as the focus
// goes on to another box.
#pragma once

#include <functional>
#include <optional>

#include "ui/widgets/entry_form.h"

class QLabel;
class QLineEdit;

namespace kel {

class day_calendar;
class day_line;

class application_form : public entry_form {
    Q_OBJECT

  public:
    application_form(const QString& name, QWidget* parent);

    using pick_operation = std::function<outcome(date)>;
    void on_pick(pick_operation pick) { pick_ = std::move(pick); }
    /// Puts the calendar on January of the year, with no date chosen.
    void set_year(int year);

    void show_opening(const opening& shown) override;
    void show_text(int part, const std::string& text) override;
    box_entry entered() const override;
    void take_key(int part, QKeyEvent& key) override;
    /// A day that was moved to has to be picked first.
    bool ready() override;
    std::vector<QWidget*> stops() const override;
    QWidget* focus_stop(int part) const override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    std::vector<QWidget*> part_controls() const;
    QWidget* calendar_side();
    QWidget* boxes_side();
    QLineEdit* add_box(QLayout* layout, std::string_view label, QLineEdit* box);
    QLabel* label_for(std::string_view text, QWidget* box);
    void limit_content();
    void pick(date picked);
    void pick_moved_day();
    void show_day(std::optional<date> day);

    QString name_;
    std::optional<date> day_;
    bool picking_ = false;
    day_calendar* calendar_ = nullptr;
    day_line* typed_ = nullptr;
    QLabel* day_text_ = nullptr;
    QLineEdit* type_ = nullptr;
    QLineEdit* amount_ = nullptr;
    QLineEdit* content_ = nullptr;
    QLineEdit* comments_ = nullptr;
    pick_operation pick_;
};

}  // namespace kel
