// A person without a mouse: from a new farm to the report of Step 1 and back on another day.
#include <QComboBox>
#include <QLocale>

#include "profile/profile_messages.h"
#include "shell/years_messages.h"
#include "tests/ui/screen_fixture.h"

namespace kel::test {

class FirstFarm : public screen_test {
  protected:
    void alt(Qt::Key letter) { press_key(letter, 1, Qt::AltModifier); }
    void describe_farm() {
        alt(Qt::Key_N);
        ASSERT_EQ(focus_name(), "txtName");
        type_text("Nether Tullifern");
        alt(Qt::Key_A);
        press_key(Qt::Key_A);  // whatever is typed into the place opens the map
        ASSERT_TRUE(in_view("location"));
        press_key(Qt::Key_Right, 6);
        press_key(Qt::Key_Down, 5);
        press_key(Qt::Key_Return);
        tab_to("lstScotland_town");
        type_text("Kirr");
        press_key(Qt::Key_Return);
        tab_to("txtArea");
        type_text("4x0,.5");
        tab_to("cboAssess_year");
        type_text("19/12/2024");
        tab_to("Text1");
        type_text("4");
        press_key(Qt::Key_Return);
    }
    /// Ranges of a column are drawn with Shift and the arrow keys.
    void describe_fields() {
        tab_to("MSFlexGridFields");
        press_key(Qt::Key_F2);
        press_key(Qt::Key_A, 1, Qt::ControlModifier);
        type_text("Lo'ng Rig");
        press_key(Qt::Key_Return);
        press_key(Qt::Key_Right);
        press_key(Qt::Key_Down, 3, Qt::ShiftModifier);
        enter_text("10");
        press_key(Qt::Key_Right);
        enter_text("8.5");
        press_key(Qt::Key_Right);
        press_key(Qt::Key_Up, 1, Qt::ShiftModifier);
        enter_text("Hum");
        press_key(Qt::Key_Up);
        press_key(Qt::Key_Up, 1, Qt::ShiftModifier);
        enter_text("Sandy");
    }
    void work_step1() {
        alt(Qt::Key_1);
        ASSERT_EQ(focus_name(), "MSFlexGridLand");
        press_key(Qt::Key_Right);
        enter_text("6");
        press_key(Qt::Key_Tab, 2);
        enter_text("1.5");
        press_key(Qt::Key_Tab, 1, Qt::ControlModifier);
        tab_to("MSFlexGridLand_animals");
        enter_text("1 sheep");
        press_key(Qt::Key_Right);
        enter_text("100");
        alt(Qt::Key_S);
        alt(Qt::Key_C);
    }
    texts stored(const std::string& table, const std::string& column) const {
        return column_of(path("first.kel"), table, column);
    }
};

TEST_F(FirstFarm, ByKeyboardAloneFromNewFarmToReport) {
    start();
    describe_farm();
    describe_fields();
    person.expect(profile_messages::kel_area_query, answer::yes)
        .expect_file("Set up a new profile", path("first"));
    alt(Qt::Key_S);
    ASSERT_TRUE(in_view("front"));
    EXPECT_EQ(shown_text("front", "lblFront_farm"), "Nether Tullifern");
    EXPECT_EQ(stored("FarmProfile", "Name"), texts{"Nether Tullifern"});
    EXPECT_EQ(stored("FarmProfile", "Town"), texts{"Kirriemuir"});
    EXPECT_EQ(stored("FarmProfile", "KEL"), texts{"Strathmore and Fife KEL"});
    EXPECT_EQ(stored("FarmProfile", "Area"), texts{"40.5"});
    EXPECT_EQ(stored("FarmProfile", "KEL Area"), texts{"38.5"});
    EXPECT_EQ(stored("Type", "Year"), texts{"2024-12-19"});
    EXPECT_EQ(stored("Field Data", "Field Name"), (texts{"Long Rig", "Field 2", "Field 3", "Field 4"}));
    EXPECT_EQ(stored("Field Data", "Size"), texts(4, "10"));
    EXPECT_EQ(stored("Field Data", "KEL Size"), (texts{"10", "10", "10", "8.5"}));
    EXPECT_EQ(stored("Field Data", "Soil"),
              (texts{"Sandy loams", "Sandy loams", "Humose soils", "Humose soils"}));

    work_step1();
    EXPECT_EQ(stored("Land", "Area Not In Grass (ha)"), (texts{"4", "", "", ""}));
    EXPECT_EQ(stored("Land", "Buffer Areas To Be Deducted (ha)"), (texts{"1.5", "0", "0", "0"}));
    EXPECT_EQ(stored("Land", "Available Field Area (ha)"), (texts{"8.50", "", "", ""}));
    EXPECT_EQ(stored("Land_animals", "Number Of Stock Units"), texts{"100"});
    EXPECT_EQ(shown_text("land", "lblLand_result2"), "2180 kg N/year");
    ASSERT_EQ(focus_name(), "cmdReport");
    press_key(Qt::Key_Space);
    ASSERT_TRUE(in_view("viewer"));
    EXPECT_FALSE(in_view("land"));
    const std::string report = file_text(path("KEL_report_landspread.htm"));
    for (const char* text :
         {">900 kg N/year<", ">2180 kg N/year<", "bringing 1280 kg N/year", ">Long Rig<", ">8.50<", ">2125<",
          "field based limits is 2125 kg N/year", "Sunday 15 November 2026"})
        EXPECT_NE(report.find(text), std::string::npos) << text;
    press_key(Qt::Key_Escape);
    ASSERT_TRUE(in_view("land"));
    alt(Qt::Key_B);
    EXPECT_EQ(focus_name(), "MSFlexGridLand_animals");

    // On another day: a new farm is not selected for the next start, what the years dialog opened is.
    start();
    EXPECT_EQ(shown_text("front", "lblFront_farm"), "No assessment is open");
    alt(Qt::Key_O);
    ASSERT_EQ(focus_name(), "optYear_1");
    EXPECT_EQ(shown_text("years", "lblYear_farm1"), "Nether Tullifern");
    EXPECT_EQ(shown_text("years", "lblYear_year1"), "19/12/2024");
    person.expect(years_messages::nothing_linked, answer::yes);
    alt(Qt::Key_O);
    EXPECT_FALSE(in_view("years"));
    for (int day = 1; day <= 2; ++day, start()) {
        EXPECT_EQ(shown_text("front", "lblFront_farm"), "Nether Tullifern") << "day " << day;
        EXPECT_EQ(shown_text("front", "lblFront_file"),
                  "KEL year from 19 December 2024   " + path("first.kel"));
    }
}

TEST_F(FirstFarm, DatesAreDayFirstOnAMonthFirstMachine) {
    const QString machine = QLocale::system().dateFormat(QLocale::ShortFormat);
    ASSERT_LT(machine.indexOf('M'), machine.indexOf('d'));
    EXPECT_EQ(QLocale().toString(QDate(2024, 12, 1), QLocale::ShortFormat), "01/12/2024");
    start_with({{"Long Rig", "15"}});
    press("front", "cmdFront_edit");
    EXPECT_EQ(drive::control<QComboBox>(screen("profile"), "cboAssess_year")->currentText(), "19/12/2024");
    EXPECT_FALSE(drive::control(screen("profile"), "cboAssess_year")->isEnabled());
}

// A person who gives up a new farm finds the one that was open, on the screen as in the state.
TEST_F(FirstFarm, CancelledNewFarmBringsTheOpenOneBack) {
    start_with({{"Long Rig", "15"}});
    press("front", "cmdFront_new");
    alt(Qt::Key_C);
    ASSERT_TRUE(in_view("front"));
    EXPECT_EQ(run->state().assess_file, state.assess_file);
    EXPECT_EQ(shown_text("front", "lblFront_farm"), "Test Farm");
    press("front", "cmdFront_edit");
    EXPECT_EQ(cell(grid("profile", "MSFlexGridFields"), 0, 0), "Long Rig");
}

}  // namespace kel::test
