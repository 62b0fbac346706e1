// The opening questions, the entries of the site table with the order of their tests, and the results.
#include <filesystem>

#include "core/module_messages.h"
#include "grass/site_class.h"
#include "rules/crop_catalogue.h"
#include "tests/grass/grass_fixture.h"

namespace kel::test {

namespace text = grass_messages;
namespace col = site_column;

TEST_F(grass_test, OpeningAnswersComeFromThisYearThenLastYearThenTheClimate) {
    open_farm({{"Low Park", "10"}});
    module.grass_load_stuff();
    const database climate(state.places.climate_tables());
    const auto of_climate = rain_level_of(apr_to_sep_rain_mm(climate).value()).rain_class - 1;
    EXPECT_EQ(module.rain_answer(), of_climate);
    EXPECT_EQ(module.altitude_answer(), std::nullopt);

    state.prev1_file = make_farm("last.kel", {{"Low Park", "10"}}, 2023);
    add_row(state.prev1_file, "Grass_data", {{"Apr-Sep Rain", "<350"}, {"Altitude", "High"}});
    module.grass_load_stuff();
    EXPECT_EQ(module.rain_answer(), 3);
    EXPECT_EQ(module.altitude_answer(), 1);

    add_row(state.assess_file, "Grass_data", {{"Apr-Sep Rain", "425 - 500"}, {"Altitude", "sea level"}});
    module.grass_load_stuff();
    EXPECT_EQ(module.rain_answer(), 1);
    EXPECT_EQ(module.altitude_answer(), 1);
}

TEST_F(grass_test, AnswersAreStoredAsTheyAreConfirmedAndSetTheSiteClasses) {
    open_farm({{"Low Park", "10", "Sands"}});
    add_site("Low Park", {{"Site Class", "9"}});
    module.grass_load_stuff();
    person.expect(text::no_value);
    EXPECT_FALSE(module.confirm_rain(std::nullopt));
    EXPECT_TRUE(module.confirm_rain(0));
    EXPECT_EQ(module.instruction(), text::altitude_instruction);
    EXPECT_TRUE(module.confirm_altitude(1));
    EXPECT_EQ(module.page(), grass_page::site);
    EXPECT_EQ(cell(0, col::site_class), "2");
    EXPECT_EQ(column_of(state.assess_file, "Grass_data", "Apr-Sep Rain"), texts{">500"});
    module.back();
    EXPECT_TRUE(module.confirm_rain(3));
    EXPECT_TRUE(module.confirm_altitude(1));
    EXPECT_EQ(column_of(state.assess_file, "Grass_data", "Apr-Sep Rain"), texts{"<350"});
    EXPECT_EQ(column_of(state.assess_file, "Grass_data", "Altitude"), texts{"High"});
    EXPECT_EQ(cell(0, col::site_class), "4");
}

TEST_F(grass_test, AFieldIsTestedInOrder) {
    open({{"Low Park", "10", "Sands"}, {"Haugh", "4.5"}, {"Nook", "2"}});
    person.expect(text::no_field_id);
    EXPECT_FALSE(site().enter_field(0, "").closes);
    EXPECT_TRUE(site().enter_field(0, "Haugh").closes);
    EXPECT_EQ(site().table().row_count(), 2);
    // A crop recommendation is told before the row that the field already has.
    add_row(state.assess_file, "Crops", {{"Field Area ID", "Haugh"}});
    person.expect(text::crop_recommended);
    EXPECT_FALSE(site().enter_field(1, "Haugh").closes);
    EXPECT_TRUE(site().enter_field(1, "Low Park").closes);
    person.expect(module_messages::field_in_grid);
    EXPECT_FALSE(site().enter_field(2, "Low Park").closes);
    EXPECT_TRUE(site().enter_field(1, "Low Park").closes);
    EXPECT_EQ(cell(1, col::soil), "Sands");
    EXPECT_EQ(cell(1, col::site_class), "3");
    EXPECT_EQ(cell(1, col::area), "10");
    EXPECT_EQ(cell(2, col::field), "");
}

TEST_F(grass_test, AFieldThatIsChosenAgainHasItsGroupsStill) {
    open({{"Low Park", "10"}, {"Haugh", "4"}});
    site().enter_field(0, "Low Park");
    module.to_stock();
    module.stocking().enter_use(0, "Grazing");
    module.stocking().enter_number(0, stocking_column::first_group + 1, "50");
    module.back();
    site().clear_field(0);
    site().enter_field(0, "Low Park");
    EXPECT_EQ(cell(0, col::first_group + 1), "50");
    site().clear_field(0);
    site().enter_field(0, "Haugh");
    EXPECT_EQ(cell(0, col::first_group + 1) + cell(0, col::area), "4");
}

TEST_F(grass_test, AFieldThatIsNotInGrassIsAskedAbout) {
    open({{"Low Park", "10"}});
    state.prev1_file = make_farm("last.kel", {{"Low Park", "10"}}, 2023);
    add_row(state.assess_file, "Land", {{"Field Area ID", "Low Park"}, {"Crop", "Other / Grass"}});
    add_row(state.prev1_file, "Land", {{"Field Area ID", "Low Park"}, {"Crop", "Grass / Autumn sown crop"}});
    const auto members_of = [](std::string_view type) {
        const auto members = crop_type_members(type);
        return texts{members.begin(), members.end()};
    };
    person.expect(text::not_grass("Other"), answer::no);
    person.expect_list({"Other crop types include the following crops: ", std::string(text::members_note),
                        members_of("Other")});
    EXPECT_EQ(site().enter_field(0, "Low Park"), box_stays());
    const titled_list review{
        "You should review step 2 for this field and confirm the crop type is correct. Other includes: ", "",
        members_of("Other")};
    person.expect(text::not_grass("Other"), answer::yes).expect_list(review);
    person.expect(text::not_grass_last_year("Autumn sown crop"), answer::no);
    EXPECT_EQ(site().enter_field(0, "Low Park"), box_stays());
    EXPECT_EQ(cell(0, col::field), "");
    person.expect(text::not_grass("Other"), answer::yes).expect_list(review);
    person.expect(text::not_grass_last_year("Autumn sown crop"), answer::yes).expect(text::review_last_year);
    EXPECT_TRUE(site().enter_field(0, "Low Park").closes);
    EXPECT_EQ(cell(0, col::field), "Low Park");
}

TEST_F(grass_test, ThePreviousSwardBringsItsGroupAndTheEndOfItsSeason) {
    open({{"Low Park", "10"}});
    const opening box = site().click(0, col::previous);
    EXPECT_EQ(box.parts[0].choices.size(), 11U);
    EXPECT_EQ(box.parts[1].text, "31/10/2024");
    person.expect(text::no_previous_crop);
    EXPECT_FALSE(site().enter_previous(0, sward("", make_date(1, 1, 2020))).closes);
    person.expect(text::season_not_in_year(2024));
    EXPECT_EQ(site().enter_previous(0, sward("Rough grazing", make_date(5, 10, 2025))),
              box_stays(1, {{1, "05/10/2024"}}));
    EXPECT_TRUE(site().enter_previous(0, sward("Rough grazing", make_date(5, 10, 2024))).closes);
    EXPECT_EQ(cell(0, col::previous), "RGR");
    EXPECT_EQ(cell(0, col::residue_group), "1");
    EXPECT_EQ(cell(0, col::season_end), "05/10/2024");
    EXPECT_EQ(site().click(0, col::previous).parts[0].text, "Rough grazing");
}

// What follows from clover and use: which questions are asked, and what columns 6 to 9 hold.
TEST_F(grass_test, CloverAndUseLeadToTheirQuestions) {
    open({{"Low Park", "10"}});
    const struct {
        const char* clover;
        const char* use;
        const char* cuts;          // answered; null: not asked
        const char* applications;  // answered; null: not asked
        texts cells;               // columns 6 to 9
    } swards[] = {
        {"High", "Hay", nullptr, nullptr, {"Hay", "1", "1", "0"}},
        {"High", "Grazing", nullptr, "2", {"Grazing", "-", "2", "10"}},
        {"Low", "Silage", "2", "0", {"Silage", "2", "0", "-25"}},
        {"Low", "Silage", "3", nullptr, {"Silage", "3", "0", "50"}},
        {"Low", "Hay", "1", "5", {"Hay", "1", "5", "5"}},
        {"Low", "Grazing", nullptr, "4", {"Grazing", "-", "4", "-30"}},
    };
    for (const auto& s : swards) {
        outcome step = site().enter_clover(0, s.clover);
        ASSERT_EQ(step.next.value().box, box_id(site_box::use));
        step = site().enter_use(0, s.use);
        if (s.cuts) {
            ASSERT_EQ(step.next.value().box, box_id(site_box::cuts)) << s.use;
            step = site().enter_cuts(0, s.cuts);
        }
        if (s.applications) {
            const auto box = s.clover == std::string("High") ? site_box::after_high : site_box::after_low;
            ASSERT_EQ(step.next.value().box, box_id(box)) << s.use;
            step = site().enter_applications(0, s.applications);
        }
        EXPECT_EQ(step, box_closes()) << s.clover << s.use;
        for (int c = col::use; c <= col::adjustment; ++c)
            EXPECT_EQ(cell(0, c), s.cells[static_cast<std::size_t>(c - col::use)]) << s.clover << s.use << c;
    }
    EXPECT_EQ(site().table().row_count(), 2);
    person.expect(text::no_value).expect(text::no_value);
    EXPECT_FALSE(site().enter_cuts(0, "").closes);
    EXPECT_FALSE(site().enter_applications(0, "").closes);
}

TEST_F(grass_test, CutsOpenOnTheStoredNumberOrOnTheUsualOne) {
    open({{"Low Park", "10"}});
    site().enter_clover(0, "Low");
    EXPECT_EQ(site().enter_use(0, "Silage").next.value().parts[0].text, "1");
    site().enter_cuts(0, "2");
    EXPECT_EQ(site().enter_use(0, "Silage").next.value().parts[0].text, "2");
    site().enter_use(0, "Grazing");
    EXPECT_EQ(site().enter_use(0, "Silage").next.value().parts[0].text, "1");
}

TEST_F(grass_test, WithoutReferenceTablesTheCellsStayAndTheFileIsNamed) {
    open({{"Low Park", "10"}});
    site().enter_clover(0, "Low");
    site().enter_use(0, "Grazing");
    state.places.program_folder = path("nowhere");
    EXPECT_THROW(site().enter_applications(0, "1"), file_error);
    EXPECT_EQ(cell(0, col::applications), "");
    site().erase_row(0);
    EXPECT_THROW(module.calculate(), file_error);
    EXPECT_EQ(module.page(), grass_page::site);
}

TEST_F(grass_test, ManuresAreTransferredFromTheStoredApplications) {
    open({{"Low Park", "10"}});
    state.prev1_file = make_farm("last.kel", {{"Low Park", "10"}}, 2023);
    const auto apply = [](const std::string& file, const char* day, const char* now, const char* next) {
        add_row(file, "Manure_applic",
                {{"Field Area ID", "Low Park"},
                 {"Date", day},
                 {"Available N Rate", now},
                 {"Available N Rate Next", next}});
    };
    apply(state.assess_file, "2025-03-01", "30.125", "9");
    apply(state.assess_file, "2025-11-15", "100", "9");  // after the season's end one year on
    apply(state.prev1_file, "2024-11-01", "4", "50");
    apply(state.prev1_file, "2024-03-01", "200", "7.5");
    site().enter_field(0, "Low Park");
    person.expect(text::season_end_unknown);
    EXPECT_EQ(site().transfer_manure(0, col::manure_current), box_stays());
    site().enter_previous(0, sward("Permanent grass", make_date(15, 10, 2024)));
    EXPECT_EQ(site().transfer_manure(0, col::manure_current), box_stays(0, {{0, "34.12"}}));
    EXPECT_EQ(site().transfer_manure(0, col::manure_previous), box_stays(0, {{0, "7.5"}}));
    EXPECT_EQ(cell(0, col::manure_current), "");
    site().enter_manure(0, col::manure_current, "34.12");
    EXPECT_EQ(cell(0, col::manure_current), "34.12");
}

TEST_F(grass_test, TheManureModuleOpensForThisOrForLastYear) {
    open({{"Low Park", "10"}});
    person.expect(text::no_linked_file);
    EXPECT_EQ(site().open_manures(0, col::manure_previous), box_stays());
    EXPECT_TRUE(shown.opened.empty());
    EXPECT_FALSE(site().open_manures(0, col::manure_current).closes);
    EXPECT_EQ(state.manure_caller, manure_opener::new_grass);
    state.prev1_file = make_farm("last.kel", {}, 2023);
    site().open_manures(0, col::manure_previous);
    EXPECT_EQ(state.manure_caller, manure_opener::old_grass);
    EXPECT_EQ(shown.opened.back(), std::pair(screen_id::grass, screen_id::manure));
}

TEST_F(grass_test, ARowWithoutAFieldHasNoClassAndTheLastRowStays) {
    open_farm({{"Low Park", "10"}});
    add_site("Low Park");
    load();
    site().clear_field(0);
    site().set_site_classes();
    EXPECT_EQ(cell(0, col::field) + cell(0, col::soil) + cell(0, col::site_class), "");
    person.expect(module_messages::cannot_delete);
    EXPECT_FALSE(site().erase_row(1).closes);
    EXPECT_TRUE(site().erase_row(0).closes);
    EXPECT_EQ(site().table().row_count(), 1);
}

TEST_F(grass_test, CalculateStopsAtTheFirstRowThatLacksSomething) {
    open_farm({{"Low Park", "10"}, {"Haugh", "4"}});
    add_site("Low Park");
    add_site("Haugh", {{"Clover", ""}, {"N residue group", ""}});
    load();
    person.expect(text::no_clover("Haugh"));
    module.calculate();
    EXPECT_EQ(module.page(), grass_page::site);
    EXPECT_EQ(site().results().row_count(), 0);
    site().enter_clover(1, "High");
    site().enter_use(1, "Hay");
    person.expect(text::no_residue_group("Haugh"));
    module.calculate();
    site().enter_previous(1, sward("Permanent grass", make_date(15, 10, 2024)));
    site().clear_field(1);
    person.expect(text::no_site_class(""));
    module.calculate();
}

TEST_F(grass_test, LeavingTheResultsStoresTheRecommendations) {
    open_farm({{"Low Park", "10"}, {"Haugh", "4"}});
    add_site("Low Park", {{"Manure current", "20.25"}});
    add_row(state.assess_file, "Recommendations", {{"Field Area ID", "Low Park"}, {"N required", "1"}});
    add_row(state.assess_file, "Recommendations", {{"Field Area ID", "Haugh"}, {"N required", "2"}});
    load();
    module.calculate();
    EXPECT_EQ(module.instruction(), text::results_instruction);
    EXPECT_EQ(site().results().cell(0, grass_result_column::to_be_applied), "89.8");
    EXPECT_EQ(column_of(state.assess_file, "Recommendations", "N required"), (texts{"1", "2"}));
    module.back();
    EXPECT_EQ(column_of(state.assess_file, "Recommendations", "N required"), (texts{"2", "89.8"}));
    module.calculate();
    load();
    EXPECT_EQ(site().results().row_count(), 0);
    site().enter_manure(0, col::manure_current, "0");
    person.expect(module_messages::close_the_module, answer::no);
    EXPECT_FALSE(module.close());
    module.calculate();
    person.expect(module_messages::close_the_module, answer::yes);
    EXPECT_TRUE(module.close());
    EXPECT_EQ(column_of(state.assess_file, "Recommendations", "N required"), (texts{"2", "110"}));
}

TEST_F(grass_test, AFileThatCannotBeWrittenDoesNotHoldThePersonInTheResults) {
    open_farm({{"Low Park", "10"}});
    add_site("Low Park");
    load();
    module.calculate();
    std::filesystem::remove(state.assess_file);
    person.expect(module_messages::close_the_module, answer::yes);
    EXPECT_THROW(module.close(), file_error);
    EXPECT_EQ(module.page(), grass_page::site);
    EXPECT_EQ(site().results().row_count(), 0);  // no report of rows that the site table may lose
    person.expect(module_messages::close_the_module, answer::yes);
    EXPECT_TRUE(module.close());
}

}  // namespace kel::test
