// The panel "Why?": it follows the current cell, disturbs nothing, and stays as it was left.
#include <QAction>
#include <QClipboard>
#include <QTextBrowser>

#include "core/module_messages.h"
#include "tests/ui/screen_fixture.h"

namespace kel::test {

class WhyPanel : public screen_test {
  protected:
    void SetUp() override {
        open_farm({{"Long Rig", "15"}, {"East Muir", "8"}});
        add_row(state.assess_file, "Inorganic N",
                {{"Field Area ID", "Long Rig"},
                 {"Date", "2025-03-03"},
                 {"Type", "<b>N & S</b>"},
                 {"Amount", "33"},
                 {"N content", "27"},
                 {"Total N", "8.9"}});
        write_store(state);
        start();
        open(screen_id::inorganic, "inorg", "MSFlexGridInorganic");
    }
    void open(screen_id id, const char* screen_tag, const char* name) {
        run->open(id);
        tag = screen_tag;
        table = grid(tag, name);
        QApplication::setActiveWindow(screen(tag));
        table->setFocus();
        drive::settle();
    }
    void go_to(int row, int column) const {
        table->go_to(row, column);
        drive::settle();
    }
    QWidget* panel() const { return drive::control(screen(tag), "fraWhy"); }
    std::string told() const {
        drive::settle();
        return from_qt(drive::control<QTextBrowser>(screen(tag), "txtWhy")->toPlainText());
    }
    void expect_told(const char* part) const { EXPECT_NE(told().find(part), std::string::npos) << told(); }

    const char* tag = nullptr;
    grid_view* table = nullptr;
};

TEST_F(WhyPanel, FollowsTheCellAndChangesNothing) {
    const int width_px = screen(tag)->width();
    go_to(0, 5);
    press_key(Qt::Key_I, 1, Qt::ControlModifier);
    EXPECT_TRUE(panel()->isVisible());
    EXPECT_EQ(focus(), table);
    EXPECT_EQ(screen(tag)->width(), width_px);
    EXPECT_TRUE(table->viewport()->rect().contains(table->visualRect(table->currentIndex())));
    expect_told("Nitrogen of <b>N & S</b> on Long Rig, 03 March 2025");  // a farm's text is no markup
    expect_told("33 kg/ha x 27 / 100 = 8.9 kg N/ha, rounded to 1 decimal");
    go_to(0, 2);
    expect_told("Entered here.");
    go_to(1, 5);
    expect_told("Nothing has been worked out here yet.");
    go_to(1, 2);
    expect_told("Nothing is entered here yet.");

    // What is entered beside it is told at once, and the account tells where the cell is older.
    go_to(0, 5);
    fill_boxes(tag, table, {{0, 0, "Inorganic_field", "East Muir", "East Muir"}});
    go_to(0, 5);
    expect_told("on East Muir");
    press_key(Qt::Key_Z, 1, Qt::ControlModifier);
    EXPECT_EQ(cell(table, 0, 0), "Long Rig");
    expect_told("on Long Rig");
    press_key(Qt::Key_I, 1, Qt::ControlModifier);
    EXPECT_FALSE(panel()->isVisible());
}

TEST_F(WhyPanel, LeavesAnOpenBoxAlone) {
    go_to(0, 2);
    press_key(Qt::Key_Return);
    QWidget* box = drive::control(screen(tag), "fraInorganic_applic");
    ASSERT_TRUE(box->isVisible());
    type_text("Nitram");
    QWidget* const typed_into = focus();
    press_key(Qt::Key_I, 1, Qt::ControlModifier);
    EXPECT_TRUE(panel()->isVisible());
    EXPECT_TRUE(box->isVisible());
    EXPECT_EQ(focus(), typed_into);
    EXPECT_EQ(cell(table, 0, 2), "<b>N & S</b>");
    press_key(Qt::Key_F6);
    EXPECT_EQ(focus_name(), "txtWhy");
    press_key(Qt::Key_F6);
    EXPECT_EQ(focus(), typed_into);
    press_key(Qt::Key_Return);
    EXPECT_EQ(cell(table, 0, 2), "Nitram");
    EXPECT_TRUE(panel()->isVisible());
}

TEST_F(WhyPanel, IsReadCopiedAndClosedByKeyboard) {
    go_to(0, 5);
    drive::press(screen(tag), "cmdModule_why");
    press_key(Qt::Key_F6);
    press_key(Qt::Key_A, 1, Qt::ControlModifier);
    press_key(Qt::Key_C, 1, Qt::ControlModifier);
    EXPECT_NE(QApplication::clipboard()->text().indexOf("8.9 kg N/ha"), -1);
    const int usual = focus()->font().pointSize();
    press_key(Qt::Key_Plus, 3, Qt::ControlModifier);
    EXPECT_GT(focus()->font().pointSize(), usual);
    press_key(Qt::Key_0, 1, Qt::ControlModifier);
    EXPECT_EQ(focus()->font().pointSize(), usual);
    press_key(Qt::Key_Escape);
    EXPECT_FALSE(panel()->isVisible());
    EXPECT_NE(focus_name(), "txtWhy");
}

TEST_F(WhyPanel, TellsWhichDaysAreClosedOnceTheUseIsKnown) {
    go_to(0, 1);
    press_key(Qt::Key_I, 1, Qt::ControlModifier);
    expect_told("03 March 2025 cannot be judged");
    add_row(state.assess_file, "Land", {{"Field Area ID", "Long Rig"}, {"Crop", "Grass / Grass"}});
    go_to(0, 2);
    go_to(0, 1);
    expect_told("03 March 2025 lies between the two: open.");
    expect_told("03 March 2025 is an open day");
}

TEST_F(WhyPanel, StaysOpenOnTheNextScreen) {
    press_key(Qt::Key_I, 1, Qt::ControlModifier);
    ASSERT_TRUE(panel()->isVisible());
    person.expect(module_messages::close_module, answer::yes);
    press(tag, "cmdInorganic_cancel");
    open(screen_id::inorganic, "inorg", "MSFlexGridInorganic");
    EXPECT_TRUE(panel()->isVisible());
    EXPECT_LE(screen(tag)->width(), 1280);
}

}  // namespace kel::test
