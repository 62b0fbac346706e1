// The three tables: which cells open, what is refused, and what follows from an entry.
#include "core/numbers.h"
#include "tests/storage/storage_fixture.h"

namespace kel::test {

class ProductionTable : public storage_test {
  protected:
    void enter_cows() {
        ASSERT_TRUE(plan.enter_stock(1, "1 dairy cow (650 kg)").closes);
        ASSERT_TRUE(plan.enter_number(1, "100").closes);
        ASSERT_TRUE(plan.enter_percent(1, "50").closes);
    }
    texts line(int row) const { return cells(plan.production(), row, 0, 4); }
};

TEST_F(ProductionTable, LineIsWorkedOutAndGoesIntoTheTotals) {
    open_plan();
    const texts inputs = production_months(inputs_row);
    enter_cows();
    EXPECT_EQ(line(1), (texts{"1 dairy cow (650 kg)", "100", "50", "1.93", "96.5"}));
    EXPECT_EQ(production_months(1), texts(12, "Slurry"));
    EXPECT_EQ(line(2), texts(5));
    EXPECT_EQ(plan.production().cell(3, production_column::total_volume), "Monthly Totals =");
    EXPECT_EQ(plan.production().number(3, production_column::january), leading_single(inputs[0]) + 96.5F);
    ASSERT_TRUE(plan.enter_month(1, production_column::january, "Not Slurry").closes);
    EXPECT_EQ(plan.production().cell(3, production_column::january), inputs[0]);
    EXPECT_EQ(line(1)[4], "96.5");
    EXPECT_EQ(plan.balance()->inputs[0], leading_single(inputs[0]));
    ASSERT_TRUE(plan.enter_stock(1, "1 beef bullock (440 kg)").closes);
    EXPECT_EQ(line(1)[4], "39.5");
    EXPECT_EQ(production_months(1)[0], "Not Slurry");
}

TEST_F(ProductionTable, InputsAreRainAndDirtyWaterToOneDecimal) {
    open({{"Home", "10"}});
    state.farm_town = "Blairgowrie";  // 69 mm in January, on 50 square metres
    add_store("Tank", "50");
    module.water().set_cows("50");
    module.water().set_pig_pens("4");
    ASSERT_TRUE(module.storage_cont1());
    ASSERT_TRUE(module.storage_cont2());
    EXPECT_EQ(production_months(inputs_row)[0], "31.4");  // 3.45 + 27.972
    EXPECT_EQ(plan.balance()->content[0], 81.4F);
}

TEST_F(ProductionTable, BoxesRefuseWhatIsNoEntry) {
    open_plan();
    using namespace storage_messages;
    expect_in_order({no_livestock, no_livestock_number, no_percentage, invalid_percentage});
    EXPECT_FALSE(plan.enter_stock(1, "").closes);
    EXPECT_FALSE(plan.enter_number(1, ".").closes);
    EXPECT_FALSE(plan.enter_percent(1, "").closes);
    EXPECT_FALSE(plan.enter_percent(1, "100.5").closes);
    EXPECT_EQ(plan.production().row_count(), 3);
    EXPECT_FALSE(plan.changed());
    EXPECT_TRUE(plan.enter_percent(1, "100").closes);
    EXPECT_TRUE(plan.enter_percent(1, "0").closes);
}

TEST_F(ProductionTable, ClicksOpenABoxOrSayWhyNot) {
    open_plan();
    enter_cows();
    EXPECT_EQ(plan.click_production(2, production_column::stock).box, storage_box::stock);
    EXPECT_EQ(plan.click_production(1, production_column::january + 11).box, storage_box::month);
    using namespace storage_messages;
    expect_in_order({protected_row, protected_row, calculation, calculation, no_production});
    for (const auto& [row, column] : {std::pair{0, 0}, {3, 4}, {1, 3}, {2, 4}, {2, 5}})
        EXPECT_TRUE(plan.click_production(row, column).box.none());
}

TEST_F(ProductionTable, EraseTakesTheLineOutOfTheTotals) {
    open_plan();
    enter_cows();
    ASSERT_TRUE(plan.enter_number(2, "30").closes);
    person.expect(says::cannot_delete);
    EXPECT_FALSE(plan.erase_line(3).closes);
    EXPECT_TRUE(plan.erase_line(1).closes);
    EXPECT_EQ(line(1)[1], "30");
    EXPECT_EQ(production_months(3), production_months(inputs_row));
}

TEST_F(ProductionTable, StoredLinesComeBackBetweenInputsAndTotals) {
    open({{"Home", "10"}});
    add_row(state.assess_file, "Slurry_animals",
            {{"Stock Unit", "1 goat"}, {"Total Volume", "12.5"}, {"March", "Slurry"}, {"May", "slurry"}});
    walk_to_plan();
    EXPECT_EQ(line(1), (texts{"1 goat", "", "", "", "12.5"}));
    EXPECT_EQ(plan.balance()->inputs[2], plan.production().number(inputs_row, 7) + 12.5F);
    EXPECT_EQ(plan.balance()->inputs[4], plan.production().number(inputs_row, 9));
}

class LandTable : public storage_test {};

TEST_F(LandTable, MonthsComeAsStoredAndEmptyOnesTakeTheAvailableArea) {
    open_farm({{"Home", "10"}});
    add_land({"Home", "10"}, {{"May", "4.5"}, {"October", "Closed"}, {"Applic_May", "30"}});
    module.storage_load_stuff();
    walk_to_plan();
    EXPECT_EQ(land_months(0),
              (texts{"10", "10", "10", "10", "4.5", "10", "10", "10", "10", "Closed", "10", "10"}));
    EXPECT_EQ(land_months(2)[4], "4.5");
    EXPECT_EQ(land_months(2)[9], "0");
    EXPECT_EQ(plan.spreading().cell(2, 0), "Monthly total =");
    EXPECT_EQ(plan.balance()->outputs[4], 135);
    EXPECT_EQ(plan.balance()->outputs[9], 0);
}

TEST_F(LandTable, ClicksOpenABoxOrSayWhyNot) {
    open_farm({{"Home", "10"}});
    add_land({"Home", "10"}, {{"October", "Closed"}, {"Applic_October", "Closed"}, {"March", "0"}});
    module.storage_load_stuff();
    walk_to_plan();
    EXPECT_EQ(plan.click_land(0, plan_column::crop).box, storage_box::field_use);
    EXPECT_EQ(plan.click_land(0, plan_column::january).box, storage_box::land_month);
    EXPECT_EQ(plan.click_spreading(0, spreading_column::january).box, storage_box::slurry_applic);
    using namespace storage_messages;
    expect_in_order(
        {profile_cell, profile_cell, available_area_cell, closed_period, protected_row, protected_row});
    for (const auto& [row, column] : {std::pair{0, 0}, {0, 1}, {0, 3}, {0, 13}, {1, 2}, {2, 4}})
        EXPECT_TRUE(plan.click_land(row, column).box.none());
    expect_in_order({closed_period, no_land_in_month, protected_row});
    for (const auto& [row, column] : {std::pair{0, 10}, {0, 3}, {2, 1}})
        EXPECT_TRUE(plan.click_spreading(row, column).box.none());
}

TEST_F(LandTable, AreasAndRatesAreTestedBeforeTheyStand) {
    open({{"Home", "10.5"}});
    walk_to_plan();
    expect_in_order({says::no_land_availability, says::more_than_available, says::no_application_rate});
    EXPECT_FALSE(plan.enter_land_month(0, plan_column::january, "").closes);
    EXPECT_FALSE(plan.enter_land_month(0, plan_column::january, "10.51").closes);
    EXPECT_FALSE(plan.enter_slurry_applic(0, spreading_column::january, "").closes);
    EXPECT_TRUE(plan.enter_land_month(0, plan_column::january, "10.5").closes);
    EXPECT_TRUE(plan.enter_land_month(0, plan_column::january, "2").closes);
    EXPECT_TRUE(plan.enter_slurry_applic(0, spreading_column::january, "25").closes);
    EXPECT_EQ(plan.balance()->outputs[0], 50);
    EXPECT_EQ(land_months(2)[0], "2");
    EXPECT_EQ(spreading_months(2)[0], "25");
}

}  // namespace kel::test
