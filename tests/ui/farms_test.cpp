// The window that checks a folder of farms: it works between the turns of the event loop, can be stopped and
// left, and opens a farm of its list.
#include <QPushButton>
#include <filesystem>

#include "shell/years_messages.h"
#include "standing/folder_messages.h"
#include "tests/ui/screen_fixture.h"

namespace kel::test {

namespace says = folder_messages;

class Farms : public screen_test {
  protected:
    Farms() {
        std::filesystem::create_directory(path("farms"));
        for (const char* farm : {"a", "b"}) {
            const std::string file = make_farm("farms/" + std::string(farm) + ".kel", {{"Long Rig", "15"}});
            recordset profile = database(file).open("FarmProfile");
            profile.edit();
            profile.set("Name", std::string("Farm ") + farm);
            profile.update();
        }
        write_file(path("farms/damaged.kel"), "no farm");
        start();
        screen("front")->findChild<QAction*>("mnuFront_farms")->trigger();
        drive::settle();
    }

    void choose() {
        person.expect_file(std::string(says::title), path("farms"));
        press("farms", "cmdFarms_choose");
    }
    void wait_until_done() {
        wait_for([this] { return !control("cmdFarms_stop")->isEnabled(); }, "the folder is never done");
        drive::settle();
    }
    QWidget* control(const char* name) const { return drive::control(screen("farms"), name); }
    grid_view* list() const { return grid("farms", "MSFlexGridFarms"); }
};

TEST_F(Farms, ListsAFolderWorstFirstAndOpensTheFarmChosen) {
    EXPECT_FALSE(control("cmdFarms_open")->isEnabled());
    choose();
    wait_until_done();
    ASSERT_EQ(list()->model()->rowCount(), 3);
    EXPECT_EQ(cell(list(), 0, 0), "Cannot be read");
    EXPECT_EQ(cell(list(), 0, list()->model()->columnCount() - 1), "damaged.kel");
    EXPECT_EQ(cell(list(), 1, 1), "Farm a");
    EXPECT_NE(shown_text("farms", "lblFarms").find("3 files of 2 farms"), std::string::npos);
    list()->go_to(2, 0);
    person.expect(years_messages::nothing_linked, answer::yes);
    press("farms", "cmdFarms_open");
    EXPECT_EQ(run->state().assess_file, path("farms/b.kel"));
    EXPECT_EQ(shown_text("front", "lblFront_farm"), "Farm b");
}

TEST_F(Farms, SavesTheListAsTableAndAsPage) {
    choose();
    wait_until_done();
    person.expect_file(std::string(says::title), path("list")).expect(says::saved(path("list.csv")));
    press("farms", "cmdFarms_table");
    EXPECT_NE(file_text(path("list.csv")).find("\"Farm b\""), std::string::npos);
    person.expect_file(std::string(says::title), path("list")).expect(says::saved(path("list.htm")));
    press("farms", "cmdFarms_page");
    EXPECT_NE(file_text(path("list.htm")).find("Farm b"), std::string::npos);
    person.expect_file(std::string(says::title), "");
    press("farms", "cmdFarms_table");
}

TEST_F(Farms, IsStoppedAndLeftInTheMiddle) {
    for (int i = 0; i < 200; ++i)
        std::filesystem::copy_file(path("farms/a.kel"), path("farms/" + std::to_string(i) + ".kel"));
    choose();
    if (control("cmdFarms_stop")->isEnabled()) {
        press("farms", "cmdFarms_stop");
        EXPECT_LT(list()->model()->rowCount(), 203);
        EXPECT_EQ(shown_text("farms", "lblFarms").find("Stopped"),
                  shown_text("farms", "lblFarms").find('\n') + 1);
    }
    choose();
    press("farms", "cmdFarms_exit");
    EXPECT_FALSE(in_view("farms"));
    EXPECT_TRUE(in_view("front"));
}

}  // namespace kel::test
