// The entry boxes of a grid by their identities, as one table per grid: which box, what its controls are
// named after, what Enter does and which buttons follow.
#pragma once

#include <QObject>
#include <functional>
#include <utility>
#include <vector>

#include "ui/widgets/entry_box.h"

namespace kel {

struct box_button {
    QString caption;
    const char* suffix;  // of its name
    entry_box::box_operation action;
};

struct box_row {
    box_id box;
    const char* name;
    entry_box::box_operation enter;
    std::vector<box_button> buttons{};
    const char* enter_name = nullptr;   // of the Enter button, where it is not the usual one
    entry_box::box_operation pasted{};  // takes a pasted entry, where that is not what Enter does
};

// The operations of a module as those of a box: on the cell's row or on the cell, with what was typed or
// chosen.
template <class Module>
entry_box::box_operation runs(Module& module, outcome (Module::*run)(int)) {
    return [&module, run](grid_cell at, const box_entry&) { return (module.*run)(at.row); };
}
template <class Module>
entry_box::box_operation runs(Module& module, outcome (Module::*run)(int, int)) {
    return [&module, run](grid_cell at, const box_entry&) { return (module.*run)(at.row, at.column); };
}
template <class Module>
entry_box::box_operation runs(Module& module, outcome (Module::*run)(int, const std::string&)) {
    return
        [&module, run](grid_cell at, const box_entry& typed) { return (module.*run)(at.row, typed.text()); };
}
template <class Module>
entry_box::box_operation runs(Module& module, outcome (Module::*run)(int, int, const std::string&)) {
    return [&module, run](grid_cell at, const box_entry& typed) {
        return (module.*run)(at.row, at.column, typed.text());
    };
}
template <class Module>
entry_box::box_operation runs(Module& module, outcome (Module::*run)(int, date)) {
    return [&module, run](grid_cell at, const box_entry& typed) {
        return (module.*run)(at.row, typed.day().value());
    };
}
template <class Module>
entry_box::box_operation runs(Module& module, outcome (Module::*run)(int, const box_entry&)) {
    return [&module, run](grid_cell at, const box_entry& typed) { return (module.*run)(at.row, typed); };
}

box_button clear_button(entry_box::box_operation clear);
box_button erase_button(entry_box::box_operation erase);

class box_set : public QObject {
    Q_OBJECT

  public:
    box_set(grid_view& grid, QWidget* screen);

    entry_box* add(const box_row& row);
    entry_box* box(box_id box) const;
    /// Opens its box, and none for an opening without one.
    void open(const opening& shown);
    /// The same for one who types on from cell to cell; the key goes into the box.
    void open_typed(const opening& shown, QKeyEvent* key);
    /// Runs the Clear Cell of the box that a click on the cell opens; false if that has none.
    bool clear(grid_cell at, const opening& clicked) const;
    /// The year of pasted dates without one.
    void set_paste_year(std::function<int()> year) { paste_year_ = std::move(year); }
    const std::function<int()>& paste_year() const { return paste_year_; }
    /// What takes a pasted entry of the box.
    const entry_box::box_operation& pasted(box_id box) const { return member_of(box).pasted; }

  private:
    struct member {
        box_id id;
        entry_box* box;
        entry_box::box_operation clear;  // none: it has no such button
        entry_box::box_operation pasted;
    };
    const member& member_of(box_id box) const;
    entry_box* box_over_cell(const opening& shown);
    grid_view& grid_;
    QWidget* screen_;
    std::vector<member> boxes_;
    std::function<int()> paste_year_;
};

}  // namespace kel
