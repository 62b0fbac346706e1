// The stocking route: livestock, the stocking of the fields, the requirement that follows, and the way to it.
#include "core/module_messages.h"
#include "tests/grass/grass_fixture.h"

namespace kel::test {

namespace text = grass_messages;
namespace lu = livestock_column;
namespace su = stocking_column;

class stocking_test : public grass_test {
  protected:
    void open_two_fields() {
        open_farm({{"Low Park", "20"}, {"Haugh", "10"}});
        add_site("Low Park", {{"Field Area Size (ha)", "20"}, {"LUs Fed By Grazing", "7"}});
        add_site("Haugh");
        add_lu("Dairy cows", "100");
        load();
        module.to_stock();
    }
    std::string livestock(int column, int row = 0) { return module.livestock().table().cell(row, column); }
    std::string stocking(int row, int column) { return module.stocking().table().cell(row, column); }
    std::string silage(int row, int column) { return module.silage().table().cell(row, column); }
    void expect_save_to(const std::string& file) { person.expect_file("Save assesment profile", file); }
};

TEST_F(stocking_test, EachEntryWorksOutTheLivestockUnitsOfItsRow) {
    open({{"Low Park", "10"}});
    livestock_page& page = module.livestock();
    person.expect(text::no_stock_type).expect(text::no_stock_number).expect(text::no_stock_time);
    EXPECT_FALSE(page.enter_type(0, "").closes);
    EXPECT_FALSE(page.enter_number(0, ".").closes);
    EXPECT_FALSE(page.enter_time(0, "").closes);
    EXPECT_TRUE(page.enter_type(0, "Lambs (birth to fat)").closes);
    EXPECT_EQ(page.table().row_count(), 2);
    EXPECT_EQ(livestock(lu::ratio), "0.04");
    page.enter_number(0, "100");
    EXPECT_EQ(livestock(lu::units), "0");
    page.enter_time(0, "50");
    EXPECT_EQ(livestock(lu::units), "2");
    page.clear_cell(0, lu::type);
    EXPECT_EQ(livestock(lu::type) + livestock(lu::ratio) + livestock(lu::units), "0.042");
    page.clear_cell(0, lu::time);
    EXPECT_EQ(livestock(lu::units), "0");
    person.expect(text::stock_calculation).expect(module_messages::cannot_delete);
    EXPECT_TRUE(page.click(0, lu::units).box.none());
    EXPECT_FALSE(page.erase_row(1).closes);
    EXPECT_TRUE(page.erase_row(0).closes);
}

TEST_F(stocking_test, GroupsAreForGrazedFieldsAndForSavedStock) {
    open_two_fields();
    stocking_page& page = module.stocking();
    person.expect(text::not_grazed);
    EXPECT_TRUE(page.click(0, su::first_group).box.none());
    EXPECT_TRUE(page.click(0, su::area).box.none());
    EXPECT_TRUE(page.click(0, su::grazing_lus).box.none());
    page.enter_use(0, "Grazing");
    module.livestock().enter_type(1, "Horses");  // not saved yet
    const opening types = page.click(0, su::first_group + 27);
    EXPECT_EQ(types.parts[0].choices, texts{"Dairy cows"});
    EXPECT_EQ(page.click(0, su::first_group + 28).box, box_id(stocking_box::number));
    EXPECT_EQ(page.click(0, su::first_group + 29).box, box_id(stocking_box::time));
    page.clear_cell(0, su::use);
    person.expect(text::no_area_use);
    page.click(0, su::first_group + 1);
    person.expect(text::no_group_type).expect(text::no_group_number).expect(text::no_group_time);
    page.enter_type(0, su::first_group, "");
    page.enter_number(0, su::first_group + 1, "");
    page.enter_time(0, su::first_group + 2, "");
}

TEST_F(stocking_test, WithoutStoredStockNoGroupCanBeChosen) {
    open_farm({{"Low Park", "20"}});
    add_site("Low Park", {{"Site Use", "Grazing"}});
    load();
    module.to_stock();
    person.expect(text::no_farm_stock);
    EXPECT_TRUE(module.stocking().click(0, su::first_group).box.none());
    add_row(state.assess_file, "LU", {{"Number of Animals", "5"}});  // stock, but of no type
    load();
    module.to_stock();
    EXPECT_EQ(module.stocking().click(0, su::first_group).parts.at(0).choices, texts{});
}

TEST_F(stocking_test, SilageTakesTheGroupsOfAFieldAndTheSiteTableShowsIt) {
    open_two_fields();
    stocking_page& page = module.stocking();
    page.enter_use(0, "Grazing");
    page.enter_type(0, su::first_group, "Dairy cows");
    page.enter_time(0, su::first_group + 29, "50");
    page.enter_use(0, "");
    EXPECT_EQ(stocking(0, su::use), "Grazing");
    EXPECT_EQ(cell(0, site_column::use), "Grazing");
    page.enter_use(0, "Silage production");
    EXPECT_EQ(stocking(0, su::use), "Silage");
    EXPECT_EQ(stocking(0, su::first_group) + stocking(0, su::first_group + 29), "");
    EXPECT_EQ(stocking(0, su::grazing_lus), "7");
    EXPECT_EQ(page.click(0, su::use).parts[0].text, "Silage production");
    module.back();
    module.to_stock();
    EXPECT_EQ(stocking(0, su::use), "Silage");
    EXPECT_EQ(stocking(1, su::area), "10");  // the profile's, as the record has none
}

TEST_F(stocking_test, NothingIsUndoneFromAnotherPageOrTab) {
    open_two_fields();
    module.livestock().enter_number(0, "50");
    module.turn_to(stock_tab::livestock);  // where it is
    EXPECT_TRUE(module.history().record());
    EXPECT_TRUE(module.history().can_undo());
    module.turn_to(stock_tab::stocking);
    EXPECT_EQ(module.history().undo(), nullptr);
    EXPECT_EQ(livestock(lu::number), "50");
    module.stocking().enter_use(0, "Grazing");
    module.back();
    EXPECT_EQ(module.history().undo(), nullptr);
    site().erase_row(0);
    module.to_stock();
    EXPECT_EQ(module.history().undo(), nullptr);
}

TEST_F(stocking_test, ContinueTellsTheAverageRateAndTurnsToTheStocking) {
    open_two_fields();
    module.livestock().enter_type(1, "Horses");
    module.livestock().enter_number(1, "10");
    module.livestock().enter_time(1, "100");
    expect_save_to(state.assess_file);
    person.expect(text::average_stocking_rate("3.6"));
    module.cmdLU_continue();
    EXPECT_EQ(module.tab(), stock_tab::stocking);
    EXPECT_EQ(column_of(state.assess_file, "LU", "Livestock Units"), (texts{"100", "8"}));
    EXPECT_EQ(module.stocking().click(0, su::area).box, box_id());
}

TEST_F(stocking_test, ContinueWithoutStockOrFieldsOnlySaves) {
    open({{"Low Park", "10"}});
    site().enter_field(0, "Low Park");
    module.to_stock();
    expect_save_to(state.assess_file);
    module.cmdLU_continue();
    EXPECT_EQ(module.tab(), stock_tab::livestock);
    module.back();
    site().erase_row(0);
    module.to_stock();
    module.livestock().enter_type(0, "Horses");
    expect_save_to(state.assess_file);
    module.cmdLU_continue();
    EXPECT_EQ(module.tab(), stock_tab::livestock);
    expect_save_to("");
    module.cmdLU_continue();
}

// The worked farm: 100 LU, 60 of them grazed, the rest from 10 ha of silage.
TEST_F(stocking_test, ContinueOfTheStockingFillsTheSilageTable) {
    open_two_fields();
    stocking_page& page = module.stocking();
    page.enter_use(0, "Grazing");
    page.enter_type(0, su::first_group, "Dairy cows");
    page.enter_number(0, su::first_group + 1, "60");
    page.enter_time(0, su::first_group + 2, "100");
    expect_save_to(state.assess_file);
    module.cmdSU_continue();
    EXPECT_EQ(module.page(), grass_page::silage);
    EXPECT_EQ(silage(0, silage_column::lus_fed_by_grazing), "60.00");
    EXPECT_EQ(silage(1, silage_column::lus_fed_from_silage), "40.00");
    EXPECT_EQ(silage(1, silage_column::lus_per_ha), "4.00");
    EXPECT_EQ(silage(1, silage_column::n_kg_per_ha), "371");  // class 2: 4 x 214.88 - 488.43
    EXPECT_EQ(silage(1, silage_column::notes), "3 cuts");
    expect_save_to(state.assess_file);
    EXPECT_TRUE(module.cmdGrass_rec_save());
    EXPECT_EQ(site_column_texts("Silage Rate"), (texts{"3.00", "4.00"}));
    module.back();
    EXPECT_EQ(stocking(1, su::silage_rate), "4.00");
    module.back();
    module.to_stock();
    EXPECT_EQ(stocking(1, su::silage_rate), "4.00");
}

TEST_F(stocking_test, AnUnknownStockTypeTakesTheRatioWorkedWithLast) {
    open_two_fields();
    stocking_page& page = module.stocking();
    page.enter_use(0, "Grazing");
    page.enter_type(0, su::first_group, "Llamas");
    page.enter_number(0, su::first_group + 1, "10");
    page.enter_time(0, su::first_group + 2, "100");
    page.enter_type(0, su::first_group + 3, "Dairy bulls");
    module.livestock().enter_type(0, "Horses");
    for (const char* grazed : {"8.00", "6.50"}) {
        expect_save_to(state.assess_file);
        module.cmdSU_continue();
        EXPECT_EQ(silage(0, silage_column::lus_fed_by_grazing), grazed);
    }
}

TEST_F(stocking_test, FieldsWithoutAnAreaAreNamedInOneMessage) {
    open_farm({{"Nook", ""}, {"Bog", "0"}, {"Haugh", "10"}});
    add_site("Nook", {{"Site Use", "Grazing"}});
    add_site("Bog", {{"Site Use", "Grazing"}});
    add_site("Haugh", {{"Site Use", "Grazing"}});
    load();
    module.to_stock();
    expect_save_to(state.assess_file);
    person.expect(text::no_area("Nook, Bog"));
    module.cmdSU_continue();
    EXPECT_EQ(silage(0, silage_column::lus_per_ha), "");
    EXPECT_EQ(silage(2, silage_column::lus_per_ha), "0.00");
}

TEST_F(stocking_test, FeedMovesBetweenTwoDifferentSilageFields) {
    open_two_fields();
    module.confirm_altitude(1);  // class 3
    module.to_stock();
    expect_save_to(state.assess_file);
    module.cmdSU_continue();
    silage_page& page = module.silage();
    page.vary();
    EXPECT_EQ(page.silage_fields(), (texts{"Low Park", "Haugh"}));
    person.expect(text::no_decrease).expect(text::no_increase).expect(text::same_area);
    EXPECT_FALSE(page.make_alteration("", ""));
    EXPECT_FALSE(page.make_alteration("Haugh", ""));
    EXPECT_FALSE(page.make_alteration("Haugh", "Haugh"));
    EXPECT_TRUE(page.make_alteration("Haugh", "Low Park"));
    EXPECT_EQ(silage(0, silage_column::lus_fed_from_silage), "66.77");
    EXPECT_EQ(silage(1, silage_column::lus_fed_from_silage), "33.23");
    EXPECT_EQ(silage(1, silage_column::lus_per_ha), "3.32");
    EXPECT_EQ(silage(1, silage_column::n_kg_per_ha), "330");
    EXPECT_TRUE(page.varying());
    module.back();
    EXPECT_FALSE(page.varying());
}

TEST_F(stocking_test, AnotherDatabaseIsMergedOrTakesThePlaceOfTheTables) {
    open_two_fields();
    const std::string other = make_farm("other.kel", {}, 2024);
    for (const char* field : {"Haugh", "Nook", "Wester"})
        add_row(other, "Site", {{"Field Area ID", field}, {"Site Use", "Grazing"}, {"Soil Type", "Sands"}});
    for (const char* units : {"8", "2"})
        add_row(other, "LU", {{"Stock Type", "Horses"}, {"Livestock Units", units}});
    add_row(state.assess_file, "Field Data", {{"Field Name", "Nook"}, {"Size", "3"}});
    load();
    module.to_stock();
    person.expect(text::no_value);
    module.enter_change_database("");
    person.expect_file("Add data from another assessment", other);
    person.expect(module_messages::field_does_not_exist("Wester"));
    EXPECT_TRUE(module.enter_change_database("Merge").closes);
    EXPECT_EQ(module.stocking().table().row_count(), 3);
    EXPECT_EQ(stocking(1, su::use), "Silage");
    EXPECT_EQ(stocking(2, su::field) + stocking(2, su::area) + stocking(2, su::site_class), "Nook33");
    EXPECT_EQ(livestock(lu::units, 1) + livestock(lu::units, 2), "82");
    person.expect_file("Replace with data from another assessment", "");
    EXPECT_FALSE(module.enter_change_database("Overwrite").closes);
    person.expect_file("Replace with data from another assessment", other);
    person.expect(module_messages::field_does_not_exist("Wester"));
    module.enter_change_database("Overwrite");
    EXPECT_EQ(module.stocking().table().row_count(), 2);
    EXPECT_EQ(livestock(lu::type), "Horses");
    const std::string strange = make_farm("strange.kel", {}, 2024);
    add_row(strange, "Site", {{"Field Area ID", "Wester"}});
    person.expect_file("Replace with data from another assessment", strange);
    person.expect(module_messages::field_does_not_exist("Wester"));
    EXPECT_TRUE(module.enter_change_database("Overwrite").closes);
    EXPECT_EQ(module.stocking().table().row_count(), 0);
    EXPECT_EQ(livestock(lu::type), "Horses");  // its table of livestock is empty
    module.enter_change_database("New assessment");
    EXPECT_EQ(module.stocking().table().row_count(), 0);
    EXPECT_EQ(module.livestock().table().row_count(), 1);
    EXPECT_EQ(site_column_texts("Field Area ID"), (texts{"Low Park", "Haugh"}));
}

}  // namespace kel::test
