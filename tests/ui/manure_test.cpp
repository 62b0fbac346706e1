// Step 3: each box writes its own cell, Save keeps every column, the results and the way back.
#include "core/module_messages.h"
#include "manure/manure_messages.h"
#include "tests/ui/screen_fixture.h"

namespace kel::test {

class ManureScreen : public screen_test {
  protected:
    static constexpr const char* slurry = "Dairy slurry - medium dry matter (6%)";

    void SetUp() override {
        open_farm({{"Long Rig", "15"}, {"East Muir", "8"}});
        add_row(state.assess_file, "Land",
                {{"Field Area ID", "Long Rig"},
                 {"Available Field Area (ha)", "12"},
                 {"January", "12"},
                 {"March", "12"}});
    }
    void open_step() {
        write_store(state);
        start();
        run->open(screen_id::manure);
        table = grid("reduction", "MSFlexGridReductions");
    }
    grid_view* table = nullptr;
};

TEST_F(ManureScreen, EveryBoxWritesItsCellAndSaveWritesThemAll) {
    open_step();
    fill_boxes("reduction", table, {{0, 0, "Reductions_fieldID", "Long Rig", "Long Rig"}});
    open_box("reduction", "Reductions_manure", table, 0, 3);
    fill_box("reduction", "Reductions_manure", slurry);
    fill_box("reduction", "Reductions_incorporation", "Over 6 hours");
    EXPECT_EQ(cell(table, 0, 2), "Over 6 hours");
    EXPECT_EQ(cell(table, 0, 3), slurry);
    EXPECT_TRUE(table->fits(3, qt(slurry))) << "slurries of one animal differ at their ends";
    fill_boxes("reduction", table,
               {{0, 4, "Reductions_date", "03/03/2025", "03/03/2025"},
                {0, 5, "Reductions_area", "10", "10"},
                {0, 6, "Reductions_amount", "200", "200"},
                {0, 8, "Reductions_N", "4.5", "4.5"}});
    press("reduction", "cmdReductions_save");
    expect_stored(state.assess_file, "Manure_applic",
                  {{"Field Area ID", {"Long Rig"}},
                   {"Soil", {"Other mineral soils"}},
                   {"Incorporation", {"Over 6 hours"}},
                   {"Manure Type", {slurry}},
                   {"Date", {"2025-03-03"}},
                   {"Area Spread", {"10"}},
                   {"Amount Applied", {"200"}},
                   {"Applic Rate", {"20"}},
                   {"Total N Content", {"4.5"}},
                   {"Total N Applic Rate", {"90"}},
                   {"Available N", {cell(table, 0, 10)}},
                   {"Available N Rate", {cell(table, 0, 11)}},
                   {"Available N Rate Next", {cell(table, 0, 12)}},
                   {"Month Applied", {"March"}}});
    EXPECT_NE(cell(table, 0, 10), "");

    press("reduction", "cmdReductions_calculate");
    grid_view* results = grid("reduction", "MSFlexGridReductions_result");
    ASSERT_TRUE(results->isVisible());
    EXPECT_EQ(std::stod(cell(results, 0, 1)), std::stod(cell(table, 0, 11)));
    EXPECT_EQ(std::stod(cell(results, 0, 2)), std::stod(cell(table, 0, 12)));
    EXPECT_EQ(cell(results, 1, 1), "0");
    press("reduction", "cmdReductions_report");
    EXPECT_TRUE(in_view("viewer"));
    EXPECT_NE(file_text(path("KEL_report_manureN.htm")).find(slurry), std::string::npos);
    press("viewer", "Command1");
    press("reduction", "cmdReductions_back");
    EXPECT_TRUE(table->isVisible());
    close_screen("reduction", "cmdReductions_cancel", module_messages::close_module);
}

TEST_F(ManureScreen, EveryBoxErasesItsRow) {
    const std::vector<std::pair<int, const char*>> boxes{
        {0, "Reductions_fieldID"}, {3, "Reductions_manure"}, {4, "Reductions_date"},  {5, "Reductions_area"},
        {6, "Reductions_amount"},  {8, "Reductions_N"},      {2, "Reductions_manure"}};
    for (std::size_t i = 0; i < boxes.size(); ++i)
        add_row(state.assess_file, "Manure_applic",
                {{"Field Area ID", "Long Rig"},
                 {"Manure Type", slurry},
                 {"Date", "2025-03-03"},
                 {"Amount Applied", std::to_string(i)}});
    open_step();
    int first = 0;
    for (const auto& [column, box] : boxes) {
        EXPECT_EQ(cell(table, 0, 6), std::to_string(first++)) << box;
        open_box("reduction", box, table, 0, column);
        if (first == static_cast<int>(boxes.size())) {
            fill_box("reduction", box, slurry);
            press("reduction", "cmdReductions_incorporation_erase");
        } else {
            drive::press(screen("reduction"), QString("cmd%1_erase").arg(box));
        }
    }
    EXPECT_EQ(table->model()->rowCount(), 1);
    person.expect(module_messages::cannot_delete);
    press_in_box("reduction", table, 0, 0, "Reductions_fieldID", "erase");
    press_key(Qt::Key_Escape);
}

}  // namespace kel::test
