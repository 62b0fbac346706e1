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
        {"WW", 5, "Peaty soils", {0, 10, 0, 0, 0, ""}},
        {"WOSR", 1, "Other mineral soils", {180, 0, 50, 0, 230, ""}},
        {"WOSR", 5, "Humose soils", {20, 30, 0, 0, 20, ""}},
        {"SB (low N)", 3, "Sandy loams", {90, 0, 0, 0, 90, ""}},
        {"WPOT", 5, "Sands", {0, 0, 140, 35, 140, potato_note}},
        {"DPOT", 6, "Shallow soils", {0, 0, 30, 40, 30, potato_note}},
        {"SPOT", 5, "Sandy loams", {0, 0, 0, 20, 0, ""}},
        {"CAB", 5, "Sands", {236.5F, 44, 0, 0, 236.5, ""}},
        {"SR", 6, "Sands", {0, 33, 0, 0, 0, ""}},
    };
    for (const auto& [crop, group, soil, expected] : cases)
        EXPECT_EQ(lookup_requirement(crop, group, soil), expected) << crop << " " << group << " " << soil;
}

TEST(BaseRequirement, SownGrassAndCropsWithoutNeedDoNotAskForTheSoil) {
    for (const auto soil : {"Peaty soils", "no soil"}) {
        EXPECT_EQ(lookup_requirement("G", 1, soil), (base_requirement{85, 0, 0, 0, 85, ""})) << soil;
        EXPECT_EQ(lookup_requirement("G/C", 6, soil)->spring_n, 15) << soil;
        for (const auto crop : {"FB", "PP", "SET-A"})
            for (const int group : {0, 6})
                EXPECT_EQ(lookup_requirement(crop, group, soil), base_requirement{}) << crop << group;
    }
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
    for (const auto cell : {"0", "", "7", "2.5", "-1", "x", "99999999999999999999"})
        EXPECT_EQ(residue_group_number(cell), 0) << cell;
    EXPECT_EQ(residue_group_number(" 4 "), 4);
    EXPECT_EQ(residue_group_number("3rd"), 3);
}

}  // namespace kel
