#include "core/shown_rows.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace kel {
namespace {

constexpr std::array<grid_column, 2> columns{
    {{"Name", "", column_kind::entered, 10}, {"Size", "", column_kind::entered, 10}}};

text_grid table_of(const std::vector<std::string>& names) {
    text_grid table(columns);
    for (const std::string& name : names)
        table.set_cell(table.add_row(), 0, name);
    return table;
}
std::vector<std::string> shown_names(const text_grid& table, const shown_rows& order) {
    std::vector<std::string> names;
    names.reserve(static_cast<std::size_t>(table.row_count()));
    for (int row = 0; row < table.row_count(); ++row)
        names.push_back(table.cell(order.stored(row), 0));
    return names;
}
using names = std::vector<std::string>;

TEST(ShownRows, StandByWhatTheirCellsMean) {
    const struct {
        names cells;
        names rising;
        names falling;
    } cases[] = {
        // numbers by value, ranges by where they begin, words behind them, empty ones last either way
        {{"9", "", "100", "2.5", "Closed", "-1", "40 - 60", "9"},
         {"-1", "2.5", "9", "9", "40 - 60", "100", "Closed", ""},
         {"Closed", "100", "40 - 60", "9", "9", "2.5", "-1", ""}},
        {{"10/12/2025", "9/1/2026", "11/2/2025"},
         {"11/2/2025", "10/12/2025", "9/1/2026"},
         {"9/1/2026", "10/12/2025", "11/2/2025"}},
        {{"Field 10", "field 9", "East", "Field 009b", "b", "B"},
         {"b", "B", "East", "field 9", "Field 009b", "Field 10"},
         {"Field 10", "Field 009b", "field 9", "East", "b", "B"}},
        // the empty entry row, also where others are empty
        {{"", "b", "a", ""}, {"a", "b", "", ""}, {"b", "a", "", ""}},
        {{}, {}, {}},
    };
    for (const auto& c : cases) {
        const text_grid table = table_of(c.cells);
        shown_rows order(table);
        order.sort(0, false);
        EXPECT_EQ(shown_names(table, order), c.rising);
        order.sort(0, true);
        EXPECT_EQ(shown_names(table, order), c.falling);
        order.show_as_stored();
        EXPECT_EQ(shown_names(table, order), c.cells);
    }
}

TEST(ShownRows, KeepTheirPlacesThroughEntriesErasuresAndTheirUndoing) {
    text_grid table = table_of({"c", "a", "d", "b", ""});
    shown_rows order(table);
    const auto now = [&] {
        order.follow();
        return shown_names(table, order);
    };
    order.sort(0, false);
    table.set_cell(0, 0, "z");
    EXPECT_EQ(now(), (names{"a", "b", "z", "d", ""}));
    table.set_cell(4, 0, "new");
    table.keep_entry_row(4);
    EXPECT_EQ(now(), (names{"a", "b", "z", "d", "new", ""}));
    const auto before = table.rows_from(0, table.row_count());
    table.erase_row(3);
    EXPECT_EQ(now(), (names{"a", "z", "d", "new", ""}));
    table.replace_rows(0, table.row_count(), before);
    EXPECT_EQ(now(), (names{"a", "z", "d", "new", "b", ""})) << "what comes back stands behind the others";
    EXPECT_EQ(order.shown(3), 4);
    table.erase_row(1);
    table.set_cell(1, 0, "d2");  // which is now behind the first
    EXPECT_EQ(now(), (names{"d2", "z", "new", "b", ""}));
    table.clear();
    EXPECT_EQ(now(), names{});
    EXPECT_FALSE(order.sorted());
}

// Whatever happens to a table, each of its rows is shown exactly once, and the empty last one at the bottom.
TEST(ShownRows, ShowEachRowOnceWhateverHappens) {
    std::mt19937 dice(7);
    const auto up_to = [&](int most) { return std::uniform_int_distribution(0, most)(dice); };
    text_grid table = table_of({"1", "2", "3", "4", ""});
    shown_rows order(table);
    std::vector<text_grid> earlier;
    for (int step = 0; step < 3000; ++step) {
        const int last = table.row_count() - 1;
        const int act = up_to(9);
        earlier.push_back(table);
        if (act == 0) order.sort(0, up_to(1) == 1);
        if (act == 1 && last > 0) table.erase_row(up_to(last - 1));
        if (act == 2) table = earlier[static_cast<std::size_t>(up_to(static_cast<int>(earlier.size()) - 1))];
        if (act > 5) {
            const int row = up_to(last);
            table.set_cell(row, 0, std::to_string(up_to(50)));
            table.keep_entry_row(row);
        }
        order.follow();
        std::vector<bool> seen(static_cast<std::size_t>(table.row_count()));
        for (int shown = 0; shown < table.row_count(); ++shown) {
            const int row = order.stored(shown);
            ASSERT_TRUE(row >= 0 && row < table.row_count() && !seen[static_cast<std::size_t>(row)]) << step;
            seen[static_cast<std::size_t>(row)] = true;
            ASSERT_EQ(order.shown(row), shown) << step;
        }
        ASSERT_EQ(order.stored(table.row_count() - 1), table.row_count() - 1) << step;
    }
}

}  // namespace
}  // namespace kel
