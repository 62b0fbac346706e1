// Opening, loading and saving, the manures of a row, the results and the recommendations that they leave.
#include <algorithm>

#include "tests/crops/crops_fixture.h"

namespace kel::test {

namespace {

class CropFile : public crops_test {
  protected:
    void store_crop(const std::string& file, const row_values& values) { add_row(file, "Crops", values); }
    void store_manure(const std::string& file, const std::string& day, const std::string& now,
                      const std::string& next) {
        add_row(file, "Manure_applic",
                {{"Field Area ID", "North"},
                 {"Date", day},
                 {"Available N Rate", now},
                 {"Available N Rate Next", next}});
    }
    texts recommended() const {
        texts found = column_of(state.assess_file, "Recommendations", "Field Area ID");
        const texts n = column_of(state.assess_file, "Recommendations", "N required");
        for (std::size_t i = 0; i < found.size(); ++i)
            found[i] += ": " + n[i];
        return found;
    }
};

}  // namespace

TEST_F(CropFile, WinterRainIsThatOfTheTownUnlessOneIsStoredAndElseMustBeGiven) {
    open_farm({{"North", "5"}});
    const std::pair<std::string, std::optional<int>> towns[] = {
        {"Cupar", dry_winter}, {"Dumfries", wet_winter}, {"", std::nullopt}, {"Atlantis", std::nullopt}};
    for (const auto& [town, answer] : towns) {
        state.farm_town = town;
        module.open();
        EXPECT_EQ(module.winter_answer(), answer) << town;
    }
    person.expect(says::no_winter_answer);
    EXPECT_FALSE(module.enter_winter_rain(module.winter_answer()));
    EXPECT_EQ(module.phase(), crop_phase::winter_question);
    EXPECT_TRUE(module.close()) << "not asked";
    store_crop(state.assess_file, {{"Field Area ID", "Gone"}, {"Winter Rainfall Status", "Low"}});
    person.expect(module_messages::field_does_not_exist("Gone"));
    module.open();
    EXPECT_EQ(module.winter_answer(), dry_winter);
    EXPECT_TRUE(module.enter_winter_rain(wet_winter));
    EXPECT_EQ(module.phase(), crop_phase::table);
}

TEST_F(CropFile, WhatWasSavedComesBackWithoutItsResults) {
    open({{"North", "5", "Sands"}, {"South", "6", "Sands"}}, wet_winter);
    add_crop(0, "North", "Winter wheat", "Kale");
    for (int question = 0; question < 3; ++question)
        module.enter_answer(0, chosen(1));
    module.enter_manures(0, col::manures, "40");
    add_crop(1, "South", "Cabbage", "Leek (average yield - 17.5 t/ha)");
    ASSERT_TRUE(module.save());
    EXPECT_EQ(column_of(state.assess_file, "Crops", "Winter Rainfall Status"), (texts{"High", "High"}));
    EXPECT_EQ(column_of(state.assess_file, "Crops", "Hdate c_crop"), (texts{"2025-07-31", "2025-07-31"}));
    EXPECT_EQ(column_of(state.assess_file, "Crops", "Take-all Adjustment (kg/ha)"), (texts{"0", ""}));

    crop_module again(state, person, shown);
    again.open();
    EXPECT_EQ(again.winter_answer(), wet_winter);
    again.enter_winter_rain(wet_winter);
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < col::winter_status; ++column)
            EXPECT_EQ(again.crops().cell(row, column), cell(row, column)) << row << " " << column;
    EXPECT_EQ(again.results().row_count(), 0);
    ASSERT_TRUE(again.save());
    EXPECT_EQ(column_of(state.assess_file, "Crops", "Field Area ID"), (texts{"North", "South"}));
}

TEST_F(CropFile, AnotherAssessmentBeginsAnewAndTheSameOneLoadsAgain) {
    open({{"North", "5"}});
    add_crop(0, "North", "Kale", "Beans");
    module.calculate();
    module.crop_load_stuff();
    EXPECT_EQ(module.phase(), crop_phase::table);
    EXPECT_EQ(module.crops().row_count(), 1);
    state.assess_file = make_farm("other.kel", {{"West", "5"}});
    ++state.assessment;
    state.kel_year_start = make_date(19, 12, 2025);
    module.crop_load_stuff();
    EXPECT_EQ(module.phase(), crop_phase::winter_question);
    EXPECT_EQ(module.click(0, col::planned_crop).parts.back().text, "01/10/2025");
}

// A row that the tables lack goes on from the row before it, but never from another farm's.
TEST_F(CropFile, AnotherAssessmentBringsNothingOfTheFiguresBefore) {
    open({{"North", "5"}});
    add_crop(0, "North", "Kale", "Beans");
    ASSERT_TRUE(module.calculate());
    ASSERT_NE(result(0)[crop_result_column::total], "0");
    state.assess_file = make_farm("other.kel", {{"West", "5"}});
    store_crop(state.assess_file,
               {{"Field Area ID", "West"}, {"Next Crop", "BULBS"}, {"Previous or Current Crop", "B"}});
    ++state.assessment;
    module.crop_load_stuff();
    module.enter_winter_rain(dry_winter);
    ASSERT_TRUE(module.calculate());
    EXPECT_EQ(result(0)[crop_result_column::total], "0");
}

TEST_F(CropFile, StoredCellsOfNoKnownMeaningAreTakenAsTheyStand) {
    open_farm({{"North", "5"}});
    store_crop(state.assess_file, {{"Field Area ID", "North"},
                                   {"Next Crop", "BULBS"},
                                   {"Previous or Current Crop", "??"},
                                   {"Hdate p_crop", "soon"},
                                   {"Manures Adjustment (kg/ha)", "12 or so"}});
    open_table(wet_winter);
    ASSERT_TRUE(module.calculate());
    EXPECT_EQ(result(0), (texts{"North", "0", "0", "0", "0", "12", ""}));
    module.back();
    person.expect(says::cannot_transfer);
    EXPECT_EQ(module.transfer(0, col::manures), box_stays());
    EXPECT_EQ(cell(0, col::previous_harvest), "soon");
}

TEST_F(CropFile, ManuresAreTransferredForTheDatesOfTheRow) {
    open({{"North", "5"}});
    module.enter_field(0, "North");
    plan(0, "Kale");
    person.expect(says::cannot_transfer);
    EXPECT_EQ(module.transfer(0, col::manures), box_stays());
    follow(0, "Beans");
    store_manure(state.assess_file, "2025-03-01", "20.126", "1");
    store_manure(state.assess_file, "2024-07-31", "100", "7.5");
    store_manure(state.assess_file, "2024-07-30", "100", "2.25");
    EXPECT_EQ(module.transfer(0, col::manures), box_stays(0, {{0, "20.13"}}));
    EXPECT_EQ(module.transfer(0, col::previous_manures), box_stays(0, {{0, "2.25"}}));
    EXPECT_EQ(cells(0, col::manures, col::previous_manures), (texts{"", ""}));
}

TEST_F(CropFile, CalculateWantsEveryCropThenEveryPreviousCrop) {
    open({{"North", "5"}, {"South", "6"}});
    module.enter_field(0, "North");
    module.enter_field(1, "South");
    plan(1, "Kale");
    person.expect(says::crop_missing);
    EXPECT_FALSE(module.calculate());
    plan(0, "Kale");
    follow(0, "Kale");
    person.expect(says::previous_crop_missing);
    EXPECT_FALSE(module.calculate());
    EXPECT_EQ(module.phase(), crop_phase::table);
    EXPECT_EQ(module.instruction(), says::default_instruction);
    follow(1, "Kale");
    EXPECT_TRUE(module.calculate());
    EXPECT_EQ(module.instruction(), says::results_instruction);
}

TEST_F(CropFile, ResultsHaveTheRainOfNowAndTheGuardSparesTheStoredMarket) {
    open_farm({{"North", "5", "Sands"}, {"South", "6", "Sands"}});
    store_crop(state.assess_file, {{"Field Area ID", "North"},
                                   {"Soil Type", "Sands"},
                                   {"Next Crop", "SB (low N)"},
                                   {"Previous or Current Crop", "WW"},
                                   {"N Residue Group", "1"},
                                   {"Intended Market Adjustment (kg/ha)", "7"},
                                   {"Undersowing Adjustment (kg/ha)", "-25"},
                                   {"Winter Rainfall Adjustment (kg/ha)", "90"},
                                   {"Spring Rainfall Adjustment (kg/ha)", "90"}});
    open_table(wet_winter);
    add_crop(1, "South", "Winter wheat", "Kale");
    module.enter_manures(1, col::manures, "40");
    module.enter_manures(1, col::previous_manures, "10.5");
    ASSERT_TRUE(module.calculate());
    EXPECT_EQ(result(0), (texts{"North", "112", "0", "112", "130", "0", ""}));
    EXPECT_EQ(result(1), (texts{"South", "109.5 - 79.5", "0", "109.5 - 79.5", "140 - 110", "50.5",
                                "A 33% / 67% split between the start of spring growth and growth stage 30-31 "
                                "is recommended."}));
    module.back();
    person.expect(says::malting_after_crop);
    follow(0, "Beans");
    EXPECT_EQ(cells(0, col::market, col::undersowing), (texts{"7", ""}));
}

TEST_F(CropFile, BackAndCloseStoreTheRecommendationsInView) {
    open({{"North", "5", "Sands"}, {"South", "6", "Sands"}});
    for (const auto& [field, n] : {std::pair{"South", "1"}, {"Grassy", "2"}, {"South", "3"}})
        add_row(state.assess_file, "Recommendations", {{"Field Area ID", field}, {"N required", n}});
    add_crop(0, "North", "Winter wheat", "Kale");
    add_crop(1, "South", "Winter oilseed rape", "Winter wheat");
    ASSERT_TRUE(module.calculate());
    EXPECT_EQ(recommended().size(), 3U);
    module.back();
    EXPECT_EQ(module.phase(), crop_phase::table);
    EXPECT_EQ(recommended(), (texts{"Grassy: 2", "North: 140 - 110", "South: 210"}));
    EXPECT_TRUE(column_of(state.assess_file, "Crops", "Field Area ID").empty());

    module.enter_manures(1, col::manures, "6");
    module.clear_field(0);
    ASSERT_TRUE(module.calculate());
    person.expect(module_messages::close_the_module, answer::no);
    EXPECT_FALSE(module.close());
    EXPECT_EQ(module.phase(), crop_phase::results);
    EXPECT_EQ(recommended(), (texts{"Grassy: 2", "North: 140 - 110", "South: 204"}));
}

TEST_F(CropFile, AFileThatCannotBeWrittenLeavesTheTableAndItsOldRows) {
    open({{"North", "5", "Sands"}});
    store_crop(state.assess_file, {{"Field Area ID", "North"}});
    add_crop(0, "North", "Carrots", "Winter wheat");
    ASSERT_TRUE(module.calculate());
    const std::string file = state.assess_file;
    state.assess_file = path("gone.kel");
    EXPECT_THROW(module.back(), file_error);
    EXPECT_EQ(module.phase(), crop_phase::table);
    EXPECT_THROW(module.save(), file_error);
    EXPECT_EQ(cell(0, col::planned_crop), "C");
    EXPECT_EQ(column_of(file, "Crops", "Next Crop"), (texts{""}));
    // A linked year that is no assessment: the box stays, and nothing is written.
    state.assess_file = file;
    state.prev1_file = path("last.kel");
    write_file(state.prev1_file, "");
    EXPECT_THROW(follow(0, "Beans"), file_error);
    EXPECT_EQ(cell(0, col::previous_crop), "WW");
}

TEST_F(CropFile, SaveAsksBeforeItWritesOverRowsChangedMeanwhile) {
    open({{"North", "5", "Sands"}});
    store_crop(state.assess_file, {{"Field Area ID", "North"}});
    person.expect(rows_changed_meanwhile(state.assess_file), answer::no);
    EXPECT_FALSE(module.save());
    EXPECT_EQ(column_of(state.assess_file, "Crops", "Field Area ID"), (texts{"North"}));
    person.expect(rows_changed_meanwhile(state.assess_file), answer::yes);
    EXPECT_TRUE(module.save());
    EXPECT_TRUE(column_of(state.assess_file, "Crops", "Field Area ID").empty());
}

TEST_F(CropFile, WithoutAnAssessmentSaveAsksForOne) {
    open({{"North", "5", "Sands"}});
    add_crop(0, "North", "Carrots", "Winter wheat");
    state.prev1_file = state.assess_file;
    state.assess_file.clear();
    person.expect_file("Save the assessment", state.prev1_file)
        .expect({"Cannot Save", "This is last years file and cannot be saved to at this time!"});
    EXPECT_FALSE(module.save());
    person.expect_file("Save the assessment", path("new.kel"));
    EXPECT_TRUE(module.save());
    EXPECT_EQ(column_of(path("new.kel"), "Crops", "Next Crop"), (texts{"C"}));
}

}  // namespace kel::test
