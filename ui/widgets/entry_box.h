// The entry box frame that all modules share. It stands over the grid beside the chosen cell, locks the grid
// and disables the module's main buttons until it closes. Enter confirms, Esc cancels; focus returns to the
// cell.
#pragma once

#include <QFrame>
#include <QPointer>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/dates.h"
#include "core/entry.h"
#include "ui/widgets/date_editors.h"
#include "ui/widgets/line_editor.h"

class QAbstractButton;
class QButtonGroup;
class QCalendarWidget;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace kel {

class choice_list;
class entry_form;
class parts_form;
class grid_view;

class entry_box : public QFrame {
    Q_OBJECT

  public:
    /// `name` stands in the object names behind fra, cmd, txt and lst, as in fraLand_area.
    entry_box(const QString& name, grid_view& grid, QWidget* parent);

    /// Controls that stay disabled while the box is open; the list is the screen's.
    void set_disabled_meanwhile(const std::vector<QWidget*>* controls) { disabled_meanwhile_ = controls; }

    QLineEdit* use_number_box();
    QLineEdit* use_text_box();
    choice_list* use_list(const QStringList& items);
    /// Arrows, Page Up and Page Down move; Enter or a double click on a day confirms.
    QCalendarWidget* use_calendar();
    /// Option buttons, one below the other, in place of those it had. None is chosen unless it is the cell's
    /// text.
    void use_choices(const QStringList& texts);
    /// Shown behind the number or text box.
    void show_unit(const QString& unit);

    /// What a button does with the cell over which the box stands and with what was put into it.
    using box_operation = std::function<outcome(grid_cell, const box_entry&)>;
    void on_enter(box_operation enter) { enter_box_ = std::move(enter); }
    QPushButton* add_button(const QString& caption, const QString& suffix, box_operation action);
    QPushButton* enter_button() const { return enter_button_; }
    /// Stands in the box from now on in place of editors made from the parts of its openings.
    void use_form(entry_form* form);
    /// Opens over the current cell.
    void open(const opening& shown);

    using operation = std::function<bool()>;  // true: the box closes
    void on_enter(operation enter) { enter_ = std::move(enter); }
    QPushButton* add_clear(const operation& clear);
    QPushButton* add_erase(const operation& erase);

    /// Opens over the cell with this caption, instruction and the cell's text in the editor.
    void open(const QString& caption, const QString& instruction, const QString& text);
    void close_box();

    std::string entered_text() const;
    /// The list entry or option chosen; nothing if none is.
    std::optional<std::string> chosen() const;
    /// The calendar's day.
    date chosen_date() const;

  signals:
    void closed();
    /// The box has closed, and this is to open in its place.
    void led_to(const opening& next);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QPushButton* add_plain_button(const QString& caption, const QString& suffix, const operation& action);
    void perform(const box_operation& action);
    void confirm();
    void make_form(const std::vector<entry_part>& parts);
    void chain_stops();
    QWidget* editor() const;
    void show_in_editor(const QString& caption, const QString& text);
    void run(const operation& action);
    void open_frame(const QString& caption, const QString& instruction);
    void place_beside_cell();
    QString name_;
    grid_view& grid_;
    QLabel* caption_;
    QLabel* instruction_;
    QGridLayout* layout_;
    QLineEdit* line_ = nullptr;
    QLabel* unit_ = nullptr;
    choice_list* list_ = nullptr;
    QCalendarWidget* calendar_ = nullptr;
    QWidget* options_ = nullptr;
    QButtonGroup* choices_ = nullptr;
    QPushButton* enter_button_;
    QPushButton* cancel_button_;
    operation enter_;
    box_operation enter_box_;
    entry_form* form_ = nullptr;
    parts_form* made_form_ = nullptr;
    std::vector<QPushButton*> all_buttons_;
    const std::vector<QWidget*>* disabled_meanwhile_ = nullptr;
    int buttons_ = 0;
};

}  // namespace kel
