// The years dialog: opening, linking, options, OK and Cancel.
#include <filesystem>

#include "shell/assessments_messages.h"
#include "shell/years_messages.h"
#include "shell/years_module.h"
#include "tests/shell/shell_fixture.h"

namespace kel::test {

namespace text = years_messages;

class YearsDialog : public shell_test {
  protected:
    /// A chain of three years, opened with `selected` worked on.
    void open_chain(int selected) {
        state.slot_current = y3;
        state.slot_prev1 = y2;
        state.slot_prev2 = y1;
        state.slot_selected = selected;
        set_working_files(state);
        profile.load_profile();
        write_store(state);
        years.open();
    }
    std::string make_other_farm(const std::string& name, int year) {
        std::string file = make_farm(name, {}, year);
        change(file, "FarmProfile", "Name", "Other Farm");
        return file;
    }
    void browse(void (years_module::*command)(), const std::string& path) {
        const bool current = command == &years_module::browse_current;
        person.expect_file(std::string(current ? text::open_title : text::link_title), path);
        (years.*command)();
    }

    const std::string y3 = make_farm("y3.kel", {{"Long", "4"}}, 2024);
    const std::string y2 = make_farm("y2.kel", {}, 2023);
    const std::string y1 = make_farm("y1.kel", {}, 2022);
    std::vector<picker_module> reloaded;
    years_module years{state, person, profile, [this](picker_module m) { reloaded.push_back(m); }};
};

TEST_F(YearsDialog, ShowsEachSlotFromItsFileAndTheOptionOfTheNewestLeft) {
    open_chain(3);
    EXPECT_EQ(years.option(), year_option::prev2);
    EXPECT_EQ(years.rows()[0], (year_row{"Test Farm", "y3.kel", "19/12/2024", y3, ""}));
    state.slot_prev1 = make_damaged("y2.kel");
    state.slot_prev2.clear();
    years.open();
    EXPECT_EQ(years.option(), year_option::prev1);
    EXPECT_EQ(years.rows()[1].path, y2);
    EXPECT_NE(years.rows()[1].trouble, "");
    EXPECT_EQ(years.rows()[2], year_row{});
}

TEST_F(YearsDialog, BrowsedCurrentFileDropsTheLinksAndOutlivesCancel) {
    open_chain(1);
    const std::string other = make_other_farm("other.kel", 2021);
    browse(&years_module::browse_current, other);
    EXPECT_EQ(working(), (texts{other, "", ""}));
    EXPECT_EQ(slots(), (texts{other, "", ""}));
    EXPECT_EQ(state.farm_name, "Other Farm");
    EXPECT_EQ(state.last_dir, folder_of(other));
    EXPECT_EQ(years.rows()[1], year_row{});
    // The store takes the new file at once, without the other farm's links.
    EXPECT_EQ(settings(), "0\n0\n1\n" + other + "\nnone\nnone\n");
    years.cancel();
    EXPECT_EQ(working(), (texts{other, "", ""}));
}

TEST_F(YearsDialog, FileOfTheDesktopOpensAsByBrowseAndOk) {
    open_chain(1);
    const std::string store = settings();
    profile.set_name("typed, and not saved");
    EXPECT_TRUE(years.open_from_desktop(path("User_files/../y3.kel")));  // the file worked on
    EXPECT_EQ(profile.farm().name, "typed, and not saved");
    EXPECT_EQ(slots(), (texts{y3, y2, y1}));
    open_chain(2);
    EXPECT_TRUE(years.open_from_desktop(y3));  // the newest of the chain, while an older one is worked on
    EXPECT_EQ(working(), (texts{y3, y2, y1}));
    EXPECT_EQ(settings(), store);

    const std::string other = make_other_farm("other.kel", 2021);
    for (const answer link_first : {answer::no, answer::yes}) {
        open_chain(1);
        person.expect(text::nothing_linked, link_first);
        EXPECT_EQ(years.open_from_desktop(other), link_first == answer::yes);
        EXPECT_EQ(slots(), (texts{other, "", ""}));
        EXPECT_EQ(settings(), "0\n0\n1\n" + other + "\nnone\nnone\n");
    }
    profile.new_farm();
    state.assess_file.clear();
    profile.reopen();
    EXPECT_EQ(working(), (texts{other, "", ""}));
    EXPECT_THROW(years.open_from_desktop(make_damaged("bad.kel")), file_error);
    EXPECT_EQ(working(), (texts{other, "", ""}));
}

// A store that cannot be written stops a change of files as a file that cannot be read does.
TEST_F(YearsDialog, OpeningWaitsForTheStore) {
    open_chain(1);
    std::filesystem::remove(state.places.settings_store());
    std::filesystem::create_directory(state.places.settings_store());
    EXPECT_THROW(browse(&years_module::browse_current, make_other_farm("other.kel", 2021)), file_error);
    EXPECT_EQ(working(), (texts{y3, y2, y1}));
    EXPECT_EQ(slots(), (texts{y3, y2, y1}));
    EXPECT_EQ(profile.farm().name, "Test Farm");
    EXPECT_EQ(years.rows()[0].path, y3);
}

TEST_F(YearsDialog, DamagedOrCancelledBrowseLeavesEverything) {
    open_chain(1);
    const std::string before = settings();
    for (auto command :
         {&years_module::browse_current, &years_module::browse_prev1, &years_module::browse_prev2}) {
        EXPECT_THROW(browse(command, make_damaged("bad.kel")), file_error);
        browse(command, "");
        EXPECT_EQ(working(), (texts{y3, y2, y1}));
        EXPECT_EQ(slots(), (texts{y3, y2, y1}));
        EXPECT_EQ(profile.farm().name, "Test Farm");
    }
    EXPECT_EQ(settings(), before);
}

TEST_F(YearsDialog, LinkedYearsLie365Or366DaysApart) {
    const struct {
        date older, newer;
        bool linked;
    } cases[] = {
        {make_date(19, 12, 2004), make_date(19, 12, 2005), true},   // 365
        {make_date(19, 12, 2003), make_date(19, 12, 2004), true},   // 366, over a leap day
        {make_date(18, 12, 2004), make_date(19, 12, 2005), true},   // 366, on another day
        {make_date(19, 12, 2004), make_date(18, 12, 2005), false},  // 364
        {make_date(18, 12, 2003), make_date(19, 12, 2004), false},  // 367
        {make_date(19, 12, 2005), make_date(19, 12, 2004), false},  // the newer one chosen
    };
    open_chain(1);
    for (const auto& [older, newer, linked] : cases) {
        SCOPED_TRACE(short_date_text(older) + " " + short_date_text(newer));
        change(y1, "Type", "Year", iso_date_text(older));
        change(y2, "Type", "Year", iso_date_text(newer));
        for (const bool last_year : {true, false}) {
            std::string& slot = last_year ? state.slot_prev1 : state.slot_prev2;
            (last_year ? state.slot_current : state.slot_prev1) = y2;
            slot = "before";
            person.expect_file(std::string(text::link_title), y1);
            if (!linked) person.expect(last_year ? text::not_previous_year : text::not_year_before_previous);
            last_year ? years.browse_prev1() : years.browse_prev2();
            EXPECT_EQ(slot, linked ? y1 : "before");
        }
    }
}

TEST_F(YearsDialog, LinkNeedsTheNewerFileFirst) {
    person.expect(text::no_assessment_open).expect(text::no_previous_year);
    years.browse_prev1();
    state.slot_current = y3;
    years.browse_prev2();
}

TEST_F(YearsDialog, OtherFarmNameAsksBeforeTheYearIsTested) {
    open_chain(1);
    const std::string wrong = make_other_farm("wrong.kel", 2020), other = make_other_farm("other.kel", 2023);
    const std::string title(text::link_title);
    person.expect_file(title, wrong).expect(text::other_farm_name, answer::no);
    person.expect_file(title, wrong)
        .expect(text::other_farm_name, answer::yes)
        .expect(text::not_previous_year);
    person.expect_file(title, other).expect(text::other_farm_name, answer::yes);
    years.browse_prev1();
    years.browse_prev1();
    EXPECT_EQ(state.slot_prev1, y2);
    years.browse_prev1();
    EXPECT_EQ(state.slot_prev1, other);
    // A file without a profile is neither refused nor linked.
    database(y2).delete_rows("FarmProfile");
    browse(&years_module::browse_prev1, y2);
    EXPECT_EQ(state.slot_prev1, other);
}

TEST_F(YearsDialog, NewLinkDropsTheOlderOneAndCancelUndoesIt) {
    open_chain(3);
    const std::string other = make_farm("other.kel", {}, 2023);
    browse(&years_module::browse_prev1, other);
    EXPECT_EQ(slots(), (texts{y3, other, ""}));
    EXPECT_EQ(years.option(), year_option::prev1);
    years.do_not_check_link = true;
    years.cancel();
    EXPECT_EQ(slots(), (texts{y3, y2, y1}));
    EXPECT_EQ(working(), (texts{y1, "", ""}));
    EXPECT_EQ(state.no_link_prompt, 0);
    EXPECT_EQ(state.kel_year_start, make_date(19, 12, 2022));
}

TEST_F(YearsDialog, EmptyOptionGivesWayAndAFilledOneDoubleClickedIsOk) {
    open_chain(1);
    EXPECT_TRUE(years.double_click_option(year_option::prev2));
    EXPECT_EQ(working(), (texts{y1, "", ""}));
    EXPECT_TRUE(years.double_click_option(year_option::current));
    state.slot_prev2.clear();
    years.open();
    EXPECT_FALSE(years.double_click_option(year_option::prev2));
    EXPECT_EQ(years.option(), year_option::prev1);
    EXPECT_EQ(state.assess_file, y3);
    state.slot_current.clear();
    years.open();
    person.expect(text::nothing_opened);
    EXPECT_FALSE(years.double_click_option(year_option::current));
}

TEST_F(YearsDialog, OkAsksAboutAMissingLinkUnlessTicked) {
    state.slot_current = y3;
    years.open();
    years.do_not_check_related = true;
    person.expect(text::nothing_linked, answer::no).expect(text::nothing_linked, answer::yes);
    EXPECT_FALSE(years.ok());
    EXPECT_EQ(state.no_related_prompt, 0);
    EXPECT_TRUE(years.ok());
    years.do_not_check_link = true;
    EXPECT_TRUE(years.ok());
    EXPECT_EQ(settings(), "1\n1\n1\n" + y3 + "\nnone\nnone\n");
}

TEST_F(YearsDialog, OkWorksOnTheOptionAndReloadsItsCallerOrKeepsTheOpenFile) {
    open_chain(1);
    for (auto caller :
         {picker_module::front, picker_module::land, picker_module::record, picker_module::profile}) {
        state.picker_caller = caller;
        years.click_option(year_option::prev1);
        EXPECT_TRUE(years.ok());
    }
    EXPECT_EQ(reloaded, (std::vector{picker_module::land, picker_module::record}));
    EXPECT_EQ(working(), (texts{y2, y1, ""}));
    EXPECT_EQ(state.kel_year_start, make_date(19, 12, 2023));
    EXPECT_EQ(settings(), "0\n0\n2\n" + y3 + "\n" + y2 + "\n" + y1 + "\n");
    make_damaged("y3.kel");
    years.do_not_check_link = true;
    years.click_option(year_option::current);
    EXPECT_THROW(years.ok(), file_error);
    EXPECT_EQ(state.assess_file, y2);
    EXPECT_EQ(state.slot_selected, 2);
    EXPECT_EQ(state.no_link_prompt, 0);
}

}  // namespace kel::test
