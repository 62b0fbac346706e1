// What loading makes of a file and what saving leaves in it.
#include <SQLiteCpp/SQLiteCpp.h>

#include "core/dates.h"
#include "core/module_messages.h"
#include "tests/land/land_fixture.h"

namespace kel::test {

class LandFile : public land_test {
  protected:
    void add_land(const std::string& name, const row_values& more) {
        row_values values = more;
        values.emplace_back("Field Area ID", name);
        add_row(state.assess_file, "Land", values);
    }
};

TEST_F(LandFile, FieldsOfTheProfileFillAnEmptyTable) {
    open({{"Long Rig", "15", "Sandy loams"}, {"East Muir", "8", "Humose soils"}});
    EXPECT_EQ(module.field_names(), (texts{"Long Rig", "East Muir"}));
    ASSERT_EQ(module.land().row_count(), 3);
    EXPECT_EQ(land_cells(1, 0, 8), (texts{"East Muir", "", "", "", "", "", "", "", "Humose soils"}));
    EXPECT_EQ(land(1, land_col::total_area), "8");
    EXPECT_EQ(land(2, land_col::field), "");
}

TEST_F(LandFile, RowsOfFieldsThatTheProfileLacksAreDroppedWithAWarningEach) {
    open_farm({{"Long Rig", "15"}});
    add_land("Old Park", {});
    add_land("Long Rig", {{"Available Field Area (ha)", "6.20"}, {"Total Area", "14"}});
    add_land("Sold Field", {});
    person.expect(module_messages::field_does_not_exist("Old Park"))
        .expect(module_messages::field_does_not_exist("Sold Field"));
    module.load_land_stuff();
    ASSERT_EQ(module.land().row_count(), 2);
    EXPECT_EQ(land(0, land_col::total_area), "14");  // the table's, not the profile's
    EXPECT_EQ(land(0, land_col::field_limit), "1550");
    EXPECT_EQ(stored("Land", "Field Area ID").size(), 3U);
    ASSERT_TRUE(module.save());
    EXPECT_EQ(stored("Land", "Field Area ID"), texts{"Long Rig"});
    ASSERT_TRUE(module.erase_land_row(0).closes);
    ASSERT_TRUE(module.save());
    EXPECT_TRUE(stored("Land", "Field Area ID").empty());
    add_land("Old Park", {});
    person.expect(module_messages::field_does_not_exist("Old Park"));
    module.load_land_stuff();
    EXPECT_EQ(land(0, land_col::field), "Long Rig");  // from the profile, since no row was left
}

TEST_F(LandFile, ConstantsOfTheProgramReplaceThoseOfTheFile) {
    open_farm({});
    const texts lines[][2] = {
        // type, number, N of one unit; type, number and nitrogen as they are shown
        {{"1 Sheep", "2", "40"}, {"1 Sheep", "2", "", "0"}},  // nothing was recalculated before
        {{"1 sheep", "10", "8"}, {"1 sheep", "10", "9", "90"}},
        {{"1 llama", "2", "40"}, {"1 llama", "2", "9", "18"}},  // keeps the constant of the line before
        {{"1 dairy cow (650 kg)", "", ""}, {"1 dairy cow (650 kg)", "", "116", "0"}},
    };
    for (const auto& [in, shown] : lines)
        add_row(state.assess_file, "Land_animals",
                {{"Stock Unit", in[0]},
                 {"Number Of Stock Units", in[1]},
                 {"Total N Excreted By One Stock Unit (kg/year)", in[2]}});
    module.load_land_stuff();
    for (int row = 0; row < 4; ++row)
        EXPECT_EQ(stock_line(row), lines[row][1]) << row;
}

TEST_F(LandFile, SaveWritesBothTablesAndLeavesEmptyCellsUnset) {
    open({{"Long Rig", "15", "Sandy loams"}, {"East Muir", "8"}});
    module.enter_area(0, land_col::grass, "10");
    module.enter_deduction(0, land_col::slope, "1.5");
    module.enter_stock(0, "1 sheep");
    module.enter_number(1, "5");  // no stock unit
    module.enter_stock(2, "1 suckler cow");
    module.enter_number(2, "3");
    ASSERT_TRUE(module.save());
    EXPECT_EQ(stored("Land", "Field Area ID"), (texts{"Long Rig", "East Muir"}));
    EXPECT_EQ(stored("Land", "Area Not In Grass (ha)"), (texts{"5", ""}));
    EXPECT_EQ(stored("Land", "Buffer Areas To Be Deducted (ha)"), (texts{"0", "0"}));
    EXPECT_EQ(stored("Land", "Slope Areas To Be Deducted (ha)"), (texts{"1.5", "0"}));
    EXPECT_EQ(stored("Land", "Other Areas To Be Deducted (ha)"), (texts{"0", "0"}));
    EXPECT_EQ(stored("Land", "Available Field Area (ha)"), (texts{"13.50", ""}));
    EXPECT_EQ(stored("Land", "Soil"), (texts{"Sandy loams", "Other mineral soils"}));
    EXPECT_EQ(stored("Land_animals", "Stock Unit"), (texts{"1 sheep", "1 suckler cow"}));
    EXPECT_EQ(stored("Land_animals", "Number Of Stock Units"), (texts{"0", "3"}));
    EXPECT_EQ(stored("Land_animals", "Total N Excreted By All These Animals (kg/year)"), (texts{"0", "174"}));
}

TEST_F(LandFile, CropAndMonthsOfTheStoragePlanSurviveASave) {
    open_farm({{"Long Rig", "15"}, {"East Muir", "8"}});
    add_land("Long Rig", {{"Crop", "Grass / Other"}});
    row_values months;
    for (int m = 1; m <= 12; ++m) {
        months.emplace_back(std::string(month_name(m)), m == 1 ? "Closed" : std::to_string(m));
        months.emplace_back("Applic_" + std::string(month_name(m)), std::to_string(100 + m));
    }
    add_land("East Muir", months);
    module.load_land_stuff();
    ASSERT_TRUE(module.erase_land_row(0).closes);
    ASSERT_TRUE(module.enter_field(1, "Long Rig").closes);
    ASSERT_TRUE(module.save());
    EXPECT_EQ(stored("Land", "Field Area ID"), (texts{"East Muir", "Long Rig"}));
    for (const auto& [column, text] : months)
        EXPECT_EQ(stored("Land", column), (texts{text, ""})) << column;
}

// Step 2 may stand beside this module and save while rows are being entered here.
TEST_F(LandFile, ASaveLeavesWhatTheStoragePlanHasSavedSinceTheLoad) {
    open_farm({{"Long Rig", "15"}, {"East Muir", "8"}, {"Haugh", "2"}});
    for (const char* field : {"Long Rig", "East Muir"})
        add_land(field, {{"January", "Closed"},
                         {"Applic_December", "20"},
                         {"Area In Grass (ha)", "4"},
                         {"Total Area", "8"}});
    module.load_land_stuff();
    module.enter_field(2, "Haugh");
    database(state.assess_file)
        .update_rows("Land", {{"Crop", "Grass / Other"}, {"January", ""}, {"Applic_December", "25"}},
                     "Field Area ID", "East Muir");
    module.enter_area(1, land_col::grass, "5");
    ASSERT_TRUE(module.save());
    EXPECT_EQ(stored("Land", "Crop"), (texts{"", "Grass / Other", ""}));
    EXPECT_EQ(stored("Land", "January"), (texts{"Closed", "", ""}));
    EXPECT_EQ(stored("Land", "Applic_December"), (texts{"20", "25", ""}));
    EXPECT_EQ(stored("Land", "Area In Grass (ha)"), (texts{"4", "5", ""}));
}

TEST_F(LandFile, AFileThatFailsInItsSecondTableLosesNothing) {
    open_farm({{"Long Rig", "15"}});
    add_land("Long Rig", {{"Area In Grass (ha)", "4"}, {"Total Area", "15"}});
    module.load_land_stuff();
    module.enter_area(0, land_col::grass, "10");
    enter_sheep(0, "7");
    const text_grid land_before = module.land(), stock_before = module.animals();
    SQLite::Database(state.assess_file, SQLite::OPEN_READWRITE).exec("DROP TABLE [Land_animals]");
    EXPECT_THROW(module.save(), file_error);
    EXPECT_EQ(stored("Land", "Area In Grass (ha)"), texts{"4"});
    EXPECT_THROW(module.load_land_stuff(), file_error);
    EXPECT_EQ(module.land(), land_before);
    EXPECT_EQ(module.animals(), stock_before);
    EXPECT_EQ(module.field_names(), texts{"Long Rig"});
}

TEST_F(LandFile, SaveWithoutAnOpenFileAsksForOne) {
    module.load_land_stuff();  // nothing open: two empty tables
    enter_sheep(0, "10");
    person.expect_file("Save the assessment", "");
    EXPECT_FALSE(module.save());

    state.prev1_file = make_farm("last_year.kel", {}, 2023);
    person.expect_file("Save the assessment", state.prev1_file)
        .expect({"Cannot Save File", "This is last years file and cannot be saved to at this time!"});
    EXPECT_FALSE(module.save());
    EXPECT_EQ(state.assess_file, "");
    EXPECT_EQ(column_of(state.prev1_file, "FarmProfile", "Name"), texts{"Test Farm"});

    person.expect_file("Save the assessment", path("fresh.kel"));
    EXPECT_TRUE(module.save());
    EXPECT_EQ(state.assess_file, path("fresh.kel"));
    EXPECT_EQ(stored("Land_animals", "Number Of Stock Units"), texts{"10"});
}

// Step 2 and another copy of the program write to the same file; only rows of this step's own are asked
// about.
TEST_F(LandFile, SaveAsksBeforeItWritesOverRowsChangedMeanwhile) {
    open({{"Long Rig", "15"}});
    ASSERT_TRUE(module.save());
    database(state.assess_file).update_rows("Land", {{"January", "Closed"}}, "Field Area ID", "Long Rig");
    ASSERT_TRUE(module.save());
    add_row(state.assess_file, "Land_animals", {{"Stock Unit", "1 sheep"}});
    person.expect(rows_changed_meanwhile(state.assess_file), answer::no);
    EXPECT_FALSE(module.save());
    EXPECT_EQ(stored("Land_animals", "Stock Unit"), texts{"1 sheep"});
}

TEST_F(LandFile, ImportCarriesEveryColumnAndLetsAFieldComeTwice) {
    open({{"Long Rig", "15"}, {"East Muir", "8"}});
    const std::string other = make_farm("other.kel", {}, 2024);
    add_row(other, "Land", {{"Field Area ID", "Sold Field"}});
    add_row(other, "Land",
            {{"Field Area ID", "East Muir"},
             {"Available Field Area (ha)", "6.20"},
             {"Total Area", "7"},
             {"Crop", "Grass / Other"},
             {"October", "Closed"},
             {"Applic_March", "25"}});
    person.expect_file("Add data from another assessment", other)
        .expect(module_messages::field_does_not_exist("Sold Field"));
    ASSERT_TRUE(module.import_land(import_mode::add));
    ASSERT_EQ(module.land().row_count(), 4);
    EXPECT_EQ(land(1, 0) + ", " + land(2, 0), "East Muir, East Muir");
    EXPECT_EQ(land(2, land_col::total_area) + ", " + land(2, land_col::field_limit), "7, 1550");
    EXPECT_EQ(land(2, land_col::crop) + ", " + land(2, land_col::january + 9), "Grass / Other, Closed");
    EXPECT_EQ(land(2, land_col::applic_january + 2), "25");
    EXPECT_EQ(land(3, land_col::field), "");
    person.expect_file("Replace with data from another assessment", other)
        .expect(module_messages::field_does_not_exist("Sold Field"));
    ASSERT_TRUE(module.import_land(import_mode::over_write));
    EXPECT_EQ(module.land().row_count(), 2);
    EXPECT_TRUE(stored("Land", "Field Area ID").empty());
}

// Step 2 may save while rows that were imported wait here for their save.
TEST_F(LandFile, OnlyImportedRowsBringTheirMonthsAlong) {
    open_farm({{"Long Rig", "15"}, {"East Muir", "8"}, {"Haugh", "2"}});
    for (const char* field : {"Long Rig", "East Muir"})
        add_land(field, {{"January", "Closed"}});
    module.load_land_stuff();
    const std::string other = make_farm("other.kel", {}, 2024);
    add_row(other, "Land", {{"Field Area ID", "Long Rig"}, {"January", "3"}});
    add_row(other, "Land", {{"Field Area ID", "Haugh"}, {"January", "2"}, {"Crop", "Grass / Other"}});
    const auto imports = [&](import_mode mode, const std::string& file) {
        person.expect_file(mode == import_mode::add ? "Add data from another assessment"
                                                    : "Replace with data from another assessment",
                           file);
        return module.import_land(mode);
    };
    const auto step2_closes = [&](const char* month, const char* field) {
        database(state.assess_file).update_rows("Land", {{month, "Closed"}}, "Field Area ID", field);
    };
    ASSERT_TRUE(imports(import_mode::add, other));
    ASSERT_TRUE(module.erase_land_row(0).closes);
    step2_closes("October", "East Muir");
    ASSERT_TRUE(module.save());
    EXPECT_EQ(stored("Land", "Field Area ID"), (texts{"East Muir", "Long Rig", "Haugh"}));
    EXPECT_EQ(stored("Land", "January"), (texts{"Closed", "3", "2"}));
    EXPECT_EQ(stored("Land", "October"), (texts{"Closed", "", ""}));
    EXPECT_EQ(stored("Land", "Crop"), (texts{"", "", "Grass / Other"}));
    ASSERT_TRUE(imports(import_mode::over_write, make_farm("empty.kel", {}, 2024)));
    step2_closes("August", "Haugh");
    ASSERT_TRUE(module.save());
    EXPECT_EQ(stored("Land", "August"), (texts{"", "", "Closed"})) << "an empty table brought nothing";
}

TEST_F(LandFile, ImportedStockIsWorkedOutAnew) {
    open({{"Long Rig", "15"}});
    enter_sheep(0, "10");
    const std::string other = make_farm("other.kel", {}, 2024);
    add_row(other, "Land_animals",
            {{"Stock Unit", "1 dairy cow (650 kg)"},
             {"Number Of Stock Units", "2"},
             {"Total N Excreted By One Stock Unit (kg/year)", "1"}});
    person.expect_file("Add data from another assessment", other);
    ASSERT_TRUE(module.import_animals(import_mode::add));
    EXPECT_EQ(stock_line(0).front(), "1 sheep");
    EXPECT_EQ(stock_line(1), (texts{"1 dairy cow (650 kg)", "2", "116", "232"}));
    EXPECT_EQ(stock_line(2), texts(4));
    // Ten thousand rows of fields that nobody knows are told in a few boxes.
    {
        const database db(other);
        save_transaction save(db);
        recordset rows = db.open("Land");
        for (int i = 0; i < 10000; ++i) {
            rows.add_new();
            rows.set("Field Area ID", "No " + std::to_string(i));
            rows.update();
        }
        save.commit();
    }
    person.expect_file("Replace with data from another assessment", other);
    for (int i = 0; i < 20; ++i)
        person.expect(module_messages::field_does_not_exist("No " + std::to_string(i)));
    person.expect(module_messages::more_messages(9980));
    ASSERT_TRUE(module.import_land(import_mode::over_write));
    EXPECT_EQ(module.land().row_count(), 1);
    person.verify_done();
}

}  // namespace kel::test
