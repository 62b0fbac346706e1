// The grassland screen: both routes through its real widgets, the ways between them, and the keyboard alone.
#include <QRadioButton>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>

#include <filesystem>

#include "core/module_messages.h"
#include "grass/grass_grids.h"
#include "grass/grass_messages.h"
#include "tests/ui/screen_fixture.h"
#include "ui/widgets/first_column.h"

namespace kel::test {

namespace text = grass_messages;

class GrassScreen : public screen_test {
  protected:
    /// Two grass fields, of which one is stored, and a herd.
    void start_farm(const row_values& more = {}) {
        open_farm({{"Low Park", "20"}, {"Haugh", "10", "Sands"}});
        row_values haugh{{"Field Area ID", "Haugh"},
                         {"Soil Type", "Sands"},
                         {"N residue group", "6"},
                         {"Previous crop", "PG"},
                         {"Clover", "Low"},
                         {"Site Use", "Silage"},
                         {"Cuts", "2"},
                         {"Applications", "1"},
                         {"Adjustment", "0"}};
        haugh.insert(haugh.end(), more.begin(), more.end());
        add_row(state.assess_file, "Site", haugh);
        write_store(state);
        start();
        press("front", "cmdFront_grassland");
    }
    void answer_opening() {
        drive::control<QRadioButton>(screen("grass"), "optGrass_rain_2")->click();
        press("grass", "cmdGrass_rain_enter");
        drive::control<QRadioButton>(screen("grass"), "optGrass_altitude_1")->click();
        press("grass", "cmdGrass_altitude_enter");
    }
    grid_view* table(const char* name) const { return grid("grass", name); }
    void choose(grid_view* in, int row, int column, const char* box, const char* entry) {
        drive::enter_choice(screen("grass"), in, row, column, box, entry);
    }
    void option(const char* name) { drive::control<QRadioButton>(screen("grass"), name)->click(); }
    bool seen(const char* control) const { return drive::control(screen("grass"), control)->isVisible(); }
    std::string told() const { return shown_text("grass", "lblGrass_instruction"); }
    void expect_save() { person.expect_file(std::string(text::save_title), state.assess_file); }
};

TEST_F(GrassScreen, TheSiteRouteThroughItsButtons) {
    start_farm();
    ASSERT_TRUE(in_view("grass"));
    EXPECT_EQ(told(), text::rain_instruction);
    press("grass", "cmdGrass_rain_enter");
    person.expect(text::no_value);
    press("grass", "cmdGrass_altitude_enter");
    press("grass", "cmdGrass_altitude_back");
    answer_opening();
    EXPECT_EQ(told(), text::table_instruction);
    press("grass", "cmdSite_back");
    EXPECT_TRUE(drive::control<QRadioButton>(screen("grass"), "optGrass_rain_2")->isChecked());
    answer_opening();

    grid_view* site = table("MSFlexGridSite");
    choose(site, 1, 0, "Site_fieldID", "Low Park");
    EXPECT_EQ(cell(site, 1, 2), "2");
    drive::click_cell(site, 1, 3);
    // The box is as wide as the longest name in its list.
    EXPECT_EQ(drive::control<QListWidget>(screen("grass"), "lstSite_pcrop")->horizontalScrollBar()->maximum(),
              0);
    drive::choose_in_list(screen("grass"), "lstSite_pcrop", "Permanent grass");
    press("grass", "cmdSite_pcrop_enter");
    EXPECT_EQ(cell(site, 1, 4), "6");
    drive::click_cell(site, 1, 5);
    EXPECT_FALSE(drive::control(screen("grass"), "cmdSite_continue")->isEnabled());
    option("optSite_clover_low");
    press("grass", "cmdSite_clover_enter");
    option("optSite_use_silage");
    press("grass", "cmdSite_use_enter");
    press("grass", "cmdSite_cuts_low_enter");
    press("grass", "cmdSite_after_low_enter");
    EXPECT_EQ(cell(site, 1, 9), "-75");
    drive::click_cell(site, 1, 10);
    press("grass", "cmdSite_manure_transfer");
    press("grass", "cmdSite_manure_enter");
    EXPECT_EQ(cell(site, 1, 10), "0");
    press("grass", "cmdSite_save");
    EXPECT_EQ(column_of(state.assess_file, "Site", "Field Area ID"), (texts{"Haugh", "Low Park"}));
    press("grass", "cmdSite_continue");
    EXPECT_EQ(cell(table("MSFlexGridSite_result"), 1, 5), "110");
    EXPECT_NE(shown_text("grass", "lblGrass_source").find("not an official table"), std::string::npos);
    press("grass", "cmdGrass_report");
    EXPECT_TRUE(in_view("viewer"));
    press("viewer", "Command1");
    ASSERT_TRUE(in_view("grass"));
    press("grass", "cmdGrass_back");
    EXPECT_EQ(column_of(state.assess_file, "Recommendations", "N required"), (texts{"170", "110"}));
    drive::click_cell(site, 1, 5);
    press("grass", "cmdSite_clover_delete");
    EXPECT_EQ(site->model()->rowCount(), 2);
    person.expect(module_messages::close_the_module, answer::yes);
    press("grass", "cmdSite_cancel");
    EXPECT_TRUE(in_view("front"));
}

TEST_F(GrassScreen, TheManureModuleComesBackToTheBoxThatOpenedIt) {
    start_farm();
    answer_opening();
    grid_view* site = table("MSFlexGridSite");
    drive::click_cell(site, 0, 11);
    person.expect(text::no_linked_file);
    press("grass", "cmdSite_pmanure_manures");
    drive::key(focus(), Qt::Key_Escape);
    drive::click_cell(site, 0, 10);
    drive::type(screen("grass"), "txtSite_manure", "12");
    press("grass", "cmdSite_manure_manures");
    ASSERT_TRUE(in_view("reduction"));
    EXPECT_FALSE(in_view("grass"));
    person.expect(module_messages::close_module, answer::yes);
    press("reduction", "cmdReductions_cancel");
    ASSERT_TRUE(in_view("grass"));
    EXPECT_TRUE(seen("fraSite_manure"));
    press("grass", "cmdSite_manure_enter");
    EXPECT_EQ(cell(site, 0, 10), "12");
}

// The page in view saves its own columns; what another page has changed stays marked.
TEST_F(GrassScreen, CtrlSSavesThePageInViewAndTheRestStaysMarked) {
    start_farm();
    answer_opening();
    const auto marked = [this] { return screen("grass")->isWindowModified(); };
    const auto ctrl_s = [this] { QTest::keyClick(screen("grass"), Qt::Key_S, Qt::ControlModifier); };
    EXPECT_FALSE(marked()) << "the classes that follow from the answers";
    drive::click_cell(table("MSFlexGridSite"), 0, 10);
    drive::type(screen("grass"), "txtSite_manure", "12");
    press("grass", "cmdSite_manure_enter");
    press("grass", "cmdSite_stocking");
    choose(table("MSFlexGridGrass_LU"), 0, 0, "LU_type", "Horses");
    expect_save();
    ctrl_s();
    EXPECT_TRUE(marked()) << "the manure on the site page";
    EXPECT_EQ(column_of(state.assess_file, "LU", "Stock Type"), texts{"Horses"});
    drive::enter_number(screen("grass"), table("MSFlexGridGrass_LU"), 0, 1, "LU_number", "9");
    press("grass", "cmdLU_back");
    ctrl_s();
    EXPECT_TRUE(marked()) << "the number of horses";
    EXPECT_EQ(column_of(state.assess_file, "Site", "Manure current"), texts{"12"});
    press("grass", "cmdSite_stocking");
    expect_save();
    ctrl_s();
    EXPECT_FALSE(marked());
}

TEST_F(GrassScreen, TheStockingRouteForwardAndBack) {
    start_farm();
    answer_opening();
    drive::click_cell(table("MSFlexGridSite"), 0, 10);
    drive::type(screen("grass"), "txtSite_manure", "12");
    press("grass", "cmdSite_manure_enter");
    choose(table("MSFlexGridSite"), 1, 0, "Site_fieldID", "Low Park");
    press("grass", "cmdSite_stocking");
    grid_view* livestock = table("MSFlexGridGrass_LU");
    choose(livestock, 0, 0, "LU_type", "Dairy cows");
    drive::enter_number(screen("grass"), livestock, 0, 1, "LU_number", "100");
    drive::enter_number(screen("grass"), livestock, 0, 2, "LU_time", "100");
    choose(livestock, 1, 0, "LU_type", "Horses");
    drive::click_cell(livestock, 1, 0);
    EXPECT_FALSE(drive::control<QTabWidget>(screen("grass"), "SSTabGrass")->tabBar()->isEnabled());
    press("grass", "cmdLU_type_erase");
    expect_save();
    press("grass", "cmdLU_save");
    expect_save();
    person.expect(text::average_stocking_rate("3.3"));
    press("grass", "cmdLU_continue");
    EXPECT_EQ(told(), text::stocking_instruction);

    grid_view* stocking = table("MSFlexGridSU");
    drive::click_cell(stocking, 1, 4);
    option("optSU_use_1");
    press("grass", "cmdSU_use_enter");
    choose(stocking, 1, 5, "SU_type", "Dairy cows");
    drive::enter_number(screen("grass"), stocking, 1, 6, "SU_number", "50");
    drive::enter_number(screen("grass"), stocking, 1, 7, "SU_time", "100");
    press("grass", "cmdSU_back");
    EXPECT_EQ(told(), text::table_instruction);
    EXPECT_EQ(cell(table("MSFlexGridSite"), 1, 6), "Grazing");
    press("grass", "cmdSite_stocking");
    EXPECT_EQ(told(), text::stocking_instruction);
    drive::control<QTabWidget>(screen("grass"), "SSTabGrass")->setCurrentIndex(0);
    EXPECT_EQ(told(), text::livestock_instruction);
    press("grass", "cmdLU_back");
    press("grass", "cmdSite_stocking");
    drive::control<QTabWidget>(screen("grass"), "SSTabGrass")->setCurrentIndex(1);
    expect_save();
    press("grass", "cmdGrass_SU_save");
    EXPECT_EQ(column_of(state.assess_file, "Site", "Livestock Group 1 (Number)"), (texts{"", "50"}));
    EXPECT_EQ(column_of(state.assess_file, "Site", "Clover"), (texts{"Low", ""}));
    expect_save();
    press("grass", "cmdSU_continue");
    grid_view* silage = table("MSFlexGridSilage");
    EXPECT_EQ(cell(silage, 1, 4), "2.50");
    EXPECT_EQ(cell(silage, 0, 3), "50.00");
    EXPECT_NE(shown_text("grass", "lblGrass_summary").find("Left for silage: 50.00"), std::string::npos);

    press("grass", "cmdGrass_vary");
    EXPECT_FALSE(seen("cmdGrass_rec_save"));
    person.expect(text::no_decrease);
    press("grass", "cmdGrass_alter");
    press("grass", "cmdGrass_finish");
    EXPECT_FALSE(seen("fraGrass_vary"));
    expect_save();
    press("grass", "cmdGrass_rec_save");
    EXPECT_EQ(column_of(state.assess_file, "Site", "Silage Rate"), (texts{"5.00", "2.50"}));
    press("grass", "cmdGrass_rec_report");
    press("viewer", "Command1");
    press("grass", "cmdGrass_rec_back");
    press("grass", "cmdSU_back");
    EXPECT_EQ(cell(table("MSFlexGridSite"), 0, 10), "12");
    EXPECT_TRUE(in_view("grass"));
}

TEST_F(GrassScreen, MovingFeedAndAnotherDatabase) {
    start_farm();
    answer_opening();
    choose(table("MSFlexGridSite"), 1, 0, "Site_fieldID", "Low Park");
    press("grass", "cmdSite_stocking");
    drive::control<QTabWidget>(screen("grass"), "SSTabGrass")->setCurrentIndex(1);
    grid_view* stocking = table("MSFlexGridSU");
    drive::click_cell(stocking, 1, 4);
    option("optSU_use_2");
    press("grass", "cmdSU_use_enter");
    expect_save();
    press("grass", "cmdSU_continue");
    press("grass", "cmdGrass_vary");
    drive::choose_in_list(screen("grass"), "lstGrass_decrease", "Haugh");
    drive::choose_in_list(screen("grass"), "lstGrass_increase", "Low Park");
    press("grass", "cmdGrass_alter");
    press("grass", "cmdGrass_alter");
    EXPECT_EQ(cell(table("MSFlexGridSilage"), 1, 3), "0.2");
    EXPECT_EQ(cell(table("MSFlexGridSilage"), 0, 3), "-0.2");
    press("grass", "cmdGrass_finish");
    press("grass", "cmdGrass_rec_back");
    press("grass", "cmdSU_database");
    option("optSU_database_3");
    press("grass", "cmdSU_database_enter");
    EXPECT_EQ(stocking->model()->rowCount(), 0);
    person.expect(module_messages::close_the_module, answer::no);
    press("grass", "cmdSU_cancel");
    EXPECT_TRUE(in_view("grass"));
}

TEST_F(GrassScreen, ClearCellEmptiesWhatItsBoxIsAbout) {
    start_farm({{"Manure current", "12"},
                {"Manure previous", "3"},
                {"End of season date", "2024-10-31"},
                {"Site Use", "Grazing"},
                {"Livestock Group 1 (Type)", "Horses"},
                {"Livestock Group 1 (Number)", "9"},
                {"Livestock Group 1 (% Year Grazed)", "50"}});
    answer_opening();
    // Clears the cell and says which columns of the row, up to the last named, still hold a text.
    const auto left_by = [&](grid_view* in, int column, const std::string& box, int last) {
        drive::click_cell(in, 0, column);
        press("grass", ("cmd" + box + "_clear").c_str());
        std::string columns;
        for (int c = column == 0 ? 0 : 1; c <= last; ++c)
            if (!cell(in, 0, c).empty()) columns += std::to_string(c) + " ";
        return columns;
    };
    grid_view* site = table("MSFlexGridSite");
    EXPECT_EQ(left_by(site, 10, "Site_manure", 12), "1 2 3 4 5 6 7 8 9 11 12 ");
    EXPECT_EQ(left_by(site, 11, "Site_pmanure", 12), "1 2 3 4 5 6 7 8 9 12 ");
    press("grass", "cmdSite_stocking");
    grid_view* livestock = table("MSFlexGridGrass_LU");
    choose(livestock, 0, 0, "LU_type", "Horses");
    drive::enter_number(screen("grass"), livestock, 0, 1, "LU_number", "9");
    drive::enter_number(screen("grass"), livestock, 0, 2, "LU_time", "80");
    expect_save();
    press("grass", "cmdLU_save");
    EXPECT_EQ(column_of(state.assess_file, "LU", "Livestock Units"), texts{"5.76"});
    EXPECT_EQ(left_by(livestock, 2, "LU_time", 3), "1 3 ");
    EXPECT_EQ(left_by(livestock, 1, "LU_number", 3), "3 ");
    EXPECT_EQ(left_by(livestock, 0, "LU_type", 3), "3 ");
    drive::control<QTabWidget>(screen("grass"), "SSTabGrass")->setCurrentIndex(1);
    grid_view* stocking = table("MSFlexGridSU");
    EXPECT_EQ(left_by(stocking, 7, "SU_time", 7), "1 2 3 4 5 6 ");
    EXPECT_EQ(left_by(stocking, 6, "SU_number", 7), "1 2 3 4 5 ");
    EXPECT_EQ(left_by(stocking, 5, "SU_type", 7), "1 2 3 4 ");
    press("grass", "cmdSU_back");
    EXPECT_EQ(left_by(site, 5, "Site_clover", 12), "1 2 3 4 12 ");
    EXPECT_EQ(left_by(site, 3, "Site_pcrop", 12), "1 2 12 ");
    EXPECT_EQ(left_by(site, 0, "Site_fieldID", 12), "12 ");
}

// The farm's mark of being open goes with the file that a save has made the open one.
TEST_F(GrassScreen, ASaveUnderAnotherNameIsTheOpenFileFromThenOn) {
    start_farm();
    answer_opening();
    press("grass", "cmdSite_stocking");
    const std::string first = state.assess_file;
    person.expect_file(std::string(text::save_title), path("copy.kel"));
    press("grass", "cmdLU_save");
    person.expect(module_messages::close_the_module, answer::yes);
    press("grass", "cmdLU_cancel");
    ASSERT_TRUE(in_view("front"));
    EXPECT_TRUE(std::filesystem::exists(path("copy.kel.lock")));
    EXPECT_FALSE(std::filesystem::exists(first + ".lock"));
}

TEST_F(GrassScreen, TheFieldStaysInViewBesideItsGroupsWhichAreShownInFull) {
    start_farm({{"Livestock Group 9 (Type)", "Other cattle over 24 months (excl. intensive beef systems)"}});
    answer_opening();
    press("grass", "cmdSite_stocking");
    drive::control<QTabWidget>(screen("grass"), "SSTabGrass")->setCurrentIndex(1);
    grid_view* stocking = table("MSFlexGridSU");
    const auto at = [&](int column) { return stocking->model()->index(0, column); };
    const int ninth = stocking_column::first_group + 8 * columns_per_group;
    EXPECT_TRUE(stocking->fits(ninth, at(ninth).data().toString()));
    EXPECT_LT(stocking->columnWidth(ninth - columns_per_group), stocking->columnWidth(ninth));

    stocking->setCurrentIndex(at(stocking_column::silage_rate));
    const auto* field = stocking->findChild<first_column*>();
    ASSERT_TRUE(field && field->isVisible());
    EXPECT_EQ(field->width(), stocking->columnWidth(0));
    for (int column = stocking_column::silage_rate; column > 0; --column) {
        stocking->setCurrentIndex(at(column));
        EXPECT_GE(stocking->visualRect(at(column)).left(), field->isVisible() ? field->width() : 0) << column;
    }
    stocking->setCurrentIndex(at(stocking_column::silage_rate));
    QTest::mouseClick(field->viewport(), Qt::LeftButton, {}, field->visualRect(at(0)).center());
    EXPECT_EQ(stocking->current_column(), 0);
    EXPECT_FALSE(field->isVisible());
}

TEST_F(GrassScreen, AnotherAssessmentBeginsWithTheQuestionsAnew) {
    start_farm();
    answer_opening();
    press("grass", "cmdSite_open");
    ASSERT_TRUE(in_view("years"));
    const std::string other = make_farm("other.kel", {{"Nook", "3"}});
    add_row(other, "Grass_data", {{"Apr-Sep Rain", "<350"}, {"Altitude", "High"}});
    person.expect_file("Open an existing assessment", other);
    press("years", "cmdYear_browse1");
    drive::control<QAbstractButton>(screen("years"), "chkYear_nolink")->click();
    press("years", "cmdYear_ok");
    EXPECT_EQ(told(), text::rain_instruction);
    EXPECT_TRUE(drive::control<QRadioButton>(screen("grass"), "optGrass_rain_4")->isChecked());
    EXPECT_EQ(table("MSFlexGridSite")->model()->rowCount(), 1);
}

// From the assessments screen to a recommendation and back without a mouse.
TEST_F(GrassScreen, TheKeyboardAlone) {
    start_farm();
    press_key(Qt::Key_Down);
    press_key(Qt::Key_Return);
    press_key(Qt::Key_Down);
    press_key(Qt::Key_Return);
    ASSERT_EQ(focus_name(), "MSFlexGridSite");
    press_key(Qt::Key_Down);
    enter_text("Low");
    press_key(Qt::Key_Right, 3);
    press_key(Qt::Key_Return);
    type_text("Perm");
    press_key(Qt::Key_Return);
    press_key(Qt::Key_Right, 2);
    press_key(Qt::Key_Return);
    press_key(Qt::Key_Down);
    press_key(Qt::Key_Return);
    press_key(Qt::Key_Down);
    press_key(Qt::Key_Return, 3);
    ASSERT_EQ(focus_name(), "MSFlexGridSite");
    const texts expected{"Low Park", "Other mineral soils", "6", "Low", "Hay", "1", "1", "-110"};
    const grid_view* site = table("MSFlexGridSite");
    EXPECT_EQ((texts{cell(site, 1, 0), cell(site, 1, 1), cell(site, 1, 4), cell(site, 1, 5), cell(site, 1, 6),
                     cell(site, 1, 7), cell(site, 1, 8), cell(site, 1, 9)}),
              expected);
    press_key(Qt::Key_C, 1, Qt::AltModifier);
    EXPECT_EQ(focus_name(), "MSFlexGridSite_result");
}

}  // namespace kel::test
