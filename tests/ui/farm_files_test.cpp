// The File menu: recent assessments, the folders, and an earlier copy put back under the screens in view.
#include <QAction>
#include <QDesktopServices>
#include <QMenu>
#include <QTableWidget>
#include <QTextBrowser>
#include <QTimer>
#include <filesystem>

#include "shell/assessments_messages.h"
#include "shell/farm_files_messages.h"
#include "tests/ui/screen_fixture.h"
#include "ui/widgets/module_screen.h"

namespace kel::test {

namespace says = farm_files_messages;
namespace fs = std::filesystem;

// Stands for the desktop, which hands a folder to whoever takes addresses.
class opened_folders : public QTextBrowser {
  public:
    opened_folders() { QDesktopServices::setUrlHandler("file", this, "setSource"); }
    ~opened_folders() override { QDesktopServices::unsetUrlHandler("file"); }
    texts taken;

  protected:
    void doSetSource(const QUrl& url, QTextDocument::ResourceType) override {
        taken.push_back(from_qt(url.toLocalFile()));
    }
};

class FileMenu : public screen_test {
  protected:
    FileMenu() { state.no_link_prompt = 1; }
    QAction* entry(const char* name) const { return screen("front")->findChild<QAction*>(name); }
    QMenu* recent() const {
        auto* menu = screen("front")->findChild<QMenu*>("mnuFront_recent");
        emit static_cast<QMenu*>(menu->parentWidget())->aboutToShow();
        return menu;
    }
    void enter_and_save_area(const QString& hectares) const {
        open_box("land", "Land_area", grid("land", "MSFlexGridLand"), 0, 1);
        fill_box("land", "Land_area", hectares);
        press("land", "cmdLand_save");
    }
    /// What a person does in the list, once it is shown.
    static void in_list(const std::function<void(QTableWidget*)>& act) {
        QTimer::singleShot(0, qApp, [act] {
            QWidget* shown = QApplication::activeModalWidget();
            ASSERT_TRUE(shown);
            ASSERT_EQ(shown->objectName(), "frmCopies");
            act(shown->findChild<QTableWidget*>("lstCopies"));
        });
    }
    std::string stored_area() const {
        return column_of(state.assess_file, "Land", "Area In Grass (ha)").front();
    }
    earlier_copy copy() const { return run->state().copies->list().at(0); }
};

TEST_F(FileMenu, ACopyChosenByKeyboardComesBackAndTheScreenInViewShowsIt) {
    start_with({{"Long Rig", "15"}});
    press("front", "cmdFront_land");
    open_box("land", "Land_area", grid("land", "MSFlexGridLand"), 0, 1);
    fill_box("land", "Land_area", "7");
    screen("front")->show();  // beside it, as after View Reports
    const std::string file = state.assess_file;
    add_row(file, "Land",
            {{"Field Area ID", "Long Rig"}, {"Total Area", "15"}, {"Area In Grass (ha)", "11"}});
    run->state().copies->keep(file);
    database(file).update_rows("Land", {{"Area In Grass (ha)", "12"}}, "Field Area ID", "Long Rig");
    person.expect(says::put_back_question(copy(), file), answer::yes)
        .expect(says::unsaved_rows_go, answer::yes)
        .expect(says::put_back(file));
    in_list([](QTableWidget* list) {
        EXPECT_EQ(list->item(0, 1)->text(), "Test Farm");
        EXPECT_EQ(list->item(0, 2)->text(), "19/12/2024");
        wait_for([list] { return list->hasFocus(); }, "the list has not the focus");
        QTest::keyClick(list, Qt::Key_Return);
    });
    entry("mnuFront_restore")->trigger();
    drive::settle();
    person.verify_done();
    EXPECT_EQ(stored_area(), "11");
    EXPECT_EQ(cell(grid("land", "MSFlexGridLand"), 0, 1), "11");
    EXPECT_FALSE(screen("land")->isWindowModified());
    EXPECT_EQ(run->state().copies->list().size(), 2U);

    in_list([](QTableWidget* list) { QTest::keyClick(list, Qt::Key_Escape); });
    entry("mnuFront_restore")->trigger();
    EXPECT_EQ(run->state().copies->list().size(), 2U);
}

TEST_F(FileMenu, ASaveWithoutACopyIsSavedAndSaysSo) {
    start_with({{"Long Rig", "15"}});
    write_file(state.places.earlier_copies(), "a file where the folder should be");
    press("front", "cmdFront_land");
    enter_and_save_area("9");
    EXPECT_EQ(stored_area(), "9");
    const QString foot = static_cast<module_screen*>(screen("land"))->save_status();
    EXPECT_TRUE(foot.startsWith("Saved ")) << from_qt(foot);
    EXPECT_TRUE(foot.contains("No copy of the file as it was before could be kept")) << from_qt(foot);
    fs::remove(state.places.earlier_copies());
    press("land", "cmdLand_save");
    EXPECT_FALSE(static_cast<module_screen*>(screen("land"))->save_status().contains("copy"));
    EXPECT_EQ(run->state().copies->list().size(), 1U);
}

TEST_F(FileMenu, SaveAsOverAFileWithoutACopyOfItSaysSo) {
    start_with({{"Long Rig", "15"}});
    write_file(state.places.earlier_copies(), "a file where the folder should be");
    const std::string other = make_farm("other.kel", {});
    person.expect_file(std::string(assessments_messages::save_as_title), other);
    entry("mnuFront_save_as")->trigger();
    EXPECT_EQ(run->state().assess_file, other);
    EXPECT_NE(shown_text("front", "lblFront_saved").find("No copy of the file"), std::string::npos);
}

TEST_F(FileMenu, RecentAssessmentsAreListedAndOpenTheirFarm) {
    const std::string other = make_farm("other & last.kel", {{"Haugh", "2"}}, 2023);
    start_with({{"Long Rig", "15"}});
    EXPECT_EQ(recent()->actions().size(), 1);
    start(other);
    const QList<QAction*> entries = recent()->actions();
    ASSERT_EQ(entries.size(), 2);
    EXPECT_TRUE(entries[0]->text().startsWith("Test Farm, KEL year from 19/12/2023   /"));
    EXPECT_TRUE(entries[0]->text().endsWith("other && last.kel")) << from_qt(entries[0]->text());
    entries[1]->trigger();
    drive::settle();
    EXPECT_EQ(run->state().assess_file, state.assess_file);
    EXPECT_NE(shown_text("front", "lblFront_file").find(state.assess_file), std::string::npos);
    fs::remove(other);
    person.expect(says::recent_gone(other));
    recent()->actions()[1]->trigger();
    EXPECT_EQ(recent()->actions().size(), 1);
}

TEST_F(FileMenu, TheFoldersAreOpenedByTheDesktop) {
    opened_folders desktop;
    start_with({{"Long Rig", "15"}});
    entry("mnuFront_folder")->trigger();
    entry("mnuFront_copies")->trigger();
    EXPECT_EQ(desktop.taken, (texts{folder_of(state.assess_file), state.places.earlier_copies()}));
}

}  // namespace kel::test
