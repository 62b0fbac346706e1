// Screens that stand side by side while another assessment is opened, or while another screen saves: none
// shows or saves one farm's rows over another's, and nothing that was saved is undone.
#include <QAction>
#include <QComboBox>

#include "core/module_messages.h"
#include "profile/profile_messages.h"
#include "shell/years_messages.h"
#include "tests/ui/screen_fixture.h"

namespace kel::test {

class AssessmentChange : public screen_test {
  protected:
    AssessmentChange() { state.no_related_prompt = 1; }

    /// The contents page opens over the assessments screen, which thus stays beside whatever is opened from
    /// it.
    void open_beside_front(const char* command) {
        press("front", "cmdFront_reports");
        press("front", command);
        press("viewer", "Command1");
        ASSERT_TRUE(in_view("front"));
    }
    /// Opens the box of a cell and types, without confirming.
    void type_into_box(const char* tag, const char* grid_name, int row, int column, const QString& text) {
        drive::click_cell(grid(tag, grid_name), row, column);
        drive::settle();
        type_text(text);
    }
    bool box_is_open(const char* tag, const char* frame) const {
        return drive::control(screen(tag), frame)->isVisible();
    }
    void browse(const std::string& file) {
        person.expect_file("Open an existing assessment", file);
        press("years", "cmdYear_browse1");
    }
    texts stored(const std::string& table, const std::string& column) const {
        return column_of(state.assess_file, table, column);
    }
    /// What another screen's Save leaves behind.
    void save_elsewhere(const std::string& column, const std::string& text) const {
        database(state.assess_file).update_rows("Land", {{column, text}}, "Field Area ID", "Long Rig");
    }
};

TEST_F(AssessmentChange, NewFarmClosesTheBoxOfAFieldThatIsGone) {
    start_with({{"Long Rig", "15"}, {"East Muir", "8"}});
    open_beside_front("cmdFront_edit");
    type_into_box("profile", "MSFlexGridFields", 1, 0, "Haugh");
    press("front", "cmdFront_new");
    EXPECT_FALSE(box_is_open("profile", "fraProfile_fname"));
    EXPECT_TRUE(drive::control(screen("profile"), "cmdProfile_set")->isEnabled());
    EXPECT_EQ(grid("profile", "MSFlexGridFields")->model()->rowCount(), 0);
}

TEST_F(AssessmentChange, AFigureTypedForOneFarmNeverReachesAnotherOne) {
    const std::string other = make_farm("other.kel", {{"Haugh", "2"}, {"Brae", "3"}});
    start_with({{"Long Rig", "15"}, {"East Muir", "8"}});
    press("front", "cmdFront_edit");
    press("profile", "cmdProfile_open");
    type_into_box("profile", "MSFlexGridFields", 0, 1, "14");
    browse(other);
    EXPECT_FALSE(box_is_open("profile", "fraProfile_farea"));
    EXPECT_EQ(cell(grid("profile", "MSFlexGridFields"), 0, 0), "Haugh");
    EXPECT_EQ(cell(grid("profile", "MSFlexGridFields"), 0, 1), "2");
}

TEST_F(AssessmentChange, TheSameFileOpenedAgainClosesTheBoxOfAFieldNotSaved) {
    start_with({{"Long Rig", "15"}});
    press("front", "cmdFront_edit");
    drive::type(screen("profile"), "Text1", "5");
    press("profile", "Command1");
    press("profile", "cmdProfile_open");
    type_into_box("profile", "MSFlexGridFields", 4, 1, "3");
    person.expect(years_messages::nothing_linked, answer::yes);
    press("years", "cmdYear_ok");
    EXPECT_FALSE(box_is_open("profile", "fraProfile_farea"));
    EXPECT_EQ(grid("profile", "MSFlexGridFields")->model()->rowCount(), 1);
}

TEST_F(AssessmentChange, AStepAndTheMapGoWithTheirFarm) {
    start_with({{"Long Rig", "15"}});
    open_beside_front("cmdFront_land");
    type_into_box("land", "MSFlexGridLand", 0, 1, "10");
    press("front", "cmdFront_new");
    EXPECT_FALSE(screen("land"));
    EXPECT_TRUE(in_view("profile"));
    press("profile", "cmdProfile_cancel");
    ASSERT_TRUE(in_view("front"));

    open_beside_front("cmdFront_edit");
    drive::key(drive::control(screen("profile"), "txtLocation"), Qt::Key_A);
    ASSERT_TRUE(in_view("location"));
    press("front", "cmdFront_new");
    EXPECT_FALSE(screen("location"));
    EXPECT_TRUE(in_view("profile"));
}

TEST_F(AssessmentChange, AStepBesideAnotherFollowsTheAssessmentToo) {
    const std::string other = make_farm("other.kel", {{"Haugh", "2"}});
    start_with({{"Long Rig", "15"}});
    open_beside_front("cmdFront_land");
    type_into_box("land", "MSFlexGridLand", 0, 1, "10");
    press("front", "cmdFront_inorganic");
    press("inorg", "cmdInorganic_open");
    browse(other);
    person.expect(years_messages::nothing_linked, answer::yes);
    press("years", "cmdYear_ok");
    EXPECT_FALSE(box_is_open("land", "fraLand_area"));
    EXPECT_EQ(cell(grid("land", "MSFlexGridLand"), 0, 0), "Haugh");
    EXPECT_EQ(cell(grid("land", "MSFlexGridLand"), 0, 1), "");
}

TEST_F(AssessmentChange, AYearCreatedOntoTheOpenFileLoadsTheStepAnewThoughTheDialogIsCancelled) {
    start_with({{"Long Rig", "15"}});
    add_row(state.assess_file, "Inorganic N", {{"Field Area ID", "Long Rig"}, {"Type", "Urea"}});
    press("front", "cmdFront_inorganic");
    ASSERT_EQ(cell(grid("inorg", "MSFlexGridInorganic"), 0, 0), "Long Rig");
    press("inorg", "cmdInorganic_open");
    press("years", "cmdYear_new");
    person.expect_file("Save Farm Assessment As...", state.assess_file)
        .expect(years_messages::new_file_is_linked, answer::yes);
    press("years", "cmdYear_browse_new");
    press("years", "cmdYear_create");
    press("years", "cmdYear_cancel");
    EXPECT_EQ(cell(grid("inorg", "MSFlexGridInorganic"), 0, 0), "");
}

// Last year's applications must not be saved into this year's file.
TEST_F(AssessmentChange, Step3OpenedForThisYearDoesNotKeepTheRowsOfLastYear) {
    const std::string last = make_farm("last.kel", {{"Long Rig", "15"}}, 2023);
    add_row(last, "Manure_applic", {{"Field Area ID", "Long Rig"}, {"Manure Type", "Layer manure"}});
    start_with({{"Long Rig", "15"}});
    run->state().prev1_file = last;
    run->state().manure_caller = manure_opener::old_crop;
    run->open(screen_id::manure);
    ASSERT_EQ(cell(grid("reduction", "MSFlexGridReductions"), 0, 0), "Long Rig");
    person.expect(module_messages::close_module, answer::no);
    press("front", "cmdFront_manure");
    EXPECT_EQ(cell(grid("reduction", "MSFlexGridReductions"), 0, 0), "Long Rig");
    EXPECT_EQ(run->state().manure_caller, manure_opener::old_crop);
    person.expect(module_messages::close_module, answer::yes);
    press("front", "cmdFront_manure");
    EXPECT_EQ(cell(grid("reduction", "MSFlexGridReductions"), 0, 0), "");
    press("reduction", "cmdReductions_save");
    EXPECT_TRUE(stored("Manure_applic", "Field Area ID").empty());
    EXPECT_EQ(column_of(last, "Manure_applic", "Field Area ID"), texts{"Long Rig"});
}

// The crops and the assessments screen open the same Step 3.
TEST_F(AssessmentChange, Step3KeepsWhatWasTypedWhenAnotherScreenOpensItForTheSameYear) {
    start_with({{"Long Rig", "15"}});
    add_row(state.assess_file, "Land", {{"Field Area ID", "Long Rig"}, {"January", "15"}});
    open_beside_front("cmdFront_manure");
    grid_view* table = grid("reduction", "MSFlexGridReductions");
    open_box("reduction", "Reductions_fieldID", table, 0, 0);
    fill_box("reduction", "Reductions_fieldID", "Long Rig");
    ASSERT_EQ(cell(table, 0, 0), "Long Rig");
    run->state().manure_caller = manure_opener::new_crop;
    run->open_in_place_of(screen_id::front, screen_id::manure);
    EXPECT_EQ(cell(table, 0, 0), "Long Rig");
    EXPECT_FALSE(in_view("front"));
}

// Its rows must not be saved into the file that is linked now.
TEST_F(AssessmentChange, Step3OfLastYearFollowsTheLinkedFile) {
    const std::string last = make_farm("last.kel", {{"Long Rig", "15"}}, 2023);
    const std::string other = make_farm("other.kel", {{"Long Rig", "15"}}, 2023);
    add_row(last, "Manure_applic", {{"Field Area ID", "Long Rig"}, {"Manure Type", "Layer manure"}});
    start_with({{"Long Rig", "15"}});
    run->state().prev1_file = run->state().slot_prev1 = last;
    run->state().manure_caller = manure_opener::old_crop;
    run->open(screen_id::manure);
    ASSERT_EQ(cell(grid("reduction", "MSFlexGridReductions"), 0, 3), "Layer manure");
    press("front", "cmdFront_open");
    person.expect_file(std::string(years_messages::link_title), other);
    press("years", "cmdYear_browse2");
    press("years", "cmdYear_ok");
    EXPECT_EQ(cell(grid("reduction", "MSFlexGridReductions"), 0, 3), "");
    press("reduction", "cmdReductions_save");
    EXPECT_EQ(column_of(last, "Manure_applic", "Manure Type"), texts{"Layer manure"});
}

// Its own Save brings the file of last year into being, behind the rows that are in view.
TEST_F(AssessmentChange, Step3OfLastYearSavedUnderANewNameKeepsWhatIsTypedNext) {
    start_with({{"Long Rig", "15"}});
    add_row(state.assess_file, "Land", {{"Field Area ID", "Long Rig"}, {"January", "15"}});
    run->state().manure_caller = manure_opener::old_crop;
    run->open(screen_id::manure);
    person.expect_file("Save the assessment", path("last.kel"));
    press("reduction", "cmdReductions_save");
    ASSERT_EQ(run->state().prev1_file, path("last.kel"));
    grid_view* table = grid("reduction", "MSFlexGridReductions");
    open_box("reduction", "Reductions_fieldID", table, 0, 0);
    fill_box("reduction", "Reductions_fieldID", "Long Rig");
    run->open(screen_id::about);
    press("splash", "cmdSplash_close");
    EXPECT_EQ(cell(table, 0, 0), "Long Rig");
    press("reduction", "cmdReductions_save");
    EXPECT_EQ(column_of(path("last.kel"), "Manure_applic", "Field Area ID"), texts{"Long Rig"});
}

// Cancel of the profile goes back to the file that the settings name, which is no longer the one shown.
TEST_F(AssessmentChange, AStepFollowsFromACopyBackToTheFileOfTheSettings) {
    start_with({{"Long Rig", "15"}});
    person.expect_file("Save Farm Assessment As...", path("copy.kel"));
    screen("front")->findChild<QAction*>("mnuFront_save_as")->trigger();
    open_beside_front("cmdFront_land");
    drive::enter_number(screen("land"), grid("land", "MSFlexGridLand"), 0, 1, "Land_area", "10");
    press("front", "cmdFront_edit");
    press("profile", "cmdProfile_cancel");
    ASSERT_EQ(run->state().assess_file, state.assess_file);
    EXPECT_EQ(cell(grid("land", "MSFlexGridLand"), 0, 1), "");
}

TEST_F(AssessmentChange, TheYearsDialogDoesNotKeepAFarmThatWasLeft) {
    start_with({{"Long Rig", "15"}});
    press("front", "cmdFront_open");
    press("years", "cmdYear_new");
    press("front", "cmdFront_new");
    EXPECT_FALSE(drive::control(screen("years"), "fraYear_create")->isVisible());
    EXPECT_EQ(shown_text("years", "lblYear_farm1"), "");
    person.expect(years_messages::nothing_opened);
    press("years", "cmdYear_ok");
    EXPECT_TRUE(in_view("years"));
}

// Step 1 is brought into being hidden behind the contents page.
TEST_F(AssessmentChange, AStepLoadedHiddenIsLoadedAnewOnceItsFileHasChanged) {
    start_with({{"Long Rig", "15"}});
    add_row(state.assess_file, "Land", {{"Field Area ID", "Long Rig"}, {"Total Area", "15"}});
    press("front", "cmdFront_reports");
    press("viewer", "Command1");
    ASSERT_FALSE(in_view("land"));
    press("front", "cmdFront_edit");
    drive::click_cell(grid("profile", "MSFlexGridFields"), 0, 0);
    press_key(Qt::Key_A, 1, Qt::ControlModifier);
    type_text("Short Rig");
    press_key(Qt::Key_Return);
    person.expect(profile_messages::kel_area_query, answer::yes);
    press("profile", "cmdProfile_set");
    press("front", "cmdFront_land");
    EXPECT_EQ(cell(grid("land", "MSFlexGridLand"), 0, 0), "Short Rig");
    press("land", "cmdLand_save");
    EXPECT_EQ(stored("Land", "Field Area ID"), texts{"Short Rig"});
}

TEST_F(AssessmentChange, StepsSideBySideSaveEachItsOwnColumns) {
    start_with({{"Long Rig", "15"}});
    add_row(state.assess_file, "Land",
            {{"Field Area ID", "Long Rig"}, {"Total Area", "15"}, {"Available Field Area (ha)", "15.00"}});
    open_beside_front("cmdFront_land");
    drive::enter_number(screen("land"), grid("land", "MSFlexGridLand"), 0, 1, "Land_area", "10");
    save_elsewhere("January", "7");
    save_elsewhere("Crop", "Grass / Grass");
    press("front", "cmdFront_land");
    EXPECT_EQ(cell(grid("land", "MSFlexGridLand"), 0, 1), "10") << "what was typed stays";
    press("land", "cmdLand_save");
    EXPECT_EQ(stored("Land", "Area In Grass (ha)"), texts{"10"});
    EXPECT_EQ(stored("Land", "January"), texts{"7"});
    EXPECT_EQ(stored("Land", "Crop"), texts{"Grass / Grass"});
}

TEST_F(AssessmentChange, ADoubleClickOpensAsBrowseAndOkDo) {
    const std::string other = make_farm("other.kel", {{"Haugh", "2"}}, 2021);
    state.no_related_prompt = 0;
    for (const answer link_first : {answer::no, answer::yes}) {
        start_with({{"Long Rig", "15"}});
        person.expect(years_messages::nothing_linked, link_first);
        start(other);
        EXPECT_EQ(in_view("years"), link_first == answer::no);
        EXPECT_TRUE(in_view("front"));
        EXPECT_EQ(run->state().assess_file, other);
    }
    start_with({{"Long Rig", "15"}});
    start(state.assess_file);  // the one that is open already: no question
    EXPECT_FALSE(in_view("years"));
}

TEST_F(AssessmentChange, TheYearsOnOfferAreTheSameAfterAFileOfAnotherDate) {
    const std::string odd = make_farm("odd.kel", {{"Haugh", "2"}});
    database(odd).update_rows("Type", {{"Year", "01/01/2025"}}, "Year", "2024-12-19");
    const auto offered = [this] { return drive::control<QComboBox>(screen("profile"), "cboAssess_year"); };
    start_with({{"Long Rig", "15"}});
    press("front", "cmdFront_edit");
    const int years = offered()->count();
    press("profile", "cmdProfile_open");
    browse(odd);
    EXPECT_EQ(offered()->count(), years + 1);
    browse(state.assess_file);
    EXPECT_EQ(offered()->count(), years);
    EXPECT_EQ(from_qt(offered()->currentText()), "19/12/2024");
}

}  // namespace kel::test
