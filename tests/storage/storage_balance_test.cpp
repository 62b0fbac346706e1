// The balance of the stores, and the figures that flow into it.
#include "storage/storage_balance.h"

#include <gtest/gtest.h>

#include "core/numbers.h"
#include "storage/dirty_water.h"
#include "storage/slurry_production.h"
#include "storage/storage_messages.h"

namespace kel {

namespace {

// The level stands at this percentage in July of a store of 1000 cubic metres that starts empty.
storage_balance july_at(float percent) {
    monthly_values inputs{};
    inputs[6] = percent * 10;
    return build_balance({.total_capacity = 1000, .total_free = 1000}, inputs, {}).value();
}

}  // namespace

TEST(StorageBalance, ContentRunsOnFromTheStartLevelAndOwesNothing) {
    const store_totals half_full{.total_capacity = 1000, .total_free = 500};
    monthly_values inputs{};
    inputs.fill(100);
    monthly_values outputs{};
    outputs[1] = 5000;  // February
    const storage_balance balance = build_balance(half_full, inputs, outputs).value();
    EXPECT_EQ(balance.percent[0], 60);
    EXPECT_EQ(balance.content[1], 0);
    EXPECT_EQ(balance.content[2], 100);
    EXPECT_EQ(balance.percent[11], 100);
    EXPECT_EQ(balance.largest_percent, 100);
}

TEST(StorageBalance, WarningAndAxisFollowTheLargestPercentage) {
    const struct {
        float percent;
        std::string_view warning;
        percent_axis axis;
    } cases[] = {
        {100, "", {std::nullopt, 10}},
        {100.00001F, "", {std::nullopt, 10}},  // behind what a person would work out
        {100.1F, storage_messages::over_100_percent, {150, 6}},
        {150, storage_messages::over_100_percent, {150, 6}},
        {150.1F, storage_messages::over_150_percent, {150, 6}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(july_at(c.percent).warning, c.warning) << c.percent;
        EXPECT_EQ(july_at(c.percent).axis, c.axis) << c.percent;
    }
}

TEST(StorageBalance, NothingWithoutACapacity) {
    EXPECT_FALSE(build_balance({}, {}, {}));
    EXPECT_FALSE(build_balance({.total_capacity = -5, .total_free = -5}, {}, {}));
}

TEST(DirtyWater, EstimateFollowsTheMonthAndAnActualFigureAddsNothing) {
    const monthly_values water = monthly_dirty_water({.cows = "50", .pig_pens = "4", .actual = ""});
    EXPECT_FLOAT_EQ(water[0], 27.972F);
    EXPECT_FLOAT_EQ(water[1], 26.172F);
    EXPECT_FLOAT_EQ(water[3], 27.072F);
    EXPECT_EQ(monthly_dirty_water({.cows = "", .pig_pens = "", .actual = "30"}), monthly_values{});
    EXPECT_EQ(monthly_dirty_water({.cows = "50", .pig_pens = "4", .actual = "30"}), monthly_values{});
}

TEST(SlurryProduction, VolumesAreThoseOfThePrintedTable) {
    double weighted = 0;  // a check sum over places and volumes: a slip or a swap changes it
    int place = 0;
    for (const slurry_unit& unit : slurry_units())
        weighted += ++place * leading_number(unit.volume);
    EXPECT_EQ(default_text(weighted), "33.2");
    EXPECT_EQ(slurry_volume("1 bacon pig place (35-105 kg, liquid fed)"),
              slurry_volume("1 maiden gilt (90-130 kg)"));
}

TEST(SlurryProduction, LineVolumeHasNoBinaryNoise) {
    EXPECT_EQ(slurry_volume("1 follower or young stock (180 kg)"), "0.40");
    EXPECT_FALSE(slurry_volume("1 breeding sow place (and piglets to 4 wks)"));
    EXPECT_EQ(line_volume("1.93", "50", "100"), "96.5");
    EXPECT_EQ(line_volume("0.79", "33", "7"), "1.8249");
    EXPECT_EQ(line_volume("1.93", "", "100"), "0");
    EXPECT_EQ(line_volume("", "50", "100"), "0");
}

}  // namespace kel
