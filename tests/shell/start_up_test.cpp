// What start-up makes of every kind of settings store.
#include "profile/profile_messages.h"
#include "shell/assessments_messages.h"
#include "shell/assessments_module.h"
#include "tests/shell/shell_fixture.h"

namespace kel::test {

class StartUp : public shell_test {
  protected:
    void start(const std::string& store) {
        write_file(state.places.settings_store(), store);
        front.start_up();
    }

    assessments_module front{state, person, profile, shown, desk};
    const std::string y3 = make_farm("y3.kel", {{"Long", "4"}}, 2024);
    const std::string y1 = make_farm("y1.kel", {}, 2022);
};

TEST_F(StartUp, WithoutAUsableStoreNothingOpensAndNothingIsSaid) {
    front.start_up();
    EXPECT_EQ(front.title(), "KEL Calculator (Version " + program_version() + ")");
    EXPECT_EQ(shown.events, (texts{"wait", "ready"}));
    for (const std::string& store :
         {std::string(), "1\n1\n1\n" + y3 + "\n", "x\n1\n1\n" + y3 + "\nnone\nnone\n",
          "1\n1\n1\n" + path("gone.kel") + "\n" + y3 + "\n" + y1 + "\n"}) {
        start(store);
        EXPECT_EQ(working(), texts(3)) << store;
        EXPECT_EQ(slots(), texts(3)) << store;
    }
}

TEST_F(StartUp, SelectedSlotReopensWithTheYearsBeforeIt) {
    const std::string y2 = make_farm("y2.kel", {{"Long", "4"}, {"Haugh", "2"}}, 2023);
    struct {
        int selected;
        std::string middle;
        texts working;
        int year;
        int fields;
    } const cases[] = {
        {1, y2, {y3, y2, y1}, 2024, 1},
        {2, y2, {y2, y1, ""}, 2023, 2},
        {3, y2, {y1, "", ""}, 2022, 0},
        {1, path("gone.kel"), {y3, "", y1}, 2024, 1},
    };
    for (const auto& c : cases) {
        start("0\n1\n" + std::to_string(c.selected) + "\n" + y3 + "\n" + c.middle + "\n" + y1 + "\n");
        EXPECT_EQ(working(), c.working);
        EXPECT_EQ(state.kel_year_start, make_date(19, 12, c.year));
        EXPECT_EQ(profile.fields().row_count(), c.fields);
        EXPECT_EQ(state.no_related_prompt, 1);
    }
}

TEST_F(StartUp, EmptyProfileTellsAndStillReadsTheYear) {
    database(y3).delete_rows("FarmProfile");
    person.expect(profile_messages::data_load_error);
    start("0\n0\n1\n" + y3 + "\nnone\nnone\n");
    EXPECT_EQ(state.assess_file, y3);
    EXPECT_EQ(state.kel_year_start, make_date(19, 12, 2024));
}

// A file can pass the check of its [Type] table and still be damaged further on.
TEST_F(StartUp, FileThatCannotBeLoadedIsNamedAndTheSlotsSurviveTheRun) {
    change(y3, "Type", "Year", "next year");
    const std::string store = "0\n0\n1\n" + y3 + "\n" + y1 + "\nnone\n";
    person.expect(
        assessments_messages::cannot_open({y3, "the text \"next year\" in [Type].[Year] is not a date."}));
    start(store);
    EXPECT_EQ(working(), texts(3));
    EXPECT_EQ(shown.events, (texts{"wait", "ready"}));
    front.close_window();
    EXPECT_EQ(settings(), store);
}

}  // namespace kel::test
