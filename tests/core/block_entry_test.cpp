#include "core/block_entry.h"

#include <gtest/gtest.h>

#include <array>
#include <stdexcept>

#include "tests/support/scripted_prompts.h"

namespace kel {
namespace {

using test::scripted_prompts;
using row_texts = std::vector<std::string>;

TEST(PastedBlock, ReadsWhatSpreadsheetsPutOnTheClipboard) {
    const struct {
        const char* text;
        cell_block cells;
    } cases[] = {
        {"", {}},
        {"a\tb\r\nc\n", {{"a", "b"}, {"c"}}},
        {"a\rb", {{"a"}, {"b"}}},
        {"a\t\n\tb\n\n", {{"a", ""}, {"", "b"}, {""}}},
        {"\"two\r\nlines\"\t\"a \"\"b\"\"\"\t\"\tc\"\n", {{"two\r\nlines", "a \"b\"", "\tc"}}},
        {"6\" pipe\t\"open\nnext\t\"x\"y\n", {{"6\" pipe", "\"open"}, {"next", "\"x\"y"}}},
        {"\"a\"", {{"a"}}},
        {"\"\"\tb", {{"", "b"}}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(parse_block(c.text), c.cells) << c.text;
    const cell_block awkward{{"a\tb", "c\r\nd", "\"e"}, {"", "f\"g"}, {"", ""}};
    EXPECT_EQ(parse_block(block_text(awkward)), awkward);
    EXPECT_EQ(cells_of({{"a", "b", "c"}, {}, {"d"}}), 4U);
}

TEST(PastedEntry, TurnsATextIntoWhatThePartAsksFor) {
    const entry_part number{part_kind::number};
    const entry_part digits{part_kind::digits};
    const entry_part day{part_kind::calendar, "01/01/2025"};
    entry_part list{part_kind::list, {}, {"Winter wheat", "Winter Oats", "winter oats"}};
    list.cell_texts = {"WW", "WO", "wo"};
    entry_part twice{part_kind::list, {}, {"Leys, autumn", "Leys, spring"}};
    twice.cell_texts = {"G", "G"};
    entry_part shown_twice = twice;
    shown_twice.text = "Leys, spring";
    const entry_part length{part_kind::options_with_number, {}, {"No", "Yes by"}};
    const struct {
        const entry_part& part;
        const char* text;
        std::optional<part_entry> put;
    } cases[] = {
        {number, "12.50", part_entry{.text = "12.50"}},
        {number, "3,5", std::nullopt},
        {number, "1.2.3", std::nullopt},
        {number, "-3", std::nullopt},
        {number, ".", std::nullopt},
        {number, "5 ha", std::nullopt},
        {digits, "12", part_entry{.text = "12"}},
        {digits, "12.0", std::nullopt},
        {day, "5/3", part_entry{.text = "05/03/2025", .day = make_date(5, 3, 2025)}},
        {day, "3/15/2025", std::nullopt},
        {{part_kind::calendar}, "5/3", part_entry{.text = "05/03/2031", .day = make_date(5, 3, 2031)}},
        {twice, "G", std::nullopt},
        {shown_twice, "G", part_entry{.text = "Leys, spring", .choice = 1}},
        {list, "winter oats", part_entry{.text = "winter oats", .choice = 2}},
        {list, "WINTER OATS", part_entry{.text = "Winter Oats", .choice = 1}},
        {list, "wo", part_entry{.text = "winter oats", .choice = 2}},
        {list, "Winter", std::nullopt},
        {length, "12", part_entry{.text = "Yes by", .choice = 1, .number = "12"}},
        {length, "no", part_entry{.text = "No", .choice = 0}},
        {{part_kind::text}, "two\nlines", part_entry{.text = "two lines"}},
    };
    for (const auto& c : cases) {
        std::string why;
        EXPECT_EQ(pasted_entry(c.part, c.text, 2031, why), c.put) << c.text;
        EXPECT_EQ(why.empty(), c.put.has_value()) << c.text;
    }
}

// A small module: a name, an area that a name must stand before, a sum that follows, a date and a remark of
// one box, and a question behind the name "East".
enum class field_box { none, name, area, details, question };
enum : int { name, total, area, day, remark, hidden, side };
// clang-format off
constexpr std::array<grid_column, 7> columns{{
    {"Name",   "", column_kind::entered,    10},
    {"Total",  "", column_kind::calculated, 10},
    {"Area",   "", column_kind::entered,    10},
    {"Date",   "", column_kind::entered,    10},
    {"Remark", "", column_kind::entered,    10},
    {"Hidden", "", column_kind::carried,    0},
    {"Side",   "", column_kind::entered,    10},
}};
// clang-format on
const message no_name{"Name", "No name!"};
const message taken{"Name", "Taken!"};
const message large{"Area", "Large.\r\n\r\nReally?", message_kind::question, message_buttons::yes_no};
const message rounded{"Area", "Rounded."};

class BlockEntry : public testing::Test {
  protected:
    BlockEntry() { grid.add_row(); }

    opening click(int row, int column) {
        if (column != name && grid.cell(row, name).empty()) return opens_none(port, no_name);
        switch (column) {
            case name:
                return {field_box::name, "", "", {{part_kind::text, grid.cell(row, name)}}};
            case area:
                return {field_box::area, "", "", {{part_kind::number, grid.cell(row, area)}}};
            default: {
                opening shown(
                    field_box::details, "", "",
                    {{part_kind::calendar, grid.cell(row, day)}, {part_kind::text, grid.cell(row, remark)}});
                shown.parts[0].column = day;
                shown.parts[1].column = remark;
                return shown;
            }
        }
    }
    outcome enter_name(grid_cell at, const box_entry& put) {
        if (grid.in_other_row(at.row, name, put.text())) return refuse(port, taken);
        grid.set_cell(at.row, name, put.text());
        grid.keep_entry_row(at.row);
        if (put.text() != "East") return box_closes();
        opening asked(field_box::question, "Which side", "", {{part_kind::options, {}, {"Left", "Right"}}});
        asked.parts.front().column = side;
        return leads_to(asked);
    }
    outcome enter_area(grid_cell at, const box_entry& put) {
        if (put.text().size() > 3 && port.ask(large) == answer::no) return box_stays();
        if (put.text().find('.') != std::string::npos) port.tell(rounded);
        grid.set_cell(at.row, area, put.text());
        grid.set_cell(at.row, total, put.text() + " t");
        return box_closes();
    }
    outcome enter_details(grid_cell at, const box_entry& put) {
        ++details;
        grid.set_cell(at.row, day, put.day() ? short_date_text(*put.day()) : "none");
        grid.set_cell(at.row, remark, put.text(1));
        return box_closes();
    }
    outcome enter_side(grid_cell at, const box_entry& put) {
        ++sides_answered;
        if (!put.text().empty()) grid.set_cell(at.row, side, put.text());
        return box_closes();
    }
    std::vector<pasted_note> paste(const cell_block& block, grid_cell at = {0, 0}) {
        const std::pair<box_id, cell_entry> entries[] = {
            {field_box::name, [this](auto cell, const auto& put) { return enter_name(cell, put); }},
            {field_box::area, [this](auto cell, const auto& put) { return enter_area(cell, put); }},
            {field_box::details, [this](auto cell, const auto& put) { return enter_details(cell, put); }},
            {field_box::question, [this](auto cell, const auto& put) { return enter_side(cell, put); }}};
        const entry_target target{grid, [this](int r, int c) { return click(r, c); },
                                  [&](box_id box) {
                                      for (const auto& [id, entry] : entries)
                                          if (id == box) return &entry;
                                      return static_cast<const cell_entry*>(nullptr);
                                  }};
        std::vector<pasted_note> notes;
        enter_block(target, port, block, at, notes);
        return notes;
    }
    row_texts cells(int row) const {
        const auto found = grid.row(row);
        return {found.begin(), found.end()};
    }

    scripted_prompts person;
    paste_prompts port{person};
    text_grid grid{columns};
    int details = 0;
    int sides_answered = 0;
};

TEST_F(BlockEntry, FillsRowsFromTheLeftAndFormsFromTheirCellsTogether) {
    const auto notes = paste({{"West", "ignored", "5", "1/3/2025", "", "Left"},
                              {"", "", "", "", "", ""},
                              {"North", "", "7", "02/03/2025", "late"}});
    EXPECT_EQ(notes, (std::vector<pasted_note>{{1, {0, side}, "\"Left\" found no place here.", false}}));
    EXPECT_EQ(grid.row_count(), 3);
    EXPECT_EQ(cells(0), (row_texts{"West", "5 t", "5", "01/03/2025", "", "", ""}));
    EXPECT_EQ(cells(1), (row_texts{"North", "7 t", "7", "02/03/2025", "late", "", ""}));
    EXPECT_EQ(details, 3) << "the side of a name without the question opens the details";
}

TEST_F(BlockEntry, ARefusedLineLeavesItsRowToTheNextAndSaysWhere) {
    const auto notes = paste({{"West"}, {"West", "", "5"}, {"North", "", "3,5"}, {"South", "", "1.5"}});
    EXPECT_EQ(grid.row_count(), 4);
    EXPECT_EQ(grid.cell(1, name), "North");
    EXPECT_EQ(grid.cell(2, area), "1.5");
    ASSERT_EQ(notes.size(), 4U);
    EXPECT_EQ(notes[0], (pasted_note{2, {1, name}, "Taken!", false}));
    EXPECT_EQ(notes[1], (pasted_note{2, {1, name}, "The rest of the line was left out.", false}));
    EXPECT_EQ(notes[2].line, 3);
    EXPECT_EQ(notes[2].text, "\"3,5\" is no number of digits and a decimal point.");
    EXPECT_EQ(notes[3], (pasted_note{4, {2, area}, "Rounded.", true}));
}

TEST_F(BlockEntry, FiguresGoToNoRowOfAnotherName) {
    paste({{"West", "", "5"}, {"North"}});
    EXPECT_EQ(paste({{"North", "", "7"}}).size(), 2U);
    EXPECT_EQ(cells(0), (row_texts{"West", "5 t", "5", "", "", "", ""}));
    EXPECT_TRUE(paste({{"West", "", "6"}}).empty());
    EXPECT_EQ(grid.cell(0, area), "6");

    static const auto grey = [] {
        auto changed = columns;
        changed.front().kind = column_kind::calculated;
        return changed;
    }();
    grid = text_grid(grey);
    for (const char* row_name : {"West", "East", "South", "Bog"})
        grid.set_cell(grid.add_row(), name, row_name);
    const auto notes = paste({{"west", "", "1"}, {"North", "", "2"}, {"", "", "3"}, {"West"}});
    EXPECT_EQ(grid.cell(0, area) + grid.cell(1, area) + grid.cell(2, area), "13");
    const std::string other = " is not what this row is for.";
    EXPECT_EQ(notes, (std::vector<pasted_note>{
                         {2, {1, name}, "\"North\"" + other + " The rest of the line was left out.", false},
                         {4, {3, name}, "\"West\"" + other, false}}));
}

TEST_F(BlockEntry, AQuestionIsAskedOnceForAllOfThePasteAndAgainInTheNext) {
    person.expect(for_all_of_paste(large), answer::yes);
    const auto notes = paste({{"West", "", "1000"}, {"North", "", "2000"}});
    EXPECT_EQ(grid.cell(1, area), "2000");
    ASSERT_EQ(notes.size(), 2U);
    EXPECT_EQ(notes[1], (pasted_note{2, {1, area}, "Large. Really? - Yes", true}));
    person.expect(for_all_of_paste(large), answer::no);
    EXPECT_EQ(paste({{"", "", "3000"}, {"", "", "4000"}}).size(), 2U);
    EXPECT_EQ(grid.cell(0, area), "1000");
    person.expect(large, answer::yes);
    port.ask(large);  // outside a paste the person is asked as ever
}

TEST_F(BlockEntry, AQuestionThatFollowsTakesItsAnswerFromItsColumn) {
    const auto notes = paste({{"Name", "side", "Area"}, {"East", "right", "4"}});
    EXPECT_TRUE(notes.empty());
    EXPECT_EQ(cells(0), (row_texts{"East", "4 t", "4", "", "", "", "Right"}));
    grid.set_cell(0, name, "");
    grid.set_cell(0, side, "");
    EXPECT_EQ(paste({{"East"}}),
              (std::vector<pasted_note>{{1, {0, name}, "Not answered: Which side", true}}));
    grid.set_cell(0, name, "");
    grid.set_cell(0, side, "Left");
    const auto refused = paste({{"Name", "Side"}, {"East", "Middle"}});
    ASSERT_EQ(refused.size(), 1U);
    EXPECT_EQ(refused[0], (pasted_note{2, {0, side}, "\"Middle\" is not among the choices.", false}));
    EXPECT_EQ(sides_answered, 3) << "the entry of the name is brought to its end";
    EXPECT_EQ(grid.cell(0, side), "Left");
}

TEST_F(BlockEntry, AFailureKeepsWhatWasEnteredAndTold) {
    std::vector<pasted_note> notes;
    const cell_entry enter = [this](grid_cell at, const box_entry& put) {
        if (put.text() == "Bog") throw std::runtime_error("gone");
        return enter_name(at, put);
    };
    const entry_target target{grid, [this](int row, int column) { return click(row, column); },
                              [&](box_id) { return &enter; }};
    EXPECT_THROW(enter_block(target, port, {{"West"}, {"West"}, {"Bog"}, {"North"}}, {0, name}, notes),
                 std::runtime_error);
    EXPECT_EQ(grid.cell(0, name), "West");
    ASSERT_EQ(notes.size(), 2U);
    EXPECT_EQ(notes[0].text, "Taken!");
    EXPECT_EQ(notes[1], (pasted_note{3, {-1, name}, "The paste stopped here.", false}));
    port.begin_paste();
    port.show_list({"Crops", "Of the field:", {"Barley", "Oats"}});
    EXPECT_EQ(port.take_told(), std::vector<std::string>{"Crops Of the field: Barley; Oats"});
    port.end_paste();
}

TEST_F(BlockEntry, WhatDoesNotFitIsTold) {
    paste({{"West"}});
    const auto notes = paste({{"", "", "1", "1/1/2025", "r", "", "too many"}, {"", "", "1"}, {"", "", "2"}});
    EXPECT_EQ(grid.cell(0, area), "1");
    ASSERT_EQ(notes.size(), 3U);
    EXPECT_EQ(notes[0].text, "The line has more cells than the table.");
    EXPECT_EQ(notes[1], (pasted_note{2, {1, area}, "No name!", false}));
    EXPECT_EQ(notes[2], (pasted_note{3, {1, area}, "No name!", false}));
    const auto many = paste(cell_block(20'000, row_texts{"", "", "x", "y", "z"}), {0, 0});
    EXPECT_GT(many.size(), 2U);
    const auto below = paste({{"5"}, {"6"}}, {5, area});
    ASSERT_EQ(below.size(), 1U);
    EXPECT_EQ(below[0].cell.row, -1);
}

}  // namespace
}  // namespace kel
