// The farm profile: each box writes its own cells, the commands over the field list, what Set Profile writes.
#include <QClipboard>

#include "profile/profile_messages.h"
#include "tests/ui/screen_fixture.h"

namespace kel::test {

namespace says = profile_messages;

class ProfileScreen : public screen_test {
  protected:
    void SetUp() override {
        open_farm({{"Long Rig", "15"}, {"East Muir", "8"}});
        add_row(state.assess_file, "Land", {{"Field Area ID", "Long Rig"}, {"Total Area", "15"}});
        write_store(state);
        start();
        press("front", "cmdFront_edit");
        fields = grid("profile", "MSFlexGridFields");
    }
    void type(const char* box, const QString& text) { drive::type(screen("profile"), box, text); }
    texts names() const {
        texts found;
        for (int row = 0; row < fields->model()->rowCount(); ++row)
            found.push_back(cell(fields, row, 0));
        return found;
    }
    void paste(const char* button, const QString& text) {
        QApplication::clipboard()->setText(text);
        press("profile", button);
    }
    grid_view* fields = nullptr;
};

TEST_F(ProfileScreen, EveryBoxWritesItsCellAndSetProfileWritesThemAll) {
    fill_boxes("profile", fields,
               {{0, 0, "Profile_fname", "North", "North"},
                {0, 1, "Profile_farea", "10", "10"},
                {1, 2, "Profile_farea", "6", "6"},
                {0, 3, "Profile_soil", "Sandy loams", "Sandy loams"}});
    type("txtName", "Hill Farm");
    type("txtArea", "900");
    person.expect(says::kel_area_query, answer::no).expect(says::kel_area_to_adjust);
    press("profile", "cmdProfile_set");
    EXPECT_EQ(focus_name(), "Text2");
    EXPECT_EQ(column_of(state.assess_file, "FarmProfile", "Name"), texts{"Test Farm"});
    type("Text2", "16");
    type("txtArea", "12");
    person.expect(says::kel_area_above_total);
    press("profile", "cmdProfile_set");
    EXPECT_EQ(focus_name(), "txtArea");
    type("txtArea", "18");
    person.expect(says::areas_changed);
    press("profile", "cmdProfile_set");
    EXPECT_TRUE(in_view("front"));
    expect_stored(state.assess_file, "FarmProfile",
                  {{"Name", {"Hill Farm"}},
                   {"KEL", {"Strathmore and Fife KEL"}},
                   {"Town", {"Cupar"}},
                   {"Area", {"18"}},
                   {"FieldNo", {"2"}},
                   {"KEL Area", {"16"}}});
    expect_stored(state.assess_file, "Field Data",
                  {{"Field Name", {"North", "East Muir"}},
                   {"Size", {"10", "8"}},
                   {"KEL Size", {"10", "6"}},
                   {"Soil", {"Sandy loams", "Other mineral soils"}}});
    expect_stored(state.assess_file, "Land", {{"Field Area ID", {"North"}}, {"Total Area", {"10"}}});
}

TEST_F(ProfileScreen, TheFieldListIsMadePastedClearedAndCancelled) {
    type("Text1", "3");
    press("profile", "Command1");
    EXPECT_EQ(names(), (texts{"Long Rig", "East Muir", "Field 3"}));
    type("Text1", "1");
    for (const answer reply : {answer::no, answer::yes}) {
        EXPECT_EQ(names().size(), 3U);
        person.expect(says::fewer_fields, reply);
        press("profile", "Command1");
    }
    EXPECT_EQ(names(), texts{"Long Rig"});
    person.expect(says::add_or_overwrite, answer::yes);
    paste("Command3", "A\t5\r\nB\t6\r\n");
    EXPECT_EQ(names(), (texts{"Long Rig", "A", "B"}));
    EXPECT_EQ(cell(fields, 2, 1), "6");
    person.expect(says::more_than_names);
    paste("Command2", "C\t5\r\n");
    person.expect(says::add_or_overwrite, answer::cancel).expect(says::add_or_overwrite, answer::no);
    paste("Command2", "C\r\nD\r\nE\r\n");
    EXPECT_EQ(names().front(), "Long Rig");
    press("profile", "Command2");
    EXPECT_EQ(names(), (texts{"C", "D", "E"}));

    for (const auto& [column, box] :
         {std::pair{1, "Profile_farea"}, {3, "Profile_soil"}, {0, "Profile_fname"}}) {
        if (column == 1) fill_boxes("profile", fields, {{0, 1, box, "4", "4"}});
        press_in_box("profile", fields, 0, column, box, "clear");
        EXPECT_EQ(cell(fields, 0, column), "") << box;
        press_in_box("profile", fields, 0, column, box, "erase");
    }
    EXPECT_EQ(names(), texts{});
    press("profile", "cmdProfile_cancel");
    EXPECT_EQ(column_of(state.assess_file, "Field Data", "Field Name"), (texts{"Long Rig", "East Muir"}));
    press("front", "cmdFront_edit");
    EXPECT_EQ(cell(grid("profile", "MSFlexGridFields"), 1, 0), "East Muir");
}

}  // namespace kel::test
