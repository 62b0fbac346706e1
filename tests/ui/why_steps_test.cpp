// The panel "Why?" on Step 1, on the pages of Step 2 and on the composting calculator: cells of the table in
// front and the results that stand outside the tables.
#include <QComboBox>
#include <QTabWidget>
#include <QTextBrowser>

#include "storage/plan_page.h"
#include "storage/storage_messages.h"
#include "tests/ui/screen_fixture.h"

namespace kel::test {

class WhySteps : public screen_test {
  protected:
    void SetUp() override {
        open_farm({{"Long Rig", "15", "Sandy loams"}});
        add_row(state.assess_file, "Land",
                {{"Field Area ID", "Long Rig"},
                 {"Soil", "Sandy loams"},
                 {"Area In Grass (ha)", "16"},
                 {"Buffer Areas To Be Deducted (ha)", "1"},
                 {"Available Field Area (ha)", "15.00"},
                 {"Crop", "Grass / Other"},
                 {"September", "Closed"}});
        add_row(state.assess_file, "Slurry_store",
                {{"Store_name", "Tank"},
                 {"Store_shape", "Square or rectangular"},
                 {"Store_depth", "2.3"},
                 {"Store_length", "10"},
                 {"Store_width", "5"},
                 {"Store_%", "50"},
                 {"Rain_area", "50"}});
        state.no_link_prompt = 1;
        write_store(state);
        start();
    }
    void open_panel_on(screen_id id, const char* screen_tag) {
        run->open(id);
        tag = screen_tag;
        QApplication::setActiveWindow(screen(tag));
        drive::press(screen(tag), "cmdModule_why");
        drive::settle();
    }
    void expect_told(const char* part) const {
        drive::settle();
        const std::string page = from_qt(drive::control<QTextBrowser>(screen(tag), "txtWhy")->toPlainText());
        EXPECT_NE(page.find(part), std::string::npos) << part << " is not in\n" << page;
        EXPECT_EQ(page.find("worked out before something was changed"), std::string::npos) << page;
    }
    void expect_cell_told(const char* name, int row, int column, const char* part) const {
        grid_view* table = grid(tag, name);
        table->setFocus();
        table->go_to(row, column);
        expect_told(part);
    }
    void expect_result_told(const char* name, const char* part) const {
        auto* results = drive::control<QComboBox>(screen(tag), "cboWhy");
        results->setCurrentIndex(results->findData(name));
        expect_told(part);
    }
    const char* tag = nullptr;
};

TEST_F(WhySteps, Step1TellsItsCellsAndItsResult) {
    open_panel_on(screen_id::land, "land");
    expect_cell_told("MSFlexGridLand", 0, 6, "Left: 16 - 1 = 15 ha");
    expect_cell_told("MSFlexGridLand", 0, 3, "Entered here; at most 16 ha");
    expect_result_told("lblLand_result2", "Nothing has been worked out here yet.");
    press(tag, "cmdLand_continue");
    expect_told("16 ha x 250 kg N/ha = 4000 kg N/year");
    expect_result_told("lblLand_comment", "Farm limit: 4000 kg N/year");
    expect_result_told("lblLand_note", "lower, so that a note says so");
    press(tag, "cmdLand_back");
    expect_told("Nothing has been worked out here yet.");
}

TEST_F(WhySteps, Step2TellsStoresClosedMonthsAndLevels) {
    open_panel_on(screen_id::storage, "storage");
    drive::type(screen(tag), "txtStorage3_water_cows", "10");
    drive::type(screen(tag), "txtStorage3_water_pigs", "0");
    press(tag, "cmdStorage_continue");
    expect_cell_told("MSFlexGridStores", 0, 2, "The store holds 100 cubic m");
    expect_cell_told("MSFlexGridStores", 0, 8, "Width x length: 5 x 10 = 50 square m");
    press(tag, "cmdStores_continue");
    expect_cell_told("MSFlexGridStorage_animals", 0, 5, "Dirty water: 10 x 0.558 + 0 x 0.018 = 5.58 cubic m");
    expect_result_told("MSChartStorage1", "50 cubic m free = 50 cubic m");
    expect_result_told("lblStorage_warning", "July: 108.6 cubic m, 108.6 %");
    expect_result_told("fraStores", "Together: 100 cubic m");
    drive::control<QTabWidget>(screen(tag), "SSTabStorage")->setCurrentIndex(1);
    expect_cell_told("MSFlexGridStorage_land", 0, plan_column::january + 8, "Closed periods for slurry");
}

TEST_F(WhySteps, CompostingTellsItsResult) {
    open_panel_on(screen_id::straw, "straw");
    drive::control<QComboBox>(screen(tag), "cboStraw_residue_type")->setEditText("Onion");
    drive::type(screen(tag), "txtStraw_soilN", "40");
    drive::type(screen(tag), "txtStraw_waste_N", "0.5");
    press(tag, "cmdStraw_calculate");
    expect_result_told("lblStraw_rate", "Locked up: 9.6 - 9.5 x 0.5 = 4.85 kg N");
    expect_result_told("lblStraw_note", "Below 0 nitrogen is still locked up");
}

}  // namespace kel::test
