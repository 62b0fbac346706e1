#include "crops/crop_catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "crops/crop_lists.h"
#include "crops/residue_groups.h"

namespace kel {

TEST(CropCatalogue, RowsAreCompleteAndACodeNeverStandsForTwoPreviousCrops) {
    const std::set<std::string_view> types{crop_types::grass, crop_types::autumn_sown_crop,
                                           crop_types::other};
    for (const crop& a : load_crop_catalogue()) {
        EXPECT_FALSE(a.planned_name.empty()) << a.no;
        EXPECT_TRUE(types.contains(a.type)) << a.no;
        EXPECT_TRUE(a.previous_code.empty() || !a.previous_name.empty()) << a.no;
        for (const crop& b : load_crop_catalogue()) {
            if (a.previous_code.empty() || b.previous_code.empty()) continue;
            EXPECT_EQ(a.previous_code == b.previous_code, a.previous_name == b.previous_name)
                << a.no << " " << b.no;
        }
    }
}

TEST(CropLists, EveryNameOfferedIsKnownToTheTablesBehindIt) {
    for (const std::string_view name : planned_crop_list())
        EXPECT_TRUE(std::ranges::count(load_crop_catalogue(), name, &crop::planned_name)) << name;
    std::set<std::string_view> codes;
    for (const std::string_view name : previous_crop_list()) {
        const auto code = previous_crop_code(name);
        ASSERT_TRUE(code) << name;
        EXPECT_TRUE(codes.insert(*code).second) << name << " shares " << *code;
        EXPECT_NE(residue_group(*code), 0) << name;
    }
    for (const std::string_view name : ley_list())
        EXPECT_NE(ley_long_name(*previous_crop_code(name)), unknown_crop) << name;
    EXPECT_EQ(previous_crop_list()[ley_list().size()], "Beans");
    for (const potato_type& type : potato_types())
        EXPECT_TRUE(crop_long_name(type.code).starts_with("Potatoes (")) << type.name;
}

TEST(CropCatalogue, PreviousCropCodeFollowsTheColumnsOfThePreviousCrop) {
    EXPECT_EQ(previous_crop_code("Spring barley"), "SB");
    EXPECT_EQ(previous_crop_code("Swedes"), "SR");
    EXPECT_EQ(previous_crop_code("Ware potatoes"), "WPOT");
    EXPECT_EQ(previous_crop_code("Cabbage (above average yield)"), "CAB+1");
    // Known to the catalogue, but not offered as a previous crop; an empty cell is none either.
    for (const auto name : {"Set-aside", "Potatoes", "Potatoes (ware)", "Grass", ""})
        EXPECT_FALSE(previous_crop_code(name)) << name;
}

TEST(CropCatalogue, LongNameIsThePlannedNameOfTheCode) {
    const struct {
        std::string_view code, name;
    } cases[] = {
        {"SB", "Spring barley"},
        {"SB (F/high N)", "Spring barley (feed or high N malting)"},
        {"G", "Grass"},
        {"G/C", "Grass/clover"},
        {"SR", "Swedes"},
        {"SR/TR", "Swedes and turnips"},
        {"CAB", "Cabbage"},
        {"CAB 0", "Unknown"},
        {"PG", "Permanent grass"},
        {"SET-A", "Unknown"},
        {"", "Unknown"},
        {"ww", "Unknown"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(crop_long_name(c.code), c.name) << c.code;
}

TEST(CropCatalogue, LeyLongNameKnowsTheElevenPreviousSwardsOnly) {
    std::set<std::string_view> swards;
    for (const crop& row : load_crop_catalogue())
        if (ley_long_name(row.previous_code) != unknown_crop) swards.insert(row.previous_code);
    EXPECT_EQ(swards, (std::set<std::string_view>{"RGR", "1LNG", "1LG", "1HNG", "1HG", "3LNG", "3HNG", "3LG",
                                                  "3HG", "PG", "LL"}));
    EXPECT_EQ(ley_long_name("G"), unknown_crop);
}

TEST(CropCatalogue, CropInTypeLooksInTheNamedColumn) {
    using enum name_column;
    const std::string direct = "Direct sown grass and grass/clover";
    EXPECT_TRUE(crop_in_type("Other", "Spring barley", previous));
    EXPECT_FALSE(crop_in_type("Other", "Spring barley", planned));
    EXPECT_TRUE(crop_in_type("Grass", "Grass", planned));
    EXPECT_FALSE(crop_in_type("Grass", "Grass", previous));
    EXPECT_FALSE(crop_in_type("Grass", direct + " (autumn sown)", planned));
    EXPECT_TRUE(crop_in_type("Autumn sown crop", direct, previous));
    EXPECT_TRUE(crop_in_type("Other", direct, previous));
}

TEST(CropCatalogue, TypeMembersArePlannedNamesInRowOrderEachOnce) {
    EXPECT_EQ(crop_type_members("Autumn sown crop"),
              (std::vector<std::string_view>{
                  "Winter wheat", "Winter barley", "Winter oilseed rape", "Winter oats", "Triticale",
                  "Direct sown grass and grass/clover (autumn sown)", "Daffodil bulbs", "Cabbage (spring)"}));
    EXPECT_EQ(std::ranges::count(crop_type_members("Other"), "Cabbage"), 1);
    EXPECT_TRUE(crop_type_members("").empty());
}

}  // namespace kel
