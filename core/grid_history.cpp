#include "core/grid_history.h"

#include <algorithm>

namespace kel {

namespace {

// Rows that two tables share are not compared cell by cell.
bool same(std::span<const std::string> one, std::span<const std::string> other) {
    return one.data() == other.data() || std::ranges::equal(one, other);
}

struct cell_change {
    int row;
    int column;
    std::string other;
};

// Rows that have come or gone in one place, and the cells that differ in the rows around it. The cells are
// counted as the table was before.
struct grid_change {
    int first = 0;
    int count = 0;  // of the rows there, in the place of `other`
    text_grid::shared_rows other;
    std::vector<cell_change> cells;
    bool changed = true;  // the table is as it was after the change
};

class watched_grid : public watched_table {
  public:
    explicit watched_grid(text_grid& grid) : grid_(grid), known_(grid), saved_(grid) {}

    change difference() override {
        if (grid_ == known_) return {};
        const int more = grid_.row_count() - known_.row_count();
        grid_change found;
        found.first = more == 0 ? 0 : place_of_rows(more);
        found.count = std::max(more, 0);
        found.cells = differing_cells(found.first, more);
        for (const cell_change& cell : found.cells)
            known_.set_cell(cell.row, cell.column,
                            grid_.cell(row_now(cell.row, found.first, more), cell.column));
        found.other =
            known_.replace_rows(found.first, std::max(-more, 0), grid_.rows_from(found.first, found.count));
        return [this, found = std::move(found)]() mutable { swap(found); };
    }
    void accept() override {
        if (known_ == saved_) saved_ = grid_;
        known_ = grid_;
    }
    void set_saved() override { saved_ = known_ = grid_; }
    bool is_saved() const override { return grid_ == saved_; }
    const text_grid& saved() const override { return saved_; }
    void set_saved_as(text_grid saved) override { saved_ = std::move(saved); }
    const text_grid* table() const override { return &grid_; }

  private:
    // A row of the table as it was known, by its place now; -1: it has gone.
    static int row_now(int row, int first, int more) {
        if (row < first) return row;
        return row < first - more ? -1 : row + more;
    }

    bool alike(int known_row, int first, int more) const {
        const int now = row_now(known_row, first, more);
        return now < 0 || same(grid_.row(now), known_.row(known_row));
    }

    // Where rows came or went: behind those that are as they were at the top, before those at the bottom, or
    // at the end, whichever leaves the fewest rows that differ.
    int place_of_rows(int more) const {
        const int shared = std::min(grid_.row_count(), known_.row_count());
        int above = 0;
        while (above < shared && same(grid_.row(above), known_.row(above)))
            ++above;
        int below = 0;
        while (below < shared && alike(known_.row_count() - 1 - below, 0, more))
            ++below;
        int best = shared;
        int fewest = rows_unlike(shared, more);
        for (const int place : {above, shared - below})
            if (const int unlike = rows_unlike(place, more); unlike < fewest) {
                best = place;
                fewest = unlike;
            }
        return best;
    }

    int rows_unlike(int first, int more) const {
        int unlike = 0;
        for (int r = 0; r < known_.row_count(); ++r)
            if (!alike(r, first, more)) ++unlike;
        return unlike;
    }

    std::vector<cell_change> differing_cells(int first, int more) const {
        std::vector<cell_change> cells;
        for (int r = 0; r < known_.row_count(); ++r) {
            if (alike(r, first, more)) continue;
            const auto now = grid_.row(row_now(r, first, more));
            for (int c = 0; c < grid_.column_count(); ++c)
                if (now[static_cast<std::size_t>(c)] != known_.cell(r, c))
                    cells.push_back({r, c, known_.cell(r, c)});
        }
        cells.shrink_to_fit();
        return cells;
    }

    void swap(grid_change& moved) {
        if (moved.changed) swap_rows(moved);
        for (cell_change& cell : moved.cells) {
            known_.set_cell(cell.row, cell.column, cell.other);
            std::string now = grid_.cell(cell.row, cell.column);
            grid_.set_cell(cell.row, cell.column, std::exchange(cell.other, std::move(now)));
        }
        if (!moved.changed) swap_rows(moved);
        moved.changed = !moved.changed;
    }

    void swap_rows(grid_change& moved) {
        const int back = static_cast<int>(moved.other.size());
        known_.replace_rows(moved.first, moved.count, moved.other);
        moved.other = grid_.replace_rows(moved.first, moved.count, std::move(moved.other));
        moved.count = back;
    }

    text_grid& grid_;
    text_grid known_;
    text_grid saved_;
};

}  // namespace

std::unique_ptr<watched_part> watch(text_grid& grid) {
    return std::make_unique<watched_grid>(grid);
}

void grid_history::begin_anew() {
    forget_steps();
    for (const auto& part : parts_)
        part->set_saved();
}

void grid_history::forget_steps() {
    undone_from_.clear();
    redone_from_.clear();
    accept();
}

void grid_history::accept() {
    for (const auto& part : parts_)
        part->accept();
}

bool grid_history::unsaved() const {
    return !std::ranges::all_of(parts_, [](const auto& part) { return part->is_saved(); });
}

watched_table& grid_history::watched(const text_grid& table) const {
    const auto is_it = [&](const auto& part) { return part->table() == &table; };
    return static_cast<watched_table&>(**std::ranges::find_if(parts_, is_it));
}

grid_history::step grid_history::difference() {
    step changes;
    for (const auto& part : parts_)
        if (auto swap = part->difference()) changes.push_back({part->table(), std::move(swap)});
    return changes;
}

bool grid_history::record() {
    step changes = difference();
    const auto is_table = [](const part_change& change) { return change.table != nullptr; };
    if (std::none_of(changes.begin(), changes.end(), is_table)) return false;
    undone_from_.push_back(std::move(changes));
    if (undone_from_.size() > most_steps) undone_from_.pop_front();
    redone_from_.clear();
    return true;
}

const text_grid* grid_history::swap(std::deque<step>& from, std::deque<step>& to) {
    record();
    if (from.empty()) return nullptr;
    step changes = std::move(from.back());
    from.pop_back();
    const text_grid* first = nullptr;
    for (part_change& change : changes) {
        change.swap();
        if (!first) first = change.table;
    }
    to.push_back(std::move(changes));
    if (restored_) {
        restored_();
        accept();
    }
    return first;
}

const text_grid* grid_history::undo() {
    return swap(undone_from_, redone_from_);
}

const text_grid* grid_history::redo() {
    return swap(redone_from_, undone_from_);
}

}  // namespace kel
