// The way through the three pages: answers, what is written on the way, last year's level, Back.
#include "core/module_messages.h"
#include "core/numbers.h"
#include "tests/storage/storage_fixture.h"

namespace kel::test {

class StorageFlow : public storage_test {};

TEST_F(StorageFlow, MissingAnswersKeepThePageAndTheFile) {
    open({{"Home", "10"}});
    module.water().show_form(dirty_water_form::actual);
    person.expect(says::no_cow_figure);
    EXPECT_FALSE(module.storage_cont1());
    module.water().set_cows("50");
    person.expect(says::no_pig_pen_figure);
    EXPECT_FALSE(module.storage_cont1());
    EXPECT_EQ(module.page(), storage_page::water);
    EXPECT_EQ(stored("Store_in", "Water_cow"), texts{});
    module.water().set_actual("30");
    EXPECT_TRUE(module.storage_cont1());
    EXPECT_EQ(stored("Store_in", "Water_actual"), texts{"30"});
    EXPECT_EQ(stored("Store_in", "Water_cow"), texts{""});
}

TEST_F(StorageFlow, FirstPageWritesRainAndAnswersInPlaceOfTheOldRow) {
    open({{"Home", "10"}});
    state.farm_town = "Blairgowrie";
    add_row(state.assess_file, "Store_in", {{"January", "1"}, {"Water_actual", "12"}});
    module.storage_load_stuff();
    EXPECT_EQ(module.water().form(), dirty_water_form::actual);
    module.water().show_form(dirty_water_form::estimate);
    walk_to_stores();
    EXPECT_EQ(stored("Store_in", "January"), texts{"69.0"});
    EXPECT_EQ(stored("Store_in", "December"), texts{"74.0"});
    EXPECT_EQ(stored("Store_in", "Water_actual"), texts{""});
    EXPECT_EQ(stored("Store_in", "Water_pig"), texts{"0"});
}

TEST_F(StorageFlow, TownWithoutRainCountsNothingAndIsToldOnce) {
    open({{"Home", "10"}});
    state.farm_town = "Atlantis";
    person.expect(says::no_rainfall("Atlantis"));
    walk_to_plan();
    EXPECT_EQ(production_months(inputs_row), texts(12, "0"));
    module.back();
    module.back();
    EXPECT_TRUE(module.storage_cont1());
}

TEST_F(StorageFlow, LastYearsAnswersAreTakenByTheirForm) {
    const struct {
        row_values last_year;
        dirty_water_answers answers;
    } cases[] = {
        {{}, {"0", "0", "0"}},  // no row
        {{{"Water_cow", "80"}, {"Water_pig", "3"}}, {"80", "3", ""}},
        {{{"Water_actual", "25"}}, {"", "", "25"}},
        {{{"January", "70"}}, {"", "", "7"}},  // no answer: nothing changes
    };
    open({{"Home", "10"}});
    person.expect(says::linked_file_missing);
    module.water().take_last_year();
    link_last_year();
    for (const auto& c : cases) {
        database(state.prev1_file).delete_rows("Store_in");
        if (!c.last_year.empty()) add_row(state.prev1_file, "Store_in", c.last_year);
        module.water().set_actual("7");
        module.water().take_last_year();
        EXPECT_EQ(module.water().answers(), c.answers);
    }
}

TEST_F(StorageFlow, LastDecemberSetsEveryStartLevelThatIsFilled) {
    const struct {
        const char* december;
        const char* level;
    } cases[] = {{"130", "100"}, {"100", "100"}, {"63.25", "63.2"}, {"0", "0"}, {"none", "0"}};
    open({{"Home", "10"}});
    add_store("Tank", "50");
    add_store("Pit", "");
    link_last_year();
    for (const auto& c : cases) {
        database(state.prev1_file).delete_rows("Misc");
        add_row(state.prev1_file, "Misc", {{"Item", "December store percent full"}, {"Value", c.december}});
        walk_to_stores();
        EXPECT_EQ(stored("Slurry_store", "Store_%"), (texts{c.level, ""})) << c.december;
        EXPECT_EQ(module.stores().stores().cell(0, store_column::percent), c.level);
    }
}

TEST_F(StorageFlow, LinkedFileWithoutAFigureLeavesTheLevels) {
    open({{"Home", "10"}});
    add_store("Tank", "50");
    link_last_year();
    walk_to_stores();
    EXPECT_EQ(stored("Slurry_store", "Store_%"), texts{"50"});
    write_file(state.prev1_file, "not an assessment");
    EXPECT_THROW(module.storage_cont1(), file_error);
    EXPECT_EQ(stored("Slurry_store", "Store_%"), texts{"50"});
}

TEST_F(StorageFlow, WithoutStoresOnlyTheLandTableIsOffered) {
    open({{"Home", "10"}});
    walk_to_stores();
    person.expect(says::no_stores, answer::no);
    EXPECT_FALSE(module.storage_cont2());
    EXPECT_EQ(module.page(), storage_page::stores);
    EXPECT_EQ(module.instruction(), says::stores_instruction);
    walk_without_stores();
    EXPECT_EQ(plan.tab(), plan_tab::land);
    EXPECT_FALSE(plan.balance());
    person.expect(says::no_storage_assessment);
    EXPECT_EQ(plan.turn_to(plan_tab::production), plan_tab::land);
    EXPECT_TRUE(module.save_storage());
    EXPECT_EQ(stored("Misc", "Item"), texts{});
}

TEST_F(StorageFlow, BackToTheStoresKeepsWhatIsNotSavedAndTakesTheNewCapacity) {
    open_plan();
    EXPECT_EQ(plan.tab(), plan_tab::production);
    ASSERT_TRUE(plan.enter_stock(1, "1 dairy cow (650 kg)").closes);
    ASSERT_TRUE(plan.enter_land_month(0, plan_column::january, "4").closes);
    module.back();
    EXPECT_EQ(module.instruction(), says::stores_again_instruction);
    store_form second = module.stores().edit_store(0).value();
    ASSERT_TRUE(module.stores().add_store(second));
    second.name = "Pit";
    ASSERT_TRUE(module.stores().add_store(second));
    ASSERT_TRUE(module.storage_cont2());
    EXPECT_EQ(plan.stores().total_capacity, 200);
    EXPECT_EQ(plan.production().cell(1, production_column::stock), "1 dairy cow (650 kg)");
    EXPECT_EQ(plan.land().cell(0, plan_column::january), "4");
}

TEST_F(StorageFlow, YearsDialogWalksOnToThePageThatShowed) {
    open_plan();
    ASSERT_TRUE(plan.enter_land_month(0, plan_column::january, "4").closes);
    module.reload();
    EXPECT_EQ(module.page(), storage_page::plan);
    EXPECT_EQ(plan.land().cell(0, plan_column::january), "10");
    database(state.assess_file).delete_rows("Store_in");
    person.expect(says::no_cow_figure);
    module.reload();
    EXPECT_EQ(module.page(), storage_page::water);
}

TEST_F(StorageFlow, SaveWritesTheTablesAndDecember) {
    open({{"Home", "10"}, {"Brae", "5"}});
    walk_to_plan();
    ASSERT_TRUE(plan.enter_stock(1, "1 dairy cow (650 kg)").closes);
    ASSERT_TRUE(plan.enter_land_month(1, plan_column::january, "4").closes);
    for (int month = 0; month < 12; ++month)
        ASSERT_TRUE(plan.enter_slurry_applic(1, spreading_column::january + month, std::to_string(25 + month))
                        .closes);
    EXPECT_EQ(stored("Land", "January"), (texts{"", ""}));
    EXPECT_TRUE(module.save_storage());
    EXPECT_EQ(stored("Slurry_animals", "Stock Unit"), texts{"1 dairy cow (650 kg)"});
    EXPECT_EQ(stored("Slurry_animals", "Number"), texts{""});
    EXPECT_EQ(stored("Slurry_animals", "December"), texts{"Slurry"});
    EXPECT_EQ(stored("Land", "January"), (texts{"10", "4"}));
    for (int month = 1; month <= 12; ++month)
        EXPECT_EQ(stored("Land", "Applic_" + std::string(month_name(month))),
                  (texts{"", std::to_string(24 + month)}));
    ASSERT_TRUE(module.save_storage());
    EXPECT_EQ(stored("Misc", "Value").size(), 1U);
    EXPECT_FLOAT_EQ(leading_single(stored("Misc", "Value")[0]), plan.balance()->percent[11]);
}

TEST_F(StorageFlow, RowsOfOneFieldAndOfUnknownFieldsKeepTheirOwnFigures) {
    open({{"Home", "10"}});
    add_land({"Gone", "3"}, {{"May", "2"}});
    add_land({"Home", "6"}, {{"May", "1"}});
    person.expect(module_messages::field_does_not_exist("Gone"));
    walk_to_plan();
    EXPECT_EQ(plan.fields().fields(), 2);
    ASSERT_TRUE(plan.enter_land_month(0, plan_column::january + 4, "9").closes);
    ASSERT_TRUE(module.save_storage());
    EXPECT_EQ(stored("Land", "May"), (texts{"9", "2", "1"}));
    EXPECT_EQ(stored("Land", "June"), (texts{"10", "", "6"}));
}

TEST_F(StorageFlow, SaveWithoutAnAssessmentMakesOneWithEverythingEntered) {
    link_last_year();
    state.farm_town = "Cupar";
    module.storage_load_stuff();
    state.prev1_file.clear();
    walk_without_stores();
    state.prev1_file = path("last.kel");
    person.expect_file("Save the assessment", state.prev1_file)
        .expect({"Cannot Save", "This is last years file and cannot be saved to at this time!"});
    EXPECT_FALSE(module.save_storage());
    person.expect_file("Save the assessment", path("new.kel"));
    EXPECT_TRUE(module.save_storage());
    EXPECT_EQ(state.assess_file, path("new.kel"));
    EXPECT_EQ(stored("Store_in", "Water_cow"), texts{"0"});
}

TEST_F(StorageFlow, SavesAskBeforeTheyWriteOverRowsChangedMeanwhile) {
    open_plan();
    const message asked = rows_changed_meanwhile(state.assess_file);
    add_row(state.assess_file, "Slurry_animals", {{"Stock Unit", "theirs"}});
    person.expect(asked, answer::no);
    EXPECT_FALSE(module.save_storage());
    EXPECT_EQ(stored("Slurry_animals", "Stock Unit"), texts{"theirs"});
    module.back();
    add_store("Their tank", "20");
    person.expect(asked, answer::no);
    EXPECT_FALSE(module.stores().delete_store(0));
    EXPECT_EQ(stored("Slurry_store", "Store_name"), (texts{"Tank", "Their tank"}));
    EXPECT_TRUE(module.stores().has_stores());
}

// Step 1 may stand beside this module and save while a plan is being made here.
TEST_F(StorageFlow, ASaveLeavesTheAreasThatStep1HasSavedSinceTheLoad) {
    open({{"Home", "10"}});
    walk_to_plan();
    module.plan().enter_land_month(0, plan_column::january, "3");
    database(state.assess_file)
        .update_rows("Land", {{"Area In Grass (ha)", "4"}, {"Available Field Area (ha)", "8.50"}},
                     "Field Area ID", "Home");
    person.expect(rows_changed_meanwhile(state.assess_file), answer::yes);  // the plan shows the old area
    ASSERT_TRUE(module.save_storage());
    EXPECT_EQ(stored("Land", "January"), texts{"3"});
    EXPECT_EQ(stored("Land", "Area In Grass (ha)"), texts{"4"});
    EXPECT_EQ(stored("Land", "Available Field Area (ha)"), texts{"8.50"});
}

TEST_F(StorageFlow, ImportedStoresWaitForTheSave) {
    open({{"Home", "10"}});
    walk_to_plan();
    module.back();
    const std::string other = make_farm("other.kel", {}, 2024);
    add_row(other, "Slurry_store", {{"Store_name", "Lagoon"}, {"Store_%", "12"}, {"Rain_area", "9"}});
    person.expect_file("Add data from another assessment", other);
    ASSERT_TRUE(module.stores().import_records(import_mode::add));
    EXPECT_EQ(module.stores().stores().row_count(), 3);
    EXPECT_EQ(module.stores().stores().cell(1, store_column::percent), "12");
    // Neither another change of the table nor Continue nor the way over the first page writes or drops them.
    ASSERT_TRUE(module.stores().delete_store(0));
    module.back();
    walk_to_stores();
    ASSERT_TRUE(module.storage_cont2());
    EXPECT_EQ(stored("Slurry_store", "Store_name"), texts{"Tank"});
    ASSERT_TRUE(module.save_storage());
    EXPECT_EQ(stored("Slurry_store", "Store_name"), texts{"Lagoon"});
    module.back();
    ASSERT_TRUE(module.stores().delete_store(0));
    EXPECT_EQ(stored("Slurry_store", "Store_name"), texts{})
        << "from the save on every change is written at once";
    person.expect_file("Replace with data from another assessment", other);
    ASSERT_TRUE(module.stores().import_records(import_mode::over_write));
    module.storage_load_stuff();
    walk_to_stores();
    EXPECT_FALSE(module.stores().has_stores()) << "loading anew undoes the import";
}

TEST_F(StorageFlow, ImportedStockAndFieldsAreWorkedIntoTheTables) {
    open({{"Home", "10"}, {"Far", "5"}});
    walk_to_plan();
    ASSERT_TRUE(plan.enter_stock(empty_stock_row(plan.production()), "1 dairy cow (650 kg)").closes);
    const std::string other = make_farm("other.kel", {}, 2024);
    const auto imports = [&](import_mode mode) {
        person.expect_file(mode == import_mode::add ? "Add data from another assessment"
                                                    : "Replace with data from another assessment",
                           other);
        return plan.import_production(mode);
    };
    const text_grid before = plan.production();
    ASSERT_TRUE(imports(import_mode::over_write));
    EXPECT_EQ(plan.production(), before) << "an empty table replaces nothing";
    person.expect_file("Replace with data from another assessment", other);
    ASSERT_TRUE(plan.import_land());
    EXPECT_EQ(plan.fields().fields(), 2);

    add_row(other, "Slurry_animals",
            {{"Stock Unit", "Llamas"}, {"Number", "10"}, {"Total Volume", "7.5"}, {"March", "Slurry"}});
    ASSERT_TRUE(imports(import_mode::add));
    EXPECT_EQ(plan.production().row_count(), before.row_count() + 1);
    EXPECT_EQ(cells(plan.production(), 2, 0, 1), (texts{"Llamas", "10"}));
    EXPECT_EQ(plan.production().cell(empty_stock_row(plan.production()), 0), "");
    ASSERT_TRUE(imports(import_mode::over_write));
    EXPECT_EQ(production_months(production_totals_row(plan.production()))[2], "10") << "with 2.5 of rain";
    EXPECT_EQ(plan.production().cell(inputs_row, 4), before.cell(inputs_row, 4));

    add_row(other, "Land", {{"Field Area ID", "Sold Field"}});
    add_row(other, "Land",
            {{"Field Area ID", "Far"},
             {"Available Field Area (ha)", "4"},
             {"Crop", "Other / Grass"},
             {"May", "2"},
             {"Applic_May", "25"}});
    person.expect_file("Replace with data from another assessment", other)
        .expect(
            {"Field does not exist",
             "The field you are trying to load (Sold Field) does not exist in the farm profile, and will not "
             "be "
             "imported. If you wish to include it in the analysis, the profile will need to be amended!"});
    ASSERT_TRUE(plan.import_land());
    ASSERT_EQ(plan.fields().fields(), 1);
    EXPECT_EQ(land_months(0)[4] + " " + land_months(0)[5] + " " + spreading_months(0)[4], "2 4 25");
    EXPECT_EQ(spreading_months(2)[4], "25");
    EXPECT_TRUE(plan.changed());
    EXPECT_EQ(stored("Land", "Crop"), (texts{"", ""}));
    EXPECT_TRUE(stored("Slurry_animals", "Number").empty());
    ASSERT_TRUE(module.save_storage());
    EXPECT_EQ(stored("Land", "Crop"), (texts{"", "Other / Grass"}));
    EXPECT_EQ(stored("Land", "Available Field Area (ha)"), (texts{"10", "4"})) << "areas come along";
    EXPECT_EQ(stored("Slurry_animals", "Stock Unit"), texts{"Llamas"});
}

TEST_F(StorageFlow, ImportedFieldsThatLandLacksGetTheirRows) {
    open_farm({{"Home", "10"}, {"Far", "5"}});
    add_land({"Home", "10"}, {});
    module.storage_load_stuff();
    walk_to_plan();
    const std::string other = make_farm("other.kel", {}, 2024);
    for (const char* area : {"4", "3"})
        add_row(other, "Land",
                {{"Field Area ID", "Far"}, {"Soil", "Sands"}, {"Available Field Area (ha)", area}});
    person.expect_file("Replace with data from another assessment", other);
    ASSERT_TRUE(plan.import_land());
    ASSERT_TRUE(module.save_storage());
    EXPECT_EQ(stored("Land", "Field Area ID"), (texts{"Home", "Far"}));
    EXPECT_EQ(stored("Land", "Available Field Area (ha)"), (texts{"10", "4"}));
    EXPECT_EQ(stored("Land", "Total Area"), (texts{"", "5"}));
    EXPECT_EQ(stored("Land", "May"), (texts{"", "4"}));
    // From then on the areas are Step 1's again.
    database(state.assess_file).update_rows("Land", {{"Soil", "Humose soils"}}, "Field Area ID", "Far");
    person.expect(rows_changed_meanwhile(state.assess_file), answer::yes);
    ASSERT_TRUE(module.save_storage());
    EXPECT_EQ(stored("Land", "Soil"), (texts{"Other mineral soils", "Humose soils"}));
}

TEST_F(StorageFlow, ASaveWithImportedStoresIsWholeOrNot) {
    open_plan();
    module.back();
    const std::string other = make_farm("other.kel", {}, 2024);
    add_row(other, "Slurry_store", {{"Store_name", "Lagoon"}});
    person.expect_file("Replace with data from another assessment", other);
    ASSERT_TRUE(module.stores().import_records(import_mode::over_write));
    ASSERT_TRUE(module.storage_cont2());
    const message asked = rows_changed_meanwhile(state.assess_file);
    add_row(state.assess_file, "Slurry_animals", {{"Stock Unit", "theirs"}});
    person.expect(asked, answer::no);
    EXPECT_FALSE(module.save_storage());
    EXPECT_EQ(stored("Slurry_store", "Store_name"), texts{"Tank"});
    add_row(state.assess_file, "Slurry_store", {{"Store_name", "Their tank"}});
    person.expect(asked, answer::no);
    EXPECT_FALSE(module.save_storage());
    person.expect(asked, answer::yes).expect(asked, answer::yes);
    EXPECT_TRUE(module.save_storage());
    EXPECT_EQ(stored("Slurry_store", "Store_name"), texts{"Lagoon"});
}

}  // namespace kel::test
