// The table of stores: what is refused in which order, and that the file follows every change.
#include "tests/storage/storage_fixture.h"

namespace kel::test {

class StoresPage : public storage_test {};

TEST_F(StoresPage, AddingTellsTheFirstFailureInItsOrder) {
    open({{"Home", "10"}});
    add_store("Tank", "50");
    walk_to_stores();
    // Each form lacks what its row names and everything tested after it.
    const struct {
        store_form form;
        const message& failure;
    } refused[] = {
        {{.name = "Tank"}, says::store_name_exists},
        {{}, says::no_store_shape},
        {{.shape = "Square or rectangular"}, says::no_tank_depth},
        {{.shape = "Square or rectangular", .depth = "2"}, says::no_store_length},
        {{.shape = "Square or rectangular", .depth = "2", .length = "9"}, says::no_store_width},
        {{.shape = "Circular", .width = "5"}, says::no_store_depth},
        {{.shape = "Circular", .depth = "2", .width = "5"}, says::no_store_diameter},
        {{.shape = "Earth banked lagoon"}, says::no_store_depth},
        {{.shape = "Earth banked lagoon", .depth = "2"}, says::no_store_length},
        {{.shape = "Earth banked lagoon", .depth = "2", .length = "9"}, says::no_store_width},
        {{.shape = "Earth banked lagoon", .depth = "2", .length = "9", .width = "9"}, says::no_bank_angle},
        {{.shape = "Circular", .depth = "2", .diameter = "9"}, says::no_store_percent},
        {{.shape = "Circular", .depth = "2", .diameter = "9", .percent = "0"}, says::no_store_name},
        {{.name = "Pit", .shape = "Circular", .depth = "2", .diameter = "9", .percent = "0"},
         says::no_drainage_area},
    };
    for (const auto& r : refused) {
        person.expect(r.failure);
        EXPECT_FALSE(module.stores().add_store(r.form));
        person.verify_done();
    }
    EXPECT_EQ(stored("Slurry_store", "Store_name"), texts{"Tank"});
}

TEST_F(StoresPage, AddedStoreIsInTheFileWithTheSizesOfItsShapeOnly) {
    open({{"Home", "10"}});
    walk_to_stores();
    store_form pit{.name = "Pit", .shape = "Circular", .depth = "3.3", .length = "7", .diameter = "10"};
    pit.percent = "130";
    pit.area = "78.5";
    EXPECT_TRUE(module.stores().add_store(pit));
    EXPECT_EQ(stored("Slurry_store", "Store_circumference"), texts{"10"});
    EXPECT_EQ(stored("Slurry_store", "Store_length"), texts{""});
    EXPECT_EQ(stored("Slurry_store", "Store_%"), texts{"130"});
    EXPECT_EQ(module.stores().stores().row_count(), 2);
}

TEST_F(StoresPage, EditTakesTheStoreOutAtOnce) {
    open({{"Home", "10"}});
    add_store("Tank", "50");
    add_store("Pit", "20");
    walk_to_stores();
    const auto form = module.stores().edit_store(0);
    ASSERT_TRUE(form);
    EXPECT_EQ(form->name + form->length + form->area, "Tank1050");
    EXPECT_EQ(stored("Slurry_store", "Store_name"), texts{"Pit"});
    EXPECT_TRUE(module.stores().add_store(*form));
    EXPECT_EQ(stored("Slurry_store", "Store_name"), (texts{"Pit", "Tank"}));
}

TEST_F(StoresPage, WhatIsUndoneIsWrittenAtOnceButForImportedStores) {
    open({{"Home", "10"}});
    add_store("Tank", "50");
    add_store("Pit", "20");
    walk_to_stores();
    grid_history& history = module.stores().history();
    EXPECT_FALSE(history.record());
    ASSERT_TRUE(module.stores().delete_store(0));
    EXPECT_TRUE(history.record());
    history.undo();
    EXPECT_EQ(stored("Slurry_store", "Store_name"), (texts{"Tank", "Pit"}));
    history.redo();
    EXPECT_EQ(stored("Slurry_store", "Store_name"), texts{"Pit"});

    const std::string other = make_farm("other.kel", {});
    add_row(other, "Slurry_store", {{"Store_name", "Lagoon"}});
    person.expect_file("Add data from another assessment", other);
    ASSERT_TRUE(module.stores().import_records(import_mode::add));
    EXPECT_TRUE(history.record());
    history.undo();
    EXPECT_FALSE(module.stores().imported());
    history.redo();
    EXPECT_TRUE(module.stores().imported());
    EXPECT_EQ(stored("Slurry_store", "Store_name"), texts{"Pit"}) << "they wait for the save of the plan";
    ASSERT_TRUE(module.storage_cont2());
    ASSERT_TRUE(module.save_storage());
    EXPECT_EQ(stored("Slurry_store", "Store_name"), (texts{"Pit", "Lagoon"}));
    EXPECT_FALSE(history.can_undo()) << "what is saved is not undone";
}

TEST_F(StoresPage, EmptyRowIsNeitherEditedNorDeletedAndAFailedWriteLeavesTheTable) {
    open({{"Home", "10"}});
    add_store("Tank", "50");
    walk_to_stores();
    expect_in_order({says::empty_store_not_edited, says::empty_store_not_deleted});
    EXPECT_FALSE(module.stores().edit_store(1));
    EXPECT_FALSE(module.stores().delete_store(1));
    const std::string file = file_text(state.assess_file);
    write_file(state.assess_file, "not an assessment");
    EXPECT_THROW(module.stores().delete_store(0), file_error);
    EXPECT_TRUE(module.stores().has_stores());
    write_file(state.assess_file, file);
    EXPECT_TRUE(module.stores().delete_store(0));
    EXPECT_EQ(stored("Slurry_store", "Store_name"), texts{});
}

TEST_F(StoresPage, TotalsSkipUnknownShapesAndReadTheLevelAsPercent) {
    open({{"Home", "10"}});
    add_store("Tank", "50");
    add_store("Full", "100");
    add_row(state.assess_file, "Slurry_store",
            {{"Store_name", "Sack"}, {"Store_shape", "Bag"}, {"Store_depth", "9"}, {"Rain_area", "500"}});
    monthly_values rain{};
    rain[0] = 80;
    const store_totals totals =
        compute_store_totals(load_stores(database(state.assess_file), std::nullopt), rain);
    EXPECT_EQ(totals.total_capacity, 200);
    EXPECT_EQ(totals.total_free, 50);
    EXPECT_FLOAT_EQ(totals.monthly_rain_input[0], 8);
    EXPECT_EQ(totals.monthly_rain_input[1], 0);
}

}  // namespace kel::test
