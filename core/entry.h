// Entry boxes as data. A click on a cell gives an opening: which box opens and the parts it asks for. What
// the person put into them comes back as a box_entry, and the entry's outcome says whether the box closes,
// stays or leads to the next opening, so that a chain of questions is a chain of openings. Every module uses
// these types and no others for its boxes.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "core/dates.h"
#include "core/prompts.h"
#include "core/text_grid.h"

namespace kel {

/// Rows count from 0 without the heading.
struct grid_cell {
    int row;
    int column;
};

/// One of a module's boxes, from its own enumeration, in which 0 is none.
class box_id {
  public:
    constexpr box_id() = default;
    template <class Box>
    requires std::is_enum_v<Box>
    constexpr box_id(Box box) : number_(static_cast<int>(box)) {}
    constexpr bool none() const { return number_ == 0; }
    constexpr bool operator==(const box_id&) const = default;

  private:
    int number_ = 0;
};

enum class part_kind {
    number,               // digits and one decimal point
    digits,               // digits only
    text,                 //
    list,                 // choices in view
    drop_down,            // choices that drop down
    options,              // choices as option buttons, one below the other
    options_with_number,  // the last one has a number behind it; a number typed there chooses it
    calendar,             // in view
    day,                  // a date in one line, with a calendar that drops down
};

/// One question of a box and what stands there as it opens.
struct entry_part {
    part_kind kind;
    /// What was typed, the choice made, or a day-first date. A date without a text stays as it last stood.
    std::string text{};
    std::vector<std::string> choices{};
    std::string unit{};  // behind the number
    // Where a box has several parts: what stands above this one, and what its control's name ends in.
    std::string label{};
    std::string name{};
    /// What the control of each option ends in; without names, its number.
    std::vector<std::string> choice_names{};
    std::string not_typed{};  // characters that the keyboard does not bring into a text
    /// The column in which the answer stands, where that is not the box's.
    std::optional<int> column{};
    /// What each choice puts into its cell, where that is not the choice's text.
    std::vector<std::string> cell_texts{};
    bool operator==(const entry_part&) const = default;
};

/// What a click or an entry opens; without a box none, after a message.
struct opening {
    opening() = default;
    opening(box_id which, std::string_view caption_, std::string_view instruction_,
            std::vector<entry_part> parts_)
        : box(which), caption(caption_), instruction(instruction_), parts(std::move(parts_)) {}

    box_id box;
    std::string caption;
    std::string instruction;
    std::vector<entry_part> parts;
    int focus = 0;  // the part that gets it
    /// The column over which it opens, when that is not the one clicked.
    std::optional<int> column;
    bool operator==(const opening&) const = default;
};

/// What the person put into one part.
struct part_entry {
    std::string text{};           // typed or chosen; a date day first; empty: nothing
    std::optional<int> choice{};  // its place among the choices
    std::string number{};         // behind the options
    std::optional<date> day{};
    bool operator==(const part_entry&) const = default;
};

struct box_entry {
    std::vector<part_entry> parts;  // in the order of the opening's
    const std::string& text(std::size_t part = 0) const { return parts.at(part).text; }
    std::optional<int> choice(std::size_t part = 0) const { return parts.at(part).choice; }
    const std::string& number(std::size_t part = 0) const { return parts.at(part).number; }
    std::optional<date> day(std::size_t part = 0) const { return parts.at(part).day; }
};

/// What a button of a box leads to.
struct outcome {
    static constexpr int focus_stays = -1;
    struct new_text {
        int part;
        std::string text;
        bool operator==(const new_text&) const = default;
    };

    bool closes = false;
    // When it stays: the part that gets the focus, and what parts show instead.
    int focus = 0;
    std::vector<new_text> changes{};
    // When it closes: what opens in its place.
    std::optional<opening> next{};
    bool operator==(const outcome&) const = default;
};

outcome box_closes();
outcome box_stays(int focus = 0, std::vector<outcome::new_text> changes = {});
outcome leads_to(opening next);

/// Tells why and leaves the box open.
outcome refuse(prompts& person, const message& reason, int focus = 0,
               std::vector<outcome::new_text> changes = {});
/// Tells why no box opens.
opening opens_none(prompts& person, const message& reason);

/// Takes a row out of a grid; the entry row at the bottom cannot be deleted, and says so.
outcome erase_data_row(prompts& person, text_grid& grid, int row);

/// The texts of a table's rows, as the choices of a list: choices_of(stock_types(), &stock_type::name).
template <class Table, class Text>
std::vector<std::string> choices_of(const Table& table, Text text) {
    std::vector<std::string> choices;
    for (const auto& row : table)
        choices.emplace_back(row.*text);
    return choices;
}

}  // namespace kel
