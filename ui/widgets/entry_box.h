// The entry box frame that all modules share. It stands over the grid beside the chosen cell, locks the grid
// and disables the module's main buttons until it closes. Enter confirms, Esc cancels; focus returns to the
// cell. For one who began to type into the cell, Enter goes on to the cell below as it confirms, Tab behind
// the last part to the right, Shift+Tab before the first to the left. What stands in it is a form, made from
// the parts of its opening unless the screen brings its own.
#pragma once

#include <QFrame>
#include <functional>
#include <vector>

#include "core/entry.h"

class QGridLayout;
class QLabel;
class QPushButton;

namespace kel {

class entry_form;
class grid_view;
enum class cell_step;
class parts_form;

class entry_box : public QFrame {
    Q_OBJECT

  public:
    /// `name` stands in the object names behind fra, cmd, txt and lst, as in fraLand_area.
    entry_box(const QString& name, grid_view& grid, QWidget* parent);

    /// Controls that stay disabled while the box is open; the list is the screen's.
    void set_disabled_meanwhile(const std::vector<QWidget*>* controls) { disabled_meanwhile_ = controls; }
    /// Stands in the box from now on.
    void use_form(entry_form* form);

    /// What a button does with the cell over which the box stands and with what was put into it.
    using box_operation = std::function<outcome(grid_cell, const box_entry&)>;
    void on_enter(box_operation enter) { enter_ = std::move(enter); }
    QPushButton* add_button(const QString& caption, const QString& suffix, box_operation action);
    QPushButton* enter_button() const { return buttons_.front(); }
    /// Behind the buttons that were added, where it else stands ahead of them.
    void put_cancel_last();

    /// Opens over the current cell.
    void open(const opening& shown);
    /// The same for one who types on from cell to cell; the key, if there is one, goes into the box.
    void open_typed(const opening& shown, QKeyEvent* key);
    void close_box();

  signals:
    void closed();
    /// The box has closed, and this is to open in its place, for one who types if this one did.
    void led_to(const opening& next, bool typed);
    /// The box has closed, and nothing opens in its place.
    void settled();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;

  private:
    QPushButton* new_button(const QString& caption, const QString& suffix);
    void confirm();
    void confirm_and(cell_step step);
    void perform(const box_operation& action, cell_step step);
    void cancel();
    bool at_end(bool next) const;
    void stay(const outcome& result, QWidget* focused);
    void make_form(const std::vector<entry_part>& parts);
    void pass_on(QKeyEvent& key);
    void chain_stops();
    void place_beside_cell();

    QString name_;
    grid_view& grid_;
    QLabel* caption_;
    QLabel* instruction_;
    QGridLayout* layout_;
    entry_form* form_ = nullptr;
    parts_form* made_form_ = nullptr;  // unless the screen brought its own
    bool one_part_ = true;
    bool typed_ = false;       // opened by typing
    bool passing_on_ = false;  // a key that the focus has no use for
    std::vector<QPushButton*> buttons_;
    box_operation enter_;
    const std::vector<QWidget*>* disabled_meanwhile_ = nullptr;
};

}  // namespace kel
