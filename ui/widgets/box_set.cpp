#include "ui/widgets/box_set.h"

#include <QPushButton>
#include <algorithm>
#include <stdexcept>

#include "ui/widgets/grid_view.h"

namespace kel {

box_button clear_button(entry_box::box_operation clear) {
    return {"Clear &Cell", "clear", std::move(clear)};
}

box_button erase_button(entry_box::box_operation erase) {
    return {"Erase &Row", "erase", std::move(erase)};
}

box_set::box_set(grid_view& grid, QWidget* screen) : QObject(screen), grid_(grid), screen_(screen) {}

entry_box* box_set::add(const box_row& row) {
    auto* box = new entry_box(row.name, grid_, screen_);
    box->on_enter(row.enter);
    if (row.enter_name) box->enter_button()->setObjectName(row.enter_name);
    for (const box_button& button : row.buttons)
        box->add_button(button.caption, button.suffix, button.action);
    connect(box, &entry_box::led_to, this, &box_set::open);
    boxes_.push_back({row.box, box});
    return box;
}

entry_box* box_set::box(box_id box) const {
    const auto found =
        std::find_if(boxes_.begin(), boxes_.end(), [&](const member& m) { return m.id == box; });
    if (found == boxes_.end()) throw std::logic_error("a box that the screen does not have");
    return found->box;
}

void box_set::open(const opening& shown) {
    if (shown.box.none()) return;
    if (shown.column) grid_.setCurrentIndex(grid_.model()->index(grid_.current_row(), *shown.column));
    box(shown.box)->open(shown);
}

}  // namespace kel
