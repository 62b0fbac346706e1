// The panel "Why?" on the screens of crops, grassland and the field record: which table or result it
// explains, and that it follows from page to page.
#include <QComboBox>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTextBrowser>

#include "crops/crop_grids.h"
#include "grass/grass_grids.h"
#include "grass/grass_messages.h"
#include "record/record_grid.h"
#include "tests/ui/screen_fixture.h"

namespace kel::test {

class WhyOfModules : public screen_test {
  protected:
    void begin(const char* opener, const char* screen_tag) {
        write_store(state);
        start();
        press("front", opener);
        tag = screen_tag;
    }
    std::string told() const {
        drive::settle();
        return from_qt(drive::control<QTextBrowser>(screen(tag), "txtWhy")->toPlainText());
    }
    void expect_told(const char* part) const { EXPECT_NE(told().find(part), std::string::npos) << told(); }
    void expect_cell(const char* table, int row, int column, const char* part) const {
        grid_view* shown = grid(tag, table);
        shown->setFocus();
        shown->go_to(row, column);
        expect_told(part);
    }
    void open_panel() { press_key(Qt::Key_I, 1, Qt::ControlModifier); }
    /// What the panel's list calls it.
    void choose(const char* result) {
        auto* list = drive::control<QComboBox>(screen(tag), "cboWhy");
        list->setCurrentIndex(list->findText(result));
    }

    const char* tag = nullptr;
};

TEST_F(WhyOfModules, CropsExplainTheirQuestionTheirTableAndTheirResults) {
    open_farm({{"Long Rig", "15", "Sands"}});
    add_row(state.assess_file, "Crops",
            {{"Field Area ID", "Long Rig"},
             {"Soil Type", "Sands"},
             {"Next Crop", "WW"},
             {"Previous or Current Crop", "SB"},
             {"N Residue Group", "2"},
             {"Take-all Adjustment (kg/ha)", "20"}});
    begin("cmdFront_crops", "crop");
    open_panel();
    choose("Winter rainfall");
    expect_told("mm, which is not more than 450 mm");
    press("crop", "cmdCrops_winter_rain");
    expect_cell("MSFlexGridCrops", 0, crop_column::residue_group, "is in group 1");
    expect_told("The table shows \"2\", worked out before something was changed");
    expect_cell("MSFlexGridCrops", 0, crop_column::planned_crop, "Entered here.");
    press("crop", "cmdCrops_continue");
    expect_cell("MSFlexGridCrops_result", 0, crop_result_column::total,
                "Take-all is expected: 200 + 20 = 220 kg/ha");
    press("crop", "cmdCrops_back");
    expect_cell("MSFlexGridCrops", 0, crop_column::soil, "Soil for Long Rig");
}

TEST_F(WhyOfModules, GrasslandExplainsEachOfItsPages) {
    open_farm({{"Haugh", "10", "Sands"}});
    add_row(state.assess_file, "Site",
            {{"Field Area ID", "Haugh"},
             {"Soil Type", "Sands"},
             {"N residue group", "6"},
             {"Previous crop", "PG"},
             {"Clover", "Low"},
             {"Site Use", "Silage"},
             {"Cuts", "2"},
             {"Applications", "1"},
             {"Adjustment", "0"}});
    begin("cmdFront_grassland", "grass");
    open_panel();
    drive::control<QRadioButton>(screen(tag), "optGrass_rain_2")->click();
    press(tag, "cmdGrass_rain_enter");
    drive::control<QRadioButton>(screen(tag), "optGrass_altitude_1")->click();
    press(tag, "cmdGrass_altitude_enter");
    expect_cell("MSFlexGridSite", 0, site_column::site_class, "class 3 on low ground");
    press(tag, "cmdSite_continue");
    expect_cell("MSFlexGridSite_result", 0, grass_result_column::to_be_applied,
                "clover Low, site class 3, residue group 6");
    press(tag, "cmdGrass_back");
    press(tag, "cmdSite_stocking");
    expect_cell("MSFlexGridGrass_LU", 0, livestock_column::units, "No stock type has been entered");
    drive::control<QTabWidget>(screen(tag), "SSTabGrass")->setCurrentIndex(1);
    expect_cell("MSFlexGridSU", 0, stocking_column::area, "The size that the farm profile has");
    person.expect_file(std::string(grass_messages::save_title), state.assess_file);
    press(tag, "cmdSU_continue");
    expect_cell("MSFlexGridSilage", 0, silage_column::n_kg_per_ha, "Stocking lines, silage on site class 3");
    choose("Livestock fed by grazing and silage");
    expect_told("Left for silage: 0 - 0 = 0 LU");
}

TEST_F(WhyOfModules, TheRecordExplainsTheWarningThatAPersonIsOn) {
    state.no_link_prompt = 1;
    open_farm({{"Long Rig", "15"}});
    add_row(state.assess_file, "Land", {{"Field Area ID", "Long Rig"}, {"Crop", "Other / Other"}});
    add_row(state.assess_file, "Inorganic N",
            {{"Field Area ID", "Long Rig"}, {"Date", "2025-02-02"}, {"Type", "Urea"}, {"Total N", "100"}});
    add_row(state.assess_file, "Recommendations", {{"Field Area ID", "Long Rig"}, {"N required", "90"}});
    begin("cmdFront_record", "record");
    auto* warnings = drive::control<QTableWidget>(screen(tag), "MSFlexGrid2");
    ASSERT_EQ(warnings->rowCount(), 2);
    warnings->setFocus();
    warnings->setCurrentCell(0, 1);
    open_panel();
    expect_told("Together 100 kg N/ha, which is more than 90 kg N/ha");
    EXPECT_EQ(told().find("The table shows"), std::string::npos);
    press_key(Qt::Key_Down);
    expect_told("Applied on: 02/02/2025");
    expect_cell("MSFlexGrid1", 0, record_column::inorganic_n, "Entered or worked out in Step 4");
}

}  // namespace kel::test
