// What loading makes of a file and what saving leaves in it, for each of the three callers.
#include <SQLiteCpp/SQLiteCpp.h>

#include "core/module_messages.h"
#include "tests/manure/manure_fixture.h"

namespace kel::test {

class ManureFile : public manure_test {
  protected:
    void link() { state.prev1_file = make_farm("last.kel", {{"Long Rig", "15"}}, 2023); }
};

TEST_F(ManureFile, RowsAreTakenAsStoredWithDayFirstDates) {
    open_farm({{"Long Rig", "15"}});
    add_application(state.assess_file, "Long Rig", "2025-03-14", "junk");
    module.manure_load_stuff();
    ASSERT_EQ(module.applications().row_count(), 2);
    EXPECT_EQ(row_cells(0), (texts{"Long Rig", "Sandy loams", "Over 6 hours", dairy, "14/03/2025", "10",
                                   "250", "25", "4.0", "junk", "20", "20.25", "10", "March"}));
    state.limits.year_end = make_date(1, 1, 2000);  // as a lookup of the crop module leaves it
    module.manure_load_stuff();
    EXPECT_EQ(state.limits.year_end, make_date(18, 12, 2025));
}

TEST_F(ManureFile, DatesOutsideTheYearAndFieldsGoneAreToldInTheOrderOfTheFile) {
    open_farm({{"Long Rig", "15"}});
    add_application(state.assess_file, "Long Rig", "2024-12-18", "1");
    add_application(state.assess_file, "Sold Field", "2025-03-14", "2");
    add_application(state.assess_file, "", "2025-12-18", "3");
    add_application(state.assess_file, "Long Rig", "some day", "4");
    add_application(state.assess_file, "Long Rig", "", "5");
    const message outside{"", "The date entered is not within the KEL year being assessed!"};
    person.expect(outside).expect(module_messages::field_does_not_exist("Sold Field")).expect(outside);
    module.manure_load_stuff();
    ASSERT_EQ(module.applications().row_count(), 5);
    for (const int row : {0, 2, 3}) {
        EXPECT_EQ(cell(row, manure_col::amount), "250");
        for (const int c : {manure_col::date, manure_col::percentage, manure_col::available,
                            manure_col::available_next, manure_col::month})
            EXPECT_EQ(cell(row, c), "") << row << " " << c;
    }
    EXPECT_EQ(cell(1, manure_col::date), "18/12/2025");
    EXPECT_EQ(cell(3, manure_col::total_n), "5");
}

TEST_F(ManureFile, SaveReplacesTheRowsAndLeavesEmptyCellsUnset) {
    open_farm({{"Long Rig", "15"}});
    add_application(state.assess_file, "Long Rig", "2025-03-14", "100");
    module.manure_load_stuff();
    module.enter_manure(1, strainer);
    ASSERT_TRUE(module.save());
    EXPECT_EQ(stored("Manure Type"), (texts{dairy, strainer}));
    EXPECT_EQ(stored("Date"), (texts{"2025-03-14", ""}));
    EXPECT_EQ(stored("Total N Content"), (texts{"4.0", "1.5"}));
    module.erase_row(0);
    module.erase_row(0);
    ASSERT_TRUE(module.save());
    EXPECT_TRUE(stored("Manure Type").empty());
}

TEST_F(ManureFile, CallersReadAndWriteTheirFile) {
    open_farm({{"Long Rig", "15"}});
    link();
    add_application(state.assess_file, "Long Rig", "2025-03-14", "1");
    add_application(state.prev1_file, "Long Rig", "2024-03-14", "2");
    for (const auto opener :
         {manure_opener::front, manure_opener::new_crop, manure_opener::old_grass, manure_opener::old_crop}) {
        state.manure_caller = opener;
        module.manure_load_stuff();
        EXPECT_EQ(cell(0, manure_col::total_n), for_previous_year(opener) ? "2" : "1");
        EXPECT_EQ(module.click(1, manure_col::date).parts.at(0).text, "01/01/2025");
    }
    module.enter_manure(0, strainer);
    ASSERT_TRUE(module.save());
    EXPECT_EQ(stored("Manure Type"), texts{dairy});
    EXPECT_EQ(column_of(state.prev1_file, "Manure_applic", "Manure Type"), texts{strainer});
}

TEST_F(ManureFile, FilesThatCannotBeReadOrWrittenLeaveWhatWasThere) {
    open_farm({{"Long Rig", "15"}});
    add_application(state.assess_file, "Long Rig", "2025-03-14", "1");
    module.manure_load_stuff();
    const text_grid before = module.applications();
    state.manure_caller = manure_opener::old_crop;
    state.prev1_file = path("vanished.kel");
    state.limits = {};
    EXPECT_THROW(module.manure_load_stuff(), file_error);
    EXPECT_EQ(module.applications(), before);
    EXPECT_EQ(state.limits, year_limits{});
    state.manure_caller = manure_opener::front;
    SQLite::Database(state.assess_file, SQLite::OPEN_READWRITE)
        .exec("ALTER TABLE [Manure_applic] DROP COLUMN [Month Applied]");
    person.expect(rows_changed_meanwhile(state.assess_file), answer::yes);
    EXPECT_THROW(module.save(), file_error);
    EXPECT_EQ(stored("Manure Type"), texts{dairy});
}

TEST_F(ManureFile, SaveWithoutAFileAsksForOneThatIsNotTheOtherYears) {
    module.manure_load_stuff();
    person.expect_file("Save the assessment", "");
    EXPECT_FALSE(module.save());
    link();
    person.expect_file("Save the assessment", state.prev1_file)
        .expect({"Cannot Save", "This is last years file and cannot be saved to at this time!"});
    EXPECT_FALSE(module.save());
    person.expect_file("Save the assessment", path("fresh.kel"));
    EXPECT_TRUE(module.save());
    EXPECT_EQ(state.assess_file, path("fresh.kel"));

    state.manure_caller = manure_opener::old_crop;
    state.prev1_file.clear();
    person.expect_file("Save the assessment", state.assess_file).expect(says::this_years_file);
    EXPECT_FALSE(module.save());
    module.enter_manure(0, strainer);
    person.expect_file("Save the assessment", path("older.kel"));
    EXPECT_TRUE(module.save());
    EXPECT_EQ(state.prev1_file, path("older.kel"));
    EXPECT_EQ(column_of(path("older.kel"), "Manure_applic", "Manure Type"), texts{strainer});
    EXPECT_TRUE(stored("Manure Type").empty());
}

TEST_F(ManureFile, SaveAsksBeforeItWritesOverRowsChangedMeanwhile) {
    open({{"Long Rig", "15"}});
    add_application(state.assess_file, "Long Rig", "2025-03-01", "10");
    person.expect(rows_changed_meanwhile(state.assess_file), answer::no);
    EXPECT_FALSE(module.save());
    EXPECT_EQ(stored("Amount Applied"), texts{"250"});
}

TEST_F(ManureFile, ImportTestsFieldsAndDatesAsTheLoadDoes) {
    open({{"Long Rig", "15"}});
    const std::string other = make_farm("other.kel", {}, 2030);
    add_application(other, "Sold Field", "2025-03-14", "1");
    add_application(other, "Long Rig", "2024-03-14", "2");
    add_application(other, "Long Rig", "2025-03-14", "3");
    state.limits.year_end = make_date(1, 1, 2000);  // as a lookup of the crop module leaves it
    message unknown = module_messages::field_does_not_exist("Sold Field");
    unknown.title = "field does not exist";
    const auto imports = [&](const std::string& title, import_mode mode, const char* refusal) {
        person.expect_file(title, other).expect(unknown).expect({"", refusal});
        return module.import_records(mode);
    };
    const char* outside = "The date entered is not within the KEL year being assessed!";
    ASSERT_TRUE(imports("Add data from another assessment", import_mode::add, outside));
    ASSERT_TRUE(imports("Add data from another assessment", import_mode::add, outside));
    ASSERT_EQ(module.applications().row_count(), 5);
    EXPECT_EQ(cell(2, manure_col::date) + cell(2, manure_col::available), "");
    EXPECT_EQ(cell(2, manure_col::total_n), "2");
    EXPECT_EQ(cell(3, manure_col::date) + " " + cell(3, manure_col::month), "14/03/2025 March");
    EXPECT_TRUE(stored("Date").empty());
    link();
    state.manure_caller = manure_opener::old_crop;
    ASSERT_TRUE(imports("Replace with data from another assessment", import_mode::over_write,
                        "The date entered is not within the previous KEL year!"));
    ASSERT_EQ(module.applications().row_count(), 3);
    EXPECT_EQ(cell(0, manure_col::date) + cell(1, manure_col::date), "14/03/2024");
}

}  // namespace kel::test
