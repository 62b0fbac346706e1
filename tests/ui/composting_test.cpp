// The composting screen: the calculator, the panel of recorded calculations, and both by keyboard alone.
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "composting/composting_messages.h"
#include "core/module_messages.h"
#include "tests/ui/screen_fixture.h"
#include "ui/widgets/page_view.h"

namespace kel::test {

namespace says = composting_messages;

class CompostingScreen : public screen_test {
  protected:
    void open() {
        state.no_link_prompt = 1;
        start_with({{"Long Rig", "15"}, {"East Muir", "8"}});
        press("front", "cmdFront_composting");
        ASSERT_TRUE(in_view("straw"));
    }
    // Onion with straw of 0.5 % N on a soil of 40 kg N/ha, by keys.
    static void answer_by_keyboard() {
        tab_to("cboStraw_residue_type");
        type_text("Onion");
        tab_to("txtStraw_soilN");
        type_text("4x0");
        tab_to("optStraw_type1");
        press_key(Qt::Key_Right);
        tab_to("txtStraw_waste_N");
        type_text("0.5");
        press_key(Qt::Key_Return);
    }
    void open_panel() {
        person.expect(says::how_to_add);
        press("straw", "cmdStraw_viewDB");
        ASSERT_TRUE(drive::control(screen("straw"), "fraStraw_DB")->isVisible());
    }
    std::string recorded(int row, int column) const {
        return cell(grid("straw", "MSFlexGridStraw"), row, column);
    }
    QString page_shown() const {
        return drive::control<page_view>(screen("viewer"), "WebBrowser1")->source().fileName();
    }
    QWidget* control(const char* name) const { return drive::control(screen("straw"), name); }
};

TEST_F(CompostingScreen, CalculatesAndRecordsByKeyboardAlone) {
    open();
    EXPECT_FALSE(control("cmdStraw_print")->isEnabled()) << "nothing to print yet";
    answer_by_keyboard();
    EXPECT_EQ(shown_text("straw", "lblStraw_rate"), "4.4 t DM Straw/ha");
    EXPECT_EQ(shown_text("straw", "lblStraw_release"), "-2.4 kg N/ha");
    EXPECT_EQ(shown_text("straw", "lblStraw_note"), says::note("-1"));
    person.expect(says::how_to_add);
    tab_to("cmdStraw_viewDB");
    press_key(Qt::Key_Return);
    EXPECT_EQ(focus_name(), "MSFlexGridStraw");
    EXPECT_EQ(shown_text("straw", "lblStraw_instruction"), says::panel_instruction);
    EXPECT_EQ(from_qt(qobject_cast<QGroupBox*>(control("fraStraw_DB"))->title()),
              says::panel_caption("Onion", "40", "Straw", "0.5"));
    tab_to("cmdStraw_DB_add");
    press_key(Qt::Key_Return);
    for (const char* command : {"cmdStraw_DB_add", "cmdStraw_DB_close", "cmdStraw_DB_save"})
        EXPECT_FALSE(control(command)->isEnabled()) << command;
    type_text("East");
    press_key(Qt::Key_Return);
    EXPECT_EQ(recorded(0, 0) + "|" + recorded(0, 2) + "|" + recorded(0, 5), "East Muir|Onion|4.4");
    tab_to("cmdStraw_DB_close");
    press_key(Qt::Key_Return);
    EXPECT_EQ(column_of(state.assess_file, "Straw", "Field Area ID"), texts{"East Muir"});
    EXPECT_EQ(shown_text("straw", "lblStraw_instruction"), says::instruction);
    person.expect(module_messages::close_module, answer::no)
        .expect(module_messages::close_module, answer::yes);
    tab_to("cmdStraw_exit");
    press_key(Qt::Key_Return);
    EXPECT_TRUE(in_view("straw"));
    press_key(Qt::Key_Return);
    EXPECT_TRUE(in_view("front"));
}

TEST_F(CompostingScreen, PanelEditsDeletesImportsAndSaves) {
    open();
    answer_by_keyboard();
    open_panel();
    for (const int place : {1, 2}) {
        press("straw", "cmdStraw_DB_add");
        press_key(Qt::Key_Down, place);
        press_key(Qt::Key_Return);
    }
    drive::click_cell(grid("straw", "MSFlexGridStraw"), 1, 3);
    press("straw", "cmdStraw_DB_erase");
    EXPECT_EQ(recorded(0, 0) + recorded(1, 0), "Long Rig");
    press("straw", "cmdStraw_DB_save");
    EXPECT_EQ(column_of(state.assess_file, "Straw", "Recommendation"), texts{"4.4"});
    press("straw", "cmdStraw_DB_import");
    EXPECT_FALSE(control("cmdStraw_DB_add")->isEnabled());
    person.expect_file("Add data from another assessment", state.assess_file);
    press("straw", "cmdStraw_DB_import_add");
    EXPECT_EQ(recorded(1, 0) + recorded(1, 5), "Long Rig4.4");

    qobject_cast<QComboBox*>(control("cboStraw_residue_type"))->setEditText("Peas");
    qobject_cast<QRadioButton*>(control("optStraw_type1"))->setChecked(true);
    drive::click_cell(grid("straw", "MSFlexGridStraw"), 0, 1);
    press("straw", "cmdStraw_DB_edit");
    EXPECT_TRUE(control("cmdStraw_calculate")->isVisible());
    EXPECT_EQ(from_qt(qobject_cast<QComboBox*>(control("cboStraw_residue_type"))->currentText()), "Onion");
    EXPECT_EQ(from_qt(qobject_cast<QLineEdit*>(control("txtStraw_soilN"))->text()), "40");
    EXPECT_TRUE(qobject_cast<QRadioButton*>(control("optStraw_type2"))->isChecked());
    EXPECT_EQ(from_qt(qobject_cast<QLineEdit*>(control("txtStraw_waste_N"))->text()), "0.5");
    qobject_cast<QLineEdit*>(control("txtStraw_waste_N"))->clear();
    person.expect(says::no_content);
    press("straw", "cmdStraw_calculate");
    EXPECT_EQ(shown_text("straw", "lblStraw_rate"), "4.4 t DM Straw/ha") << "the earlier result stands";
}

TEST_F(CompostingScreen, BothReportsLeaveTheScreenBehindTheViewer) {
    open();
    answer_by_keyboard();
    press("straw", "cmdStraw_print");
    EXPECT_TRUE(in_view("viewer") && in_view("straw"));
    EXPECT_EQ(page_shown(), "nutrient_report.htm");
    press("viewer", "Command1");
    open_panel();
    press("straw", "cmdReport");
    EXPECT_EQ(page_shown(), "KEL_report_compost.htm");
    press("viewer", "Command1");
    EXPECT_TRUE(in_view("straw") && control("fraStraw_DB")->isVisible());
}

TEST_F(CompostingScreen, InformationShowsItsTopicAndTheYearsDialogReloadsThePanel) {
    open();
    press("straw", "cmdStraw_help");
    EXPECT_EQ(page_shown(), "kel_1_6.htm");
    press("viewer", "Command1");
    add_row(state.assess_file, "Straw", {{"Field Area ID", "Sold Field"}});
    press("straw", "cmdStraw_open");
    EXPECT_EQ(run->state().picker_caller, picker_module::straw);
    person.expect(says::field_does_not_exist("Sold Field"));
    press("years", "cmdYear_ok");
    person.verify_done();
    EXPECT_TRUE(in_view("straw"));
}

}  // namespace kel::test
