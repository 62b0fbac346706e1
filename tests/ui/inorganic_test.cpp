// Step 4: the dialog's parts, the table's commands.
#include "core/module_messages.h"
#include "inorganic/inorganic_messages.h"
#include "tests/ui/screen_fixture.h"

namespace kel::test {

class InorganicScreen : public screen_test {
  protected:
    void SetUp() override {
        open_farm({{"Long Rig", "15"}, {"East Muir", "8"}});
        for (const char* field : {"Long Rig", "East Muir"})
            add_row(state.assess_file, "Land", {{"Field Area ID", field}, {"Crop", "Grass / Grass"}});
        write_store(state);
        start();
        run->open(screen_id::inorganic);
        table = grid("inorg", "MSFlexGridInorganic");
    }
    void enter_application(int row, const QString& day, const QString& amount) {
        QWidget* box = open_box("inorg", "Inorganic_applic", table, row, 1);
        put_in(box, "Inorganic_applic", day);
        drive::type(box, "txtInorganic_applic_type", "Prills " + amount);
        drive::type(box, "txtInorganic_applic_amount", amount);
        drive::type(box, "txtInorganic_applic_content", "34.5");
        drive::type(box, "txtInorganic_applic_comments", "for " + amount);
        drive::press(box, "cmdInorganic_applic_enter");
        EXPECT_FALSE(box->isVisible());
    }
    grid_view* table = nullptr;
};

TEST_F(InorganicScreen, TheDialogFillsItsRowAndSaveWritesEveryColumn) {
    person.expect(inorganic_messages::no_field_selected);
    drive::click_cell(table, 0, 1);
    fill_boxes("inorg", table,
               {{0, 0, "Inorganic_field", "Long Rig", "Long Rig"},
                {1, 0, "Inorganic_field", "East Muir", "East Muir"}});
    enter_application(0, "03/04/2025", "200");
    enter_application(1, "05/05/2025", "100");
    press("inorg", "cmdInorganic_save");
    expect_stored(state.assess_file, "Inorganic N",
                  {{"Field Area ID", {"Long Rig", "East Muir"}},
                   {"Date", {"2025-04-03", "2025-05-05"}},
                   {"Type", {"Prills 200", "Prills 100"}},
                   {"Amount", {"200", "100"}},
                   {"N content", {"34.5", "34.5"}},
                   {"Total N", {"69", "34.5"}},
                   {"Comments", {"for 200", "for 100"}}});
    press("inorg", "cmdInorganic_report");
    EXPECT_TRUE(in_view("viewer"));
    press("viewer", "Command1");

    table->setCurrentIndex(table->model()->index(0, 0));
    press("inorg", "cmdInorganic_delete");
    EXPECT_EQ(cell(table, 0, 0), "East Muir");
    EXPECT_EQ(table->model()->rowCount(), 2);
    EXPECT_EQ(column_of(state.assess_file, "Inorganic N", "Amount").size(), 2U) << "only Save writes";
    close_screen("inorg", "cmdInorganic_cancel", module_messages::close_module);
}

TEST_F(InorganicScreen, TheDialogOpensAtThePartThatWasClickedAndShowsTheRow) {
    fill_boxes("inorg", table, {{0, 0, "Inorganic_field", "Long Rig", "Long Rig"}});
    enter_application(0, "03/04/2025", "200");
    const std::vector<std::pair<int, std::pair<std::string, QString>>> parts{
        {2, {"txtInorganic_applic_type", "Prills 200"}},
        {3, {"txtInorganic_applic_amount", "200"}},
        {4, {"txtInorganic_applic_content", "34.5"}},
        {6, {"txtInorganic_applic_comments", "for 200"}}};
    for (const auto& [column, part] : parts) {
        drive::click_cell(table, 0, column);
        EXPECT_EQ(focus_name(), part.first) << column;
        EXPECT_EQ(static_cast<QLineEdit*>(focus())->text(), part.second) << column;
        press_key(Qt::Key_Escape);
    }
}

}  // namespace kel::test
