#include "core/block_entry.h"

#include <algorithm>
#include <cctype>

namespace kel {

namespace {

constexpr std::size_t most_questions = 20;  // in one chain

std::string trimmed(const std::string& text) {
    constexpr std::string_view blanks = " \t\r\n\xC2\xA0";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool same_letters(std::string_view one, std::string_view other) {
    return std::ranges::equal(
        one, other, [](unsigned char a, unsigned char b) { return std::tolower(a) == std::tolower(b); });
}

std::vector<int> places_of(const std::vector<std::string>& texts, const std::string& text) {
    std::vector<int> places;
    for (std::size_t i = 0; i < texts.size(); ++i)
        if (texts[i] == text) places.push_back(static_cast<int>(i));
    return places;
}

// The choices that the text may mean: the choice itself goes before those that it stands for in their cell,
// of which the one that the box opens with goes first, and both before what only looks alike.
std::vector<int> choices_meant(const entry_part& part, const std::string& text) {
    if (auto exact = places_of(part.choices, text); !exact.empty()) return {exact.front()};
    if (auto in_cell = places_of(part.cell_texts, text); !in_cell.empty()) {
        const auto shown = std::ranges::find_if(
            in_cell, [&](int place) { return part.choices[static_cast<std::size_t>(place)] == part.text; });
        return shown == in_cell.end() ? in_cell : std::vector{*shown};
    }
    const auto alike = std::ranges::find_if(
        part.choices, [&](const std::string& choice) { return same_letters(choice, text); });
    if (alike == part.choices.end()) return {};
    return {static_cast<int>(alike - part.choices.begin())};
}

std::optional<int> choice_of(const entry_part& part, const std::string& text) {
    const std::vector<int> meant = choices_meant(part, text);
    return meant.empty() ? std::nullopt : std::optional(meant.front());
}

part_entry chosen(const entry_part& part, int place) {
    return {.text = part.choices[static_cast<std::size_t>(place)], .choice = place};
}

bool is_number(const std::string& text, bool with_point) {
    const auto digits = std::ranges::count_if(text, [](unsigned char c) { return std::isdigit(c) != 0; });
    const auto points = with_point ? std::ranges::count(text, '.') : 0;
    return digits > 0 && points <= 1 && digits + points == static_cast<std::ptrdiff_t>(text.size());
}

std::string one_line(std::string text) {
    std::ranges::replace_if(
        text, [](char c) { return c == '\r' || c == '\n' || c == '\t'; }, ' ');
    return text;
}

std::string quote(const std::string& text) {
    constexpr std::size_t longest = 60;
    return '"' + (text.size() > longest ? text.substr(0, longest) + "..." : one_line(text)) + '"';
}

std::string not_a_choice(const entry_part& part, const std::string& text, const std::vector<int>& meant) {
    if (meant.empty()) return quote(text) + " is not among the choices.";
    std::string names;
    for (const int place : meant)
        names += (names.empty() ? "" : ", ") + quote(part.choices[static_cast<std::size_t>(place)]);
    return quote(text) + " stands for more than one of the choices: " + names + '.';
}

// What stands in a part as its box opens.
part_entry as_it_opens(const entry_part& part) {
    part_entry entry{.text = part.text};
    if (!part.text.empty()) entry.choice = choice_of(part, part.text);
    if (!part.choices.empty() && !entry.choice) entry.text.clear();
    if (part.kind == part_kind::calendar || part.kind == part_kind::day) entry.day = parse_date(part.text);
    return entry;
}

bool asks_for_date(const opening& shown) {
    return std::ranges::any_of(shown.parts, [](const entry_part& part) {
        return part.kind == part_kind::calendar || part.kind == part_kind::day;
    });
}

class block_writer {
  public:
    block_writer(const entry_target& target, paste_prompts& person, std::vector<pasted_note>& notes)
        : target_(target), person_(person), notes_(notes), year_(target.year ? target.year() : 0) {}

    void write(const cell_block& block, grid_cell at) {
        try {
            write_lines(block, at);
        } catch (...) {
            note({-1, at.column}, "The paste stopped here.", false);
            throw;
        }
    }

  private:
    void write_lines(const cell_block& block, grid_cell at) {
        columns_ = columns_from(at.column);
        const bool headed = block.size() > 1 && take_headings(block.front());
        int row = at.row;
        for (std::size_t line = headed ? 1 : 0; line < block.size(); ++line) {
            line_ = static_cast<int>(line) + 1;
            if (row >= target_.grid.row_count()) {
                note({-1, at.column}, "The table has no row for this line and those below it.", false);
                break;
            }
            write_row(block[line], row);
            // A line of which nothing was taken leaves the entry row to the next one.
            const bool last = row == target_.grid.row_count() - 1;
            if (!last || row_holds_something(row)) row = target_.row_below ? target_.row_below(row) : row + 1;
        }
    }

    std::vector<int> columns_from(int first) const {
        std::vector<int> columns;
        const auto all = target_.grid.columns();
        for (int c = first; c < target_.grid.column_count(); ++c)
            if (all[static_cast<std::size_t>(c)].kind != column_kind::carried) columns.push_back(c);
        return columns;
    }

    bool take_headings(const std::vector<std::string>& cells) {
        std::vector<int> named;
        for (const std::string& cell : cells) {
            const auto all = target_.grid.columns();
            const auto found = std::ranges::find_if(all, [&](const grid_column& column) {
                return column.kind != column_kind::carried && same_letters(column.heading, trimmed(cell));
            });
            if (found == all.end()) return false;
            named.push_back(static_cast<int>(found - all.begin()));
        }
        columns_ = std::move(named);
        return true;
    }

    bool row_holds_something(int row) const {
        return std::ranges::any_of(target_.grid.row(row),
                                   [](const std::string& cell) { return !cell.empty(); });
    }

    bool is_white(int column) const {
        return target_.grid.columns()[static_cast<std::size_t>(column)].kind == column_kind::entered;
    }

    void write_row(const std::vector<std::string>& cells, int row) {
        texts_.assign(static_cast<std::size_t>(target_.grid.column_count()), {});
        const std::size_t width = std::min(cells.size(), columns_.size());
        std::vector<int> order;
        for (std::size_t i = 0; i < width; ++i) {
            std::string& text = texts_[static_cast<std::size_t>(columns_[i])];
            text = trimmed(cells[i]);
            if (!text.empty() && is_white(columns_[i])) order.push_back(columns_[i]);
        }
        if (cells.size() > width)
            note({row, columns_.empty() ? 0 : columns_.back()}, "The line has more cells than the table.",
                 false);
        if (!takes_name(row)) return;
        std::ranges::sort(order);
        for (const int column : order)
            if (!texts_[static_cast<std::size_t>(column)].empty()) write_cell(row, column);
    }

    // What stands behind a name must not go to another's row.
    bool takes_name(int row) {
        const std::string name = one_line(texts_.front());
        if (name.empty()) return true;
        if (is_white(0)) return writes_name(row, name);
        texts_.front().clear();
        if (same_letters(target_.grid.cell(row, 0), name)) return true;
        leave_out_rest(row, quote(name) + " is not what this row is for.");
        return false;
    }

    bool writes_name(int row, const std::string& name) {
        const std::string before = target_.grid.cell(row, 0);
        if (before == name) {
            texts_.front().clear();
            return true;
        }
        write_cell(row, 0);
        if (row < target_.grid.row_count()) {
            // The module may keep a name in a form of its own.
            const std::string& now = target_.grid.cell(row, 0);
            if (same_letters(now, name) || (!now.empty() && now != before)) return true;
        }
        leave_out_rest(row, "");
        return false;
    }

    void leave_out_rest(int row, const std::string& why) {
        constexpr const char* left_out = "The rest of the line was left out.";
        const bool more = std::ranges::any_of(texts_, [](const std::string& text) { return !text.empty(); });
        if (more || !why.empty())
            note({row, 0}, why + (why.empty() || !more ? "" : " ") + (more ? left_out : ""), false);
    }

    void write_cell(int row, int column) {
        opening shown = target_.click(row, column);
        if (shown.box.none()) {
            note_told({row, column}, false, "This cell takes no entry.");
            return;
        }
        for (std::size_t asked = 0; asked < most_questions; ++asked) {
            const outcome result = enter(row, column, shown, asked > 0);
            if (!result.next || result.next->box.none()) break;
            shown = *result.next;
        }
        const std::string left = std::exchange(texts_[static_cast<std::size_t>(column)], {});
        if (!left.empty() && row < target_.grid.row_count() && target_.grid.cell(row, column) != left)
            note({row, column}, quote(left) + " found no place here.", false);
    }

    // Parts without a column of their own: the first one stands in that of the box.
    std::optional<int> column_of(const opening& shown, std::size_t part, int clicked,
                                 bool asked_after) const {
        if (shown.parts[part].column) return shown.parts[part].column;
        if (part > 0 || asked_after) return std::nullopt;
        return shown.column.value_or(clicked);
    }

    // Up to the divider, if a later part has its answer in the same column.
    std::string take_text(const opening& shown, std::size_t part, int from, int clicked) {
        std::string& text = texts_[static_cast<std::size_t>(from)];
        bool shared = false;
        for (std::size_t later = part + 1; later < shown.parts.size(); ++later)
            shared = shared || column_of(shown, later, clicked, false) == from;
        const auto end = shared ? text.find(answer_divider) : std::string::npos;
        if (end == std::string::npos) return std::exchange(text, {});
        std::string first = text.substr(0, end);
        text.erase(0, end + answer_divider.size());
        return first;
    }

    std::optional<part_entry> entry_of(const entry_part& part, const std::string& text,
                                       std::string& why) const {
        auto put = text.empty() ? as_it_opens(part) : pasted_entry(part, text, year_, why);
        if (!put || part.kind != part_kind::day || put->day) return put;
        why = "Its box asks for a date, too.";
        return std::nullopt;
    }

    /// Nothing next: the chain has ended.
    outcome enter(int row, int column, const opening& shown, bool asked_after) {
        const grid_cell cell{row, shown.column.value_or(column)};
        box_entry entry;
        bool answered = shown.parts.empty();
        bool refused = false;
        for (std::size_t part = 0; part < shown.parts.size(); ++part) {
            const auto from = column_of(shown, part, column, asked_after);
            const std::string text = from ? take_text(shown, part, *from, column) : std::string();
            std::string why;
            auto put = entry_of(shown.parts[part], text, why);
            answered = answered || !text.empty() || (put && put->choice);
            if (!put) note({row, from.value_or(column)}, why, false);
            refused = refused || !put;
            entry.parts.push_back(put ? *std::move(put) : as_it_opens(shown.parts[part]));
        }
        // What the first answer has begun is brought to its end.
        if (refused && (!asked_after || asks_for_date(shown))) return {};
        if (!answered && asked_after) note(cell, "Not answered: " + shown.caption, true);
        return run(cell, shown, entry);
    }

    outcome run(grid_cell cell, const opening& shown, const box_entry& entry) {
        const cell_entry* operation = target_.enter(shown.box);
        if (!operation) return {};
        outcome result = (*operation)(cell, entry);
        note_told(cell, result.closes, result.closes ? "" : "This is not taken.");
        if (!result.closes) result.next.reset();
        return result;
    }

    void note(grid_cell cell, std::string text, bool entered) {
        notes_.push_back({line_, cell, std::move(text), entered});
    }

    void note_told(grid_cell cell, bool entered, std::string_view otherwise) {
        std::vector<std::string> told = person_.take_told();
        if (told.empty() && !otherwise.empty()) told.emplace_back(otherwise);
        for (std::string& text : told)
            note(cell, std::move(text), entered);
    }

    const entry_target& target_;
    paste_prompts& person_;
    std::vector<int> columns_;        // of the table, in the order of the block's
    std::vector<std::string> texts_;  // of the line, by the table's columns; taken as they are used
    std::vector<pasted_note>& notes_;
    int year_;
    int line_ = 0;
};

}  // namespace

bool pasted_note::operator==(const pasted_note& other) const {
    return line == other.line && cell.row == other.cell.row && cell.column == other.cell.column &&
           text == other.text && entered == other.entered;
}

std::optional<part_entry> pasted_entry(const entry_part& part, const std::string& text, int year,
                                       std::string& why) {
    switch (part.kind) {
        case part_kind::text:
            return part_entry{.text = one_line(text)};
        case part_kind::number:
            if (is_number(text, true)) return part_entry{.text = text};
            why = quote(text) + " is no number of digits and a decimal point.";
            return std::nullopt;
        case part_kind::digits:
            if (is_number(text, false)) return part_entry{.text = text};
            why = quote(text) + " is no whole number.";
            return std::nullopt;
        case part_kind::calendar:
        case part_kind::day:
            if (const auto shown = parse_date(part.text)) year = year_of(*shown);
            if (const auto day = typed_date(text, year))
                return part_entry{.text = short_date_text(*day), .day = day};
            why = quote(text) + " is no date (day/month/year).";
            return std::nullopt;
        case part_kind::options_with_number:
            if (is_number(text, true)) {
                part_entry number = chosen(part, static_cast<int>(part.choices.size()) - 1);
                number.number = text;
                return number;
            }
            break;
        default:
            break;
    }
    const std::vector<int> meant = choices_meant(part, text);
    if (meant.size() == 1) return chosen(part, meant.front());
    why = not_a_choice(part, text, meant);
    return std::nullopt;
}

void enter_block(const entry_target& target, paste_prompts& person, const cell_block& block, grid_cell at,
                 std::vector<pasted_note>& notes) {
    struct pasting {
        paste_prompts& person;
        explicit pasting(paste_prompts& whom) : person(whom) { person.begin_paste(); }
        ~pasting() { person.end_paste(); }
        pasting(const pasting&) = delete;
        pasting& operator=(const pasting&) = delete;
    };
    const pasting quiet(person);
    block_writer(target, person, notes).write(block, at);
}

}  // namespace kel
