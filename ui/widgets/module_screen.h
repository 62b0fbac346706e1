// What the screens of all modules have in common: rows of commands that stay disabled while an entry box is
// open, undo and redo, the close question, and the way back to the screen that opened them.
#pragma once

#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "core/entry.h"
#include "core/grid_rows.h"
#include "core/pasted_block.h"
#include "core/screens.h"

class QBoxLayout;
class QLabel;
class QMenu;
class QPushButton;

namespace kel {

class box_set;
class entry_box;
class grid_history;
class grid_view;
class paste_prompts;
class text_grid;
class why_side;
struct box_row;
struct why_place;
struct why_source;

class module_screen : public QWidget {
    Q_OBJECT

  public:
    explicit module_screen(const QString& name, const QString& title);

    /// Loads the assessment anew, as after the years dialog. Throws file_error.
    virtual void reload() = 0;
    /// The same, with every entry box closed first: its cell may be gone.
    void reload_all();
    /// Between the module and the person, for pastes.
    void set_paste_port(paste_prompts& port) { paste_port_ = &port; }
    /// How the panel "Why?" was left, on whatever screen.
    void share_why_place(why_place& place);
    /// The screen to show when this one closes.
    virtual screen_id closes_to() const { return screen_id::front; }
    /// Asks the module's close question.
    virtual bool may_close() = 0;
    /// Whether anything in view would be lost with the screen.
    virtual bool unsaved() const;
    /// What stands at the foot: when it was last saved, or why it was not.
    QString save_status() const;
    /// What is to be said beside the time of a save; empty: nothing.
    void set_save_note(std::function<QString()> note) { save_note_ = std::move(note); }

  signals:
    /// The module was closed.
    void left();
    void years_wanted();
    /// Its rows are now those of its file.
    void saved();
    /// A topic of the program's help: "kel_1_6.htm".
    void help_wanted(const std::string& topic);

  protected:
    /// Shows the grids as they now are.
    virtual void refresh() = 0;
    void closeEvent(QCloseEvent* event) override;

    /// A label of plain, wrapped text.
    QLabel* new_text(const QString& name, QWidget* parent);
    /// A button at the end of the row; with an entry box open it is disabled.
    QPushButton* add_command(QBoxLayout* row, const QString& caption, const QString& name,
                             std::function<void()> action);
    /// A command that saves, with whether it has. Ctrl+S presses the one in view.
    QPushButton* add_save(QBoxLayout* row, const QString& caption, const QString& name,
                          std::function<bool()> save);
    /// Runs the save and says at the foot what has become of it.
    void run_save(const std::function<bool()>& save);
    /// Marks the title as long as something is not saved.
    void mark_unsaved();
    using import_operation = std::function<bool(import_mode)>;  // true: the box closes
    /// The command that takes records over from another file, and the box of its choice over the grid. `name`
    /// stands behind cmd and fra, as in cmdStraw_DB_import.
    void add_import(QBoxLayout* row, grid_view& grid, const QString& name, const import_operation& take);
    /// The same for a table that can only be replaced.
    void add_table_import(QBoxLayout* row, grid_view& grid, const QString& name, const QString& enter_name,
                          const std::function<bool()>& take);
    using click_operation = std::function<opening(int row, int column)>;
    /// The boxes that a click in the grid opens; the screen is refreshed as one closes.
    box_set* add_boxes(grid_view& grid, const click_operation& click, const std::vector<box_row>& rows);
    /// Gives the screen its Edit menu, which undoes by the module's history, its foot, and Ctrl+S. Call it
    /// when the layout stands.
    void use_history(grid_history& history);
    /// Gives the screen the panel "Why?" at the side of `tables`, a widget of its layout, and the button that
    /// opens it. Call it last, when the layout, its tables and its Edit menu stand.
    void use_explanations(QWidget* tables, why_source source);
    /// Lets the Edit menu undo by another history, as for another page, and while this grid is in view.
    void switch_history(grid_history& history) { history_ = &history; }
    void undo_with(grid_view& grid) { grids_.push_back(&grid); }
    /// What a person did is done: whatever it changed in the tables is one step of undo.
    void record_changes();
    /// Keeps this control, too, disabled while a box is open.
    void disable_meanwhile(QWidget* control) { main_controls_.push_back(control); }

  private:
    void adopt_box(entry_box* box);
    void add_foot();
    void say(const QString& text);
    void press_save();
    void paste(grid_view& grid, const box_set& boxes, const click_operation& click, const cell_block& block,
               grid_cell at);
    void paste_clipboard(grid_view& grid, const box_set& boxes, const click_operation& click);
    void fill_down(grid_view& grid, const box_set& boxes, const click_operation& click);
    void clear_cells(grid_view& grid, const box_set& boxes, const click_operation& click);
    entry_box* add_import_box(QBoxLayout* row, grid_view& grid, const QString& name);

    void fill_edit_menu(QMenu& menu);
    void go_back(const text_grid* (grid_history::*way)());
    grid_view* front_grid() const;
    bool box_is_open() const;
    void show_table(const text_grid& table);

    std::vector<QWidget*> main_controls_;
    std::vector<QPushButton*> saves_;
    QLabel* foot_ = nullptr;
    std::function<QString()> save_note_;
    std::vector<entry_box*> boxes_;
    std::vector<grid_view*> grids_;  // that take entries
    grid_history* history_ = nullptr;
    QMenu* edit_menu_ = nullptr;  // with a history
    why_side* why_ = nullptr;     // with explanations
    paste_prompts* paste_port_ = nullptr;
};

}  // namespace kel
