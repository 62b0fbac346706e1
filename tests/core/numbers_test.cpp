#include "core/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace kel {
namespace {

TEST(Numbers, LeadingNumberTakesTheLongestDecimalAndNothingElse) {
    const struct {
        const char* text;
        double value;
    } cases[] = {
        {"", 0},       {"Closed", 0},  {"  12.5 ha", 12.5}, {"3.", 3},          {".5", .5}, {".", 0},
        {"-", 0},      {"-2.5", -2.5}, {"+4", 4},           {"1.2.3", 1.2},     {"1,5", 1}, {"1e5", 1},
        {"1 000", 1},  {"0x10", 0},    {"inf", 0},          {"140 - 110", 140}, {"\t7", 7}, {"nan", 0},
        {"10.00", 10}, {"a5", 0}};
    for (const auto& c : cases)
        EXPECT_EQ(leading_number(c.text), c.value) << c.text;
    EXPECT_EQ(leading_single("3.2"), 3.2F);
    EXPECT_EQ(leading_single(std::string(60, '9')), 0.0F) << "beyond single precision";
}

TEST(Numbers, ShortestTextReadsBackAndNeverUsesAnExponent) {
    EXPECT_EQ(shortest_text(3.2F), "3.2");
    EXPECT_EQ(shortest_text(100000.0F), "100000");
    EXPECT_EQ(shortest_text(0.00001F), "0.00001");
    EXPECT_EQ(shortest_text(-0.0F), "0");
    EXPECT_EQ(shortest_text(0.1), "0.1");
    EXPECT_EQ(default_text(2.7 * 1.1), "2.97");
    EXPECT_EQ(default_text(58.0F / 1000 * 380), "22.04");
    EXPECT_EQ(default_text(335544320.0F), "335544300");
    EXPECT_EQ(default_text(1.93 / 100 * 50 * 100), "96.5");
    EXPECT_EQ(shortest_text(std::numeric_limits<float>::infinity()), "0");
    for (const float value : {0.28F, 116.0F, 27.972F, 16777216.0F, 1.17549435e-38F})
        EXPECT_EQ(leading_single(shortest_text(value)), value);
}

TEST(Numbers, RoundingJudgesTiesOnTheDecimalText) {
    const struct {
        float value;
        int places;
        const char* even;
        const char* away;
    } cases[] = {{0.125F, 2, "0.12", "0.13"}, {0.375F, 2, "0.38", "0.38"}, {2.675F, 2, "2.68", "2.68"},
                 {2.665F, 2, "2.66", "2.67"}, {0.5F, 0, "0", "1"},         {1.5F, 0, "2", "2"},
                 {2.5F, 0, "2", "3"},         {9.995F, 2, "10", "10.00"},  {-0.125F, 2, "-0.12", "-0.13"},
                 {-0.004F, 2, "0", "0.00"},   {7.0F, 2, "7", "7.00"},      {0.12500001F, 2, "0.13", "0.13"},
                 {8.91F, 1, "8.9", "8.9"},    {99.95F, 1, "100", "100.0"}, {0.051F, 1, "0.1", "0.1"}};
    for (const auto& c : cases) {
        EXPECT_EQ(shortest_text(round_half_even(c.value, c.places)), c.even) << c.value;
        EXPECT_EQ(format_fixed(c.value, c.places), c.away) << c.value;
    }
    EXPECT_EQ(round_half_even(1.015, 2), 1.02);
}

TEST(Numbers, NoiseBehindTheDigitsOfTheTypeMakesNoTieAndNoBreach) {
    const float below = std::nextafter(61.25F, 0.0F), above = std::nextafter(61.35F, 99.0F);
    EXPECT_EQ(default_text(below), "61.25");
    EXPECT_EQ(format_fixed(below, 1), "61.2");
    EXPECT_EQ(format_shown(below, 1), "61.3");
    EXPECT_EQ(round_shown_half_away(-below, 1), -61.3F);
    EXPECT_EQ(round_half_even(above, 1), 61.4F);
    EXPECT_EQ(round_shown_half_even(std::nextafter(61.25F, 99.0F), 1), 61.2F);
    EXPECT_EQ(round_shown_half_even(0.1 + 0.2 - 0.05, 1), 0.2) << "0.25000000000000006";
    EXPECT_EQ(format_shown(1.005 * 3, 2), "3.02") << "3.0149999999999997";

    EXPECT_FALSE(exceeds_limit(61.300003F + 188.70001F, 250.0F));
    EXPECT_FALSE(exceeds_limit(250.0004F, 250.0F));
    EXPECT_TRUE(exceeds_limit(250.001F, 250.0F));
}

}  // namespace
}  // namespace kel
