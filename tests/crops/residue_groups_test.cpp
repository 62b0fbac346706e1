#include "crops/residue_groups.h"

#include <gtest/gtest.h>

#include <set>
#include <string_view>

#include "crops/crop_catalogue.h"
#include "crops/crop_lists.h"

namespace kel {

TEST(ResidueGroups, ABetterYieldLeavesLessAndAnUnknownCodeNothing) {
    const struct {
        std::string_view previous_crop;
        int group;
    } cases[] = {
        {"Cabbage (above average yield)", 2},
        {"Cabbage (average yield - 30 t/ha)", 3},
        {"Cabbage (below average yield)", 4},
        {"Rough grazing", 1},
        {"Kale", 5},
        {"Permanent grass", 6},
    };
    for (const auto& c : cases)
        EXPECT_EQ(residue_group(*previous_crop_code(c.previous_crop)), c.group) << c.previous_crop;
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
    for (const auto none : {"Cabbage (above average yield)", "CAB 0", "Kale", "SR/TR", ""})
        EXPECT_FALSE(is_vegetable_crop(none)) << none;
}

}  // namespace kel
