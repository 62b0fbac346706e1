#include "land/spreading_limits.h"

#include <gtest/gtest.h>

#include "core/numbers.h"

namespace kel {

TEST(SpreadingLimits, AreaIsSplitInTwoDecimalsWithTiesToEven) {
    const struct {
        float entered, field;
        area_pair expected;
    } splits[] = {
        {10, 15, {"10", "5"}},           {15, 15, {"15", "0"}},
        {20, 15, {"15", "0", true}},     {0.125F, 1, {"0.12", "0.88"}},  // both ties: 0.125 and 0.875
        {2.675F, 10, {"2.68", "7.32"}},  // ties as a person reads them, whatever the binary neighbour is
        {1.005F, 2, {"1", "1"}},         // 1.005, and 0.995 in single precision
        {7.1F, 12.65F, {"7.1", "5.55"}}, {20, 10.128F, {"10.13", "0", true}},
    };
    for (const auto& s : splits)
        EXPECT_EQ(split_field_area(s.entered, s.field), s.expected) << s.entered;
}

TEST(SpreadingLimits, AvailableAreaIsNeverNegative) {
    EXPECT_EQ(available_area({10, 5, 1, 0.5F, 0.5F}), 13);
    EXPECT_EQ(available_area({10, 5, 10, 5, 3}), 0);
}

TEST(SpreadingLimits, BalanceGoesByTheRoundedNumbersAndTheFieldLimitsByTheirOwn) {
    const struct {
        float grass_ha, production_kg;
        land_balance expected;
    } farms[] = {
        {0, 0, land_balance::equal},           {10, 2499.99F, land_balance::to_spare},
        {10, 2500.004F, land_balance::equal},  {10, 2500.01F, land_balance::too_little},
        {0.0005F, 0.12F, land_balance::equal},  // 0.125 shows as 0.12
    };
    for (const auto& f : farms) {
        const auto result = compare_with_limits({.grass_ha = f.grass_ha, .production_kg = f.production_kg});
        EXPECT_EQ(result.balance, f.expected) << result.farm_limit << " against " << result.production;
    }
    EXPECT_TRUE(compare_with_limits({.grass_ha = 1, .field_limits_kg = 249.999F}).field_limits_lower);
    EXPECT_FALSE(compare_with_limits({.grass_ha = 1, .field_limits_kg = 250}).field_limits_lower);
}

}  // namespace kel
