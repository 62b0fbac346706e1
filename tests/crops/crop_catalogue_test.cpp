#include "crops/crop_catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "crops/crop_lists.h"

namespace kel {

TEST(CropCatalogue, EveryRowHasAPlannedNameAndAKnownType) {
    const std::set<std::string_view> types{crop_types::grass, crop_types::autumn_sown_crop,
                                           crop_types::other};
    for (const crop& row : load_crop_catalogue()) {
        EXPECT_FALSE(row.planned_name.empty()) << row.no;
        EXPECT_TRUE(types.contains(row.type)) << row.no;
        EXPECT_TRUE(row.previous_code.empty() || !row.previous_name.empty()) << row.no;
    }
}

TEST(CropCatalogue, ACodeNeverStandsForTwoPreviousCrops) {
    for (const crop& a : load_crop_catalogue())
        for (const crop& b : load_crop_catalogue()) {
            if (a.previous_code.empty() || b.previous_code.empty()) continue;
            EXPECT_EQ(a.previous_code == b.previous_code, a.previous_name == b.previous_name)
                << a.no << " " << b.no;
        }
}

TEST(CropCatalogue, EveryPlannedCropOfTheListCanBeFound) {
    for (const std::string_view name : planned_crop_list()) {
        const auto rows = load_crop_catalogue();
        const bool found =
            std::any_of(rows.begin(), rows.end(), [&](const crop& row) { return row.planned_name == name; });
        EXPECT_TRUE(found) << name;
    }
}

TEST(CropCatalogue, EveryPreviousCropOfTheListHasItsOwnCode) {
    std::set<std::string_view> codes;
    for (const std::string_view name : previous_crop_list()) {
        const auto code = previous_crop_code(name);
        ASSERT_TRUE(code) << name;
        EXPECT_FALSE(code->empty()) << name;
        EXPECT_TRUE(codes.insert(*code).second) << name << " shares " << *code;
    }
}

TEST(CropCatalogue, PreviousCropCodeFollowsTheColumnsOfThePreviousCrop) {
    const struct {
        std::string_view name, code;
    } cases[] = {
        {"Spring barley", "SB"},
        {"Swedes", "SR"},
        {"Ware potatoes", "WPOT"},
        {"Cabbage (above average yield)", "CAB+1"},
        {"Hemp", "HS"},
        {"Beans", "FB"},
        {"Triticale", "T"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(previous_crop_code(c.name), c.code) << c.name;
    // Known to the catalogue, but not offered as a previous crop; an empty cell is none either.
    for (const auto name :
         {"Set-aside", "Potatoes", "Potatoes (ware)", "Grass", "Direct sown grass and grass/clover", ""})
        EXPECT_FALSE(previous_crop_code(name)) << name;
}

TEST(CropCatalogue, LongNameIsThePlannedNameOfTheCode) {
    const struct {
        std::string_view code, name;
    } cases[] = {
        {"WW", "Winter wheat"},
        {"SB (F/high N)", "Spring barley (feed or high N malting)"},
        {"SB", "Spring barley"},
        {"G", "Grass"},
        {"G/C", "Grass/clover"},
        {"SPOT", "Potatoes (seed)"},
        {"WPOT", "Potatoes (ware)"},
        {"PPOT", "Potatoes (punnets)"},
        {"SR", "Swedes"},
        {"SR/TR", "Swedes and turnips"},
        {"CAB", "Cabbage"},
        {"VEG-PL", "Mature vegetable crop ploughed in"},
        {"PG", "Permanent grass"},
        {"CAB 0", "Unknown"},
        {"LEEK+1", "Unknown"},
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
    EXPECT_EQ(ley_long_name("1LG"),
              "1-2 year low N leys, grazed within 2 months of ploughing out or during September or October");
    for (const auto code : {"G", "G/C", "WW", ""})
        EXPECT_EQ(ley_long_name(code), unknown_crop) << code;
}

TEST(CropCatalogue, TheEightLeysLeadThePreviousCropList) {
    ASSERT_EQ(ley_list().size(), 8U);
    for (const std::string_view name : ley_list())
        EXPECT_NE(ley_long_name(*previous_crop_code(name)), unknown_crop) << name;
    EXPECT_EQ(previous_crop_list()[8], "Beans");
}

TEST(CropCatalogue, CropInTypeLooksInTheNamedColumn) {
    using enum name_column;
    const struct {
        std::string_view type, name;
        name_column column;
        bool holds;
    } cases[] = {
        {"Autumn sown crop", "Winter wheat", planned, true},
        {"Other", "Winter wheat", planned, false},
        {"Other", "Spring barley", previous, true},
        {"Other", "Spring barley", planned, false},
        {"Grass", "Grass", planned, true},
        {"Grass", "Grass", previous, false},
        {"Autumn sown crop", "Direct sown grass and grass/clover (autumn sown)", planned, true},
        {"Grass", "Direct sown grass and grass/clover (autumn sown)", planned, false},
        {"Autumn sown crop", "Direct sown grass and grass/clover", previous, true},
        {"Other", "Direct sown grass and grass/clover", previous, true},
        {"In grass", "Grass", planned, false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(crop_in_type(c.type, c.name, c.column), c.holds) << c.type << " " << c.name;
}

TEST(CropCatalogue, TypeMembersArePlannedNamesInRowOrderEachOnce) {
    EXPECT_EQ(crop_type_members("Autumn sown crop"),
              (std::vector<std::string_view>{
                  "Winter wheat", "Winter barley", "Winter oilseed rape", "Winter oats", "Triticale",
                  "Direct sown grass and grass/clover (autumn sown)", "Daffodil bulbs", "Cabbage (spring)"}));
    const auto others = crop_type_members("Other");
    EXPECT_EQ(std::count(others.begin(), others.end(), "Cabbage"), 1);
    EXPECT_EQ(others.front(), "Spring barley (feed or high N malting)");
    EXPECT_EQ(others.back(), "Set-aside");
    EXPECT_TRUE(crop_type_members("").empty());
}

TEST(CropLists, SoilCodesMatchExactTextsOnly) {
    EXPECT_EQ(soil_code("Sandy loams"), "SL");
    EXPECT_EQ(soil_code("Sands"), "S");
    for (const auto text : {"", "sands", "Sandy loams ", "Clay"})
        EXPECT_FALSE(soil_code(text)) << text;
}

TEST(CropLists, EveryPotatoTypeIsAPlannedCropOfTheCatalogue) {
    for (const potato_type& type : potato_types()) {
        EXPECT_EQ(potato_code(type.name), type.code);
        EXPECT_TRUE(crop_long_name(type.code).starts_with("Potatoes (")) << type.name;
    }
    EXPECT_FALSE(potato_code("Potatoes"));
}

}  // namespace kel
