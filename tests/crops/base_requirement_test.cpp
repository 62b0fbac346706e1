// What the requirement tables give, and where they give nothing.
#include "crops/base_requirement.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "rules/crop_catalogue.h"
#include "rules/crop_lists.h"

namespace kel {

namespace {

const std::vector<std::string> soils{"Shallow soils",       "Sands",        "Sandy loams",
                                     "Other mineral soils", "Humose soils", "Peaty soils"};
const std::string potato_note = "Apply 1/2 to 2/3 in the seedbed and the rest at tuber initiation.";

struct lookup_case {
    std::string_view crop;
    int group;
    std::string_view soil;
    base_requirement expected;
};

}  // namespace

TEST(BaseRequirement, ComesFromTheCellOfCropGroupAndSoil) {
    const lookup_case cases[] = {
        {"WW", 1, "Sands", {210, 0, 0, 0, 210, ""}},
        {"WW", 5, "Peaty soils", {0, 10, 0, 0, 0, ""}},
        {"WW", 6, "Peaty soils", {0, 0, 0, 0, 0, ""}},
        {"WOSR", 1, "Other mineral soils", {180, 0, 50, 0, 230, ""}},
        {"WOSR", 1, "Sandy loams", {180, 0, 30, 0, 210, ""}},
        {"WOSR", 5, "Humose soils", {20, 30, 0, 0, 20, ""}},
        {"WPOT", 5, "Sands", {0, 0, 140, 35, 140, potato_note}},
        {"SPOT", 5, "Sandy loams", {0, 0, 0, 20, 0, ""}},
        {"DPOT", 6, "Shallow soils", {0, 0, 30, 40, 30, potato_note}},
        {"PPOT", 6, "Peaty soils", {0, 0, 0, 0, 0, ""}},
        {"SB (low N)", 3, "Other mineral soils", {90, 0, 0, 0, 90, ""}},
        {"SR/TR", 6, "Sandy loams", {30, 0, 0, 0, 30, ""}},
        {"CAB", 1, "Sands", {357.5F, 0, 0, 0, 357.5, ""}},
        {"CAB", 5, "Sands", {236.5F, 44, 0, 0, 236.5, ""}},
        {"CAB", 5, "Peaty soils", {215, 40, 0, 0, 215, ""}},
        {"BS", 6, "Shallow soils", {165, 44, 0, 0, 165, ""}},
        {"SR", 6, "Sands", {0, 33, 0, 0, 0, ""}},
        {"LET", 3, "Sands", {198, 0, 0, 0, 198, ""}},
    };
    for (const auto& [crop, group, soil, expected] : cases)
        EXPECT_EQ(lookup_requirement(crop, group, soil), expected) << crop << " " << group << " " << soil;
}

TEST(BaseRequirement, IsTheSameOnEverySoilWhereThatIsTheRule) {
    for (const std::string& soil : soils) {
        EXPECT_EQ(lookup_requirement("G", 1, soil)->total_n, 85) << soil;
        EXPECT_EQ(lookup_requirement("G/C", 5, soil)->spring_n, 15) << soil;
        EXPECT_EQ(lookup_requirement("G/C", 6, soil)->spring_n, 15) << soil;
        EXPECT_EQ(lookup_requirement("PARS", 5, soil), (base_requirement{0, 33, 0, 0, 0, ""})) << soil;
        EXPECT_EQ(lookup_requirement("C", 6, soil), base_requirement{}) << soil;
    }
    for (const auto crop : {"FB", "PP", "SET-A"})
        for (const int group : {0, 1, 6})
            EXPECT_EQ(lookup_requirement(crop, group, "no soil"), base_requirement{}) << crop << group;
}

TEST(BaseRequirement, IsMissingWhereItsTableHasNoValue) {
    for (const int group : {4, 5, 6})
        EXPECT_FALSE(lookup_requirement("SB (low N)", group, "Sands")) << group;
    for (const auto soil : {"Humose soils", "Peaty soils", "sands", ""})
        EXPECT_FALSE(lookup_requirement("SB (low N)", 1, soil)) << soil;
    for (const int group : {0, 7})
        for (const auto crop : {"WW", "G", "CAB", "WPOT"})
            EXPECT_FALSE(lookup_requirement(crop, group, "Sands")) << crop << group;
    for (const auto crop : {"", "VEG-PL", "POT", "CAB 0", "SB"})
        EXPECT_FALSE(lookup_requirement(crop, 1, "Sands")) << crop;
}

TEST(BaseRequirement, EveryCropOfferedHasAValueAfterEveryGroupOnEverySoil) {
    for (const crop& row : load_crop_catalogue()) {
        const bool offered = std::ranges::count(planned_crop_list(), row.planned_name) > 0;
        if (!offered || row.planned_code.empty() || row.planned_code == "SB (low N)") continue;
        for (int group = 1; group <= 6; ++group)
            for (const std::string& soil : soils)
                EXPECT_TRUE(lookup_requirement(row.planned_code, group, soil))
                    << row.planned_name << group << soil;
    }
}

TEST(BaseRequirement, GroupCellIsReadAsANumber) {
    const std::pair<std::string_view, int> cases[] = {{"1", 1},
                                                      {"6", 6},
                                                      {" 4 ", 4},
                                                      {"0", 0},
                                                      {"", 0},
                                                      {"7", 0},
                                                      {"2.5", 0},
                                                      {"-1", 0},
                                                      {"x", 0},
                                                      {"3rd", 3},
                                                      {"99999999999999999999", 0}};
    for (const auto& [cell, group] : cases)
        EXPECT_EQ(residue_group_number(cell), group) << cell;
}

}  // namespace kel
