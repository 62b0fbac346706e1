// Step 1: each box writes its own cell, each button does what it says, Save keeps every column.
#include <QTabWidget>

#include "core/module_messages.h"
#include "tests/ui/screen_fixture.h"

namespace kel::test {

class LandScreen : public screen_test {
  protected:
    void SetUp() override {
        start_with({{"Long Rig", "15"}, {"East Muir", "8", "Peaty soils"}});
        press("front", "cmdFront_land");
        land = grid("land", "MSFlexGridLand");
        animals = grid("land", "MSFlexGridLand_animals");
    }
    void turn_to_stock() { drive::control<QTabWidget>(screen("land"), "SSTabLand")->setCurrentIndex(1); }
    grid_view* land = nullptr;
    grid_view* animals = nullptr;
};

TEST_F(LandScreen, EveryBoxWritesItsCellAndBothSavesWriteAll) {
    fill_boxes("land", land,
               {{0, 1, "Land_area", "9", "9"},
                {1, 2, "Land_area", "3", "3"},
                {0, 3, "Land_deduct", "1.5", "1.5"},
                {0, 4, "Land_deduct", "0.5", "0.5"},
                {0, 5, "Land_deduct", "1", "1"}});
    press("land", "cmdLand_save");
    expect_stored(state.assess_file, "Land",
                  {{"Field Area ID", {"Long Rig", "East Muir"}},
                   {"Area In Grass (ha)", {"9", "5"}},
                   {"Area Not In Grass (ha)", {"6", "3"}},
                   {"Buffer Areas To Be Deducted (ha)", {"1.5", "0"}},
                   {"Slope Areas To Be Deducted (ha)", {"0.5", "0"}},
                   {"Other Areas To Be Deducted (ha)", {"1", "0"}},
                   {"Available Field Area (ha)", {"12.00", "8.00"}},
                   {"Soil", {"Other mineral soils", "Peaty soils"}},
                   {"Total Area", {"15", "8"}}});
    turn_to_stock();
    fill_boxes("land", animals,
               {{0, 0, "Land_animal", "1 sheep", "1 sheep"}, {0, 1, "Land_animal_no", "100", "100"}});
    press("land", "cmdLand_save2");
    expect_stored(state.assess_file, "Land_animals",
                  {{"Stock Unit", {"1 sheep"}},
                   {"Number Of Stock Units", {"100"}},
                   {"Total N Excreted By One Stock Unit (kg/year)", {"9"}},
                   {"Total N Excreted By All These Animals (kg/year)", {"900"}}});
    press("land", "cmdLand_continue2");
    for (const auto& [label, shown] : std::vector<std::pair<const char*, const char*>>{
             {"lblLand_result1", "900 kg N/year"}, {"lblLand_result2", "5030 kg N/year"}})
        EXPECT_EQ(shown_text("land", label), shown);
    press("land", "cmdLand_back");
    close_screen("land", "cmdLand_cancel2", module_messages::close_the_module);
}

TEST_F(LandScreen, ClearEmptiesItsCellAndEraseTakesItsRow) {
    fill_boxes(
        "land", land,
        {{0, 1, "Land_area", "9", "9"}, {1, 1, "Land_area", "8", "8"}, {1, 3, "Land_deduct", "2", "2"}});
    press_in_box("land", land, 0, 1, "Land_area", "clear");
    EXPECT_EQ(cell(land, 0, 1), "0");
    press_in_box("land", land, 1, 3, "Land_deduct", "clear");
    EXPECT_EQ(cell(land, 1, 3), "");
    press_in_box("land", land, 1, 0, "Land_fieldID", "clear");
    EXPECT_EQ(cell(land, 1, 0), "");
    fill_boxes("land", land, {{2, 0, "Land_fieldID", "East Muir", "East Muir"}});
    EXPECT_EQ(cell(land, 2, 8), "Peaty soils");
    press_in_box("land", land, 1, 3, "Land_deduct", "erase");
    EXPECT_EQ(cell(land, 1, 0), "East Muir");
    press_in_box("land", land, 0, 1, "Land_area", "erase");
    EXPECT_EQ(cell(land, 0, 0), "East Muir");
    press_in_box("land", land, 0, 0, "Land_fieldID", "erase");
    EXPECT_EQ(land->model()->rowCount(), 1);

    turn_to_stock();
    fill_boxes("land", animals,
               {{0, 0, "Land_animal", "1 sheep", "1 sheep"},
                {0, 1, "Land_animal_no", "100", "100"},
                {1, 0, "Land_animal", "1 suckler cow", "1 suckler cow"}});
    press_in_box("land", animals, 0, 1, "Land_animal_no", "clear");
    EXPECT_EQ(cell(animals, 0, 1), "");
    press_in_box("land", animals, 0, 0, "Land_animal", "clear");
    EXPECT_EQ(cell(animals, 0, 0), "");
    press_in_box("land", animals, 0, 1, "Land_animal_no", "erase");
    EXPECT_EQ(cell(animals, 0, 0), "1 suckler cow");
    press_in_box("land", animals, 0, 0, "Land_animal", "erase");
    EXPECT_EQ(animals->model()->rowCount(), 1);
}

}  // namespace kel::test
