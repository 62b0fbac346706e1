#include "rules/available_nitrogen.h"

#include <gtest/gtest.h>

#include "core/dates.h"
#include "core/numbers.h"
#include "rules/manure_catalogue.h"

namespace kel {

using enum percentage_outcome;

constexpr std::string_view dairy_high = "Dairy slurry - high dry matter (10%)";
constexpr std::string_view fattening_high = "Fattening cattle slurry (400kg) - high dry matter (10%)";
constexpr std::string_view pig_low = "Pig slurry - low dry matter (2%)";
constexpr std::string_view cattle_fym = "Cattle FYM stored under cover";

TEST(AvailableNitrogen, PercentageByMonthSoilManureAndIncorporation) {
    const struct {
        application_texts row;
        int percentage;
    } cases[] = {
        {{"June", "Sands", dairy_high, "Over 6 hours"}, 5},
        {{"June", "Sands", dairy_high, "Within 6 hours"}, 0},
        {{"June", "Sands", fattening_high, "Within 6 hours"}, 20},
        {{"May", "Sands", "Fattening cattle slurry (400kg) - medium dry matter (6%)", "Within 6 hours"}, 35},
        {{"February", "Sands", pig_low, "Within 6 hours"}, 60},
        // Both sides of every change of season, on a light soil and on another.
        {{"July", "Sandy loams", pig_low, "Over 6 hours"}, 40},
        {{"August", "Sandy loams", pig_low, "Over 6 hours"}, 5},
        {{"October", "Peaty soils", pig_low, "Over 6 hours"}, 20},
        {{"November", "Peaty soils", pig_low, "Over 6 hours"}, 40},
        {{"November", "Shallow soils", pig_low, "Over 6 hours"}, 25},
        {{"January", "Other mineral soils", pig_low, "Over 6 hours"}, 40},
        {{"February", "Other mineral soils", pig_low, "Over 6 hours"}, 55},
        {{"April", "Humose soils", pig_low, "Over 6 hours"}, 55},
        {{"May", "Humose soils", pig_low, "Over 6 hours"}, 40},
    };
    for (const auto& c : cases) {
        const auto result = available_percentage(c.row, no_manure_code);
        EXPECT_EQ(result.outcome, found) << c.row.month << " " << c.row.manure;
        EXPECT_EQ(result.percentage, c.percentage) << c.row.month << " " << c.row.manure;
    }
}

// A light soil keeps no more than another one, and late incorporation no more than early. In summer the late
// slurries are the better ones in the table, and no solid manure counts at all.
TEST(AvailableNitrogen, TableIsInOrderOfLossAndInStepsOfFive) {
    for (const manure_type& type : manure_catalogue())
        for (int month = 1; month <= 12; ++month) {
            const auto percent = [&](std::string_view soil, std::string_view time) {
                return available_percentage({month_name(month), soil, type.name, time}, no_manure_code)
                    .percentage;
            };
            const int early = percent("Humose soils", type.incorporation.early);
            const int late = percent("Humose soils", type.incorporation.late);
            const bool summer = month >= 5 && month <= 7;
            const bool solid_in_summer = summer && type.kind == manure_kind::solid;
            EXPECT_EQ((early + late) % 5, 0) << type.name << " " << month_name(month);
            EXPECT_LE(percent("Sands", type.incorporation.early), early)
                << type.name << " " << month_name(month);
            EXPECT_TRUE(summer || late <= early) << type.name << " " << month_name(month);
            EXPECT_EQ(early + late == 0, solid_in_summer) << type.name << " " << month_name(month);
        }
}

TEST(AvailableNitrogen, SoilIsAskedForFromAugustToJanuaryOnly) {
    for (int month = 1; month <= 12; ++month) {
        const auto result =
            available_percentage({month_name(month), "Clay", cattle_fym, "Over 24 hours"}, no_manure_code);
        const bool asked = month >= 8 || month == 1;
        EXPECT_EQ(result.outcome, asked ? invalid_soil : found) << month_name(month);
        EXPECT_EQ(result.working_code, 2) << "the manure is resolved before the soil";
    }
}

TEST(AvailableNitrogen, MonthIsTestedBeforeManureAndSoil) {
    const percentage_result bad_month{invalid_month, 0, 17};
    for (const auto month : {"Jan", "june", "13", " May"})
        EXPECT_EQ(available_percentage({month, "Clay", cattle_fym, "Over 24 hours"}, 17), bad_month) << month;
    const percentage_result no_month{unchanged, 0, 17};
    EXPECT_EQ(available_percentage({"", "Clay", cattle_fym, "Over 24 hours"}, 17), no_month);
}

TEST(AvailableNitrogen, ARowThatNamesNoCodeTakesThePercentageOfTheLastManure) {
    const auto first = available_percentage({"March", "Sands", pig_low, "Within 6 hours"}, no_manure_code);
    EXPECT_EQ(first.working_code, 40);
    const auto second = available_percentage({"March", "Sands", cattle_fym, ""}, first.working_code);
    EXPECT_EQ(second, (percentage_result{found, 60, 40}));
    // Nothing was resolved before the first row.
    EXPECT_EQ(available_percentage({"March", "Sands", cattle_fym, ""}, no_manure_code),
              (percentage_result{unchanged, 0, no_manure_code}));
}

TEST(AvailableNitrogen, ApplicationRateIsRoundedHalfToEven) {
    const struct {
        float amount, area;
        std::string_view rate;
    } cases[] = {
        {100.0F, 3.0F, "33.33"}, {2.0F, 3.0F, "0.67"}, {1.0F, 8.0F, "0.12"},
        {3.0F, 8.0F, "0.38"},    {0.0F, 4.0F, "0"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(shortest_text(application_rate(c.amount, c.area).value()), c.rate);
    EXPECT_FALSE(application_rate(100.0F, leading_single("0")));
    EXPECT_FALSE(application_rate(100.0F, leading_single("")));
}

TEST(AvailableNitrogen, RatesAreSinglePrecisionAndUnrounded) {
    EXPECT_EQ(shortest_text(total_n_rate(3.5F, 33.33F)), "116.65501");
    EXPECT_EQ(shortest_text(total_n_rate(4.0F, 25.125F)), "100.5");
    EXPECT_EQ(shortest_text(available_n_rate(100.5F, 35.0F)), "35.175");
    EXPECT_EQ(available_n_rate(100.5F, leading_single("")), 0.0F);
    // An analysis figure is multiplied in double precision: the text has more places than a single holds.
    EXPECT_EQ(shortest_text(total_n_rate_of_analysis(3.123456, 33.33)), "104.10478848");
}

TEST(AvailableNitrogen, NextCropGetsATenthOfTheTotal) {
    const struct {
        float total;
        std::string_view next;
    } cases[] = {{100.0F, "10"}, {7.0F, "0.7"}, {249.9F, "24.99"}, {0.0F, "0"}};
    for (const auto& c : cases)
        EXPECT_EQ(shortest_text(available_n_rate_next(c.total)), c.next);
}

}  // namespace kel
