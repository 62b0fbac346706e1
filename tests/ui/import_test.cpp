// "Add records from another file" through the panels of the screens.
#include "core/file_error.h"
#include "core/record_import.h"
#include "tests/ui/screen_fixture.h"

namespace kel::test {

class ImportPanel : public screen_test {
  protected:
    // A second farm whose stock is to be taken over.
    std::string other_farm() {
        std::string file = make_farm("other.kel", {{"Long Rig", "15"}}, 2023);
        add_row(file, "Land", {{"Field Area ID", "Long Rig"}, {"Available Field Area (ha)", "6.20"}});
        add_row(file, "Land_animals", {{"Stock Unit", "1 sheep"}, {"Number Of Stock Units", "20"}});
        return file;
    }
    bool enabled(const char* command) const { return drive::control(screen("land"), command)->isEnabled(); }
};

TEST_F(ImportPanel, KeepsTheOtherCommandsAwayUntilItCloses) {
    start_with({{"Long Rig", "15"}});
    const std::string other = other_farm();
    press("front", "cmdFront_land");
    press("land", "cmdImport_land");
    EXPECT_EQ(focus_name(), "cmdImport_land_add");
    for (const char* command : {"cmdLand_save", "cmdLand_continue", "cmdLand_cancel", "cmdImport_land"})
        EXPECT_FALSE(enabled(command)) << command;
    // A dialog that is cancelled leaves the panel open, and so does a file that is no assessment.
    person.expect_file("Add data from another assessment", "");
    press("land", "cmdImport_land_add");
    EXPECT_FALSE(enabled("cmdLand_save"));
    const std::string letter = path("letter.kel");
    write_file(letter, "no assessment, but long enough to be taken for a database");
    person.expect_file("Replace with data from another assessment", letter)
        .expect(stop_box(file_error(letter, "it is not an assessment file, or it is damaged.")));
    click(screen("land"), "cmdImport_land_over");
    person.verify_done();
    EXPECT_FALSE(enabled("cmdLand_save"));
    press("land", "cmdImport_land_cancel");
    EXPECT_TRUE(enabled("cmdLand_save"));
    EXPECT_EQ(cell(grid("land", "MSFlexGridLand"), 0, 6), "");

    press("land", "cmdImport_land");
    person.expect_file("Replace with data from another assessment", other);
    press("land", "cmdImport_land_over");
    EXPECT_TRUE(enabled("cmdLand_save"));
    EXPECT_EQ(cell(grid("land", "MSFlexGridLand"), 0, 6), "6.20");
    EXPECT_TRUE(column_of(state.assess_file, "Land", "Field Area ID").empty());
    press("land", "cmdLand_save");
    EXPECT_EQ(column_of(state.assess_file, "Land", "Available Field Area (ha)"), texts{"6.20"});
}

}  // namespace kel::test
