#include "core/grid_history.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace kel {
namespace {

constexpr std::array<grid_column, 3> columns{{
    {"Field", "Field", column_kind::entered, 10},
    {"Area", "Area", column_kind::entered, 10},
    {"Rest", "Rest", column_kind::calculated, 10},
}};

struct farm {
    text_grid fields{columns};
    text_grid stock{columns};
    int working_code = 0;
    grid_history history{fields, stock, working_code};

    explicit farm(int rows = 3) {
        fields.set_row_count(rows);
        stock.set_row_count(1);
        history.begin_anew();
    }
    void enter(int row, int column, const std::string& text) {
        fields.set_cell(row, column, text);
        fields.keep_entry_row(row);
    }
};

TEST(GridHistory, WalksBackAndOnThroughEntriesErasuresAndImports) {
    farm f;
    std::mt19937 chance(7);
    std::vector<std::pair<text_grid, text_grid>> states{{f.fields, f.stock}};
    for (int step = 0; step < 150; ++step) {
        text_grid& grid = step % 3 ? f.fields : f.stock;
        const auto any_row = [&] {
            return static_cast<int>(chance() % static_cast<unsigned>(grid.row_count()));
        };
        const std::string text = "step " + std::to_string(step);
        switch (chance() % 4) {
            case 0:
                grid.set_cell(any_row(), 1, text);
                grid.set_cell(any_row(), 2, text);
                break;
            case 1:
                grid.set_cell(grid.row_count() - 1, 0, text);
                grid.add_row();
                break;
            case 2:
                if (grid.row_count() > 1) grid.erase_row(any_row());
                grid.set_cell(any_row(), 0, text);
                break;
            default:
                f.fields.set_row_count(4);
                f.stock.set_row_count(2);
                f.fields.set_cell(0, 0, text);
                f.stock.set_cell(1, 1, text);
        }
        ASSERT_TRUE(f.history.record());
        states.emplace_back(f.fields, f.stock);
    }
    for (int round = 0; round < 2; ++round) {
        for (std::size_t at = states.size() - 1; at-- > 0;) {
            ASSERT_TRUE(f.history.undo());
            ASSERT_EQ(f.fields, states[at].first) << at;
            ASSERT_EQ(f.stock, states[at].second) << at;
        }
        EXPECT_FALSE(f.history.undo());
        for (std::size_t at = 1; at < states.size(); ++at) {
            ASSERT_TRUE(f.history.redo());
            ASSERT_EQ(f.fields, states[at].first) << at;
            ASSERT_EQ(f.stock, states[at].second) << at;
        }
        EXPECT_FALSE(f.history.redo());
    }
}

TEST(GridHistory, ALoadOrASaveEndsItAndAnEntryEndsWhatCouldBeRedone) {
    farm f;
    f.enter(0, 0, "Long Rig");
    EXPECT_TRUE(f.history.record());
    EXPECT_EQ(f.history.undo(), &f.fields);
    f.enter(1, 0, "East Muir");
    EXPECT_TRUE(f.history.record());
    EXPECT_FALSE(f.history.can_redo());
    f.history.begin_anew();
    EXPECT_FALSE(f.history.can_undo());
    EXPECT_FALSE(f.history.undo());
    EXPECT_EQ(f.fields.cell(1, 0), "East Muir");
    // Another farm's rows, fewer of them, with a step that nobody recorded.
    f.enter(2, 0, "Den Brae");
    f.fields = text_grid(columns);
    f.fields.add_row();
    f.history.begin_anew();
    EXPECT_FALSE(f.history.undo());
    EXPECT_EQ(f.fields.row_count(), 1);
}

TEST(GridHistory, TablesAreUnsavedUntilASaveOrTheWayBackToIt) {
    farm f;
    EXPECT_FALSE(f.history.unsaved());
    f.enter(0, 1, "5");
    EXPECT_TRUE(f.history.unsaved());  // at once, not only when the step is recorded
    f.history.record();
    f.enter(0, 1, "6");
    f.history.record();
    f.history.undo();
    EXPECT_TRUE(f.history.unsaved());
    f.history.undo();
    EXPECT_FALSE(f.history.unsaved());
    f.history.redo();
    f.history.begin_anew();
    EXPECT_FALSE(f.history.unsaved());
    // Typed and typed back is nothing to be saved; a working value is none either.
    f.enter(0, 1, "7");
    EXPECT_TRUE(f.history.unsaved());
    f.enter(0, 1, "5");
    f.working_code = 9;
    EXPECT_FALSE(f.history.unsaved());
}

TEST(GridHistory, WhatIsNoPersonsDoingLeavesUnsavedAsItWas) {
    farm f;
    f.fields.set_cell(0, 2, "worked out anew");
    f.history.accept();
    EXPECT_FALSE(f.history.unsaved());
    f.enter(1, 0, "Long Rig");
    f.history.record();
    f.fields.set_cell(0, 2, "and once more");
    f.history.forget_steps();
    EXPECT_TRUE(f.history.unsaved());
    EXPECT_FALSE(f.history.can_undo());
    // A page has saved one of the columns.
    text_grid saved = f.history.saved(f.fields);
    saved.set_cell(0, 2, "and once more");
    f.history.set_saved(f.fields, saved);
    EXPECT_TRUE(f.history.unsaved());
    f.fields.set_cell(1, 0, "");
    EXPECT_FALSE(f.history.unsaved());
}

TEST(GridHistory, WorkingValuesGoWithTheTablesAndMakeNoStepAlone) {
    farm f;
    f.working_code = 4;
    EXPECT_FALSE(f.history.record());
    f.enter(0, 1, "5");
    f.working_code = 7;
    EXPECT_TRUE(f.history.record());
    f.history.undo();
    EXPECT_EQ(f.working_code, 4);
    f.history.redo();
    EXPECT_EQ(f.working_code, 7);
}

TEST(GridHistory, WhatFollowsFromTheTablesIsWorkedOutAnewAndIsNoStep) {
    farm f;
    const auto total = [&] { f.fields.set_cell(2, 2, std::to_string(static_cast<int>(f.fields.sum(1, 2)))); };
    f.history.on_restored(total);
    for (const char* area : {"5", "6"}) {
        f.enter(0, 1, area);
        total();
        f.history.record();
    }
    f.fields.set_cell(1, 1, "10");  // as another page of the module would
    total();
    f.history.accept();
    f.history.undo();
    EXPECT_EQ(f.fields.cell(2, 2), "15");
    f.history.undo();
    EXPECT_EQ(f.fields.cell(2, 2), "10");
    EXPECT_FALSE(f.history.can_undo());
}

TEST(GridHistory, KeepsAtLeastTwoHundredSteps) {
    farm f;
    for (int step = 0; step <= 400; ++step) {
        f.enter(1, 1, std::to_string(step));
        f.history.record();
    }
    int steps = 0;
    while (f.history.undo())
        ++steps;
    EXPECT_GE(steps, 200);
    EXPECT_EQ(f.fields.cell(1, 1), std::to_string(400 - steps));
}

}  // namespace
}  // namespace kel
