#include "core/grid_rows.h"

#include <algorithm>
#include <utility>

#include "core/assessment_files.h"

namespace kel {

namespace {

constexpr std::size_t most_boxes = 20;

bool belongs(const row_rules& rules, std::string_view field) {
    return rules.fields->contains(field) || (field.empty() && rules.nameless_rows_pass);
}

}  // namespace

void load_messages::add(message box) {
    if (boxes_.size() < most_boxes)
        boxes_.push_back(std::move(box));
    else
        ++more_;
}

void load_messages::tell(prompts& person) const {
    for (const message& box : boxes_)
        person.tell(box);
    if (more_ > 0) person.tell(module_messages::more_messages(more_));
}

void append_rows(const database& db, std::string_view table, text_grid& grid, const row_rules& rules,
                 load_messages& told) {
    recordset rows = db.open(table);
    const std::vector<int> stored = stored_columns(rows, grid);
    const int field_column = rules.fields ? rows.column(rules.field_column) : -1;
    for (; !rows.eof(); rows.move_next()) {
        const std::string_view field = rules.fields ? rows.view(field_column) : std::string_view{};
        if (rules.fields && !belongs(rules, field)) {
            told.add(rules.unknown(std::string(field)));
            continue;
        }
        const int row = grid.add_row();
        load_grid_row(rows, stored, grid, row);
        if (rules.complete) rules.complete(grid, row, rows);
    }
}

void append_rows(const database& db, std::string_view table, text_grid& grid) {
    load_messages none;
    append_rows(db, table, grid, {}, none);
}

bool import_rows(const database& source, std::string_view table, text_grid& grid, const grid_frame& frame,
                 import_mode mode, const row_rules& rules, load_messages& told) {
    if (source.open(table).eof()) return false;
    text_grid fresh = grid;
    const int kept = mode == import_mode::over_write ? frame.above : grid.row_count() - frame.below;
    fresh.set_row_count(std::max(kept, frame.above));
    append_rows(source, table, fresh, rules, told);
    fresh.set_row_count(fresh.row_count() + frame.below);
    grid = std::move(fresh);
    return true;
}

}  // namespace kel
