// Step 2: the three pages, each box into its own cell, and what each page writes.
#include <QDateEdit>
#include <QTabWidget>

#include "core/module_messages.h"
#include "storage/production_grid.h"
#include "storage/storage_messages.h"
#include "tests/ui/screen_fixture.h"
#include "ui/screens/storage_chart.h"

namespace kel::test {

namespace says = storage_messages;

class StorageScreen : public screen_test {
  protected:
    void SetUp() override {
        open_farm({{"Long Rig", "15"}});
        add_row(state.assess_file, "Land",
                {{"Field Area ID", "Long Rig"},
                 {"Soil", "Other mineral soils"},
                 {"Available Field Area (ha)", "12"}});
    }
    void open_step() {
        write_store(state);
        start();
        run->open(screen_id::storage);
    }
    void answer_water(const QString& cows, const QString& pens) {
        type("water_cows", cows);
        type("water_pigs", pens);
    }
    void type(const QString& box, const QString& text) {
        drive::type(screen("storage"), "txtStorage3_" + box, text);
    }
    std::string typed(const QString& box) const {
        return from_qt(drive::control<QLineEdit>(screen("storage"), "txtStorage3_" + box)->text());
    }
    texts stored(const char* table, const char* column) const {
        return column_of(state.assess_file, table, column);
    }
};

TEST_F(StorageScreen, DirtyWaterIsWrittenInTheFormThatWasChosen) {
    state.prev1_file = state.slot_prev1 = make_farm("last.kel", {{"Long Rig", "15"}}, 2023);
    add_row(state.prev1_file, "Store_in", {{"Water_cow", "70"}, {"Water_pig", "7"}});
    open_step();
    answer_water("100", "10");
    press("storage", "cmdStorage_continue");
    EXPECT_TRUE(drive::control(screen("storage"), "fraStores")->isVisible());
    expect_stored(state.assess_file, "Store_in",
                  {{"Water_cow", {"100"}}, {"Water_pig", {"10"}}, {"Water_actual", {""}}});
    press("storage", "cmdStorage_back");
    press("storage", "cmdStorage3_water_actual");
    EXPECT_FALSE(drive::control(screen("storage"), "txtStorage3_water_cows")->isVisible());
    type("water_actual", "55");
    press("storage", "cmdStorage_continue");
    expect_stored(state.assess_file, "Store_in",
                  {{"Water_cow", {""}}, {"Water_pig", {""}}, {"Water_actual", {"55"}}});
    press("storage", "cmdStorage_back");
    press("storage", "cmdStorage3_water_lastyear");
    EXPECT_EQ(typed("water_cows"), "70");
    EXPECT_EQ(typed("water_pigs"), "7");
    press("storage", "cmdStorage3_water_actual");
    press("storage", "cmdStorage3_water_cows");
    EXPECT_EQ(typed("water_cows"), "");
    EXPECT_TRUE(drive::control(screen("storage"), "txtStorage3_water_pigs")->isVisible());
    close_screen("storage", "cmdStorage_cancel", module_messages::close_module);
}

TEST_F(StorageScreen, AStoreOfEachShapeIsAddedEditedAndDeleted) {
    open_step();
    answer_water("0", "0");
    press("storage", "cmdStorage_continue");
    struct store_case {
        const char* shape;
        std::vector<std::pair<const char*, const char*>> sizes;
        texts row;
    };
    const std::vector<store_case> cases{
        {"Square or rectangular",
         {{"depth", "3"}, {"length", "20"}, {"width", "10"}},
         {"Store 1", "Square or rectangular", "3", "20", "10", "", "", "11", "200"}},
        {"Circular",
         {{"depth", "4"}, {"diameter", "12"}},
         {"Store 2", "Circular", "4", "", "", "12", "", "12", "113.1"}},
        {"Earth banked lagoon",
         {{"depth", "2"}, {"length", "40"}, {"width", "30"}, {"angle", "45"}},
         {"Store 3", "Earth banked lagoon", "2", "40", "30", "", "45", "13", "1200"}}};
    grid_view* stores = grid("storage", "MSFlexGridStores");
    for (std::size_t row = 0; row < cases.size(); ++row) {
        type("name", QString("Store %1").arg(row + 1));
        drive::choose_in_list(screen("storage"), "lstStorage3_shape", cases[row].shape);
        texts offered;
        for (const char* box : {"depth", "length", "width", "diameter", "angle"})
            if (drive::control(screen("storage"), QString("txtStorage3_%1").arg(box))->isVisible())
                offered.emplace_back(box);
        EXPECT_EQ(offered.size(), cases[row].sizes.size());
        for (const auto& [box, text] : cases[row].sizes)
            type(box, text);
        EXPECT_EQ(typed("area").substr(0, 5), cases[row].row[8].substr(0, 5));
        type("percent", QString::number(11 + row));
        type("area", qt(cases[row].row[8]));
        press("storage", "cmdStores_add");
        for (int c = 0; c < 9; ++c)
            EXPECT_EQ(cell(stores, static_cast<int>(row), c), cases[row].row[static_cast<std::size_t>(c)]);
    }
    const std::vector<const char*> columns{"Store_name",   "Store_shape", "Store_depth",
                                           "Store_length", "Store_width", "Store_circumference",
                                           "Store_angle",  "Store_%",     "Rain_area"};
    for (std::size_t c = 0; c < columns.size(); ++c)
        EXPECT_EQ(stored("Slurry_store", columns[c]),
                  (texts{cases[0].row[c], cases[1].row[c], cases[2].row[c]}));
    stores->setCurrentIndex(stores->model()->index(0, 0));
    press("storage", "cmdStores_edit");
    EXPECT_EQ((texts{typed("name"), typed("depth"), typed("length"), typed("width"), typed("percent")}),
              (texts{"Store 1", "3", "20", "10", "11"}));
    EXPECT_EQ(stored("Slurry_store", "Store_name"), (texts{"Store 2", "Store 3"}));
    stores->setCurrentIndex(stores->model()->index(1, 0));
    press("storage", "cmdStores_delete");
    EXPECT_EQ(stored("Slurry_store", "Store_name"), texts{"Store 2"});
    EXPECT_EQ(typed("name"), "Store 1") << "only Edit Row fills the boxes";
}

TEST_F(StorageScreen, EveryBoxOfThePlanWritesItsCellAndSaveWritesThemAll) {
    add_row(state.assess_file, "Slurry_store",
            {{"Store_name", "Pit"},
             {"Store_shape", "Circular"},
             {"Store_depth", "4"},
             {"Store_circumference", "20"},
             {"Store_%", "0"},
             {"Rain_area", "0"}});
    open_step();
    answer_water("0", "0");
    press("storage", "cmdStorage_continue");
    press("storage", "cmdStores_continue");
    auto* tabs = drive::control<QTabWidget>(screen("storage"), "SSTabStorage");
    grid_view* production = grid("storage", "MSFlexGridStorage_animals");
    fill_boxes("storage", production,
               {{1, 0, "Storage_stock", "1 dairy cow (650 kg)", "1 dairy cow (650 kg)"},
                {1, 1, "Storage_number", "100", "100"},
                {1, 2, "Storage_percent", "50", "50"},
                {1, 6, "Storage_month", "Not Slurry", "Not Slurry"},
                {2, 1, "Storage_number", "7", "7"},
                {3, 2, "Storage_percent", "8", "8"}});
    EXPECT_EQ(cell(production, 1, 4), "96.5");
    production->sort_on(4);
    EXPECT_EQ(cell(production, 1, 4), "96.5") << "rows of months and totals keep their places";
    press_in_box("storage", production, 3, 2, "Storage_percent", "erase");
    press_in_box("storage", production, 2, 1, "Storage_number", "erase");
    fill_boxes("storage", production, {{2, 0, "Storage_stock", "1 weaner place", "1 weaner place"}});
    press_in_box("storage", production, 2, 0, "Storage_stock", "erase");
    // One protected cell says why it stays; several are no box each.
    production->setFocus();
    production->go_to(0, production_column::january);
    person.expect(says::protected_row);
    press_key(Qt::Key_Delete);
    press_key(Qt::Key_Right, 3, Qt::ShiftModifier);
    press_key(Qt::Key_Delete);
    EXPECT_EQ(cell(production, 1, production_column::january), "Slurry");

    tabs->setCurrentIndex(1);
    grid_view* land = grid("storage", "MSFlexGridStorage_land");
    EXPECT_FALSE(drive::control(screen("storage"), "lblStorage_no_land")->isVisible());
    QWidget* use = open_box("storage", "Storage_crop", land, 0, 2);
    drive::choose_in_list(use, "lstStorage_crop_first", "Other");
    drive::choose_in_list(use, "lstStorage_crop_second", "In grass");
    drive::control<QDateEdit>(use, "dtpStorage_crop_harvest")->setDate(QDate(2025, 6, 30));
    drive::press(use, "cmdStorage_crop");
    EXPECT_EQ(cell(land, 0, 2), "Other / Grass");
    fill_boxes("storage", land, {{0, 10, "Storage_land_month", "5", "5"}});
    tabs->setCurrentIndex(2);
    grid_view* spreading = grid("storage", "MSFlexGridStorage_spreading");
    fill_boxes("storage", spreading, {{0, 7, "Storage_slurry_applic", "20", "20"}});
    person.expect(says::overwrite_data, answer::no);
    press("storage", "Command10");
    person.expect(says::overwrite_data, answer::yes).expect(says::nothing_to_transfer);
    press("storage", "Command10");
    EXPECT_EQ(stored("Slurry_animals", "Number"), texts{}) << "only Save writes";

    press("storage", "cmdStorage_save");
    expect_stored(state.assess_file, "Slurry_animals",
                  {{"Stock Unit", {"1 dairy cow (650 kg)"}},
                   {"Number", {"100"}},
                   {"Percent", {"50"}},
                   {"Volume", {"1.93"}},
                   {"Total Volume", {"96.5"}},
                   {"January", {"Slurry"}},
                   {"February", {"Not Slurry"}},
                   {"December", {"Slurry"}}});
    expect_stored(state.assess_file, "Land",
                  {{"Crop", {"Other / Grass"}},
                   {"June", {"0"}},
                   {"July", {"5"}},
                   {"August", {"12"}},
                   {"Applic_July", {"20"}},
                   {"Applic_December", {""}}});
    EXPECT_EQ(stored("Misc", "Item").size(), 1U);
    press("storage", "cmdStorage_back");
    EXPECT_TRUE(drive::control(screen("storage"), "fraStores")->isVisible());
}

TEST(StorageChart, SaysWhenAMonthIsAboveItsTop) {
    storage_chart chart;
    monthly_values percents{10, 20, 143.25F, 40, 50, 60, 70, 80, 90, 100, 110, 150};
    chart.show_percents(percents, {150, 6});
    EXPECT_EQ(chart.chart()->title(), "");
    percents[2] = 412.3F;
    chart.show_percents(percents, {150, 6});
    EXPECT_EQ(chart.chart()->title(), "Above the top of the chart: Mar with 412.3 %");
    percents[0] = 151;
    chart.show_percents(percents, {150, 6});
    EXPECT_EQ(chart.chart()->title(),
              "2 months are above the top of the chart, the highest Mar with 412.3 %");
    EXPECT_TRUE(chart.accessibleDescription().contains(chart.chart()->title()));
    chart.show_percents(percents, {});
    EXPECT_EQ(chart.chart()->title(), "") << "an axis that grows has no month above it";
}

}  // namespace kel::test
