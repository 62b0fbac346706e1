// The field record's screen: every command through its widgets, and by keyboard alone.
#include <QClipboard>
#include <QComboBox>
#include <QPushButton>
#include <QTableWidget>

#include "core/file_error.h"
#include "record/record_grid.h"
#include "record/record_messages.h"
#include "tests/ui/screen_fixture.h"

namespace kel::test {

namespace says = record_messages;

class RecordScreen : public screen_test {
  protected:
    const QString long_manure = "Fattening cattle slurry (400kg) - medium dry matter (6%)";

    void open() {
        state.no_link_prompt = 1;
        start_with({{"Long Rig", "15"}, {"East Muir", "8"}});
        apply("Long Rig", "100");
        add_row(
            state.assess_file, "Manure_applic",
            {{"Field Area ID", "Long Rig"}, {"Date", "2025-04-03"}, {"Manure Type", from_qt(long_manure)}});
        add_row(state.assess_file, "Recommendations", {{"Field Area ID", "Long Rig"}, {"N required", "90"}});
        press("front", "cmdFront_record");
        ASSERT_TRUE(in_view("record"));
        ASSERT_FALSE(in_view("front"));
    }
    void apply(const std::string& field, const std::string& total) {
        add_row(state.assess_file, "Land", {{"Field Area ID", field}, {"Crop", "Other / Other"}});
        add_row(state.assess_file, "Inorganic N",
                {{"Field Area ID", field}, {"Date", "2025-04-02"}, {"Type", "Urea"}, {"Total N", total}});
    }
    QComboBox* fields() const { return drive::control<QComboBox>(screen("record"), "Combo1"); }
    texts warnings() const {
        const auto* table = drive::control<QTableWidget>(screen("record"), "MSFlexGrid2");
        texts found;
        for (int row = 0; row < table->rowCount(); ++row) {
            const auto* icon = qobject_cast<QLabel*>(table->cellWidget(row, 0));
            EXPECT_FALSE(icon->pixmap().isNull()) << "row " << row << " shows no icon";
            found.push_back(from_qt(icon->accessibleName() + ": " + table->item(row, 1)->text()));
        }
        return found;
    }
    std::string record_cell(int row, int column) const {
        return cell(grid("record", "MSFlexGrid1"), row, column);
    }
};

TEST_F(RecordScreen, ChoosingAFieldShowsItsRowsAndWarnings) {
    open();
    EXPECT_EQ(from_qt(fields()->currentText()), "Long Rig");
    EXPECT_EQ(record_cell(0, 2) + " " + record_cell(0, 3) + " " + record_cell(0, 5), "02/04/2025 Urea 100");
    EXPECT_TRUE(grid("record", "MSFlexGrid1")->fits(record_column::manure, long_manure));
    EXPECT_EQ(warnings(), texts{"Alert: " + says::requirement_exceeded("100", "90")});
    EXPECT_EQ(focus_name(), "Combo1");
    press_key(Qt::Key_Down);
    EXPECT_EQ(from_qt(fields()->currentText()), "East Muir");
    EXPECT_EQ(grid("record", "MSFlexGrid1")->model()->rowCount(), 0);
    EXPECT_EQ(warnings(), texts{"Information: " + std::string(says::no_requirement)});
}

TEST_F(RecordScreen, CopyCsvAndReportHandOnWhatIsShown) {
    open();
    // A command that follows at once finds the field chosen.
    fields()->setCurrentText("East Muir");
    drive::control<QPushButton>(screen("record"), "cmdRecord_copy")->click();
    EXPECT_TRUE(QApplication::clipboard()->text().startsWith("Field Record: \t\"East Muir\""));
    fields()->setCurrentText("Long Rig");
    click(screen("record"), "cmdRecord_copy");
    const QString copied = QApplication::clipboard()->text();
    EXPECT_TRUE(copied.startsWith("Field Record: \t\"Long Rig\"")) << from_qt(copied.left(40));
    EXPECT_TRUE(copied.contains("\"Urea\"\t\"\"\t\"100\""));
    person.expect_file("CSV Export", path("record.csv")).expect(says::csv_saved(path("record.csv")));
    click(screen("record"), "cmdRecord_csv");
    EXPECT_NE(file_text(path("record.csv")).find("\"Urea\",\"\",\"100\""), std::string::npos);

    person.expect(says::which_fields, answer::no);
    click(screen("record"), "cmdReport");
    ASSERT_TRUE(in_view("viewer"));
    EXPECT_FALSE(in_view("record"));
    EXPECT_NE(file_text(path("KEL_report_record.htm")).find("Field Record: East Muir"), std::string::npos);
    press("viewer", "Command1");
    EXPECT_TRUE(in_view("record"));
    EXPECT_EQ(from_qt(fields()->currentText()), "Long Rig");
    person.verify_done();
    // Nothing is asked, since there is nothing to lose.
    press("record", "cmdRecord_close");
    EXPECT_TRUE(in_view("front"));
    EXPECT_FALSE(screen("record"));
}

TEST_F(RecordScreen, AFileThatFailsLeavesTheFieldInTheList) {
    open();
    const std::string away = path("away.kel");
    std::filesystem::rename(state.assess_file, away);
    person.expect(stop_box(
        file_error(state.assess_file, "it cannot be opened. It may have been deleted, moved or protected.")));
    fields()->setFocus();
    press_key(Qt::Key_Down);
    person.verify_done();
    EXPECT_EQ(from_qt(fields()->currentText()), "Long Rig");
    EXPECT_EQ(record_cell(0, 3), "Urea");
    std::filesystem::rename(away, state.assess_file);
    press_key(Qt::Key_Down);
    EXPECT_EQ(from_qt(fields()->currentText()), "East Muir");
}

TEST_F(RecordScreen, TheYearsDialogReloadsTheFieldShown) {
    open();
    fields()->setFocus();
    press_key(Qt::Key_Down);
    apply("East Muir", "30");
    press("record", "cmdRecord_open");
    ASSERT_TRUE(in_view("years"));
    EXPECT_EQ(run->state().picker_caller, picker_module::record);
    press("years", "cmdYear_ok");
    EXPECT_EQ(from_qt(fields()->currentText()), "East Muir");
    EXPECT_EQ(record_cell(0, 5), "30");
}

TEST_F(RecordScreen, WorksByKeyboardAlone) {
    open();
    for (const char* name : {"MSFlexGrid1", "MSFlexGrid2", "cmdReport", "cmdRecord_csv", "cmdRecord_open",
                             "cmdRecord_close", "cmdRecord_copy", "Combo1"})
        tab_to(name);
    tab_to("cmdRecord_close");
    press_key(Qt::Key_Return);
    EXPECT_TRUE(in_view("front"));
}

}  // namespace kel::test
