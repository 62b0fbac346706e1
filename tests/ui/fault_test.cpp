// Files that go away under the program: it says so, and nothing that was typed is lost.
#include "core/file_error.h"
#include "land/land_messages.h"
#include "tests/ui/screen_fixture.h"

namespace kel::test {

namespace fs = std::filesystem;

class Fault : public screen_test {
  protected:
    void open_step1() {
        start_with({{"Long Rig", "15"}});
        press("front", "cmdFront_land");
        land = grid("land", "MSFlexGridLand");
        drive::enter_number(screen("land"), land, 0, 1, "Land_area", "10");
    }
    grid_view* land = nullptr;
};

TEST_F(Fault, SaveIntoAFileThatIsGoneKeepsWhatWasTypedForTheNextSave) {
    open_step1();
    const std::string away = path("away.kel");
    fs::rename(state.assess_file, away);
    person.expect({"",
                   "There is a problem with the file\r\n" + state.assess_file +
                       "\r\n\r\nit cannot be opened. It may have been deleted, moved or protected.",
                   message_kind::stop});
    click(screen("land"), "cmdLand_save");
    person.verify_done();
    EXPECT_FALSE(fs::exists(state.assess_file)) << "an empty file in its place would hide the loss";
    ASSERT_TRUE(in_view("land"));
    EXPECT_EQ(cell(land, 0, 1), "10");
    EXPECT_EQ(cell(land, 0, 3), "");

    fs::rename(away, state.assess_file);
    click(screen("land"), "cmdLand_save");
    EXPECT_EQ(column_of(state.assess_file, "Land", "Area In Grass (ha)"), texts{"10"});
    EXPECT_EQ(cell(land, 0, 3), "0");
}

TEST_F(Fault, AReportThatCannotBeWrittenLeavesTheScreenInView) {
    open_step1();
    const std::string report = path("KEL_report_landspread.htm");
    fs::create_directories(report + "/in the way");
    click(screen("land"), "cmdLand_continue");
    person.expect(stop_box(file_error(
        report, "the report could not be written. The folder may be read-only or the disc full.")));
    click(screen("land"), "cmdReport");
    person.verify_done();
    EXPECT_TRUE(in_view("land"));
    EXPECT_FALSE(screen("viewer"));
    EXPECT_FALSE(QApplication::overrideCursor());
    fs::remove_all(report);
    click(screen("land"), "cmdReport");
    EXPECT_TRUE(in_view("viewer"));
}

TEST_F(Fault, AStepThatCannotLoadLeavesTheHubInView) {
    start_with({{"Long Rig", "15"}});
    write_file(state.assess_file, "no database, but long enough to be taken for one");
    person.expect(stop_box(file_error(state.assess_file, "it is not an assessment file, or it is damaged.")));
    click(screen("front"), "cmdFront_land");
    EXPECT_TRUE(in_view("front"));
    EXPECT_FALSE(screen("land"));
    EXPECT_FALSE(QApplication::overrideCursor());
}

// The assessments screen must not show a farm that is no longer open.
TEST_F(Fault, CancelOfTheProfileComesBackAlsoWhenTheFileIsDamaged) {
    start_with({{"Long Rig", "15"}});
    press("front", "cmdFront_edit");
    write_file(state.assess_file, "no database, but long enough to be taken for one");
    click(screen("profile"), "cmdProfile_cancel");
    EXPECT_TRUE(in_view("front"));
    EXPECT_FALSE(in_view("profile"));
    EXPECT_EQ(shown_text("front", "lblFront_farm"), "No assessment is open");
}

}  // namespace kel::test
