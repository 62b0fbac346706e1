// Blocks from a spreadsheet pasted into the tables of the steps, through their own entries.
#include <QClipboard>
#include <QLineEdit>
#include <QListWidget>

#include "core/paste_prompts.h"
#include "inorganic/inorganic_grid.h"
#include "inorganic/inorganic_messages.h"
#include "land/land_grids.h"
#include "manure/manure_grids.h"
#include "manure/manure_messages.h"
#include "profile/farm_profile.h"
#include "shell/assessments_messages.h"
#include "tests/ui/screen_fixture.h"

namespace kel::test {

namespace {

class Paste : public screen_test {
  protected:
    grid_view* open_step(const char* tag, const char* button, const char* name,
                         const message* asked_first = nullptr) {
        open_farm({{"Long Rig", "15", "Sandy loams"}, {"East Muir", "8"}});
        if (asked_first) assess_land();
        write_store(state);
        start();
        if (asked_first) person.expect(*asked_first, answer::yes);
        press("front", button);
        return grid(tag, name);
    }
    // Closed for slurry in January.
    void assess_land() {
        row_values land = {
            {"Field Area ID", "Long Rig"}, {"Available Field Area (ha)", "15"}, {"Crop", "Other / Other"}};
        for (int month = 1; month <= 12; ++month)
            land.emplace_back(std::string(month_name(month)), month == 1 ? "Closed" : "15");
        add_row(state.assess_file, "Land", land);
    }
    static void select(grid_view* grid, int row, int column, int last_row, int last_column) {
        grid->setFocus();
        grid->go_to(row, column);
        for (; row < last_row; ++row)
            press_key(Qt::Key_Down, 1, Qt::ShiftModifier);
        for (; column < last_column; ++column)
            press_key(Qt::Key_Right, 1, Qt::ShiftModifier);
    }
    static void paste(grid_view* grid, int row, int column, const QString& text) {
        select(grid, row, column, row, column);
        QApplication::clipboard()->setText(text);
        press_key(Qt::Key_V, 1, Qt::ControlModifier);
    }
    static texts row_cells(const grid_view* grid, int row, int first, int last) {
        texts found;
        for (int column = first; column <= last; ++column)
            found.push_back(cell(grid, row, column));
        return found;
    }
    void close_list(std::string_view tag) const {
        drive::press(screen(tag), "cmdPaste_close");
        screen(tag)->activateWindow();
    }
    texts listed(std::string_view tag) const {
        texts lines;
        const auto* list = screen(tag)->findChild<QListWidget*>("lstPaste");
        for (int i = 0; list && i < list->count(); ++i)
            lines.push_back(from_qt(list->item(i)->text()));
        return lines;
    }
};

}  // namespace

TEST_F(Paste, ApplicationsOfManureGoThroughTheirTestsAndAreOneStep) {
    auto* table = open_step("reduction", "cmdFront_manure", "MSFlexGridReductions",
                            &assessments_messages::closed_periods_first);
    person.expect(for_all_of_paste(manure_messages::closed_period), answer::yes);
    person.expect(for_all_of_paste(manure_messages::no_land_available), answer::yes);
    paste(table, 0, 0,
          "Field Area ID\tManure Type\tIncorporation Time\tDate Applied\tArea Spread (ha)\tAmount Applied (t "
          "or cubic m)\r\n"
          "Long Rig\tDairy slurry - high dry matter (10%)\tOver 6 hours\t10/1/2025\t5\t250\r\n"
          "Low Rig\t\t\t\t\t\r\n"
          "long rig\tdairy slurry - high dry matter (10%)\tover 6 hours\t11/01/25\t16\t2,5\r\n");
    EXPECT_EQ(row_cells(table, 0, 0, 7),
              (texts{"Long Rig", "Sandy loams", "Over 6 hours", "Dairy slurry - high dry matter (10%)",
                     "10/01/2025", "5", "250", "50"}));
    EXPECT_EQ(row_cells(table, 1, 0, 6),
              (texts{"Long Rig", "Sandy loams", "Over 6 hours", "Dairy slurry - high dry matter (10%)",
                     "11/01/2025", "15", ""}));
    const texts lines = listed("reduction");
    ASSERT_EQ(lines.size(), 7U);
    EXPECT_EQ(lines[0], "Line 3, row 2, Field Area ID: \"Low Rig\" is not among the choices.");
    EXPECT_EQ(lines[1], "Line 4, row 2, Area Spread (ha): " + manure_messages::area_too_large.text);
    EXPECT_EQ(lines[3].substr(0, 46), "Line 2, row 1, Date Applied (entered): This ap");
    auto* list = drive::control<QListWidget>(screen("reduction"), "lstPaste");
    list->setCurrentRow(2);
    EXPECT_EQ(current_cell(table), (texts{"1", std::to_string(manure_column::amount)}));
    close_list("reduction");
    table->setFocus();
    press_key(Qt::Key_Z, 1, Qt::ControlModifier);
    EXPECT_EQ(table->model()->rowCount(), 1);
}

TEST_F(Paste, AnApplicationOfFertiliserIsPickedInItsCalendarAndKeepsItsReason) {
    auto* table = open_step("inorg", "cmdFront_inorganic", "MSFlexGridInorganic",
                            &assessments_messages::closed_periods_first);
    paste(table, 0, 0,
          "Long Rig\t10/1/2025\tUrea\t100\t146\t\tfrost\nLong Rig\t1/4/2025\tNitram\t120\t34.5\nLong "
          "Rig\t1/4/2031\tA\t1\t1\n");
    const std::string reason(inorganic_messages::closed_period_comment);
    EXPECT_EQ(row_cells(table, 0, 0, 6),
              (texts{"Long Rig", "10/01/2025", "Urea", "100", "100", "100", reason + "frost"}));
    EXPECT_EQ(row_cells(table, 1, 0, 6),
              (texts{"Long Rig", "01/04/2025", "Nitram", "120", "34.5", "41.4", ""}));
    EXPECT_EQ(row_cells(table, 2, 0, 6), (texts{"Long Rig", "", "", "", "", "", ""}));
    ASSERT_EQ(listed("inorg").size(), 2U);
    EXPECT_EQ(listed("inorg")[0],
              "Line 3, row 3, Date of application: " + inorganic_messages::date_outside_calendar.text);
}

TEST_F(Paste, FillDownASingleCellAndACopyOfRowsGoBackIn) {
    auto* land = open_step("land", "cmdFront_land", "MSFlexGridLand");
    paste(land, 0, land_column::grass, "6\t\t1\n");
    EXPECT_EQ(row_cells(land, 0, 1, 6), (texts{"6", "9", "1", "", "", "14.00"}));
    select(land, 0, land_column::grass, 1, land_column::buffer);
    press_key(Qt::Key_D, 1, Qt::ControlModifier);
    // Of the pair the other one follows: 9 of 8 ha is cut, with its message.
    EXPECT_EQ(row_cells(land, 1, 1, 3), (texts{"0", "8", "1"}));
    EXPECT_EQ(listed("land").size(), 1U);
    screen("land")->activateWindow();
    select(land, 0, land_column::slope, 1, land_column::other_deduction);
    QApplication::clipboard()->setText("0.5");
    press_key(Qt::Key_V, 1, Qt::ControlModifier);
    EXPECT_EQ(row_cells(land, 1, 3, 6), (texts{"1", "0.5", "0.5", "6.00"}));
    EXPECT_FALSE(screen("land")->findChild<QListWidget*>("lstPaste"))
        << "the list of the paste before has gone";
    press_key(Qt::Key_A, 1, Qt::ControlModifier);
    press_key(Qt::Key_C, 1, Qt::ControlModifier);
    const QString copied = QApplication::clipboard()->text();
    press_key(Qt::Key_Delete);
    EXPECT_EQ(cell(land, 0, 0), "");
    paste(land, 0, 0, copied);
    press_key(Qt::Key_A, 1, Qt::ControlModifier);
    press_key(Qt::Key_C, 1, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), copied);
}

TEST_F(Paste, EachRowOfTheProfileTakesItsOwnAreaAndNothingIsPastedUnderABox) {
    auto* fields = open_step("profile", "cmdFront_edit", "MSFlexGridFields");
    select(fields, 0, field_column::area, 1, field_column::kel_area);
    paste(fields, 0, field_column::area, "10\t9\n7\t6\n5\t4\n");
    EXPECT_EQ(row_cells(fields, 0, 1, 2), (texts{"10", "9"}));
    EXPECT_EQ(row_cells(fields, 1, 1, 2), (texts{"7", "6"}));
    EXPECT_EQ(fields->model()->rowCount(), 2);
    EXPECT_EQ(listed("profile").size(), 1U);
    close_list("profile");
    select(fields, 0, field_column::area, 0, field_column::area);
    press_key(Qt::Key_Return);
    QApplication::clipboard()->setText("3");
    press_key(Qt::Key_V, 1, Qt::ControlModifier);
    EXPECT_EQ(drive::control<QLineEdit>(screen("profile"), "txtProfile_farea")->text(), "3");
    EXPECT_EQ(cell(fields, 0, field_column::area), "10");
    press_key(Qt::Key_Escape);
}

}  // namespace kel::test
