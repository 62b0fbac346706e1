#include "crops/residue_groups.h"

#include <gtest/gtest.h>

#include <set>
#include <string_view>

#include "crops/crop_catalogue.h"
#include "crops/crop_lists.h"

namespace kel {

TEST(ResidueGroups, EveryPreviousCropOfTheListHasAGroup) {
    for (const std::string_view name : previous_crop_list()) {
        const int group = residue_group(*previous_crop_code(name));
        EXPECT_TRUE(group >= 1 && group <= 6) << name;
    }
}

TEST(ResidueGroups, GroupOfThePreviousCrop) {
    const struct {
        std::string_view previous_crop;
        int group;
    } cases[] = {
        {"Cabbage (above average yield)", 2},
        {"Cabbage (average yield - 30 t/ha)", 3},
        {"Cabbage (below average yield)", 4},
        {"Rough grazing", 1},
        {"Permanent grass", 6},
        {"Kale", 5},
        {"Beans", 4},
        {"Hemp", 2},
        {"Winter wheat", 1},
    };
    for (const auto& c : cases)
        EXPECT_EQ(residue_group(*previous_crop_code(c.previous_crop)), c.group) << c.previous_crop;
}

TEST(ResidueGroups, AnEmptyOrUnknownCodeHasNoGroup) {
    for (const auto code : {"", "CAB", "SET-A", "DPOT", "sb"})
        EXPECT_EQ(residue_group(code), 0) << code;
}

TEST(ResidueGroups, VegetablesAreKnownByNameAndByCode) {
    std::set<std::string_view> by_code;
    std::set<std::string_view> by_name;
    for (const crop& row : load_crop_catalogue()) {
        if (is_vegetable_crop(row.planned_code)) by_code.insert(row.planned_name);
        if (is_vegetable_crop(row.planned_name)) by_name.insert(row.planned_name);
    }
    EXPECT_EQ(by_code, by_name);
    EXPECT_EQ(by_code.size(), 15U);
    EXPECT_TRUE(by_code.contains("Mature vegetable crop ploughed in"));
    for (const auto none : {"Cabbage (above average yield)", "CAB 0", "Leafy brassica vegetables", "LBV",
                            "Kale", "Swedes and turnips", "SR/TR", ""})
        EXPECT_FALSE(is_vegetable_crop(none)) << none;
}

}  // namespace kel
