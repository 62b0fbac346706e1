#include "ui/widgets/box_set.h"

#include <QPushButton>
#include <algorithm>
#include <stdexcept>
#include <string_view>

#include "ui/widgets/grid_view.h"

namespace kel {

namespace {
constexpr const char* clear_suffix = "clear";
}

box_button clear_button(entry_box::box_operation clear) {
    return {"Clear &Cell", clear_suffix, std::move(clear)};
}

box_button erase_button(entry_box::box_operation erase) {
    return {"Erase &Row", "erase", std::move(erase)};
}

box_set::box_set(grid_view& grid, QWidget* screen) : QObject(screen), grid_(grid), screen_(screen) {}

entry_box* box_set::add(const box_row& row) {
    auto* box = new entry_box(row.name, grid_, screen_);
    box->on_enter(row.enter);
    if (row.enter_name) box->enter_button()->setObjectName(row.enter_name);
    boxes_.push_back({row.box, box, {}, row.pasted ? row.pasted : row.enter});
    for (const box_button& button : row.buttons) {
        box->add_button(button.caption, button.suffix, button.action);
        if (std::string_view(button.suffix) == clear_suffix) boxes_.back().clear = button.action;
    }
    connect(box, &entry_box::led_to, this,
            [this](const opening& next, bool typed) { typed ? open_typed(next, nullptr) : open(next); });
    return box;
}

const box_set::member& box_set::member_of(box_id box) const {
    const auto found =
        std::find_if(boxes_.begin(), boxes_.end(), [&](const member& m) { return m.id == box; });
    if (found == boxes_.end()) throw std::logic_error("a box that the screen does not have");
    return *found;
}

entry_box* box_set::box(box_id box) const {
    return member_of(box).box;
}

entry_box* box_set::box_over_cell(const opening& shown) {
    if (shown.column) grid_.setCurrentIndex(grid_.currentIndex().siblingAtColumn(*shown.column));
    return box(shown.box);
}

void box_set::open(const opening& shown) {
    if (!shown.box.none()) box_over_cell(shown)->open(shown);
}

void box_set::open_typed(const opening& shown, QKeyEvent* key) {
    if (!shown.box.none()) box_over_cell(shown)->open_typed(shown, key);
}

bool box_set::clear(grid_cell at, const opening& clicked) const {
    if (clicked.box.none()) return false;
    const auto& clear = member_of(clicked.box).clear;
    return clear && clear(at, {}).closes;
}

}  // namespace kel
