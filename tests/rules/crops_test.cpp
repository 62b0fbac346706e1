// The catalogue of crops, the lists to choose from and the residue groups.
#include "rules/crop_catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "rules/crop_lists.h"
#include "rules/residue_groups.h"
#include "rules/soils.h"

namespace kel {

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

TEST(Soils, CodesAreThoseOfTheRainfallRulesAndOtherTextsHaveNone) {
    std::string codes;
    for (const soil_class& soil : soils())
        codes.append(soil.code).append(soil.light ? "+ " : " ");
    EXPECT_EQ(codes, "HS OMS PS S+ SL+ SS+ ");
    EXPECT_EQ(soil_code("Sandy loams"), "SL");
    for (const auto name : {"sands", "Sand", "SL", ""})
        EXPECT_FALSE(soil_code(name)) << name;
}

TEST(CropCatalogue, LongNameIsThePlannedNameOfTheCode) {
    const std::pair<std::string_view, std::string_view> cases[] = {
        {"SB", "Spring barley"}, {"SB (F/high N)", "Spring barley (feed or high N malting)"},
        {"SR", "Swedes"},        {"SR/TR", "Swedes and turnips"},
        {"G", "Grass"},          {"CAB", "Cabbage"},
        {"CAB 0", "Unknown"},    {"SET-A", "Unknown"},
        {"", "Unknown"},         {"ww", "Unknown"}};
    for (const auto& [code, name] : cases)
        EXPECT_EQ(crop_long_name(code), name) << code;
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

TEST(ResidueGroups, ABetterYieldLeavesLessAndAnUnknownCodeNothing) {
    const std::pair<std::string_view, int> cases[] = {{"Cabbage (above average yield)", 2},
                                                      {"Cabbage (average yield - 30 t/ha)", 3},
                                                      {"Cabbage (below average yield)", 4},
                                                      {"Rough grazing", 1},
                                                      {"Kale", 5},
                                                      {"Permanent grass", 6}};
    for (const auto& [previous_crop, group] : cases)
        EXPECT_EQ(residue_group(*previous_crop_code(previous_crop)), group) << previous_crop;
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
