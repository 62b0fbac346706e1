// The boxes of Steps 3 and 4 and of the profile through their real widgets: each part goes into its own cell.
#include <QCalendarWidget>
#include <QLineEdit>

#include "inorganic/inorganic_grid.h"
#include "inorganic/inorganic_messages.h"
#include "manure/manure_grids.h"
#include "profile/farm_profile.h"
#include "shell/assessments_messages.h"
#include "tests/ui/screen_fixture.h"

namespace kel::test {

class StepBoxes : public screen_test {
  protected:
    /// A field whose land is assessed, and the screen that this button of the assessments screen opens.
    void open_step(const char* button, const char* pair, const message& asked_first) {
        open_farm({{"Long Rig", "10", "Sandy loams"}, {"East Muir", "8"}});
        row_values land = {
            {"Field Area ID", "Long Rig"}, {"Available Field Area (ha)", "10"}, {"Crop", pair}};
        for (int month = 1; month <= 12; ++month)
            land.emplace_back(std::string(month_name(month)), "10");
        add_row(state.assess_file, "Land", land);
        write_store(state);
        start();
        person.expect(asked_first, answer::yes);
        press("front", button);
    }
    static texts row_cells(const grid_view* grid, int first, int last) {
        texts found;
        for (int column = first; column <= last; ++column)
            found.push_back(cell(grid, 0, column));
        return found;
    }
};

TEST_F(StepBoxes, AManureLeadsToItsIncorporationAndEveryBoxWritesItsOwnCell) {
    open_step("cmdFront_manure", "Grass / Grass", assessments_messages::closed_periods_first);
    QWidget* manure = screen("reduction");
    auto* table = grid("reduction", "MSFlexGridReductions");
    drive::enter_choice(manure, table, 0, manure_column::field, "Reductions_fieldID", "Long Rig");
    drive::click_cell(table, 0, manure_column::incorporation);
    EXPECT_EQ(table->current_column(), manure_column::manure) << "the first question is the manure's";
    drive::choose_in_list(manure, "lstReductions_manure", "Dairy slurry - high dry matter (10%)");
    press_key(Qt::Key_Return);
    ASSERT_EQ(focus_name(), "optReductions_incorporation_1");
    press_key(Qt::Key_Down);
    press_key(Qt::Key_Return);
    drive::click_cell(table, 0, manure_column::date);
    press_key(Qt::Key_Right);
    press_key(Qt::Key_Return);
    drive::click_cell(table, 0, manure_column::amount);
    EXPECT_EQ(shown_text("reduction", "lblReductions_amount_unit"), "cubic m");
    press_key(Qt::Key_Escape);
    drive::enter_number(manure, table, 0, manure_column::area, "Reductions_area", "5");
    drive::enter_number(manure, table, 0, manure_column::amount, "Reductions_amount", "250");
    drive::enter_number(manure, table, 0, manure_column::n_content, "Reductions_N", "3");
    EXPECT_EQ(row_cells(table, manure_column::field, manure_column::total_n),
              (texts{"Long Rig", "Sandy loams", "Over 6 hours", "Dairy slurry - high dry matter (10%)",
                     "02/01/2025", "5", "250", "50", "3", "150"}));
    drive::click_cell(table, 0, manure_column::area);
    press("reduction", "cmdReductions_area_erase");
    EXPECT_EQ(table->model()->rowCount(), 1);
}

TEST_F(StepBoxes, AnApplicationOpensWhereItWasClickedAndAClosedDayAsksForItsReason) {
    open_step("cmdFront_inorganic", "Grass / Other", assessments_messages::closed_periods_first);
    QWidget* inorganic = screen("inorg");
    auto* table = grid("inorg", "MSFlexGridInorganic");
    drive::enter_choice(inorganic, table, 0, inorganic_column::field, "Inorganic_field", "Long Rig");
    drive::click_cell(table, 0, inorganic_column::content);
    ASSERT_EQ(focus_name(), "txtInorganic_applic_content");
    type_text("101");
    person.expect(inorganic_messages::no_date);
    press_key(Qt::Key_Return);
    press_key(Qt::Key_Right);
    person.expect(inorganic_messages::closed_period);
    press_key(Qt::Key_Space);
    EXPECT_EQ(shown_text("inorg", "lblInorganic_applic_day"), "02 January 2025");
    tab_to("txtInorganic_applic_type");
    type_text("Urea");
    person.expect(inorganic_messages::no_amount);
    press_key(Qt::Key_Return);
    ASSERT_EQ(focus_name(), "txtInorganic_applic_amount");
    type_text("120");
    press_key(Qt::Key_Return);
    const std::string reason(inorganic_messages::closed_period_comment);
    EXPECT_EQ(row_cells(table, inorganic_column::field, inorganic_column::comments),
              (texts{"Long Rig", "02/01/2025", "Urea", "120", "100", "120", reason}));
}

TEST_F(StepBoxes, AreasAndSoilsOfTheProfileGoIntoTheFieldsSelected) {
    open_farm({{"Long Rig", "10"}, {"East Muir", "8"}, {"Den Brae", "6"}});
    write_store(state);
    start();
    press("front", "cmdFront_edit");
    QWidget* profile = screen("profile");
    auto* fields = grid("profile", "MSFlexGridFields");
    drive::draw_range(fields, 0, 1, field_column::soil);
    drive::choose_in_list(profile, "lstProfile_soil", "Sands");
    press_key(Qt::Key_Return);
    drive::draw_range(fields, 2, 1, field_column::area);
    drive::type(profile, "txtProfile_farea", "4");
    press_key(Qt::Key_Return);
    drive::click_cell(fields, 0, field_column::name);
    type_text("Long' Rigg");
    press_key(Qt::Key_Return);
    const struct {
        int row, column;
        const char* text;
    } cells[] = {{0, field_column::soil, "Sands"}, {1, field_column::soil, "Sands"},
                 {0, field_column::area, "10"},    {1, field_column::area, "4"},
                 {2, field_column::area, "4"},     {0, field_column::name, "Long Rigg"}};
    for (const auto& c : cells)
        EXPECT_EQ(cell(fields, c.row, c.column), c.text) << c.row << " " << c.column;
    EXPECT_NE(cell(fields, 2, field_column::soil), "Sands");
}

}  // namespace kel::test
