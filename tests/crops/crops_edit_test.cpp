// The steps of a row: their tests in order, what they write and what they leave alone.
#include "tests/crops/crops_fixture.h"

namespace kel::test {

namespace {

const date harvest = make_date(31, 7, 2025);
const date sown = make_date(1, 10, 2024);
const date previous_harvest = make_date(31, 7, 2024);

class CropSteps : public crops_test {
  protected:
    void SetUp() override {
        open({{"North", "5", "Sandy loams"}, {"South", "6", "Peaty soils"}, {"East", "7", "Humose soils"}},
             wet_winter);
    }
    void add_use(const std::string& file, const std::string& pair) {
        add_row(file, "Land", {{"Field Area ID", "North"}, {"Crop", pair}});
    }
};

}  // namespace

TEST_F(CropSteps, FieldIsRefusedInOrderAndTakesItsSoil) {
    add_row(state.assess_file, "Site", {{"Field Area ID", "South"}});
    person.expect(module_messages::no_field_id);
    EXPECT_FALSE(module.enter_field(0, "").closes);
    EXPECT_TRUE(module.enter_field(0, "North").closes);
    EXPECT_EQ(cell(0, col::soil), "Sandy loams");
    EXPECT_EQ(module.crops().row_count(), 2);
    person.expect(module_messages::field_in_grid);
    EXPECT_FALSE(module.enter_field(1, "North").closes);
    // A field of both the grid and the grass sites: the sites are told first.
    add_row(state.assess_file, "Site", {{"Field Area ID", "North"}});
    person.expect(says::grass_recommendation_exists);
    EXPECT_FALSE(module.enter_field(1, "North").closes);
    person.expect(says::grass_recommendation_exists);
    EXPECT_FALSE(module.enter_field(1, "South").closes);
    EXPECT_EQ(cells(1, col::field, col::soil), (texts{"", ""}));
    EXPECT_EQ(module.crops().row_count(), 2);
}

TEST_F(CropSteps, PreviousCropIsRefusedInOrder) {
    add_crop(0, "North", "Kale", "Winter wheat");
    const auto enter = [&](const std::string& name, date day) {
        return module.enter_previous_crop(0, entry(name, day));
    };
    person.expect(says::no_previous_crop);
    EXPECT_EQ(enter("", make_date(1, 1, 2027)), box_stays());
    // Behind the year as well as behind the next harvest: the year first, and the box goes back to its start.
    person.expect(says::previous_harvest_after_year);
    EXPECT_EQ(enter("Kale", make_date(20, 12, 2025)), box_stays(1, {{1, "20/12/2024"}}));
    person.expect(says::previous_harvest_after_harvest);
    EXPECT_EQ(enter("Kale", make_date(19, 12, 2025)), box_stays(1));
    EXPECT_EQ(cells(0, col::previous_crop, col::residue_group), (texts{"WW", "1"}));
    EXPECT_TRUE(enter("Kale", harvest).closes);
    EXPECT_EQ(cells(0, col::previous_crop, col::residue_group), (texts{"K", "5"}));
    EXPECT_EQ(cell(0, col::previous_harvest), "31/07/2025");
    EXPECT_EQ(cell(0, col::winter_rain), "20");
}

TEST_F(CropSteps, PlannedCropIsRefusedInOrder) {
    ASSERT_TRUE(follow(0, "Winter wheat").closes);
    const auto enter = [&](const std::string& name, date cut, date seed) {
        return module.enter_planned_crop(0, entry(name, cut, seed));
    };
    person.expect(says::no_crop);
    EXPECT_EQ(enter("Grass", make_date(1, 1, 2020), sown), box_stays());
    person.expect(says::harvest_before_year);
    EXPECT_EQ(enter("Kale", make_date(18, 12, 2024), make_date(1, 1, 2030)),
              box_stays(1, {{1, "18/12/2025"}}));
    person.expect(says::harvest_before_year);
    EXPECT_EQ(enter("Kale", make_date(29, 2, 2024), sown), box_stays(1, {{1, "28/02/2025"}}));
    person.expect(says::sowing_after_harvest);
    EXPECT_EQ(enter("Kale", make_date(1, 3, 2025), make_date(2, 3, 2025)), box_stays(2, {{2, "28/02/2025"}}));
    ASSERT_TRUE(module.enter_previous_crop(0, entry("Kale", make_date(2, 8, 2025))).closes);
    person.expect(says::harvest_before_previous_harvest);
    EXPECT_EQ(enter("Kale", make_date(1, 8, 2025), sown), box_stays(1));
    EXPECT_EQ(cells(0, col::harvest, col::sowing), (texts{"", ""}));
    EXPECT_EQ(cell(0, col::planned_crop), "");
    EXPECT_TRUE(enter("Kale", make_date(2, 8, 2025), make_date(2, 8, 2025)).closes);
    EXPECT_EQ(cells(0, col::planned_crop, col::previous_crop), (texts{"K", "K"}));
    EXPECT_EQ(cells(0, col::harvest, col::sowing), (texts{"02/08/2025", "02/08/2025"}));
}

TEST_F(CropSteps, DatesAreOfferedFromTheRowAndElseFromTheYear) {
    const auto days = [&](int column, int row = 0) {
        const opening box = module.click(row, column);
        texts found;
        for (std::size_t part = 1; part < box.parts.size(); ++part)
            found.push_back(box.parts[part].text);
        return found;
    };
    EXPECT_EQ(days(col::previous_crop), (texts{"31/07/2024"}));
    EXPECT_EQ(days(col::planned_crop).front(), "31/07/2025");
    add_crop(0, "North", "Kale", "Winter wheat");
    EXPECT_EQ(days(col::planned_crop), (texts{"31/07/2025", "01/10/2024"}));
    // The sowing date of a new row is the one that was entered last.
    module.enter_planned_crop(0, entry("Kale", harvest, make_date(5, 9, 2024)));
    EXPECT_EQ(days(col::planned_crop, 1), (texts{"31/07/2025", "05/09/2024"}));
    EXPECT_EQ(module.click(0, col::planned_crop).parts.front().text, "Kale");
    EXPECT_EQ(module.click(0, col::previous_crop).parts.front().text, "Winter wheat");
}

TEST_F(CropSteps, ACropOfAnotherTypeThanStepTwoHasIsAskedAboutAndListed) {
    ASSERT_TRUE(module.enter_field(0, "North").closes);
    add_use(state.assess_file, "Grass / Other");
    person.expect(says::planned_crop_mismatch("Kale", "Grass"), answer::no)
        .expect_list(says::planned_crops_of_type("Grass"))
        .expect(says::grass_recommendations);
    EXPECT_EQ(plan(0, "Kale"), box_stays());
    EXPECT_EQ(cell(0, col::planned_crop), "");
    person.expect(says::planned_crop_mismatch("Kale", "Grass"), answer::yes)
        .expect_list(says::review_this_year("Grass"))
        .expect(says::grass_recommendations);
    EXPECT_TRUE(plan(0, "Kale").closes);
    EXPECT_EQ(cell(0, col::planned_crop), "K");
    // Without a linked year nothing is asked about the crop before.
    EXPECT_TRUE(follow(0, "Kale").closes);
    state.prev1_file = make_farm("last.kel", {{"North", "5"}}, 2023);
    EXPECT_TRUE(follow(0, "Kale").closes);
    add_use(state.prev1_file, "Autumn sown crop / Grass");
    person.expect(says::previous_crop_mismatch("Beans", "Autumn sown crop"), answer::no)
        .expect_list(says::previous_crops_of_type("Autumn sown crop"));
    EXPECT_EQ(follow(0, "Beans"), box_stays());
    EXPECT_EQ(cell(0, col::previous_crop), "K");
    person.expect(says::previous_crop_mismatch("Beans", "Autumn sown crop"), answer::yes)
        .expect_list(says::review_last_year("Autumn sown crop"));
    EXPECT_TRUE(follow(0, "Beans").closes);
    EXPECT_TRUE(follow(0, "Winter wheat").closes);
}

TEST_F(CropSteps, ChoosingACropAgainWipesItsAnswersButNotItsManures) {
    add_crop(0, "North", "Winter wheat", "Kale");
    module.enter_answer(0, chosen(1));
    module.enter_answer(0, chosen(0));
    module.enter_answer(0, chosen(0));
    EXPECT_EQ(cells(0, col::notes_ww, col::spring_status),
              (texts{"breadmaking", "", "30", "", "", "20", "", "", "", "20", "10", "", "High"}));
    module.enter_manures(0, col::manures, "40");
    module.enter_manures(0, col::previous_manures, "10");
    plan(0, "Carrots");
    EXPECT_EQ(cells(0, col::planned_crop, col::spring_status),
              (texts{"C", "K", "5", "", "", "", "", "", "", "", "40", "10", "10", "0", "", ""}));
}

TEST_F(CropSteps, ClearingACellEmptiesWhatHangsOnIt) {
    add_crop(0, "North", "Winter wheat", "Kale");
    module.enter_answer(0, chosen(1));
    module.clear_previous_crop(0);
    EXPECT_EQ(
        cells(0, col::field, col::spring_status),
        (texts{"North", "Sandy loams", "WW", "", "", "", "", "30", "", "", "", "", "", "", "", "", "", ""}));
    follow(0, "Kale");
    module.enter_manures(0, col::manures, "40");
    module.clear_field(0);
    EXPECT_EQ(cells(0, col::field, col::notes_wb), (texts{"", "", "WW", "K", "5", "", ""}));
    EXPECT_EQ(cells(0, col::manures, col::spring_rain), (texts{"40", "", "", ""}));
    module.clear_planned_crop(0);
    EXPECT_EQ(cells(0, col::planned_crop, col::spring_status),
              (texts{"", "K", "5", "", "", "", "", "", "", "", "40", "", "", "", "", ""}));
    plan(0, "Potatoes");
    module.enter_answer(0, chosen(3));
    module.enter_answer(0, chosen(0));
    EXPECT_EQ(cell(0, col::variety), "10");
    module.clear_previous_crop(0);
    EXPECT_EQ(cell(0, col::variety), "");
    EXPECT_TRUE(module.erase_row(0).closes);
    person.expect(module_messages::cannot_delete);
    EXPECT_FALSE(module.erase_row(0).closes);
}

TEST_F(CropSteps, LowNMaltingBarleyIsTakenOutAtEachOfItsThreeMoments) {
    const std::string barley = "Spring barley (low N malting)";
    const auto emptied = [&](int row) {
        return cell(row, col::planned_crop).empty() && cell(row, col::manures).empty() &&
               cell(row, col::spring_status).empty();
    };
    // After the crop: its questions end at once.
    module.enter_field(0, "South");
    follow(0, "Winter wheat");
    module.enter_manures(0, col::manures, "40");
    person.expect(says::malting_on_soil);
    EXPECT_EQ(plan(0, barley), box_closes());
    EXPECT_TRUE(emptied(0));
    EXPECT_EQ(cell(0, col::harvest), "31/07/2025");
    // After a previous crop that leaves much.
    module.enter_field(0, "North");
    EXPECT_TRUE(plan(0, barley).next);
    module.enter_answer(0, chosen(0));
    person.expect(says::malting_after_crop);
    follow(0, "Beans");
    EXPECT_TRUE(emptied(0));
    EXPECT_EQ(cell(0, col::undersowing), "");
    EXPECT_EQ(cells(0, col::winter_rain, col::variety), (texts{"", "0", ""}));
    // For a field that is put into the row.
    follow(0, "Winter wheat");
    EXPECT_TRUE(plan(0, barley).next);
    person.expect(says::malting_on_soil);
    EXPECT_TRUE(module.enter_field(0, "East").closes);
    EXPECT_TRUE(emptied(0));
    // Where both are wrong, the crop before is told.
    follow(0, "Beans");
    person.expect(says::malting_after_crop);
    plan(0, barley);
}

}  // namespace kel::test
