#include "core/shown_rows.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <numeric>
#include <optional>
#include <string_view>
#include <unordered_map>

#include "core/dates.h"
#include "core/numbers.h"

namespace kel {

namespace {

constexpr std::string_view digits = "0123456789";

std::size_t at(int i) {
    return static_cast<std::size_t>(i);
}

enum class cell_kind { number, day, text, empty };

struct sort_key {
    cell_kind kind = cell_kind::empty;
    double number = 0;
    date day{};
    std::string_view text;
};

// Numbers, and ranges by where they begin.
bool is_figure(std::string_view text) {
    const auto first = text.find_first_not_of(" -.");
    return first != std::string_view::npos && digits.find(text[first]) != std::string_view::npos &&
           text.find_first_not_of("0123456789.- ") == std::string_view::npos;
}

sort_key key_of(std::string_view text) {
    if (text.empty()) return {};
    if (const auto day = parse_date(text)) return {cell_kind::day, 0, *day, text};
    if (is_figure(text)) return {cell_kind::number, leading_number(text), {}, text};
    return {cell_kind::text, 0, {}, text};
}

std::string_view take_digits(std::string_view& text) {
    const std::string_view run = text.substr(0, text.find_first_not_of(digits));
    text.remove_prefix(run.size());
    return run.substr(std::min(run.find_first_not_of('0'), run.size()));
}

// "Field 9" before "field 10".
bool text_before(std::string_view one, std::string_view other) {
    const auto is_digit = [](char c) { return digits.find(c) != std::string_view::npos; };
    while (!one.empty() && !other.empty()) {
        if (is_digit(one.front()) && is_digit(other.front())) {
            const std::string_view first = take_digits(one);
            const std::string_view second = take_digits(other);
            if (first.size() != second.size()) return first.size() < second.size();
            if (first != second) return first < second;
            continue;
        }
        const int first = std::tolower(static_cast<unsigned char>(one.front()));
        const int second = std::tolower(static_cast<unsigned char>(other.front()));
        if (first != second) return first < second;
        one.remove_prefix(1);
        other.remove_prefix(1);
    }
    return one.size() < other.size();
}

bool stands_before(const sort_key& one, const sort_key& other, bool descending) {
    const bool one_empty = one.kind == cell_kind::empty;
    const bool other_empty = other.kind == cell_kind::empty;
    if (one_empty || other_empty) return !one_empty && other_empty;
    const sort_key& first = descending ? other : one;
    const sort_key& second = descending ? one : other;
    if (first.kind != second.kind) return first.kind < second.kind;
    if (first.kind == cell_kind::number) return first.number < second.number;
    if (first.kind == cell_kind::day) return first.day < second.day;
    return text_before(first.text, second.text);
}

bool is_empty(std::span<const std::string> row) {
    return std::ranges::all_of(row, &std::string::empty);
}

bool ends_in_entry_row(const text_grid& grid) {
    return grid.row_count() > 0 && is_empty(grid.row(grid.row_count() - 1));
}

}  // namespace

std::vector<int> sorted_rows(const text_grid& grid, int column, bool descending) {
    std::vector<sort_key> keys;
    keys.reserve(at(grid.row_count()));
    for (int row = 0; row < grid.row_count(); ++row)
        keys.push_back(key_of(grid.cell(row, column)));
    std::vector<int> rows(keys.size());
    std::iota(rows.begin(), rows.end(), 0);
    std::stable_sort(rows.begin(), rows.end() - (ends_in_entry_row(grid) ? 1 : 0),
                     [&](int a, int b) { return stands_before(keys[at(a)], keys[at(b)], descending); });
    return rows;
}

void shown_rows::sort(int column, bool descending) {
    entry_row_last_ = ends_in_entry_row(*grid_);
    take(sorted_rows(*grid_, column, descending));
}

void shown_rows::show_as_stored() {
    take({});
}

void shown_rows::take(std::vector<int> stored) {
    stored_ = std::move(stored);
    shown_.assign(stored_.size(), 0);
    for (std::size_t i = 0; i < stored_.size(); ++i)
        shown_[at(stored_[i])] = static_cast<int>(i);
    known_ = stored_.empty() ? text_grid::shared_rows() : grid_->rows_from(0, grid_->row_count());
}

// A row that nobody has written to is still the same one. One that is not known again was written to where it
// stood, behind the same row as before, or it is new: -1.
std::vector<int> shown_rows::earlier_rows(const text_grid::shared_rows& now) const {
    std::unordered_map<const void*, int> places;
    for (std::size_t i = 0; i < known_.size(); ++i)
        places.emplace(known_[i].get(), static_cast<int>(i));
    std::vector<int> earlier;
    earlier.reserve(now.size());
    std::vector<bool> taken(known_.size());
    for (const auto& row : now) {
        const auto found = places.find(row.get());
        earlier.push_back(found == places.end() ? -1 : found->second);
        if (found != places.end()) taken[at(found->second)] = true;
    }
    for (std::size_t i = 0; i < earlier.size(); ++i) {
        if (earlier[i] >= 0) continue;
        const std::size_t next = i == 0 ? 0 : earlier[i - 1] < 0 ? taken.size() : at(earlier[i - 1] + 1);
        if (next >= taken.size() || taken[next]) continue;
        earlier[i] = static_cast<int>(next);
        taken[next] = true;
    }
    return earlier;
}

void shown_rows::follow() {
    if (!sorted()) return;
    const auto now = grid_->rows_from(0, grid_->row_count());
    if (now == known_) return;
    const std::vector<int> earlier = earlier_rows(now);
    // Where a row stood; behind all others it is new.
    std::vector<int> rows(now.size());
    std::iota(rows.begin(), rows.end(), 0);
    const auto place = [&](int row) {
        return earlier[at(row)] < 0 ? shown_.size() : at(shown(earlier[at(row)]));
    };
    const bool last_stays = entry_row_last_ && ends_in_entry_row(*grid_);
    std::stable_sort(rows.begin(), rows.end() - (last_stays ? 1 : 0),
                     [&](int a, int b) { return place(a) < place(b); });
    take(std::move(rows));
}

}  // namespace kel
