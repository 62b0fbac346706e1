// Creating a new assessment year: what it asks, how the chain moves, and what each file holds afterwards.
#include <algorithm>
#include <filesystem>
#include <stdexcept>

#include "shell/assessments_messages.h"
#include "shell/year_data.h"
#include "shell/years_messages.h"
#include "shell/years_module.h"
#include "tests/shell/shell_fixture.h"

namespace kel::test {

namespace text = years_messages;

class CreateYear : public shell_test {
  protected:
    void SetUp() override {
        open_farm({{"Long", "4"}}, 2024);
        state.slot_prev1 = state.prev1_file = y2;
        for (const std::string& file : {y3, y2})
            for (const char* table :
                 {"Crops", "Inorganic N", "Manure_applic", "Site", "Land", "Recommendations", "Straw"})
                add_row(file, table, {{"Field Area ID", "Long"}});
        write_store(state);
        profile.load_profile();
        years.open();
        ASSERT_TRUE(years.open_create());
    }
    bool create(const std::string& file) {
        choose(file);
        return years.create();
    }
    void choose(const std::string& file) {
        person.expect_file("Save Farm Assessment As...", file);
        years.browse_new_file();
    }
    /// The chain in memory, in the store and in the dialog, and the year's file: this year's rows gone, the
    /// others kept.
    void expect_new_year(const texts& chain, const std::string& year, const texts& kept = {"Long"}) {
        EXPECT_EQ(working(), chain);
        EXPECT_EQ(slots(), chain);
        std::string store = "0\n0\n1\n";
        for (const std::string& file : chain)
            store += (file.empty() ? "none" : file) + "\n";
        EXPECT_EQ(settings(), store);
        EXPECT_EQ(years.rows()[0].year_text, year);
        EXPECT_EQ(profile.farm().year, year);
        EXPECT_FALSE(years.creating());
        for (const char* table : {"Crops", "Inorganic N", "Manure_applic", "Site"})
            EXPECT_EQ(column_of(chain[0], table, "Field Area ID"), texts{}) << table;
        for (const char* table : {"Land", "Recommendations", "Straw"})
            EXPECT_EQ(column_of(chain[0], table, "Field Area ID"), kept) << table;
    }
    texts files() const {
        texts names;
        for (const auto& entry : std::filesystem::directory_iterator(folder_of(y3)))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }

    const std::string y3 = path("farm.kel");
    const std::string y2 = make_farm("y2.kel", {{"Haugh", "2"}}, 2023);
    years_module years{state, person, profile, [](picker_module) {}};
};

TEST_F(CreateYear, ProposedYearLinksToTheOldFile) {
    EXPECT_EQ(years.new_date_text(), "19/12/2025");
    const std::string old_bytes = file_text(y3);
    EXPECT_TRUE(create(path("User_files/y4")));
    expect_new_year({path("User_files/y4.kel"), y3, y2}, "19/12/2025");
    EXPECT_EQ(state.kel_year_start, make_date(19, 12, 2025));
    EXPECT_EQ(file_text(y3), old_bytes);
}

TEST_F(CreateYear, AnotherYearEmptiesBothLinks) {
    for (const char* year : {"19/12/2026", "19/12/2024", "19/12/2023"}) {
        state.slot_current = y3;
        state.slot_prev1 = y2;
        ASSERT_TRUE(years.open_create());
        years.change_date(year);
        EXPECT_TRUE(create(path("far.kel")));
        expect_new_year({path("far.kel"), "", ""}, year);
    }
}

TEST_F(CreateYear, WritingOverTheCurrentFileGoesOnInIt) {
    choose(path("User_files/../farm.kel"));
    person.expect(text::new_file_is_linked, answer::no);
    EXPECT_FALSE(years.create());
    EXPECT_TRUE(years.creating());
    EXPECT_EQ(column_of(y3, "Crops", "Field Area ID"), texts{"Long"});
    choose(y3);
    person.expect(text::new_file_is_linked, answer::yes);
    EXPECT_TRUE(years.create());
    expect_new_year({y3, "", ""}, "19/12/2025");
}

// The file of the year before becomes the one worked on as it stands; nothing is copied into it.
TEST_F(CreateYear, WritingOverTheLinkedFileKeepsItsOwnFields) {
    choose(y2);
    person.expect(text::new_file_is_linked, answer::yes);
    EXPECT_TRUE(years.create());
    expect_new_year({y2, "", ""}, "19/12/2025");
    EXPECT_EQ(profile.fields().cell(0, 0), "Haugh");
    EXPECT_EQ(column_of(y3, "Type", "Year"), texts{"2024-12-19"});
    EXPECT_EQ(column_of(y3, "Crops", "Field Area ID"), texts{"Long"});
}

// Its path stays, but screens that show its old rows must not save them into the new year.
TEST_F(CreateYear, OntoTheOldestFileThatIsWorkedOnIsAnotherAssessment) {
    state.slot_prev2 = make_farm("y1.kel", {{"Brae", "3"}}, 2022);
    state.slot_selected = 3;
    set_working_files(state);
    const int before = state.assessment;
    EXPECT_TRUE(create(state.slot_prev2));
    EXPECT_EQ(state.assess_file, path("y1.kel"));
    EXPECT_NE(state.assessment, before);
}

TEST_F(CreateYear, NeedsACurrentFileAndANewOneAndOpensFreshEachTime) {
    person.expect(text::no_new_file);
    EXPECT_FALSE(years.create());
    years.change_date("19/12/2030");
    choose(path("y4.kel"));
    choose("");
    EXPECT_EQ(years.new_path(), path("y4.kel"));
    ASSERT_TRUE(years.open_create());
    EXPECT_EQ(years.new_date_text() + years.new_path(), "19/12/2025");
    state.slot_current.clear();
    person.expect(text::no_current_file);
    EXPECT_FALSE(years.open_create());
}

// Wherever the way to the new file ends, chain, dialog, store and files are as they were, so that a second
// try makes the same year with the same links.
TEST_F(CreateYear, FailureLeavesEverythingForASecondTry) {
    const std::string store = settings(), newest = file_text(y3), older = file_text(y2);
    const std::string lost = path("y4.kel");
    const auto expect_failure = [&](const std::string& file) {
        const texts left = files();
        choose(file);
        person.expect(assessments_messages::save_error);
        EXPECT_FALSE(years.create());
        EXPECT_TRUE(years.creating());
        EXPECT_EQ(working(), (texts{y3, y2, ""}));
        EXPECT_EQ(slots(), (texts{y3, y2, ""}));
        EXPECT_EQ(years.rows()[0].path + years.rows()[1].path, y3 + y2);
        EXPECT_EQ(profile.farm().year, "19/12/2024");
        EXPECT_EQ(state.kel_year_start, make_date(19, 12, 2024));
        EXPECT_EQ(files(), left);
    };
    expect_failure(path("no_such_folder/y4.kel"));
    database(y3).delete_rows("Type");  // the copy is made and cannot be finished
    write_file(lost, "an older file, chosen to be replaced");
    expect_failure(lost);
    EXPECT_EQ(file_text(lost), "an older file, chosen to be replaced");
    write_file(y3, newest);
    make_damaged("y2.kel");
    choose(y2);
    person.expect(text::new_file_is_linked, answer::yes).expect(assessments_messages::save_error);
    EXPECT_FALSE(years.create());
    EXPECT_EQ(slots(), (texts{y3, y2, ""}));
    write_file(y2, older);
    std::filesystem::remove(lost);
    std::filesystem::remove(state.places.settings_store());
    std::filesystem::create_directory(state.places.settings_store());  // the store cannot be written
    choose(lost);
    person.expect(assessments_messages::save_error);
    EXPECT_FALSE(years.create());
    EXPECT_EQ(slots(), (texts{y3, y2, ""}));
    std::filesystem::remove(state.places.settings_store());
    write_file(state.places.settings_store(), store);
    EXPECT_TRUE(years.create());
    expect_new_year({lost, y3, y2}, "19/12/2025");
}

// The creation frame proposes the year after the file that is open, whichever that has become meanwhile.
TEST_F(CreateYear, BrowseWhileCreatingProposesTheYearOfTheFileOpened) {
    choose(path("y4.kel"));
    const std::string other = make_farm("other.kel", {}, 2010);
    person.expect_file(std::string(text::open_title), other);
    years.browse_current();
    EXPECT_TRUE(years.creating());
    EXPECT_EQ(years.new_date_text() + years.new_path(), "19/12/2011");
    EXPECT_TRUE(create(path("y4.kel")));
    expect_new_year({path("y4.kel"), other, ""}, "19/12/2011", {});
}

class YearData : public shell_test {};

TEST_F(YearData, MovedDatesKeepRowsAndEmptyCells) {
    const std::string file = make_farm("farm.kel", {});
    add_row(file, "Crops", {{"Hdate p_crop", "2024-08-20"}, {"Sowing date", "2024-10-01"}});
    add_row(file, "Crops", {{"Hdate c_crop", "2025-09-02"}});
    add_row(file, "Inorganic N", {{"Date", "2025-03-01"}});
    add_row(file, "Manure_applic", {{"Date", "2025-02-28"}});
    add_row(file, "Site", {{"End of season date", "2025-10-31"}});
    clear_year_data(file, 2, year_data_mode::move_dates);
    EXPECT_EQ(column_of(file, "Crops", "Hdate p_crop"), (texts{"2026-08-20", ""}));
    EXPECT_EQ(column_of(file, "Crops", "Hdate c_crop"), (texts{"", "2027-09-02"}));
    EXPECT_EQ(column_of(file, "Crops", "Sowing date"), (texts{"2026-10-01", ""}));
    EXPECT_EQ(column_of(file, "Inorganic N", "Date"), texts{"2027-03-01"});
    EXPECT_EQ(column_of(file, "Manure_applic", "Date"), texts{"2027-02-28"});
    EXPECT_EQ(column_of(file, "Site", "End of season date"), texts{"2027-10-31"});
}

TEST_F(YearData, LeapDayMovesToTheLastOfFebruary) {
    const std::string file = make_farm("farm.kel", {});
    add_row(file, "Site", {{"End of season date", "2024-02-29"}});
    clear_year_data(file, 1, year_data_mode::move_dates);
    EXPECT_EQ(column_of(file, "Site", "End of season date"), texts{"2025-02-28"});
}

}  // namespace kel::test
