// The edits of both tables: which box opens, what it refuses in which order, which cells follow.
#include "core/module_messages.h"
#include "tests/land/land_fixture.h"

namespace kel::test {

class LandEdit : public land_test {};
class StockEdit : public land_test {};

TEST_F(LandEdit, WhiteCellsOpenTheirBoxAndGreyOnesSayWhy) {
    open({{"Long Rig", "15"}});
    EXPECT_EQ(module.click_land(0, land_col::grass).caption, "Enter field area in grass (in hectares)");
    EXPECT_EQ(module.click_land(0, land_col::slope).instruction.substr(0, 15), "Slopes = field ");
    for (const int grey : {land_col::available, land_col::field_limit}) {
        person.expect(module_messages::calculation);
        EXPECT_TRUE(module.click_land(0, grey).box.none());
    }
}

TEST_F(LandEdit, FieldIsRefusedWhenMissingOrInAnotherRowAndBringsSoilAndSize) {
    open({{"Long Rig", "15", "Sandy loams"}, {"East \"Muir\" <x>", "8.25", "Peaty soils"}});
    ASSERT_TRUE(module.erase_land_row(1).closes);
    person.expect(says::no_field_id).expect(says::no_field_id).expect(says::field_in_grid);
    EXPECT_FALSE(module.enter_field(0, "").closes);  // though the entry row has no name either
    EXPECT_FALSE(module.enter_field(1, "").closes);
    EXPECT_FALSE(module.enter_field(1, "Long Rig").closes);
    EXPECT_EQ(land(1, land_col::field), "");
    EXPECT_TRUE(module.enter_field(0, "Long Rig").closes);  // its own row
    EXPECT_EQ(module.land().row_count(), 2);
    EXPECT_TRUE(module.enter_field(1, "East \"Muir\" <x>").closes);
    EXPECT_EQ(land(1, land_col::soil), "Peaty soils");
    EXPECT_EQ(land(1, land_col::total_area), "8.25");
    EXPECT_EQ(land_cells(2, 0, 34), texts(35));

    write_file(state.assess_file, "not an assessment");
    const text_grid before = module.land();
    EXPECT_THROW(module.enter_field(2, "East Muir"), file_error);
    EXPECT_EQ(module.land(), before);
}

TEST_F(LandEdit, AreaGivesTheOtherAreaOfThePairAndIsCutToTheField) {
    open({{"Long Rig", "15"}});
    EXPECT_TRUE(module.enter_area(0, land_col::grass, "9.875").closes);
    EXPECT_EQ(land_cells(0, 1, 6), (texts{"9.88", "5.12", "", "", "", "15.00"}));
    person.expect(says::area_adjusted);
    EXPECT_TRUE(module.enter_area(0, land_col::not_in_grass, "20").closes);
    EXPECT_EQ(land_cells(0, 1, 2), (texts{"0", "15"}));
    module.enter_deduction(0, land_col::buffer, "0.125");
    EXPECT_EQ(land(0, land_col::available), "14.88");                 // a tie, away from zero
    EXPECT_EQ(land(0, land_col::field_limit), "3718.75");             // not rounded, 250 with no grass at all
    person.expect(says::area_adjusted).expect(says::figure_amended);  // a row without a field has no area
    EXPECT_TRUE(module.enter_area(1, land_col::grass, "3").closes);
    EXPECT_TRUE(module.enter_deduction(1, land_col::buffer, "1").closes);
    EXPECT_EQ(module.land().row_count(), 2);
    EXPECT_EQ(land_cells(1, 0, 3), (texts{"", "0", "0", "0"}));
}

TEST_F(LandEdit, EmptyBoxesAreRefusedByTheirOwnMessage) {
    open({{"Long Rig", "15"}});
    const text_grid land_before = module.land(), stock_before = module.animals();
    for (const char* empty : {"", "."}) {
        person.expect(says::no_area).expect(says::no_deduction).expect(says::no_livestock_number);
        EXPECT_FALSE(module.enter_area(0, land_col::grass, empty).closes);
        EXPECT_FALSE(module.enter_deduction(0, land_col::buffer, empty).closes);
        EXPECT_FALSE(module.enter_number(0, empty).closes);
    }
    person.expect(says::no_livestock);
    EXPECT_FALSE(module.enter_stock(0, "").closes);
    EXPECT_EQ(module.land(), land_before);
    EXPECT_EQ(module.animals(), stock_before);
}

TEST_F(LandEdit, DeductionBeyondRoomIsCutToRoomAndClearingRecalculates) {
    open({{"Long Rig", "15"}});
    module.enter_area(0, land_col::grass, "10");
    EXPECT_TRUE(module.enter_deduction(0, land_col::buffer, "1.1234").closes);  // as typed
    EXPECT_TRUE(module.enter_deduction(0, land_col::slope, "4").closes);
    EXPECT_EQ(land_cells(0, 3, 6), (texts{"1.1234", "4", "", "9.88"}));
    module.enter_deduction(0, land_col::buffer, "2");
    EXPECT_TRUE(module.enter_deduction(0, land_col::other_deduction, "9").closes);  // all of the room
    EXPECT_EQ(land(0, land_col::available), "0.00");
    person.expect(says::figure_amended);
    // Its own 4 ha is no part of what is used.
    EXPECT_TRUE(module.enter_deduction(0, land_col::slope, "4.01").closes);
    EXPECT_EQ(land(0, land_col::slope), "4");
    EXPECT_EQ(land(0, land_col::field_limit), "0");
    module.clear_deduction(0, land_col::other_deduction);
    EXPECT_EQ(land_cells(0, 3, 6), (texts{"2", "4", "", "9.00"}));
    module.clear_area(0, land_col::grass);
    EXPECT_EQ(land_cells(0, 1, 2), (texts{"0", "15"}));
}

TEST_F(LandEdit, EntryRowsCannotBeErased) {
    open({{"Long Rig", "15"}, {"East Muir", "8"}});
    person.expect(module_messages::cannot_delete).expect(module_messages::cannot_delete);
    EXPECT_FALSE(module.erase_land_row(2).closes);
    EXPECT_FALSE(module.erase_stock_row(0).closes);
    EXPECT_TRUE(module.erase_land_row(0).closes);
    EXPECT_EQ(land(0, land_col::field), "East Muir");
}

TEST_F(StockEdit, EntriesAndClearingCalculateTheLine) {
    open({});
    EXPECT_TRUE(module.enter_number(0, "2.5").closes);
    EXPECT_EQ(stock_line(0), (texts{"", "2.5", "", "0"}));
    EXPECT_TRUE(module.enter_stock(0, "1,000 laying hens (98% occupancy)").closes);
    EXPECT_EQ(stock_line(0), (texts{"1,000 laying hens (98% occupancy)", "2.5", "660", "1650"}));
    EXPECT_EQ(module.animals().row_count(), 2);
    module.clear_stock(0);
    EXPECT_EQ(stock_line(0), (texts{"", "2.5", "", "0"}));
    enter_sheep(0, "100");
    module.clear_number(0);
    EXPECT_EQ(stock_line(0), (texts{"1 sheep", "", "9", "0"}));
}

}  // namespace kel::test
