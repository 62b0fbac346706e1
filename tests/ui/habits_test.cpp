// The habits of a person who lives in spreadsheets, by keyboard alone: the same keys in every table, and no
// more of a table drawn anew than has changed.
#include <QClipboard>
#include <QLineEdit>
#include <QSignalSpy>

#include "land/land_grids.h"
#include "manure/manure_grids.h"
#include "profile/farm_profile.h"
#include "shell/assessments_messages.h"
#include "storage/stores_page.h"
#include "tests/ui/screen_fixture.h"

namespace kel::test {

namespace {

class Habits : public screen_test {
  protected:
    void open_fields() {
        open_farm({{"Long Rig", "15", "Sandy loams"}, {"East Muir", "8"}, {"East Bank", "4"}});
        for (const auto& [field, size] :
             {std::pair{"Long Rig", "15"}, std::pair{"East Muir", "8"}, std::pair{"East Bank", "4"}}) {
            row_values land = {{"Field Area ID", field},
                               {"Area In Grass (ha)", size},
                               {"Area Not In Grass (ha)", "0"},
                               {"Total Area", size},
                               {"Available Field Area (ha)", size},
                               {"Crop", "Other / Other"}};
            for (int month = 1; month <= 12; ++month)
                land.emplace_back(std::string(month_name(month)), size);
            add_row(state.assess_file, "Land", land);
        }
        write_store(state);
        start();
    }
    static texts column_cells(const grid_view* grid, int column) {
        return {cell(grid, 0, column), cell(grid, 1, column), cell(grid, 2, column)};
    }
    static void command(Qt::Key key, Qt::KeyboardModifiers more = Qt::NoModifier) {
        press_key(key, 1, Qt::ControlModifier | more);
    }
    // Three rows of one column, of which the first two are empty or hold something else.
    static void work_through(grid_view* grid, int column) {
        const texts before = column_cells(grid, column);
        grid->setFocus();
        grid->go_to(0, column);
        type_text("2");
        press_key(Qt::Key_Return);
        EXPECT_EQ(current_cell(grid), (texts{"1", std::to_string(column)}));
        press_key(Qt::Key_Up);
        press_key(Qt::Key_F2);
        auto* box = qobject_cast<QLineEdit*>(focus());
        ASSERT_TRUE(box);
        EXPECT_EQ(box->text(), "2");
        type_text("7");
        press_key(Qt::Key_Escape);
        EXPECT_EQ(cell(grid, 0, column), "2");
        EXPECT_EQ(focus(), grid);
        command(Qt::Key_C);
        EXPECT_EQ(QApplication::clipboard()->text(), "2\n");
        press_key(Qt::Key_Down);
        command(Qt::Key_V);
        EXPECT_EQ(column_cells(grid, column), (texts{"2", "2", before[2]}));
        grid->go_to(0, column);
        type_text("1");
        press_key(Qt::Key_Tab);
        EXPECT_NE(grid->current_column(), column);
        grid->go_to(0, column);
        press_key(Qt::Key_Down, 2, Qt::ShiftModifier);
        command(Qt::Key_D);
        EXPECT_EQ(column_cells(grid, column), (texts{"1", "1", "1"}));
        command(Qt::Key_Z);
        EXPECT_EQ(column_cells(grid, column), (texts{"1", "2", before[2]})) << "a fill is one step";
        for (int step = 0; step < 3; ++step)
            command(Qt::Key_Z);
        EXPECT_EQ(column_cells(grid, column), before);
        for (int step = 0; step < 4; ++step)
            command(Qt::Key_Z, Qt::ShiftModifier);
        EXPECT_EQ(column_cells(grid, column), (texts{"1", "1", "1"}));
    }
};

}  // namespace

TEST_F(Habits, AreTheSameInTheProfileAndTheSteps) {
    open_fields();
    press("front", "cmdFront_land");
    work_through(grid("land", "MSFlexGridLand"), land_column::buffer);
    press_key(Qt::Key_Delete);
    EXPECT_EQ(column_cells(grid("land", "MSFlexGridLand"), land_column::buffer), (texts{"", "", ""}));

    run->open(screen_id::profile);
    work_through(grid("profile", "MSFlexGridFields"), field_column::kel_area);

    run->open(screen_id::manure);
    auto* table = grid("reduction", "MSFlexGridReductions");
    table->setFocus();
    table->go_to(0, 0);
    const QString manure = "\t\tOver 6 hours\tDairy slurry - high dry matter (10%)\n";
    QApplication::clipboard()->setText("Long Rig" + manure + "East Muir" + manure + "East Bank" + manure);
    command(Qt::Key_V);
    ASSERT_EQ(table->model()->rowCount(), 4);
    work_through(table, manure_column::amount);
}

TEST_F(Habits, OnlyTheRowsThatChangedAreDrawnAnew) {
    open_fields();
    press("front", "cmdFront_land");
    auto* land = grid("land", "MSFlexGridLand");
    QSignalSpy changes(land->model(), &QAbstractItemModel::dataChanged);
    const auto rows_changed = [&] {
        texts rows;
        for (const auto& change : changes)
            rows.push_back(std::to_string(change[0].toModelIndex().row()) + "-" +
                           std::to_string(change[1].toModelIndex().row()));
        changes.clear();
        return rows;
    };
    land->setFocus();
    land->go_to(1, land_column::buffer);
    type_text("1");
    press_key(Qt::Key_Return);
    EXPECT_EQ(rows_changed(), texts{"1-1"});
    type_text("1");
    press_key(Qt::Key_Escape);
    EXPECT_EQ(rows_changed(), texts{});
    land->sort_on(land_column::field);
    changes.clear();
    command(Qt::Key_Z);
    EXPECT_EQ(rows_changed(), texts{"1-1"}) << "East Muir stands second as it is sorted, too";
    EXPECT_EQ(cell(land, 1, land_column::buffer), "");
}

TEST_F(Habits, AStoreThatWasDeletedComesBackIntoTableAndFile) {
    open_fields();
    for (const char* store : {"Tank", "Pit"})
        add_row(state.assess_file, "Slurry_store", {{"Store_name", store}, {"Store_%", "0"}});
    run->open(screen_id::storage);
    for (const char* box : {"cows", "pigs"})
        drive::type(screen("storage"), QString("txtStorage3_water_") + box, "0");
    press("storage", "cmdStorage_continue");
    auto* stores = grid("storage", "MSFlexGridStores");
    const auto stored = [&] { return column_of(state.assess_file, "Slurry_store", "Store_name"); };
    stores->setFocus();
    stores->go_to(0, store_column::name);
    press("storage", "cmdStores_delete");
    ASSERT_EQ(stored(), texts{"Pit"});
    stores->setFocus();
    command(Qt::Key_Z);
    EXPECT_EQ(cell(stores, 0, store_column::name), "Tank");
    EXPECT_EQ(stored(), (texts{"Tank", "Pit"}));
    command(Qt::Key_Z, Qt::ShiftModifier);
    EXPECT_EQ(cell(stores, 0, store_column::name), "Pit");
    EXPECT_EQ(stored(), texts{"Pit"});
}

}  // namespace kel::test
