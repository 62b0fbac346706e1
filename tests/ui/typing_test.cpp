// Entries by the keyboard alone, as in a spreadsheet: what is typed on a cell begins its entry, Enter and Tab
// go on from cell to cell, Delete clears, and what was done is undone.
#include <QCalendarWidget>
#include <QDateEdit>
#include <QLineEdit>
#include <QListWidget>
#include <QTabWidget>

#include "core/module_messages.h"
#include "crops/crop_messages.h"
#include "inorganic/inorganic_grid.h"
#include "inorganic/inorganic_messages.h"
#include "land/land_grids.h"
#include "land/land_messages.h"
#include "manure/manure_grids.h"
#include "manure/manure_messages.h"
#include "profile/farm_profile.h"
#include "shell/assessments_messages.h"
#include "shell/years_messages.h"
#include "tests/ui/screen_fixture.h"

namespace kel::test {

namespace {

class Typing : public screen_test {
  public:
    // However slow the machine is, the letters spell one word.
    Typing() { QApplication::setKeyboardInputInterval(60'000); }
    ~Typing() override { QApplication::setKeyboardInputInterval(usual_interval_ms); }

  protected:
    const int usual_interval_ms = QApplication::keyboardInputInterval();
    grid_view* open_step(const char* tag, const char* button, const char* name,
                         const message* asked_first = nullptr) {
        open_farm({{"Long Rig", "15", "Sandy loams"}, {"East Muir", "8"}, {"East Bank", "4"}});
        row_values land = {
            {"Field Area ID", "Long Rig"}, {"Available Field Area (ha)", "15"}, {"Crop", "Other / Other"}};
        for (int month = 1; month <= 12; ++month)
            land.emplace_back(std::string(month_name(month)), "15");
        if (asked_first) add_row(state.assess_file, "Land", land);
        write_store(state);
        start();
        if (asked_first) person.expect(*asked_first, answer::yes);
        press("front", button);
        return grid(tag, name);
    }
    grid_view* open_land() { return open_step("land", "cmdFront_land", "MSFlexGridLand"); }
    /// As they come from a keyboard: each key to what has the focus by then; \r is Enter, \t is Tab.
    static void keys(const QString& typed) {
        for (const QChar c : typed)
            if (c == '\r')
                press_key(Qt::Key_Return);
            else if (c == '\t')
                press_key(Qt::Key_Tab);
            else
                QTest::keyClick(focus(), c.toLatin1());
        drive::settle();
    }
    static void go_to(grid_view* grid, int row, int column) {
        grid->setFocus();
        grid->go_to(row, column);
    }
    static texts row_cells(const grid_view* grid, int row, int first, int last) {
        texts found;
        for (int column = first; column <= last; ++column)
            found.push_back(cell(grid, row, column));
        return found;
    }
    bool shows(const char* tag, const char* name) const {
        return drive::control(screen(tag), name)->isVisible();
    }
    static void undo() { press_key(Qt::Key_Z, 1, Qt::ControlModifier); }
    static void redo() { press_key(Qt::Key_Z, 1, Qt::ControlModifier | Qt::ShiftModifier); }
};

}  // namespace

TEST_F(Typing, AFigureBeginsItsBoxAndEnterTabAndShiftTabGoOn) {
    auto* land = open_land();
    go_to(land, 0, land_column::grass);
    keys("12.5");
    ASSERT_EQ(focus_name(), "txtLand_area");
    press_key(Qt::Key_Return);
    EXPECT_EQ(cell(land, 0, land_column::grass), "12.5");
    EXPECT_EQ(current_cell(land), (texts{"1", "1"}));
    EXPECT_EQ(focus(), land);
    keys("3");
    press_key(Qt::Key_Tab);
    EXPECT_EQ(cell(land, 1, land_column::not_in_grass), "5");
    EXPECT_EQ(current_cell(land), (texts{"1", "2"}));
    keys("2");
    press_key(Qt::Key_Backtab, 1, Qt::ShiftModifier);
    EXPECT_EQ(cell(land, 1, land_column::grass), "6") << "what is typed takes the place of what stood there";
    EXPECT_EQ(current_cell(land), (texts{"1", "1"}));

    keys(".");
    person.expect(land_messages::no_area).expect(land_messages::no_area);
    press_key(Qt::Key_Return);
    press_key(Qt::Key_Tab);
    EXPECT_EQ(focus_name(), "txtLand_area") << "a refusal keeps box and cell";
    EXPECT_EQ(current_cell(land), (texts{"1", "1"}));
    press_key(Qt::Key_Escape);
    EXPECT_EQ(cell(land, 1, land_column::grass), "6");
    EXPECT_EQ(current_cell(land), (texts{"1", "1"}));

    press_key(Qt::Key_Return);
    keys("7");
    press_key(Qt::Key_Tab);
    EXPECT_EQ(focus_name(), "cmdLand_area_enter") << "opened by Enter, Tab walks the box";
    press_key(Qt::Key_Return);
    EXPECT_EQ(current_cell(land), (texts{"1", "1"})) << "and Enter stays on the cell";
}

TEST_F(Typing, LettersPickFromAListAndGreyCellsAndResultsTakeNone) {
    auto* land = open_land();
    go_to(land, 0, land_column::available);
    keys("5");
    EXPECT_EQ(focus(), land) << "a grey cell opens nothing and tells nothing";
    go_to(land, 3, land_column::field);
    keys("east b");
    EXPECT_EQ(drive::control<QListWidget>(screen("land"), "lstLand_fieldID")->currentRow(), 2);
    person.expect(land_messages::field_in_grid);
    press_key(Qt::Key_Tab);
    EXPECT_EQ(focus_name(), "lstLand_fieldID");
    press_key(Qt::Key_Escape);
    go_to(land, 1, land_column::field);
    press_key(Qt::Key_Delete);
    EXPECT_EQ(cell(land, 1, land_column::field), "");
    keys("e");
    press_key(Qt::Key_Return);
    EXPECT_EQ(cell(land, 1, land_column::field), "East Muir");
    EXPECT_EQ(current_cell(land), (texts{"2", "0"}));
    go_to(land, 3, land_column::field);
    press_key(Qt::Key_Delete);
    EXPECT_EQ(land->model()->rowCount(), 4);
}

TEST_F(Typing, DeleteRunsTheClearCellOfEveryWhiteCellSelected) {
    auto* land = open_land();
    go_to(land, 0, land_column::grass);
    keys("15\r4\r");
    for (const int column : {land_column::buffer, land_column::slope}) {
        go_to(land, 0, column);
        keys("1\r");
    }
    EXPECT_EQ(row_cells(land, 0, 1, 6), (texts{"15", "0", "1", "1", "", "13.00"}));
    go_to(land, 0, land_column::buffer);
    press_key(Qt::Key_Right, 3, Qt::ShiftModifier);
    press_key(Qt::Key_Delete);
    EXPECT_EQ(row_cells(land, 0, 1, 6), (texts{"15", "0", "", "", "", "15.00"})) << "grey cells follow";
    go_to(land, 1, land_column::grass);
    press_key(Qt::Key_Delete);
    EXPECT_EQ(row_cells(land, 1, 1, 2), (texts{"0", "8"}));
    undo();
    EXPECT_EQ(row_cells(land, 1, 1, 2), (texts{"4", "4"}));
    undo();
    EXPECT_EQ(row_cells(land, 0, 3, 6), (texts{"1", "1", "", "13.00"})) << "one Delete is one step";
    go_to(land, 0, land_column::buffer);
    keys("2\r");
    press_key(Qt::Key_Down, 1, Qt::ShiftModifier);
    EXPECT_EQ(land->selected_rows().front(), 1) << "a selection begins where Enter has gone";
}

TEST_F(Typing, AnApplicationOfManureIsTypedDayFirstFromTheFieldToItsAmount) {
    auto* table = open_step("reduction", "cmdFront_manure", "MSFlexGridReductions",
                            &assessments_messages::closed_periods_first);
    go_to(table, 0, manure_column::field);
    keys("lo");
    press_key(Qt::Key_Tab);
    EXPECT_EQ(current_cell(table), (texts{"0", "1"}));
    press_key(Qt::Key_Tab);
    keys("dairy slurry - hi");
    press_key(Qt::Key_Tab);
    ASSERT_EQ(focus_name(), "optReductions_incorporation_1") << "the question follows";
    press_key(Qt::Key_Down);
    press_key(Qt::Key_Tab);
    EXPECT_EQ(current_cell(table), (texts{"0", std::to_string(manure_column::date)}));
    keys("45/3");
    press_key(Qt::Key_Return);
    ASSERT_EQ(focus_name(), "txtReductions_date") << "no such day: the line waits for another";
    EXPECT_EQ(shown_text("reduction", "lblReductions_date_typed"), "day/month/year");
    const auto* calendar = drive::control<QCalendarWidget>(screen("reduction"), "calReductions_date");
    const QDate before = calendar->selectedDate();
    keys("1/3");
    EXPECT_EQ(calendar->selectedDate(), QDate(2025, 3, 1));
    drive::control<QLineEdit>(screen("reduction"), "txtReductions_date")->clear();
    EXPECT_EQ(calendar->selectedDate(), before) << "what was typed and deleted is not entered";
    keys("1/3");
    press_key(Qt::Key_Tab);
    keys("5");
    press_key(Qt::Key_Tab);
    keys("250");
    press_key(Qt::Key_Return);
    EXPECT_EQ(row_cells(table, 0, 0, 7),
              (texts{"Long Rig", "Sandy loams", "Over 6 hours", "Dairy slurry - high dry matter (10%)",
                     "01/03/2025", "5", "250", "50"}));
    EXPECT_EQ(current_cell(table), (texts{"1", std::to_string(manure_column::amount)}));
    // A click opens the calendar as ever.
    drive::click_cell(table, 0, manure_column::date);
    EXPECT_FALSE(shows("reduction", "txtReductions_date"));
    press_key(Qt::Key_Escape);
    go_to(table, 0, manure_column::amount);
    press_key(Qt::Key_Delete);
    EXPECT_EQ(cell(table, 0, manure_column::amount), "250") << "it has no Clear Cell";
    // Six steps: field, manure with its incorporation, date, area, amount.
    for (int step = 0; step < 5; ++step)
        undo();
    EXPECT_EQ(table->model()->rowCount(), 1);
    redo();
    redo();
    EXPECT_EQ(row_cells(table, 0, 0, 4),
              (texts{"Long Rig", "Sandy loams", "Over 6 hours", "Dairy slurry - high dry matter (10%)", ""}));
}

TEST_F(Typing, TabWalksTheFormOfSeveralPartsBeforeItGoesOn) {
    auto* table = open_step("inorg", "cmdFront_inorganic", "MSFlexGridInorganic",
                            &assessments_messages::closed_periods_first);
    go_to(table, 0, inorganic_column::field);
    keys("lo");
    press_key(Qt::Key_Tab);
    keys("10/1");
    ASSERT_EQ(focus_name(), "txtInorganic_applic_date");
    person.expect(inorganic_messages::closed_period);
    press_key(Qt::Key_Tab);
    tab_to("txtInorganic_applic_type");
    keys("Urea");
    press_key(Qt::Key_Tab);
    keys("100");
    press_key(Qt::Key_Tab);
    keys("46");
    press_key(Qt::Key_Tab);
    press_key(Qt::Key_End);
    keys("frost");
    press_key(Qt::Key_Tab);
    EXPECT_EQ(row_cells(table, 0, 0, 6),
              (texts{"Long Rig", "10/01/2025", "Urea", "100", "46", "46",
                     std::string(inorganic_messages::closed_period_comment) + "frost"}));
    EXPECT_EQ(current_cell(table), (texts{"0", "2"}));
    keys("Nitram");
    press_key(Qt::Key_Return);
    EXPECT_EQ(cell(table, 0, inorganic_column::type), "Nitram");
    press("inorg", "cmdInorganic_delete");
    EXPECT_EQ(table->model()->rowCount(), 2) << "the entry row stays";
    go_to(table, 0, 0);
    press("inorg", "cmdInorganic_delete");
    table->setFocus();
    undo();
    EXPECT_EQ(cell(table, 0, inorganic_column::type), "Nitram");
    undo();
    EXPECT_EQ(cell(table, 0, inorganic_column::type), "Urea");
}

TEST_F(Typing, ACropsQuestionsAreAnsweredByTypingAndAreOneStep) {
    auto* crops = open_step("crop", "cmdFront_crops", "MSFlexGridCrops");
    press("crop", "cmdCrops_winter_rain");
    go_to(crops, 0, 0);
    keys("lo\r");
    EXPECT_EQ(current_cell(crops), (texts{"1", "0"}));
    go_to(crops, 0, 2);
    keys("spring oats");
    press_key(Qt::Key_Tab);
    keys("15");
    EXPECT_EQ(drive::control<QDateEdit>(screen("crop"), "dtpCrops_ccrop_harvest")->date(),
              QDate(2025, 7, 15));
    keys("\r");
    // Not undersown, sown 12 days late, a dry spring.
    keys("n\r");
    keys("12");
    EXPECT_EQ(drive::control<QLineEdit>(screen("crop"), "txtCrops_question")->text(), "12");
    keys("\rl\t");
    ASSERT_EQ(focus(), crops);
    EXPECT_EQ(current_cell(crops), (texts{"0", "3"}));
    EXPECT_EQ(row_cells(crops, 0, 2, 2), (texts{"SO"}));
    const texts answered = row_cells(crops, 0, 0, 21);
    undo();
    EXPECT_EQ(row_cells(crops, 0, 0, 2), (texts{"Long Rig", "Sandy loams", ""}));
    redo();
    EXPECT_EQ(row_cells(crops, 0, 0, 21), answered);
}

TEST_F(Typing, UndoKeepsToItsFarmItsLoadAndItsTables) {
    auto* land = open_land();
    go_to(land, 0, land_column::grass);
    keys("12\r");
    undo();
    EXPECT_EQ(row_cells(land, 0, 1, 2), (texts{"", ""}));
    redo();
    EXPECT_EQ(row_cells(land, 0, 1, 2), (texts{"12", "3"}));
    press_key(Qt::Key_Return);
    undo();
    EXPECT_EQ(cell(land, 1, 1), "") << "with a box open nothing is undone behind it";
    EXPECT_EQ(cell(land, 0, 1), "12");
    press_key(Qt::Key_Escape);

    drive::control<QTabWidget>(screen("land"), "SSTabLand")->setCurrentIndex(1);
    undo();
    EXPECT_EQ(cell(land, 0, 1), "");
    EXPECT_TRUE(land->isVisible()) << "the table that changed comes to the front";
    redo();
    press("land", "cmdLand_continue");
    undo();
    EXPECT_EQ(cell(land, 0, 1), "12") << "results in view keep the table behind them";
    press("land", "cmdLand_back");
    press("land", "cmdLand_save");
    undo();
    EXPECT_EQ(cell(land, 0, 1), "12") << "what is saved is not undone";
    go_to(land, 1, 1);
    keys("3\r");
    const std::string other = make_farm("other.kel", {{"Den Brae", "6"}, {"Low Park", "9"}});
    press("land", "cmdLand_open");
    person.expect_file("Open an existing assessment", other);
    press("years", "cmdYear_browse1");
    person.expect(years_messages::nothing_linked, answer::yes);
    press("years", "cmdYear_ok");
    land = grid("land", "MSFlexGridLand");
    land->window()->activateWindow();
    go_to(land, 0, 0);
    undo();
    EXPECT_EQ(row_cells(land, 1, 0, 1), (texts{"Low Park", ""}));
}

TEST_F(Typing, TheProfileUndoesItsFieldsOneByOne) {
    auto* fields = open_step("profile", "cmdFront_edit", "MSFlexGridFields");
    go_to(fields, 1, field_column::name);
    keys("West Muir\r");
    go_to(fields, 0, field_column::area);
    press_key(Qt::Key_Down, 2, Qt::ShiftModifier);
    keys("9\r");
    EXPECT_EQ(cell(fields, 2, field_column::area), "9");
    press_key(Qt::Key_Return);
    press("profile", "cmdProfile_farea_erase");
    EXPECT_EQ(fields->model()->rowCount(), 2);
    EXPECT_EQ(drive::control<QLineEdit>(screen("profile"), "Text1")->text(), "2");
    undo();
    EXPECT_EQ(fields->model()->rowCount(), 3);
    EXPECT_EQ(drive::control<QLineEdit>(screen("profile"), "Text1")->text(), "3");
    undo();
    EXPECT_EQ(cell(fields, 0, field_column::area), "15") << "a range is one step";
    EXPECT_EQ(cell(fields, 2, field_column::area), "4");
    undo();
    EXPECT_EQ(cell(fields, 1, field_column::name), "East Muir");
    undo();
    EXPECT_EQ(cell(fields, 1, field_column::name), "East Muir");
}

}  // namespace kel::test
