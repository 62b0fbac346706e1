// Rates and releases by hand, with the two stages of rounding and the edges of the factors.
#include "composting/composting_rules.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "core/numbers.h"

namespace kel {

TEST(Composting, RateIsRoundedBeforeTheReleaseIsWorkedOut) {
    const struct {
        std::string_view residue;
        float soil;
        std::string_view waste;
        float n;
        composting_result result;
    } cases[] = {
        {"Onion", 40, straw_waste, 0.5F, {"4.4", "-2.4"}},         // 46 / 10.5, -0.55 x 4.4 = -2.42
        {"Broccoli", 50, pms_waste, 0.8F, {"64", "32"}},           // 128 / 2, 0.5 x 64
        {"Broccoli", 50, pms_waste, 0.81F, {"66.7", "34.4"}},      // 128 / 1.92; unrounded it were 34.3
        {"Peas", 0, straw_waste, 1.2F, {"21.2", "10.6"}},          // 104 / 4.9
        {"Lettuce (round)", 0, straw_waste, 0.88F, {"1.6", "0"}},  // 12 / 7.46, 0.02 x 1.6
        {"Onion", 0.5F, pms_waste, 0.4F, {"1.1", "-1"}},           // 6.5 / 5.8, -0.9 x 1.1 = -0.99
        {"Onion", 0.525F, straw_waste, 0, {"0.5", "-0.7"}},        // 0.45 and -0.65: halves go up in size
        {"Onion", 40, straw_waste, 2, {"-30.7", "-52.2"}},         // 46 / -1.5
        {"Onion", 6.15F, straw_waste, 0.8F, {"1.5", "-0.2"}},      // 12.15 / 8.1, -0.1 x 1.5 = -0.15
    };
    for (const auto& c : cases) {
        const auto residue = find_residue(c.residue);
        ASSERT_TRUE(residue) << c.residue;
        const auto result = compost(residue->n_kg_per_ha, c.soil, c.waste, c.n);
        ASSERT_TRUE(result) << c.residue << " " << c.n;
        EXPECT_EQ(result->rate, c.result.rate) << c.residue << " " << c.n;
        EXPECT_EQ(result->release, c.result.release) << c.residue << " " << c.n;
    }
    EXPECT_FALSE(find_residue("Turnip"));
}

// Adds up the printed table, whose names stand in their alphabetical order.
TEST(Composting, ResiduesAreThoseOfTheTable) {
    float sum = 0;
    for (const crop_residue& residue : crop_residues())
        sum += residue.n_kg_per_ha;
    EXPECT_EQ(sum, 816);
    EXPECT_TRUE(std::ranges::is_sorted(crop_residues(), {}, &crop_residue::name));
}

TEST(Composting, SludgeChangesItsLinesAboveTheirBound) {
    EXPECT_FLOAT_EQ(factors_of(pms_waste, 0.8F).immobilised_kg_per_t_dm, 2);
    EXPECT_FLOAT_EQ(factors_of(pms_waste, 0.801F).immobilised_kg_per_t_dm, 1.992F);
    EXPECT_FLOAT_EQ(factors_of(straw_waste, 0.801F).released_kg_per_t_dm, -0.0985F);
}

TEST(Composting, AWasteThatImmobilisesNothingHasNoRate) {
    EXPECT_FALSE(compost(78, 50, straw_waste, 1.8125F));
    // 1.05 % in single precision is a hair less, and leaves the sludge a hair that it immobilises.
    EXPECT_EQ(compost(78, 50, pms_waste, 1.05F).value().rate, "335544300");
    const std::string beyond_measure(60, '9');
    EXPECT_FALSE(compost(78, leading_single("3" + std::string(38, '0')), straw_waste, 1.8124F));
    EXPECT_TRUE(compost(78, leading_single(beyond_measure), straw_waste, 0.5F)) << "read as no number";
}

}  // namespace kel
