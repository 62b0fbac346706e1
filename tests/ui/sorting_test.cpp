// A table sorted on the screen: whatever is then clicked, typed, pasted, erased and undone goes to the rows
// that the person sees, and the module's own rows and the file keep their order.
#include <QClipboard>
#include <QHeaderView>

#include "inorganic/inorganic_grid.h"
#include "profile/profile_messages.h"
#include "profile/profile_module.h"
#include "tests/ui/screen_fixture.h"

namespace kel::test {

namespace {

class Sorting : public screen_test {
  protected:
    grid_view* open(const char* tag, screen_id id, const char* name) {
        open_farm({{"Well Park", "15"}, {"East Muir", "8"}, {"Low Haugh", "104"}, {"Field 10", "2"}});
        write_store(state);
        start();
        run->open(id);
        return shown = grid(tag, name);
    }
    void sort(int column) const {
        QHeaderView* header = shown->horizontalHeader();
        const QPoint at(header->sectionViewportPosition(column) + 8, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, at);
        drive::settle();
    }
    texts column(int column) const {
        texts found;
        for (int row = 0; row < shown->model()->rowCount(); ++row)
            found.push_back(cell(shown, row, column));
        return found;
    }
    texts stored(int column) const {
        texts found;
        for (int row = 0; row < shown->shown().row_count(); ++row)
            found.push_back(shown->shown().cell(row, column));
        return found;
    }
    void go_to_shown(int row, int column) const {
        shown->setFocus();
        shown->go_to(shown->stored_row(row), column);
    }
    /// At the current cell; what the paste has to tell is put away.
    void paste(const QString& text) const {
        QApplication::clipboard()->setText(text);
        press_key(Qt::Key_V, 1, Qt::ControlModifier);
        QWidget* window = shown->window();
        if (window->findChild<QWidget*>("cmdPaste_close")) drive::press(window, "cmdPaste_close");
        window->activateWindow();
        shown->setFocus();
    }
    grid_view* shown = nullptr;
};

}  // namespace

TEST_F(Sorting, AHeadingSortsWhatIsShownAndTheFileKeepsItsOrder) {
    open("profile", screen_id::profile, "MSFlexGridFields");
    go_to_shown(2, field_column::name);
    sort(field_column::area);
    EXPECT_EQ(column(0), (texts{"Field 10", "East Muir", "Well Park", "Low Haugh"}));
    EXPECT_EQ(cell(shown, shown->currentIndex().row(), 0), "Low Haugh") << "the current row is where it was";
    sort(field_column::area);
    EXPECT_EQ(column(0).front(), "Low Haugh");
    EXPECT_EQ(from_qt(shown->model()
                          ->headerData(field_column::area, Qt::Horizontal, Qt::AccessibleDescriptionRole)
                          .toString()),
              "Sorted, largest first");
    fill_boxes("profile", shown, {{0, field_column::name, "Profile_fname", "High Haugh", "High Haugh"}});
    sort(field_column::area);
    EXPECT_EQ(column(0), (texts{"Well Park", "East Muir", "High Haugh", "Field 10"}));
    EXPECT_FALSE(shown->horizontalHeader()->isSortIndicatorShown());

    // Two rows that stand apart in the list take one soil, and one of them goes.
    sort(field_column::area);
    drive::draw_range(shown, 0, 1, field_column::soil);
    fill_box("profile", "Profile_soil", "Peaty soils");
    sort(field_column::name);
    EXPECT_TRUE(shown->horizontalHeader()->isSortIndicatorShown());
    press_in_box("profile", shown, 1, field_column::area, "Profile_farea", "erase");
    EXPECT_EQ(column(0), (texts{"East Muir", "High Haugh", "Well Park"}));
    press_key(Qt::Key_Z, 1, Qt::ControlModifier);
    EXPECT_EQ(column(0).size(), 4U);
    person.expect(profile_messages::kel_area_query, answer::yes);
    press("profile", "cmdProfile_set");
    expect_stored(state.assess_file, "Field Data",
                  {{"Field Name", {"Well Park", "East Muir", "High Haugh", "Field 10"}},
                   {"Soil", {"Other mineral soils", "Peaty soils", "Other mineral soils", "Peaty soils"}}});
}

TEST_F(Sorting, EntriesPastesAndFillsGoDownTheRowsAsShown) {
    open("inorg", screen_id::inorganic, "MSFlexGridInorganic");
    namespace col = inorganic_column;
    go_to_shown(0, col::field);
    paste(
        "Well Park\t10/4/2025\tUrea\t100\t46\nEast Muir\t2/5/2025\tNitram\t120\t34.5\n"
        "Low Haugh\t1/3/2025\tUrea\t90\t46\n");
    const texts fields{"Well Park", "East Muir", "Low Haugh", ""};
    ASSERT_EQ(column(0), fields);
    sort(col::day);
    EXPECT_EQ(column(0), (texts{"Low Haugh", "Well Park", "East Muir", ""}));
    // a block over two rows and on into the entry row
    go_to_shown(1, col::amount);
    paste("11\n22\n");
    EXPECT_EQ(column(col::amount), (texts{"90", "11", "22", ""}));
    EXPECT_EQ(stored(col::amount), (texts{"11", "22", "90", ""}));
    go_to_shown(0, col::amount);
    press_key(Qt::Key_Down, 2, Qt::ShiftModifier);
    EXPECT_EQ(shown->selected_rows(), (std::vector{2, 0, 1}));
    press_key(Qt::Key_D, 1, Qt::ControlModifier);
    EXPECT_EQ(stored(col::amount), (texts{"90", "90", "90", ""}));
    // typing goes on to the row below as shown; with a box open a heading does nothing
    go_to_shown(0, col::amount);
    type_text("5");
    sort(col::field);
    type_text("0");
    press_key(Qt::Key_Return);
    type_text("6");
    press_key(Qt::Key_Return);
    EXPECT_EQ(stored(col::amount), (texts{"6", "90", "50", ""}));
    EXPECT_EQ(current_cell(shown), (texts{"1", std::to_string(col::amount)}));
    // a row that is entered stands behind the others until they are sorted again
    go_to_shown(3, col::field);
    paste("Field 10\t30/3/2025\tUrea\t1\t2\n");
    EXPECT_EQ(column(0), (texts{"Low Haugh", "Well Park", "East Muir", "Field 10", ""}));
    go_to_shown(0, col::field);
    press_key(Qt::Key_L, 1, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(column(0), (texts{"East Muir", "Field 10", "Low Haugh", "Well Park", ""}));
    EXPECT_EQ(stored(0), (texts{"Well Park", "East Muir", "Low Haugh", "Field 10", ""}));
}

}  // namespace kel::test
