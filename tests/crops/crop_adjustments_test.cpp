// The two rainfall rules with what they keep from row to row, and the days of delayed sowing.
#include "crops/crop_adjustments.h"

#include <filesystem>

#include "tests/support/farm_files.h"

namespace kel {

namespace {

struct rain_case {
    std::string_view crop;
    std::string_view group;
    std::string_view soil;
    int expected;
};

constexpr int kept = 77;  // what the memory holds before each case

}  // namespace

TEST(WinterRain, HighRainAddsByCropClassGroupAndSoil) {
    const rain_case cases[] = {
        {"WB", "1", "Sands", 0},
        {"WB", "2", "Peaty soils", 10},
        {"WB", "6", "Other mineral soils", 10},
        {"SR/TR", "3", "Sandy loams", 20},
        {"LIN", "2", "Other mineral soils", 10},
        {"LIN", "2", "Peaty soils", 0},
        {"SW", "3", "Sandy loams", 20},
        {"SW", "4", "Humose soils", 0},
        {"PP", "2", "Peaty soils", 10},
        {"SR", "3", "Sandy loams", 10},
        {"CAB", "6", "Shallow soils", 20},
        {"G/C", "6", "Sands", 0},
        {"SB (low N)", "3", "Sands", 20},
        // No figure: what the rule gave last.
        {"SB (low N)", "4", "Sands", kept},
        {"WW", "0", "Sands", kept},
        {"BULBS", "3", "Sands", kept},
    };
    for (const auto& [crop, group, soil, expected] : cases) {
        rain_memory memory{.winter_kg_per_ha = kept};
        EXPECT_EQ(winter_rain_adjustment("High", {crop, group, soil}, memory), expected)
            << crop << " " << group << " " << soil;
        EXPECT_EQ(memory.winter_kg_per_ha, expected) << crop;
    }
}

TEST(SpringRain, AWetSpringAddsByCropAndSoil) {
    const rain_case cases[] = {
        {"WW", "1", "Shallow soils", 15},
        {"WOSR", "6", "Sandy loams", 10},
        {"K", "0", "Sands", 15},
        {"FM", "3", "Sands", 20},
        {"PPOT", "1", "Other mineral soils", 0},
        {"LIN", "3", "Sands", 0},
        {"BULBS", "3", "Sands", 0},
        {"SB (low N)", "2", "Sands", 20},
        {"SB (low N)", "5", "Sands", kept},
    };
    for (const auto& [crop, group, soil, expected] : cases) {
        rain_memory memory{.spring_kg_per_ha = kept};
        EXPECT_EQ(spring_rain_adjustment("High", {crop, group, soil}, memory), expected)
            << crop << " " << group << " " << soil;
    }
}

TEST(RainRules, LowIsNoneWithoutAskingAnythingElseAndHighLeavesAnIncompleteRow) {
    rain_memory memory{.winter_kg_per_ha = kept, .spring_kg_per_ha = kept};
    for (const rained_on& row :
         {rained_on{"", "2", "Sands"}, rained_on{"WW", "", "Sands"}, rained_on{"WW", "2", ""}}) {
        EXPECT_EQ(winter_rain_adjustment("High", row, memory), std::nullopt);
        EXPECT_EQ(spring_rain_adjustment("High", row, memory), std::nullopt);
        EXPECT_EQ(winter_rain_adjustment("Low", row, memory), 0);
    }
    EXPECT_EQ(spring_rain_adjustment("", {"WW", "1", "Sands"}, memory), 0);
    EXPECT_EQ(spring_rain_adjustment("wet", {"WW", "1", "Sands"}, memory), 15) << "any other text is high";
}

TEST(RainRules, AnUnknownSoilIsTakenForTheSoilBefore) {
    rain_memory memory;
    winter_rain_adjustment("High", {"WW", "3", "Sands"}, memory);
    EXPECT_EQ(spring_rain_adjustment("High", {"WW", "3", "Chalk"}, memory), 15);
    EXPECT_EQ(winter_rain_adjustment("High", {"LIN", "3", "Chalk"}, memory), 20);
}

TEST(DelayedSowing, EachDayTakesOffItsShareByCrop) {
    EXPECT_EQ(delayed_sowing_kg_per_ha("SB (low N)", 8), -18.0F);
    EXPECT_EQ(delayed_sowing_kg_per_ha("SB (F/high N)", 8), -12.0F);
    EXPECT_EQ(delayed_sowing_kg_per_ha("SO", 2.5F), -3.75F);
    EXPECT_EQ(delayed_sowing_kg_per_ha("WW", 8), 0.0F);
}

class WinterRainDefault : public test::farm_test {};

TEST_F(WinterRainDefault, IsHighAboveTheLimitOfOctoberToFebruaryOnly) {
    const std::string file = path("climate.db");
    std::filesystem::copy_file(state.places.climate_tables(), file);
    std::filesystem::permissions(file, std::filesystem::perms::owner_all);
    const database climate(file);
    const std::pair<std::string_view, std::string_view> cases[] = {
        {"50", "Low"}, {"50.5", "High"}, {"49", "Low"}};
    for (const auto& [february, status] : cases) {
        climate.update_rows("KEL_rain",
                            {{"Oct", "100"},
                             {"Nov", "100"},
                             {"Dec", "100"},
                             {"Jan", "100"},
                             {"Feb", february},
                             {"Mar", "999"},
                             {"Sep", "999"}},
                            "Town", "Brechin");
        EXPECT_EQ(winter_rain_default(climate, "Brechin"), status) << february;
    }
    EXPECT_EQ(winter_rain_default(climate, "Atlantis"), std::nullopt);
    EXPECT_EQ(winter_rain_default(climate, ""), std::nullopt);
}

}  // namespace kel
