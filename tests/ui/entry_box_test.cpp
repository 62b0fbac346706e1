// What the grids and the entry boxes of all modules do with keys and clicks.
#include <QAbstractButton>
#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QLineEdit>

#include "land/land_messages.h"
#include "profile/farm_profile.h"
#include "tests/ui/screen_fixture.h"

namespace kel::test {

class EntryBox : public screen_test {
  protected:
    void open_step1() {
        start_with({{"Long Rig", "15"}, {"East Muir", "8"}});
        press("front", "cmdFront_land");
        land = grid("land", "MSFlexGridLand");
    }
    bool box_open(const char* name) const { return drive::control(screen("land"), name)->isVisible(); }
    grid_view* land = nullptr;
};

TEST_F(EntryBox, LocksItsScreenAndEscapeLeavesEverythingAsItWas) {
    open_step1();
    drive::click_cell(land, 0, 1);
    ASSERT_TRUE(box_open("fraLand_area"));
    const auto enabled_controls = [&] {
        texts names;
        for (const char* name : {"cmdLand_continue", "cmdLand_save", "cmdLand_open", "cmdLand_cancel"})
            if (drive::control(screen("land"), name)->isEnabled()) names.emplace_back(name);
        return names;
    };
    EXPECT_EQ(enabled_controls(), texts{});
    ASSERT_EQ(focus_name(), "txtLand_area");
    drive::click_cell(land, 1, 2);
    EXPECT_EQ(current_cell(land), (texts{"0", "1"}));
    type_text("7");
    press_key(Qt::Key_Escape);
    EXPECT_FALSE(box_open("fraLand_area"));
    EXPECT_EQ(enabled_controls().size(), 4U);
    EXPECT_EQ(cell(land, 0, 1), "");
    EXPECT_EQ(focus(), land);
}

TEST_F(EntryBox, EnterConfirmsOnlyWhatTheModuleAccepts) {
    open_step1();
    drive::click_cell(land, 0, 1);
    type_text("1a2.b5.5-");
    EXPECT_EQ(drive::control<QLineEdit>(screen("land"), "txtLand_area")->text(), "12.55");
    press_key(Qt::Key_Enter, 1, Qt::KeypadModifier);
    EXPECT_EQ(cell(land, 0, 1), "12.55");
    EXPECT_EQ(cell(land, 0, 2), "2.45");
    EXPECT_EQ(focus(), land);
    EXPECT_EQ(current_cell(land), (texts{"0", "1"}));

    press_key(Qt::Key_Down);
    press_key(Qt::Key_Return);
    person.expect(land_messages::no_area);
    press_key(Qt::Key_Return);
    EXPECT_TRUE(box_open("fraLand_area"));
    EXPECT_EQ(focus_name(), "txtLand_area");
    type_text("3");
    tab_to("cmdLand_area_cancel");
    press_key(Qt::Key_Return);
    EXPECT_FALSE(box_open("fraLand_area"));
    EXPECT_EQ(cell(land, 1, 1), "");

    drive::click_cell(land, 2, 0);
    person.expect(land_messages::no_field_id);
    press_key(Qt::Key_Return);
    EXPECT_EQ(focus_name(), "lstLand_fieldID");
    press_key(Qt::Key_Down);
    person.expect(land_messages::field_in_grid);
    EXPECT_EQ(drive::control<QListWidget>(screen("land"), "lstLand_fieldID")->currentRow(), 0);
    press_key(Qt::Key_Return);
    press_key(Qt::Key_Escape);
}

TEST_F(EntryBox, TabWalksTheShownCellsAndLeavesTheGridAtItsEnds) {
    open_step1();
    drive::key(land, Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(current_cell(land), (texts{"0", "0"}));
    constexpr int shown_columns = 10;
    press_key(Qt::Key_Tab, shown_columns - 1);
    EXPECT_EQ(current_cell(land), (texts{"0", "34"})) << "columns that are not shown are passed over";
    press_key(Qt::Key_Tab);
    EXPECT_EQ(current_cell(land), (texts{"1", "0"}));
    press_key(Qt::Key_Tab, 2 * shown_columns - 1);
    EXPECT_EQ(current_cell(land), (texts{"2", "34"}));
    ASSERT_EQ(focus(), land);
    press_key(Qt::Key_Tab);
    EXPECT_NE(focus(), land);
    press_key(Qt::Key_Backtab, 1, Qt::ShiftModifier);
    EXPECT_EQ(focus(), land);
    press_key(Qt::Key_Home, 1, Qt::ControlModifier);
    press_key(Qt::Key_Backtab, 1, Qt::ShiftModifier);
    EXPECT_NE(focus(), land);
}

TEST_F(EntryBox, AnEmptyGridDoesNotHoldTheFocus) {
    start();
    press("front", "cmdFront_new");
    tab_to("MSFlexGridFields");
    press_key(Qt::Key_Tab);
    EXPECT_NE(focus_name(), "MSFlexGridFields");
}

TEST_F(EntryBox, RangesAreCopiedAsTabSeparatedText) {
    open_step1();
    drive::enter_number(screen("land"), land, 1, 1, "Land_area", "5");
    drive::click_cell(land, 0, 0);
    press_key(Qt::Key_Escape);
    press_key(Qt::Key_Down, 1, Qt::ShiftModifier);
    press_key(Qt::Key_Right, 2, Qt::ShiftModifier);
    press_key(Qt::Key_C, 1, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "Long Rig\t\t\nEast Muir\t5\t3\n");
    press_key(Qt::Key_A, 1, Qt::ControlModifier);
    press_key(Qt::Key_C, 1, Qt::ControlModifier);
    EXPECT_EQ(from_qt(QApplication::clipboard()->text().section('\n', 1, 1)),
              "East Muir\t5\t3\t\t\t\t8.00\tOther mineral soils\t8\t2000");
}

TEST_F(EntryBox, TheModelFollowsEveryChangeOfItsGrid) {
    text_grid fields(field_columns);
    grid_view view(fields, "grid");
    const QAbstractItemModelTester tester(view.model(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    for (const int rows : {4, 6, 2, 2, 0, 3}) {
        fields.set_row_count(rows);
        for (int row = 0; row < rows; ++row)
            fields.set_cell(row, 0, std::to_string(rows * 10 + row));
        // Painted between the change and its refresh, the rows that are gone are empty.
        for (int row = 0; row < view.model()->rowCount(); ++row)
            EXPECT_EQ(view.model()->index(row, 0).data().isValid(), row < rows);
        view.refresh();
        ASSERT_EQ(view.model()->rowCount(), rows);
        EXPECT_LT(view.current_row(), rows);
        if (rows == 0) continue;
        EXPECT_EQ(cell(&view, rows - 1, 0), std::to_string(rows * 10 + rows - 1));
        view.setCurrentIndex(view.model()->index(rows - 1, 1));
    }
}

}  // namespace kel::test
