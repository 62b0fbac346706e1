// What a person sees of saved and unsaved work: the mark in the title, the line at the foot, Ctrl+S.
#include <QRegularExpression>

#include "profile/profile_messages.h"
#include "tests/ui/screen_fixture.h"
#include "ui/widgets/module_screen.h"

namespace kel::test {

class SavedState : public screen_test {
  protected:
    bool marked(const char* tag) const { return screen(tag)->isWindowModified(); }
    QString foot(const char* tag) const { return static_cast<module_screen*>(screen(tag))->save_status(); }
    static bool says_saved(const QString& text) {
        return QRegularExpression("^Saved ([01][0-9]|2[0-3]):[0-5][0-9]$").match(text).hasMatch();
    }
    void ctrl_s(const char* tag) const {
        QTest::keyClick(screen(tag), Qt::Key_S, Qt::ControlModifier);
        drive::settle();
    }
    void enter_area(const QString& hectares) const {
        open_box("land", "Land_area", grid("land", "MSFlexGridLand"), 0, 1);
        fill_box("land", "Land_area", hectares);
    }
};

TEST_F(SavedState, AnEntryMarksTheTitleAndUndoOrCtrlSTakesTheMarkAway) {
    start_with({{"Long Rig", "15"}});
    press("front", "cmdFront_land");
    EXPECT_TRUE(screen("land")->windowTitle().endsWith("[*]"));
    EXPECT_FALSE(marked("land"));
    enter_area("9");
    EXPECT_TRUE(marked("land"));
    QTest::keyClick(screen("land"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(marked("land"));
    enter_area("8");
    EXPECT_TRUE(foot("land").isEmpty());
    // A box over the table keeps its commands from being pressed.
    open_box("land", "Land_area", grid("land", "MSFlexGridLand"), 0, 1);
    ctrl_s("land");
    EXPECT_TRUE(marked("land"));
    drive::press(screen("land"), "cmdLand_area_cancel");
    ctrl_s("land");
    EXPECT_EQ(column_of(state.assess_file, "Land", "Area In Grass (ha)"), texts{"8"});
    EXPECT_FALSE(marked("land"));
    EXPECT_TRUE(says_saved(foot("land"))) << from_qt(foot("land"));
    enter_area("7");
    EXPECT_TRUE(marked("land"));
    // The results have no save.
    press("land", "cmdLand_continue");
    ctrl_s("land");
    EXPECT_TRUE(marked("land"));
}

TEST_F(SavedState, AFailedSaveSaysWhyAndKeepsTheMark) {
    start_with({{"Long Rig", "15"}});
    press("front", "cmdFront_land");
    enter_area("9");
    write_file(state.assess_file, "no database, but long enough to be taken for one");
    person.expect(stop_box(file_error(state.assess_file, "it is not an assessment file, or it is damaged.")));
    click(screen("land"), "cmdLand_save");
    EXPECT_TRUE(marked("land"));
    EXPECT_EQ(from_qt(foot("land")), "Not saved: it is not an assessment file, or it is damaged.");
}

TEST_F(SavedState, TextTypedAboveTheFieldsIsUnsavedAndSetProfileIsTheSave) {
    start_with({{"Long Rig", "15"}});
    press("front", "cmdFront_edit");
    EXPECT_FALSE(marked("profile"));
    drive::type(screen("profile"), "txtName", "Test Farm of Den");
    EXPECT_TRUE(marked("profile"));
    drive::type(screen("profile"), "txtName", "Test Farm");
    EXPECT_FALSE(marked("profile"));
    drive::type(screen("profile"), "txtArea", "16");
    person.expect(profile_messages::kel_area_query, answer::yes);
    ctrl_s("profile");
    EXPECT_FALSE(screen("profile"));
    EXPECT_EQ(column_of(state.assess_file, "FarmProfile", "Area"), texts{"16"});
    EXPECT_TRUE(says_saved(qt(shown_text("front", "lblFront_saved"))));
}

TEST_F(SavedState, AnotherAssessmentBeginsWithNothingUnsavedAndNothingSaid) {
    start_with({{"Long Rig", "15"}});
    press("front", "cmdFront_land");
    enter_area("9");
    ctrl_s("land");
    enter_area("8");
    static_cast<module_screen*>(screen("land"))->reload_all();
    EXPECT_FALSE(marked("land"));
    EXPECT_TRUE(foot("land").isEmpty());
}

}  // namespace kel::test
