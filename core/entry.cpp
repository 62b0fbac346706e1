#include "core/entry.h"

#include <utility>

#include "core/module_messages.h"

namespace kel {

outcome box_closes() {
    return {.closes = true};
}

outcome box_stays(int focus, std::vector<outcome::new_text> changes) {
    return {.closes = false, .focus = focus, .changes = std::move(changes)};
}

outcome leads_to(opening next) {
    return {.closes = true, .next = std::move(next)};
}

outcome refuse(prompts& person, const message& reason, int focus, std::vector<outcome::new_text> changes) {
    person.tell(reason);
    return box_stays(focus, std::move(changes));
}

opening opens_none(prompts& person, const message& reason) {
    person.tell(reason);
    return {};
}

outcome erase_data_row(prompts& person, text_grid& grid, int row) {
    if (row == grid.row_count() - 1) return refuse(person, module_messages::cannot_delete);
    grid.erase_row(row);
    return box_closes();
}

}  // namespace kel
