// The screen of the nitrogen requirement of crops: by keyboard alone, every command, and the way to the
// manure applications and back.
#include <QDateEdit>
#include <QLineEdit>
#include <QPushButton>
#include <filesystem>

#include "core/file_error.h"
#include "core/module_messages.h"
#include "crops/crop_messages.h"
#include "shell/years_messages.h"
#include "tests/ui/screen_fixture.h"

namespace kel::test {

namespace {

namespace says = crop_messages;

class Crops : public screen_test {
  protected:
    void open_table() {
        open_farm({{"Long Rig", "15", "Sands"}, {"East Muir", "8", "Peaty soils"}});
        for (const char* field : {"Long Rig", "East Muir"})
            add_row(state.assess_file, "Land", {{"Field Area ID", field}, {"Crop", "Other / Other"}});
        write_store(state);
        start();
        press("front", "cmdFront_crops");
        press("crop", "cmdCrops_winter_rain");
        crops = grid("crop", "MSFlexGridCrops");
    }
    bool shows(const char* name) const { return drive::control(screen("crop"), name)->isVisible(); }
    texts stored(const char* table, const char* column) const {
        return column_of(state.assess_file, table, column);
    }
    /// Field and previous crop by keyboard, from the row's first cell; ends on the planned crop.
    void begin_row(const QString& field, const QString& previous) {
        enter_text(field);
        press_key(Qt::Key_Right, 3);
        enter_text(previous);
        press_key(Qt::Key_Left);
    }
    void close_module() {
        person.expect(module_messages::close_the_module, answer::yes);
        press("crop", "cmdCrops_cancel");
    }
    grid_view* crops = nullptr;
};

}  // namespace

TEST_F(Crops, ARowIsEnteredCalculatedAndSavedByKeyboardAlone) {
    open_farm({{"Long Rig", "15", "Sands"}, {"East Muir", "8", "Peaty soils"}});
    write_store(state);
    start();
    tab_to("cmdFront_crops");
    press_key(Qt::Key_Return);
    EXPECT_EQ(shown_text("crop", "lblCrops_instruction"), says::winter_instruction);
    EXPECT_EQ(focus_name(), "optCrops_winter_rain_2") << "Cupar is dry";
    press_key(Qt::Key_Up);
    press_key(Qt::Key_Return);
    crops = grid("crop", "MSFlexGridCrops");
    ASSERT_EQ(focus(), crops);
    EXPECT_EQ(shown_text("crop", "lblCrops_instruction"), says::default_instruction);
    begin_row("Long", "Kale");
    press_key(Qt::Key_Return);
    type_text("Winter wheat");
    press_key(Qt::Key_Return);
    // Bread, take-all, a wet spring: each answer leads on to the next question.
    for (const Qt::Key towards : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Up}) {
        EXPECT_TRUE(shows("fraCrops_question"));
        EXPECT_FALSE(drive::control(screen("crop"), "cmdCrops_save")->isEnabled());
        press_key(towards);
        press_key(Qt::Key_Return);
    }
    EXPECT_FALSE(shows("fraCrops_question"));
    ASSERT_EQ(focus(), crops);
    EXPECT_EQ(current_cell(crops), (texts{"0", "2"}));
    press_key(Qt::Key_Tab, 3);
    enter_text("40");
    press_key(Qt::Key_C, 1, Qt::AltModifier);
    grid_view* results = grid("crop", "MSFlexGridCrops_result");
    ASSERT_TRUE(results->isVisible());
    EXPECT_EQ(cell(results, 0, 4), "140 - 110");
    // 110 with 30 for bread, 20 for take-all, 20 for the winter and 15 for the spring, less 40.
    EXPECT_EQ(cell(results, 0, 3), "185 - 155");
    press_key(Qt::Key_B, 1, Qt::AltModifier);
    EXPECT_EQ(stored("Recommendations", "N required"), (texts{"185 - 155"}));
    ASSERT_EQ(focus(), crops);
    press_key(Qt::Key_S, 1, Qt::AltModifier);
    EXPECT_EQ(stored("Crops", "Next Crop"), (texts{"WW"}));
    EXPECT_EQ(stored("Crops", "Notes WW"), (texts{"breadmaking"}));
    EXPECT_EQ(stored("Crops", "Winter Rainfall Status"), (texts{"High"}));
    person.expect(module_messages::close_the_module, answer::yes);
    press_key(Qt::Key_M, 1, Qt::AltModifier);
    EXPECT_TRUE(in_view("front"));

    press("front", "cmdFront_crops");
    EXPECT_EQ(focus_name(), "optCrops_winter_rain_1") << "the stored answer";
    press("crop", "cmdCrops_winter_rain_cancel");
    EXPECT_TRUE(in_view("front"));
    EXPECT_FALSE(in_view("crop"));
}

TEST_F(Crops, EveryBoxWritesClearsAndErases) {
    open_table();
    drive::enter_choice(screen("crop"), crops, 0, 0, "Crops_field", "Long Rig");
    drive::enter_choice(screen("crop"), crops, 1, 0, "Crops_field", "East Muir");
    EXPECT_EQ(cell(crops, 1, 1), "Peaty soils");
    drive::click_cell(crops, 0, 3);
    auto* harvested = drive::control<QDateEdit>(screen("crop"), "dtpCrops_pcrop_harvest");
    EXPECT_EQ(harvested->date(), QDate(2024, 7, 31));
    harvested->setDate(QDate(2025, 12, 20));
    drive::choose_in_list(screen("crop"), "lstCrops_pcrop", "Beans");
    person.expect(says::previous_harvest_after_year);
    press("crop", "cmdCrops_pcrop_enter");
    EXPECT_EQ(harvested->date(), QDate(2024, 12, 20));
    press("crop", "cmdCrops_pcrop_enter");
    EXPECT_EQ(cell(crops, 0, 3), "FB");
    EXPECT_EQ(cell(crops, 0, 4), "4");

    drive::click_cell(crops, 0, 2);
    drive::control<QDateEdit>(screen("crop"), "dtpCrops_ccrop_sowing")->setDate(QDate(2025, 9, 1));
    drive::choose_in_list(screen("crop"), "lstCrops_ccrop", "Potatoes");
    person.expect(says::sowing_after_harvest);
    press("crop", "cmdCrops_ccrop_enter");
    EXPECT_EQ(drive::control<QDateEdit>(screen("crop"), "dtpCrops_ccrop_sowing")->date(), QDate(2025, 7, 30));
    press("crop", "cmdCrops_ccrop_enter");
    person.expect(says::no_potato_type);
    press("crop", "cmdCrops_question_enter");
    drive::choose_in_list(screen("crop"), "lstCrops_question", "Ware");
    press("crop", "cmdCrops_question_enter");
    press("crop", "cmdCrops_question_cancel");
    EXPECT_EQ(cell(crops, 0, 2), "WPOT");

    drive::click_cell(crops, 0, 17);
    drive::press(screen("crop"), "optCrops_question_1");
    press("crop", "cmdCrops_question_enter");
    EXPECT_EQ(cell(crops, 0, 17), "High");
    drive::enter_number(screen("crop"), crops, 0, 13, "Crops_manures", "7.5");
    EXPECT_EQ(cell(crops, 0, 13), "7.5");
    person.expect(module_messages::calculation);
    drive::click_cell(crops, 0, 4);

    for (const auto& [column, clear] :
         {std::pair{3, "cmdCrops_pcrop_clear"}, {2, "cmdCrops_ccrop_clear"}, {0, "cmdCrops_field_clear"}}) {
        drive::click_cell(crops, 0, column);
        press("crop", clear);
        EXPECT_EQ(cell(crops, 0, column), "");
    }
    for (const auto& [column, erase] : {std::pair{3, "cmdCrops_pcrop_erase"}, {2, "cmdCrops_ccrop_erase"}}) {
        drive::click_cell(crops, 0, column);
        press("crop", erase);
    }
    person.expect(module_messages::cannot_delete);
    drive::click_cell(crops, 0, 0);
    press("crop", "cmdCrops_field_erase");
    press("crop", "cmdCrops_field_cancel");
    EXPECT_EQ(crops->model()->rowCount(), 1);
}

TEST_F(Crops, DelayedSowingIsChosenByTypingItsLength) {
    open_table();
    begin_row("Long", "Spring oats");
    enter_text("Spring oats");
    press_key(Qt::Key_Return);
    person.expect(says::no_delay_length);
    drive::press(screen("crop"), "optCrops_question_2");
    press("crop", "cmdCrops_question_enter");
    drive::press(screen("crop"), "optCrops_question_1");
    tab_to("txtCrops_question");
    type_text("8");
    press_key(Qt::Key_Return);
    press_key(Qt::Key_Escape);
    press("crop", "cmdCrops_continue");
    EXPECT_EQ(cell(grid("crop", "MSFlexGridCrops_result"), 0, 3), "108");
    close_module();
}

TEST_F(Crops, AMismatchIsAskedAboutAndItsListShown) {
    open_table();
    begin_row("Long", "Kale");
    person.expect(says::planned_crop_mismatch("Winter oats", "Other"), answer::no)
        .expect_list(says::planned_crops_of_type("Other"));
    enter_text("Winter oats");
    EXPECT_TRUE(shows("fraCrops_ccrop"));
    person.expect(says::planned_crop_mismatch("Winter oats", "Other"), answer::yes)
        .expect_list(says::review_this_year("Other"));
    press("crop", "cmdCrops_ccrop_enter");
    EXPECT_EQ(cell(crops, 0, 2), "WO");
    press_key(Qt::Key_Escape);
}

TEST_F(Crops, TheManureRecordOfThisAndOfLastYearIsOpenedFromTheStepAndClosesToIt) {
    open_table();
    const std::string last = make_farm("last.kel", {{"Long Rig", "15"}}, 2023);
    const auto spread = [](const std::string& file, const char* manure, const char* day) {
        add_row(file, "Manure_applic",
                {{"Field Area ID", "Long Rig"},
                 {"Manure Type", manure},
                 {"Date", day},
                 {"Available N Rate", "24.336"},
                 {"Available N Rate Next", "5.25"}});
    };
    spread(state.assess_file, "Pig slurry", "2025-03-01");
    spread(last, "Layer manure", "2024-03-01");
    begin_row("Long", "Kale");
    enter_text("Carrots");
    drive::click_cell(crops, 0, 13);
    person.expect(says::not_linked);
    press("crop", "cmdCrops_manures_applications");
    EXPECT_TRUE(in_view("crop"));
    press_key(Qt::Key_Escape);

    run->state().prev1_file = last;
    struct {
        int column;
        const char* manure;
        const char* transferred;
    } const steps[] = {{12, "Pig slurry", "24.34"}, {13, "Layer manure", "5.25"}};
    for (const auto& [column, manure, transferred] : steps) {
        drive::click_cell(crops, 0, column);
        press("crop", "cmdCrops_manures_applications");
        EXPECT_FALSE(in_view("crop"));
        EXPECT_EQ(cell(grid("reduction", "MSFlexGridReductions"), 0, 3), manure);
        person.expect(module_messages::close_module, answer::yes);
        press("reduction", "cmdReductions_cancel");
        ASSERT_TRUE(in_view("crop"));
        EXPECT_EQ(cell(crops, 0, 2), "C");
        EXPECT_TRUE(shows("fraCrops_manures"));
        press("crop", "cmdCrops_manures_transfer");
        EXPECT_EQ(drive::control<QLineEdit>(screen("crop"), "txtCrops_manures")->text(), transferred);
        EXPECT_EQ(focus_name(), "txtCrops_manures");
        press("crop", "cmdCrops_manures_enter");
        EXPECT_EQ(cell(crops, 0, column), transferred);
    }
}

// The only way on which rows of one farm could end up in the file of another.
TEST_F(Crops, AnotherFarmOpenedFromTheManureRecordBringsItsOwnCrops) {
    const std::string other = make_farm("other.kel", {{"Haugh", "2", "Sands"}});
    add_row(other, "Crops",
            {{"Field Area ID", "Haugh"}, {"Next Crop", "WW"}, {"Winter Rainfall Status", "High"}});
    state.no_related_prompt = 1;
    open_table();
    const std::string first = state.assess_file;
    begin_row("Long", "Kale");
    drive::click_cell(crops, 0, 12);
    press("crop", "cmdCrops_manures_applications");
    press("reduction", "cmdReductions_open");
    person.expect_file("Open an existing assessment", other);
    press("years", "cmdYear_browse1");
    person.expect(years_messages::nothing_linked, answer::yes);
    press("years", "cmdYear_ok");
    person.expect(module_messages::close_module, answer::yes);
    press("reduction", "cmdReductions_cancel");
    ASSERT_TRUE(in_view("crop"));
    EXPECT_FALSE(shows("fraCrops_manures"));
    EXPECT_EQ(shown_text("crop", "lblCrops_instruction"), says::winter_instruction);
    EXPECT_EQ(focus_name(), "optCrops_winter_rain_1");
    press("crop", "cmdCrops_winter_rain");
    EXPECT_EQ(crops->model()->rowCount(), 2);
    EXPECT_EQ(cell(crops, 0, 0), "Haugh");
    press("crop", "cmdCrops_save");
    EXPECT_EQ(column_of(other, "Crops", "Field Area ID"), (texts{"Haugh"}));
    EXPECT_TRUE(column_of(first, "Crops", "Field Area ID").empty());
}

TEST_F(Crops, TheWindowsOwnCloseRefusedLeavesTheOpenBoxItsFocus) {
    open_table();
    drive::click_cell(crops, 0, 0);
    ASSERT_EQ(focus_name(), "lstCrops_field");
    person.expect(module_messages::close_the_module, answer::no);
    screen("crop")->close();
    EXPECT_TRUE(shows("fraCrops_field"));
    EXPECT_EQ(focus_name(), "lstCrops_field");
}

TEST_F(Crops, TheReportIsShownAndTheResultsAreStoredAsTheModuleCloses) {
    open_table();
    begin_row("Long", "Kale");
    enter_text("Carrots");
    press("crop", "cmdCrops_continue");
    EXPECT_EQ(shown_text("crop", "lblCrops_instruction"), says::results_instruction);
    EXPECT_EQ(shown_text("crop", "lblCrops_result"), says::results_label);
    press("crop", "cmdCrops_print");
    EXPECT_TRUE(in_view("viewer"));
    EXPECT_TRUE(file_text(path("KEL_report_croprec.htm")).find("Carrots") != std::string::npos);
    press("viewer", "Command1");
    EXPECT_TRUE(in_view("crop"));
    EXPECT_EQ(stored("Recommendations", "N required"), texts{});
    close_module();
    EXPECT_EQ(stored("Recommendations", "N required"), (texts{"0"}));
    EXPECT_TRUE(in_view("front"));
}

TEST_F(Crops, TheYearsDialogLoadsTheTableAnew) {
    open_table();
    begin_row("Long", "Kale");
    press("crop", "cmdCrops_open");
    EXPECT_TRUE(in_view("years"));
    person.expect({"Linked Assessments",
                   "You have not opened any previous linked assessments. Are you sure you want to continue?",
                   message_kind::question, message_buttons::yes_no},
                  answer::yes);
    press("years", "cmdYear_ok");
    EXPECT_EQ(crops->model()->rowCount(), 1);
    EXPECT_FALSE(shows("fraCrops_winter_rain"));
    close_module();
}

TEST_F(Crops, AFileThatCannotBeReadIsToldAndTheBoxKeepsWhatWasChosen) {
    open_table();
    std::filesystem::rename(state.assess_file, path("away.kel"));
    drive::click_cell(crops, 0, 0);
    drive::choose_in_list(screen("crop"), "lstCrops_field", "Long Rig");
    person.expect(stop_box(
        file_error(state.assess_file, "it cannot be opened. It may have been deleted, moved or protected.")));
    click(screen("crop"), "cmdCrops_field_enter");
    EXPECT_TRUE(shows("fraCrops_field"));
    EXPECT_EQ(cell(crops, 0, 0), "");
    press_key(Qt::Key_Escape);

    // Results that cannot be stored do not hold the person.
    click(screen("crop"), "cmdCrops_continue");
    EXPECT_FALSE(crops->isVisible());
    person.expect(stop_box(
        file_error(state.assess_file, "it cannot be opened. It may have been deleted, moved or protected.")));
    click(screen("crop"), "cmdCrops_cancel");
    EXPECT_TRUE(crops->isVisible());
    close_module();
    EXPECT_TRUE(in_view("front"));
}

}  // namespace kel::test
