// Site class, choices of a sward, the recommendation of a field and livestock units.
#include <gtest/gtest.h>

#include "core/numbers.h"
#include "grass/grass_recommendation.h"
#include "grass/livestock_units.h"
#include "grass/site_class.h"
#include "grass/sward_choices.h"
#include "rules/crop_catalogue.h"
#include "rules/crop_lists.h"
#include "rules/residue_groups.h"
#include "tests/support/farm_files.h"

namespace kel::test {

TEST(SiteClass, GoesBySoilRainAndAltitude) {
    const struct {
        const char* soil;
        int rain_class, altitude_step;
        std::optional<int> expected;
    } sites[] = {
        {"Sands", 4, 1, 5},
        {"Sands", 4, 0, 5},
        {"Sands", 1, 0, 2},
        {"Shallow soils", 3, 1, 5},
        {"Shallow soils", 2, 1, 4},
        {"Peaty soils", 3, 0, 2},
        {"Peaty soils", 2, 1, 3},
        {"Sandy loams", 1, 0, 1},
        {"Humose soils", 4, 1, 4},
        {"Other mineral soils", 4, 0, 3},
        // A soil that the profile does not offer has no class, neither high up nor without rain.
        {"Clay", 2, 1, 0},
        {"", 0, 0, 0},
        {"Sands", 0, 0, {}},
        {"Peaty soils", 5, 1, {}},
    };
    for (const auto& s : sites)
        EXPECT_EQ(site_class(s.soil, s.rain_class, s.altitude_step), s.expected) << s.soil << s.rain_class;
}

TEST(SiteClass, RainOnABoundIsTheDrierLevel) {
    const struct {
        float mm;
        const char* stored;
    } sums[] = {{500.1F, ">500"},      {500, "425 - 500"}, {425, "350 - 425"},
                {350.5F, "350 - 425"}, {350, "<350"},      {0, "<350"}};
    for (const auto& s : sums)
        EXPECT_EQ(rain_level_of(s.mm).stored, s.stored) << s.mm;
}

TEST(SiteClass, SummerRainIsThatOfTheFirstTown) {
    const database climate(stage_folder() + "/scdb/scdb.mdb");
    const recordset first = climate.open("KEL_rain");
    float sum = 0;
    for (const char* month : {"Apr", "May", "Jun", "Jul", "Aug", "Sep"})
        sum += leading_single(first.text(month));
    EXPECT_EQ(apr_to_sep_rain_mm(climate), sum);
    EXPECT_GT(sum, 100);
}

TEST(SwardChoices, EveryPreviousSwardHasItsCodeAndGroup) {
    EXPECT_EQ(previous_swards().size(), 11U);
    EXPECT_EQ(previous_swards()[8], "Long leys with short arable breaks");
    for (const std::string_view name : previous_swards()) {
        const auto code = previous_crop_code(name);
        ASSERT_TRUE(code) << name;
        EXPECT_EQ(ley_long_name(*code), name);
        EXPECT_GE(residue_group(*code), 1) << name;
    }
}

TEST(SwardChoices, NumbersEndWithTheClover) {
    EXPECT_EQ(application_choices("High").texts.back(), "2");
    EXPECT_EQ(application_choices("Low").texts.back(), "5");
    EXPECT_EQ(cut_choices().texts.back(), "3");
}

TEST(GrassRecommendation, ManuresAreTakenOffWithoutAFloor) {
    const grass_tables tables(database(stage_folder() + "/kel_calc/dbases/wren_grass.mdb"));
    // clover, class, group, use, applications, adjustment, manures of this and of earlier years
    const struct {
        grass_field field;
        grass_recommendation expected;
    } fields[] = {
        {{"Low", "1", "6", "Silage", "1", "-75", "20.25", "5.1"}, {"200", "-75", "25.4", "99.6"}},
        {{"Low", "5", "1", "Silage", "0", "50", "", ""}, {"200", "50", "0", "250"}},
        {{"Low", "3", "4", "Grazing", "2", "-110", "120", "0.05"}, {"190", "-110", "120", "-40"}},
        {{"High", "2", "1", "Grazing", "0", "-70", "10", ""}, {"0", "-70", "10", "-80"}},
        {{"High", "2", "1", "Grazing", "1", "-20", "", ""}, {"65", "-20", "0", "45"}},
        {{"Low", "3", "4", "Grazing", "0", "-260", "", ""}, {"190", "-260", "0", "-70"}},
        {{"High", "2", "1", "Hay", "0", "0", "", ""}, {"65", "0", "0", "65"}},
        // What the tables lack counts as 0.
        {{"Low", "0", "6", "Hay", "1", "5", "", ""}, {"0", "5", "0", "5"}},
        {{"Low", "1", "0", "Hay", "1", "", "", ""}, {"0", "", "0", "0"}},
    };
    for (const auto& f : fields)
        EXPECT_EQ(recommend_grass(tables, f.field), f.expected)
            << f.field.clover << f.field.use << recommend_grass(tables, f.field).manures << ' '
            << recommend_grass(tables, f.field).to_be_applied;
}

TEST(LivestockUnits, AreNumberTimesShareOfTheYear) {
    const struct {
        const char* type;
        float percent, number;
        const char* expected;
    } lines[] = {
        {"Dairy cows", 100, 100, "100"},
        {"Lambs (birth to fat)", 50, 100, "2"},
        {"Barley beef (excl. intensive beef systems)", 100, 10, "4.7"},
        {"Ewes and ewe replacements (heavy weight)", 150, 200, "33"},
        {"Dairy cows", 0, 100, "0"},
    };
    for (const auto& l : lines)
        EXPECT_EQ(default_text(livestock_units(l.percent, l.number, lu_ratio(l.type).value())), l.expected)
            << l.type;
    EXPECT_FALSE(lu_ratio("Dairy cow"));
}

}  // namespace kel::test
