#include "manure/field_limit_check.h"

#include <gtest/gtest.h>

namespace kel {

namespace {

using rates = std::vector<dated_rate>;

dated_rate on(int day, int month, int year, float kg_per_ha, const std::string& field = "Long Rig") {
    return {field, make_date(day, month, year), kg_per_ha};
}

bool over(const rates& table, const std::optional<rates>& last_year = {}) {
    return fields_over_limit(table, last_year).contains("Long Rig");
}

}  // namespace

TEST(FieldLimitCheck, SumsUpToTheDayOfAnApplicationAndPassesExactly250) {
    const struct {
        rates table;
        bool over_limit;
    } cases[] = {
        {{on(1, 2, 2025, 200), on(1, 3, 2025, 60)}, true},
        {{on(1, 3, 2025, 60), on(1, 2, 2025, 200)}, true},  // in whatever order
        {{on(1, 2, 2025, 200), on(1, 3, 2025, 50)}, false},
        // Judged on the sum to 3 decimals: what a person would add up to exactly 250 passes.
        {{on(1, 2, 2025, 61.300003F), on(1, 3, 2025, 188.70001F)}, false},
        {{on(1, 2, 2025, 250.0004F)}, false},
        {{on(1, 2, 2025, 250.001F)}, true},
        {{on(1, 2, 2025, 130), on(1, 2, 2025, 130)}, true},  // on the same day
        {{on(1, 2, 2025, 200), on(1, 3, 2025, 200, "East Muir")}, false},
        // No lower bound within the table, however far apart the days are.
        {{on(1, 2, 2020, 200), on(1, 3, 2025, 60)}, true},
    };
    for (const auto& c : cases)
        EXPECT_EQ(over(c.table), c.over_limit) << c.table[0].total_n_kg_per_ha;
}

TEST(FieldLimitCheck, LastYearCountsForLessThanAYear) {
    const rates march{on(10, 3, 2025, 100)};
    const struct {
        dated_rate past;
        bool over_limit;
    } cases[] = {
        {on(10, 3, 2024, 200), false},                                     // exactly one year before
        {on(11, 3, 2024, 200), true},       {on(10, 3, 2025, 200), true},  // the last day itself
        {on(11, 3, 2025, 200), false},                                     // later than the application
        {on(11, 3, 2024, 150), false},      {on(11, 3, 2024, 200, "East Muir"), false},
        {{"Long Rig", date{}, 200}, false},  // without a date
    };
    for (const auto& c : cases)
        EXPECT_EQ(over(march, rates{c.past}), c.over_limit)
            << c.past.field << " " << short_date_text(c.past.day);
}

TEST(FieldLimitCheck, SumsStandInTheOrderOfTheRows) {
    const rates table{on(1, 3, 2025, 60), on(1, 2, 2025, 90), on(1, 3, 2025, 20, "East Muir")};
    const rates past{on(1, 3, 2024, 40), on(2, 3, 2024, 30)};
    EXPECT_EQ(rolling_sums(table, past), (std::vector<float>{180, 160, 20}));
    EXPECT_EQ(rolling_sums(table, {}), (std::vector<float>{150, 90, 20}));
    EXPECT_EQ(rolling_sums(table, rates{}), std::nullopt);
}

TEST(FieldLimitCheck, LinkedYearWithoutRecordsSwitchesTheCheckOff) {
    const rates table{on(1, 2, 2025, 900)};
    EXPECT_TRUE(over(table));
    EXPECT_FALSE(over(table, rates{}));
    EXPECT_TRUE(over(table, rates{on(1, 2, 2020, 1, "East Muir")}));
}

TEST(FieldLimitCheck, TheYearThatEndsOn29FebruaryBeginsOnFirstMarch) {
    const rates leap_day{on(29, 2, 2024, 100)};
    EXPECT_FALSE(over(leap_day, rates{on(28, 2, 2023, 200)}));
    EXPECT_TRUE(over(leap_day, rates{on(1, 3, 2023, 200)}));
    EXPECT_TRUE(over({on(28, 2, 2025, 100)}, rates{on(29, 2, 2024, 200)}));
}

TEST(FieldLimitCheck, SinglePrecisionSumStartsAtTheRowItself) {
    // Next to 250.0005 a single loses 0.000005; two of them added first are kept and reach the next
    // thousandth.
    EXPECT_TRUE(over({on(1, 2, 2025, 5e-6F), on(1, 2, 2025, 5e-6F), on(1, 2, 2025, 250.0005F)}));
    EXPECT_FALSE(over({on(1, 2, 2025, 5e-6F), on(1, 2, 2025, 5e-6F), on(2, 2, 2025, 250.0005F)}));
}

}  // namespace kel
