// How the farm's livestock units are shared between its fields, and feed moved between silage fields.
#include "grass/silage_plan.h"

#include <gtest/gtest.h>

#include "grass/stocking_requirement.h"

namespace kel::test {

namespace {

stocked_field silage(const char* name, const char* area_ha, const char* site_class = "3",
                     const char* rate = "") {
    return {
        .field = name, .area_ha = area_ha, .site_class = site_class, .use = "Silage", .silage_rate = rate};
}

stocked_field grazed(const char* name, const char* area_ha, std::vector<grazing_group> groups,
                     const char* use = "Grazing") {
    stocked_field field{.field = name, .area_ha = area_ha, .site_class = "1", .use = use};
    std::copy(groups.begin(), groups.end(), field.groups.begin());
    return field;
}

const grazing_group sixty_cows{"Dairy cows", "60", "100"};

std::vector<std::string> column(const silage_plan& plan, std::string silage_row::*cell) {
    std::vector<std::string> texts;
    for (const silage_row& row : plan.rows)
        texts.push_back(row.*cell);
    return texts;
}

using texts = std::vector<std::string>;

}  // namespace

TEST(StockingRequirement, FollowsTheLineOfClassAndUse) {
    EXPECT_EQ(grazing_requirement(1, 2), 25);
    EXPECT_EQ(grazing_requirement(1, 1), 0);
    EXPECT_EQ(silage_requirement(3, 3), 250);
    EXPECT_EQ(silage_requirement(3, 3.2F), 300);
    EXPECT_EQ(silage_requirement(3, 3.3F), 325);
    EXPECT_EQ(grazing_requirement(3, 2.5F), silage_requirement(5, 2.5F));
    EXPECT_FALSE(grazing_requirement(0, 2));
    EXPECT_FALSE(silage_requirement(6, 2));
}

TEST(StockingRequirement, CutsGoByWhatIsAbove) {
    EXPECT_EQ(cuts_note(300.01F), "3 cuts");
    EXPECT_EQ(cuts_note(300), "2 cuts");
    EXPECT_EQ(cuts_note(150), "1 cut");
    EXPECT_EQ(cuts_note(0.01F), "1 cut");
    EXPECT_FALSE(cuts_note(0));
}

TEST(SilageTable, WhatIsNotGrazedIsSpreadOverTheSilageFields) {
    const auto plan = fill_silage_table(
        {grazed("Low Park", "20", {sixty_cows}), silage("Long Rig", "10"), silage("Haugh", "10")}, 100);
    EXPECT_EQ(column(plan, &silage_row::lus_fed_by_grazing), (texts{"60.00", "", ""}));
    EXPECT_EQ(column(plan, &silage_row::lus_fed_from_silage), (texts{"", "20.00", "20.00"}));
    EXPECT_EQ(column(plan, &silage_row::lus_per_ha), (texts{"3.00", "2.00", "2.00"}));
    EXPECT_EQ(column(plan, &silage_row::n_kg_per_ha), (texts{"275", "0", "0"}));
    EXPECT_EQ(column(plan, &silage_row::notes), (texts{"", "", ""}));
}

TEST(SilageTable, StoredRatesGoFirstAndTheLastOneIsWorkedWith) {
    const auto plan = fill_silage_table({grazed("Low Park", "20", {sixty_cows}),
                                         silage("Long Rig", "10", "3", "3"), silage("Haugh", "10", "3", "1")},
                                        100);
    EXPECT_EQ(plan.lus_left_for_silage, 0);
    EXPECT_EQ(column(plan, &silage_row::lus_per_ha), (texts{"3.00", "3.00", "1.00"}));
    EXPECT_EQ(column(plan, &silage_row::lus_fed_from_silage), (texts{"", "10.00", "10.00"}));
    EXPECT_EQ(column(plan, &silage_row::n_kg_per_ha), (texts{"275", "250", "0"}));
    EXPECT_EQ(plan.rows[1].notes, "2 cuts");

    const auto rest = fill_silage_table({silage("Long Rig", "10", "3", "3"), silage("Haugh", "20")}, 100);
    EXPECT_EQ(column(rest, &silage_row::lus_per_ha), (texts{"3.00", "3.50"}));
    EXPECT_EQ(column(rest, &silage_row::lus_fed_from_silage), (texts{"35.00", "70.00"}));
}

TEST(SilageTable, AGrazedFieldShowsItsStoredRate) {
    auto field = grazed("Low Park", "20", {sixty_cows});
    field.silage_rate = "2.345";
    const auto plan = fill_silage_table({field}, 100);
    EXPECT_EQ(plan.rows[0].lus_per_ha, "2.35");
    EXPECT_EQ(plan.rows[0].lus_fed_by_grazing, "60.00");
}

TEST(SilageTable, MoreGrazedThanTheFarmHasLeavesANegativeRate) {
    const auto plan = fill_silage_table({grazed("Low Park", "20", {sixty_cows}), silage("Haugh", "10")}, 50);
    EXPECT_EQ(plan.lus_left_for_silage, -10);
    EXPECT_EQ(plan.rows[1].lus_per_ha, "-1.00");
    EXPECT_EQ(plan.rows[1].n_kg_per_ha, "0");
    EXPECT_EQ(fill_silage_table({grazed("Low Park", "20", {sixty_cows})}, 100).rows.size(), 1U);
}

TEST(SilageTable, GroupsOfAllTenCountAndAnUnknownTypeTakesTheRatioBefore) {
    const std::vector<grazing_group> ten(10, {"Horses", "10", "50"});
    EXPECT_EQ(fill_silage_table({grazed("Low Park", "20", ten)}, 0).rows[0].lus_fed_by_grazing, "40.00");
    const auto odd = fill_silage_table(
        {grazed("Low Park", "20",
                {{"Llamas", "9", "100"}, {"Horses", "10", "100"}, {"Llamas", "10", "100"}})},
        0);
    EXPECT_EQ(odd.rows[0].lus_fed_by_grazing, "16.00");
}

// Without a use a field counts as grazed but has no line: it repeats what stands above it, cut note and all.
TEST(SilageTable, AFieldWithoutAUseShowsTheRequirementAboveIt) {
    const auto plan =
        fill_silage_table({silage("Long Rig", "10", "3", "3"), grazed("Nook", "5", {sixty_cows}, ""),
                           grazed("Bog", "5", {}), silage("Haugh", "10", "7", "4")},
                          100);
    EXPECT_EQ(column(plan, &silage_row::n_kg_per_ha), (texts{"250", "250", "0", "0"}));
    EXPECT_EQ(column(plan, &silage_row::notes), (texts{"2 cuts", "2 cuts", "", ""}));
    EXPECT_EQ(plan.rows[1].lus_per_ha, "12.00");
}

// What has no figure of its own goes on from what was worked with last, also in the table before.
TEST(SilageTable, WhatWasWorkedWithLastStandsInTheNextTable) {
    const auto before = fill_silage_table(
        {grazed("Low Park", "20", {{"Horses", "10", "100"}}), silage("Haugh", "10", "3", "3")}, 100);
    const auto plan = fill_silage_table({grazed("Nook", "10", {{"Llamas", "10", "100"}}, ""),
                                         silage("Bog", "0", "7"), silage("Fen", "", "9e9")},
                                        100, before.working);
    EXPECT_EQ(column(plan, &silage_row::lus_fed_by_grazing), (texts{"8.00", "", ""}));
    EXPECT_EQ(column(plan, &silage_row::lus_per_ha), (texts{"0.80", "3.00", "3.00"}));
    EXPECT_EQ(column(plan, &silage_row::lus_fed_from_silage), (texts{"", "0.00", "0.00"}));
    EXPECT_EQ(column(plan, &silage_row::n_kg_per_ha), (texts{"250", "250", "250"}));
}

TEST(SilageTable, AFieldWithoutAreaIsNamedAndTheOthersAreWorkedOut) {
    const auto plan = fill_silage_table(
        {grazed("Nook", "", {sixty_cows}), grazed("Bog", "0", {}), grazed("Low Park", "30", {sixty_cows})},
        200);
    EXPECT_EQ(plan.without_area, (texts{"Nook", "Bog"}));
    EXPECT_EQ(column(plan, &silage_row::lus_per_ha), (texts{"", "", "2.00"}));
    EXPECT_EQ(column(plan, &silage_row::n_kg_per_ha), (texts{"", "", "25"}));
}

TEST(MoveFeed, TakesATenthFromOneFieldAndGivesItToTheOther) {
    auto plan = fill_silage_table(
        {grazed("Low Park", "20", {sixty_cows}), silage("Long Rig", "10"), silage("Haugh", "4")}, 100);
    ASSERT_EQ(plan.rows[2].lus_fed_from_silage, "11.43");
    move_feed(plan, "Long Rig", "Haugh", {1, 3, 3});
    EXPECT_EQ(column(plan, &silage_row::lus_fed_from_silage), (texts{"", "28.47", "11.53"}));
    EXPECT_EQ(column(plan, &silage_row::lus_per_ha), (texts{"3.00", "2.85", "2.88"}));
    EXPECT_EQ(column(plan, &silage_row::n_kg_per_ha), (texts{"275", "213", "220"}));
    EXPECT_EQ(plan.rows[2].notes, "2 cuts");
}

// The requirement falls to nothing, but a note is only ever overwritten.
TEST(MoveFeed, ANoteStaysWhenTheRequirementFallsToNothing) {
    auto plan =
        fill_silage_table({silage("Long Rig", "1", "3", "2.05"), silage("Haugh", "0", "3", "2")}, 100);
    plan.rows[0].lus_fed_from_silage = "2.1";
    ASSERT_EQ(plan.rows[0].notes, "1 cut");
    move_feed(plan, "Long Rig", "Haugh", {3, 3});
    EXPECT_EQ(plan.rows[0].lus_fed_from_silage, "2");
    EXPECT_EQ(plan.rows[0].n_kg_per_ha, "0");
    EXPECT_EQ(plan.rows[0].notes, "1 cut");
    EXPECT_EQ(plan.without_area, texts{"Haugh"});
    EXPECT_EQ(plan.rows[1].lus_per_ha, "");
}

}  // namespace kel::test
