#include "ui/widgets/module_screen.h"

#include <QAction>
#include <QApplication>
#include <QBoxLayout>
#include <QClipboard>
#include <QCloseEvent>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScopeGuard>
#include <QTabWidget>
#include <QTime>
#include <algorithm>
#include <functional>

#include "core/block_entry.h"
#include "core/file_error.h"
#include "core/grid_history.h"
#include "core/paste_prompts.h"
#include "core/record_import.h"
#include "ui/widgets/box_set.h"
#include "ui/widgets/entry_box.h"
#include "ui/widgets/grid_view.h"
#include "ui/widgets/paste_list.h"
#include "ui/widgets/qt_text.h"
#include "ui/widgets/why_side.h"

namespace kel {

module_screen::module_screen(const QString& name, const QString& title) {
    setObjectName(name);
    setWindowTitle(title + "[*]");
}

void module_screen::closeEvent(QCloseEvent* event) {
    event->ignore();  // also when the question fails: what cannot be stored must not go out of view
    if (!may_close()) return;
    event->accept();
    emit left();
}

QLabel* module_screen::new_text(const QString& name, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

QPushButton* module_screen::add_command(QBoxLayout* row, const QString& caption, const QString& name,
                                        std::function<void()> action) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    connect(button, &QPushButton::clicked, this, [this, run = std::move(action)] {
        run();
        record_changes();
    });
    row->addWidget(button);
    main_controls_.push_back(button);
    return button;
}

QPushButton* module_screen::add_save(QBoxLayout* row, const QString& caption, const QString& name,
                                     std::function<bool()> save) {
    auto* button = add_command(row, caption, name, [this, run = std::move(save)] { run_save(run); });
    button->setToolTip(tr("Ctrl+S"));
    saves_.push_back(button);
    return button;
}

void module_screen::run_save(const std::function<bool()>& save) {
    try {
        if (!save()) return;
    } catch (const file_error& failure) {
        say(tr("Not saved: %1").arg(qt(failure.trouble())));
        throw;
    }
    const QString note = save_note_ ? save_note_() : QString();
    say(tr("Saved %1").arg(QTime::currentTime().toString("HH:mm")) + (note.isEmpty() ? "" : ". " + note));
    emit saved();
}

void module_screen::press_save() {
    const auto in_view = [](const QPushButton* save) { return save->isVisible() && save->isEnabled(); };
    const auto save = std::ranges::find_if(saves_, in_view);
    if (save != saves_.end()) (*save)->click();
}

// A trouble of any length must not widen the window.
void module_screen::add_foot() {
    foot_ = new_text("lblModule_saved", this);
    foot_->setWordWrap(false);
    foot_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    static_cast<QBoxLayout*>(layout())->addWidget(foot_);
    auto* save = new QAction(this);
    save->setShortcut(Qt::CTRL | Qt::Key_S);
    connect(save, &QAction::triggered, this, &module_screen::press_save);
    addAction(save);
}

void module_screen::say(const QString& text) {
    if (!foot_) return;
    foot_->setText(text);
    foot_->setToolTip(text.isEmpty() ? QString() : plain_tip(text));
}

QString module_screen::save_status() const {
    return foot_ ? foot_->text() : QString();
}

bool module_screen::unsaved() const {
    return history_ && history_->unsaved();
}

void module_screen::mark_unsaved() {
    setWindowModified(unsaved());
}

void module_screen::adopt_box(entry_box* box) {
    boxes_.push_back(box);
    box->set_disabled_meanwhile(&main_controls_);
    connect(box, &entry_box::closed, this, [this] { refresh(); });
    connect(box, &entry_box::settled, this, &module_screen::record_changes);
}

entry_box* module_screen::add_import_box(QBoxLayout* row, grid_view& grid, const QString& name) {
    auto* box = new entry_box(name, grid, this);
    adopt_box(box);
    add_command(row, qt(import_messages::command), "cmd" + name, [box] {
        box->open({{}, import_messages::command, import_messages::question, {}});
    });
    return box;
}

void module_screen::add_import(QBoxLayout* row, grid_view& grid, const QString& name,
                               const import_operation& take) {
    entry_box* box = add_import_box(row, grid, name);
    const auto run = [take, &grid](import_mode mode) {
        return [take, mode, &grid](grid_cell, const box_entry&) {
            if (!take(mode)) return box_stays(outcome::focus_stays);
            if (mode == import_mode::over_write) grid.show_as_stored();
            return box_closes();
        };
    };
    box->on_enter(run(import_mode::add));
    box->enter_button()->setText("&" + qt(import_messages::add));
    box->enter_button()->setObjectName("cmd" + name + "_add");
    box->add_button("O&" + qt(import_messages::over_write).mid(1), "over", run(import_mode::over_write));
    box->put_cancel_last();
}

void module_screen::add_table_import(QBoxLayout* row, grid_view& grid, const QString& name,
                                     const QString& enter_name, const std::function<bool()>& take) {
    entry_box* box = add_import_box(row, grid, name);
    box->on_enter([take](grid_cell, const box_entry&) {
        return take() ? box_closes() : box_stays(outcome::focus_stays);
    });
    box->enter_button()->setText("&" + qt(import_messages::table));
    box->enter_button()->setObjectName(enter_name);
}

box_set* module_screen::add_boxes(grid_view& grid, const click_operation& click,
                                  const std::vector<box_row>& rows) {
    auto* boxes = new box_set(grid, this);
    for (const box_row& row : rows) {
        adopt_box(boxes->add(row));
    }
    connect(&grid, &grid_view::cell_chosen, boxes,
            [boxes, click](int row, int column) { boxes->open(click(row, column)); });
    grid.take_entries();
    grids_.push_back(&grid);
    connect(&grid, &grid_view::cell_typed, boxes, [boxes, click](int row, int column, const QKeyEvent& key) {
        QKeyEvent typed(key.type(), key.key(), key.modifiers(), key.text());
        boxes->open_typed(click(row, column), &typed);
    });
    connect(&grid, &grid_view::paste_wanted, this,
            [this, &grid, boxes, click] { paste_clipboard(grid, *boxes, click); });
    connect(&grid, &grid_view::fill_wanted, this,
            [this, &grid, boxes, click] { fill_down(grid, *boxes, click); });
    connect(&grid, &grid_view::clear_wanted, this,
            [this, &grid, boxes, click] { clear_cells(grid, *boxes, click); });
    return boxes;
}

void module_screen::paste(grid_view& grid, const box_set& boxes, const click_operation& click,
                          const cell_block& block, grid_cell at) {
    if (!paste_port_ || block.empty()) return;
    for (auto* earlier : findChildren<paste_list*>())
        earlier->close();
    if (const std::size_t cells = cells_of(block); cells > most_pasted_cells)
        return paste_port_->tell(too_much_to_paste(cells));
    const entry_target target{grid.shown(), click, [&](box_id box) { return &boxes.pasted(box); },
                              boxes.paste_year(),
                              [&](int row) { return grid.stored_row(grid.shown_row(row) + 1); }};
    std::vector<pasted_note> notes;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    // Also after a failure: what was entered until then stands in the table.
    const auto done = qScopeGuard([&] {
        QApplication::restoreOverrideCursor();
        record_changes();
        refresh();
        if (!notes.empty()) (new paste_list(grid, std::move(notes), this))->show();
    });
    enter_block(target, *paste_port_, block, at, notes);
}

namespace {

// Texts that are not the rows' own would keep the rest of their lines out.
void leave_out_grey_names(const grid_view& grid, int first_column, cell_block& block) {
    if (first_column > 0 || grid.is_white(0)) return;
    for (auto& row : block)
        row.front().clear();
}

}  // namespace

// A single cell goes into all that are selected.
void module_screen::paste_clipboard(grid_view& grid, const box_set& boxes, const click_operation& click) {
    const auto range = grid.selected_cells();
    if (!range) return;
    cell_block block = parse_block(from_qt(QApplication::clipboard()->text()));
    if (block.size() == 1 && block.front().size() == 1) {
        const std::string cell = block.front().front();
        block = grid.texts_of(*range);
        for (auto& row : block)
            std::ranges::fill(row, cell);
        leave_out_grey_names(grid, range->first.column, block);
    }
    paste(grid, boxes, click, block, {grid.stored_row(range->first.row), range->first.column});
}

void module_screen::fill_down(grid_view& grid, const box_set& boxes, const click_operation& click) {
    const auto range = grid.selected_cells();
    if (!range || range->first.row == range->last.row) return;
    cell_block block = grid.texts_of(*range);
    block.pop_back();
    std::ranges::fill(block, std::vector(block.front()));
    leave_out_grey_names(grid, range->first.column, block);
    paste(grid, boxes, click, block, {grid.stored_row(range->first.row + 1), range->first.column});
}

// A cell that holds nothing is not asked about.
void module_screen::clear_cells(grid_view& grid, const box_set& boxes, const click_operation& click) {
    const std::vector<grid_cell> cells = grid.selected_white_cells();
    {
        // Of one cell it is told why it stays as it is; of many that would be a box for each.
        paste_prompts* quiet = cells.size() > 1 ? paste_port_ : nullptr;
        if (quiet) quiet->begin_paste();
        const auto loud = qScopeGuard([quiet] {
            if (quiet) quiet->end_paste();
        });
        for (const grid_cell at : cells)
            boxes.clear(at, click(at.row, at.column));
    }
    record_changes();
    refresh();
}

void module_screen::use_history(grid_history& history) {
    history_ = &history;
    auto* bar = new QMenuBar(this);
    bar->setObjectName("mnuModule");
    edit_menu_ = bar->addMenu(tr("Edit"));
    fill_edit_menu(*edit_menu_);
    layout()->setMenuBar(bar);
    disable_meanwhile(bar);
    add_foot();
}

void module_screen::fill_edit_menu(QMenu& menu) {
    const auto add = [&](const QString& caption, const QString& name, const QList<QKeySequence>& keys,
                         const text_grid* (grid_history::*way)()) {
        QAction* action = menu.addAction(caption, this, [this, way] { go_back(way); });
        action->setObjectName(name);
        action->setShortcuts(keys);
        return action;
    };
    QAction* undo = add(tr("&Undo"), "mnuModule_undo", {Qt::CTRL | Qt::Key_Z}, &grid_history::undo);
    QAction* redo = add(tr("&Redo"), "mnuModule_redo",
                        {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y}, &grid_history::redo);
    menu.addSeparator();
    const auto add_to_grid = [&](const QString& caption, const QString& name, auto act) {
        menu.addAction(caption, this,
                       [this, act] {
                           if (grid_view* grid = front_grid()) act(grid);
                       })
            ->setObjectName(name);
    };
    add_to_grid(tr("&Copy\tCtrl+C"), "mnuModule_copy", [](grid_view* grid) { grid->copy_selection(); });
    add_to_grid(tr("&Paste\tCtrl+V"), "mnuModule_paste", [](grid_view* grid) { emit grid->paste_wanted(); });
    add_to_grid(tr("Fill &Down\tCtrl+D"), "mnuModule_fill",
                [](grid_view* grid) { emit grid->fill_wanted(); });
    add_to_grid(tr("C&lear\tDel"), "mnuModule_clear", [](grid_view* grid) { emit grid->clear_wanted(); });
    menu.addSeparator();
    add_to_grid(tr("&Find...\tCtrl+F"), "mnuModule_find", [](grid_view* grid) { grid->find(); });
    add_to_grid(tr("&Sort by This Column\tCtrl+Shift+L"), "mnuModule_sort",
                [](grid_view* grid) { grid->sort_on(grid->current_column()); });
    // Grey only as long as they are seen, so that the keys always ask the history itself.
    connect(&menu, &QMenu::aboutToShow, this, [=, this] {
        undo->setEnabled(front_grid() && history_->can_undo());
        redo->setEnabled(front_grid() && history_->can_redo());
    });
    connect(&menu, &QMenu::aboutToHide, this, [=] {
        undo->setEnabled(true);
        redo->setEnabled(true);
    });
}

void module_screen::use_explanations(QWidget* tables, why_source source) {
    why_ = new why_side(*this, tables, std::move(source));
    auto* bar = qobject_cast<QMenuBar*>(layout()->menuBar());
    if (!bar) {
        bar = new QMenuBar(this);
        bar->setObjectName("mnuModule");
        layout()->setMenuBar(bar);
    }
    if (edit_menu_) {
        edit_menu_->addSeparator();
        edit_menu_->addAction(why_->action());
    }
    auto* button = new QPushButton(tr("Why?"), bar);
    button->setObjectName("cmdModule_why");
    button->setToolTip(tr("Why the figure of the current cell is what it is (Ctrl+I)"));
    connect(button, &QPushButton::clicked, why_->action(), &QAction::trigger);
    bar->setCornerWidget(button);
}

void module_screen::share_why_place(why_place& place) {
    if (why_) why_->share(place);
}

void module_screen::record_changes() {
    if (why_) why_->refresh_soon();
    if (history_) history_->record();
    mark_unsaved();
}

bool module_screen::box_is_open() const {
    return std::ranges::any_of(boxes_, [](const entry_box* box) { return box->isVisible(); });
}

grid_view* module_screen::front_grid() const {
    const auto shown = std::ranges::find_if(grids_, [](const grid_view* grid) { return grid->isVisible(); });
    return shown == grids_.end() ? nullptr : *shown;
}

// Results in view would no longer be those of the tables.
void module_screen::go_back(const text_grid* (grid_history::*way)()) {
    if (box_is_open() || !front_grid()) return;
    const text_grid* changed = nullptr;
    // Also when what was undone could not be written into the file: it stands in the table.
    const auto shown = qScopeGuard([&] {
        mark_unsaved();
        refresh();
        if (changed) show_table(*changed);
    });
    changed = std::invoke(way, *history_);
}

// Brings the tab of the table to the front.
void module_screen::show_table(const text_grid& table) {
    for (grid_view* grid : grids_) {
        if (grid->shows(table) && !grid->isVisible())
            for (QWidget* page = grid; page != this; page = page->parentWidget())
                if (auto* tabs = qobject_cast<QTabWidget*>(page->parentWidget()->parentWidget()))
                    tabs->setCurrentWidget(page);
        if (grid->shows(table) && grid->isVisible()) grid->setFocus();
    }
}

void module_screen::reload_all() {
    for (entry_box* box : boxes_)
        box->close_box();
    for (auto* list : findChildren<paste_list*>())
        list->close();
    for (auto* grid : findChildren<grid_view*>())
        grid->show_as_stored();
    reload();
    say({});
    mark_unsaved();
}

}  // namespace kel
