#include "core/text_grid.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

#include "core/numbers.h"

namespace kel {

namespace {
std::size_t at(int i) {
    return static_cast<std::size_t>(i);
}
}  // namespace

const std::string& text_grid::cell(int row, int column) const {
    return rows_.at(at(row))->at(at(column));
}

std::span<const std::string> text_grid::row(int row) const {
    return *rows_.at(at(row));
}

void text_grid::set_cell(int row, int column, std::string text) {
    std::shared_ptr<cells>& own = rows_.at(at(row));
    if (own.use_count() > 1) own = std::make_shared<cells>(*own);
    own->at(at(column)) = std::move(text);
}

text_grid::shared_rows text_grid::rows_from(int first, int count) const {
    if (first < 0 || count < 0 || first + count > row_count())
        throw std::out_of_range("rows that the table does not have");
    return {rows_.begin() + first, rows_.begin() + first + count};
}

text_grid::shared_rows text_grid::replace_rows(int first, int count, shared_rows rows) {
    shared_rows taken = rows_from(first, count);
    rows_.erase(rows_.begin() + first, rows_.begin() + first + count);
    rows_.insert(rows_.begin() + first, std::make_move_iterator(rows.begin()),
                 std::make_move_iterator(rows.end()));
    return taken;
}

float text_grid::number(int row, int column) const {
    return leading_single(cell(row, column));
}

int text_grid::add_row() {
    rows_.push_back(empty_row());
    return row_count() - 1;
}

void text_grid::erase_row(int row) {
    if (row < 0 || row >= row_count()) throw std::out_of_range("a row that the table does not have");
    rows_.erase(rows_.begin() + row);
}

void text_grid::set_row_count(int rows) {
    rows_.reserve(at(rows));
    while (row_count() < rows)
        rows_.push_back(empty_row());
    rows_.resize(at(rows));
}

void text_grid::keep_entry_row(int row) {
    if (row == row_count() - 1) add_row();
}

bool text_grid::operator==(const text_grid& other) const {
    return std::equal(
        rows_.begin(), rows_.end(), other.rows_.begin(), other.rows_.end(),
        [](const auto& ours, const auto& theirs) { return ours == theirs || *ours == *theirs; });
}

int text_grid::find(int column, std::string_view text) const {
    for (int row = 0; row < row_count(); ++row)
        if (cell(row, column) == text) return row;
    return -1;
}

bool text_grid::in_other_row(int row, int column, std::string_view text) const {
    for (int other = 0; other < row_count(); ++other)
        if (other != row && cell(other, column) == text) return true;
    return false;
}

float text_grid::sum(int column, int rows) const {
    float total = 0;
    for (int row = 0; row < rows; ++row)
        total += number(row, column);
    return total;
}

}  // namespace kel
