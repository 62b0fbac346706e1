// The limits, what Calculate makes of them with its comments, and the report.
#include "land/land_report.h"
#include "land/spreading_limits.h"
#include "tests/land/land_fixture.h"

namespace kel::test {

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

class LandResult : public land_test {
  protected:
    /// The worked farm: 15 ha, 10 of them in grass, so that the farm limit is 3,350 kg.
    void open_worked_farm() {
        open({{"Long Rig", "15"}});
        module.enter_area(0, land_col::grass, "10");
    }
    spreading_result calculated() {
        module.calculate();
        return module.result().value_or(spreading_result{});
    }
};

// The rounded sums decide what is said; what is left or missing is the difference of the sums themselves.
TEST_F(LandResult, CommentTellsWhatIsLeftOrMissing) {
    open_worked_farm();
    const std::pair<const char*, const char*> cases[] = {
        {"150.05",
         "N production in the form of oganic manures is less than that which can be spread in the KEL. As "
         "such there is potentially scope for bringing 1999.5499 kg N/year onto the farm in the form of "
         "organic manures. However, it should be noted"},
        {"373.0125",  // 3357.1125 kg, shown as 3357.11
         "N production in the form of organic manures exceeds that which can be spread in the KEL by "
         "7.112549 kg N/year. As such"},
        {"372.2225",  // 3350.0025 kg
         "N production in the form of organic manures is equal to that which can be spread in the KEL. "
         "However"},
    };
    for (const auto& [sheep, beginning] : cases) {
        enter_sheep(0, sheep);
        EXPECT_EQ(says::comment(calculated()).substr(0, std::string_view(beginning).size()), beginning);
    }
}

TEST_F(LandResult, DeductionsLowerTheFieldLimitsOnlyAndBringTheNote) {
    open_worked_farm();
    EXPECT_EQ(says::note(calculated()), "");
    module.enter_deduction(0, land_col::buffer, "2");
    EXPECT_TRUE(
        says::note(calculated())
            .starts_with("NOTE: the total of the field based limits is 3250 kg N/year, which is lower "
                         "than the farm based limit of 3350 kg N/year. Thus you"));
}

TEST_F(LandResult, ReportHoldsSummaryStockAndFieldsInOrder) {
    open_worked_farm();
    module.enter_deduction(0, land_col::buffer, "2");
    enter_sheep(0, "100");
    std::string page;
    for (const std::string& line : land_report(calculated(), module.land(), module.animals()))
        page += line;
    std::size_t at = 0;
    // clang-format off
    for (const char* text : {
             "Is Enough Land Available For Spreading All Organic Manures?",
             "Summary", ">900 kg N/year<", "Grassland limit:", ">2500 kg N/year<", "Non-Grassland limit:",
             ">850 kg N/year<", ">3350 kg N/year<",
             "scope for bringing 2450 kg N/year", "NOTE: the total",
             "Manure Production", ">1 sheep<", ">100<", ">9<", ">900<",
             "Land Available For Spreading", "Areas To Be Deducted", "Buffer Areas (ha)",
             ">Long Rig<", ">10<", ">5<", ">2<", "&nbsp;", "&nbsp;", ">13.00<", ">3250<"}) {
        at = page.find(text, at);
        ASSERT_NE(at, std::string::npos) << "missing or out of order: " << text;
        ++at;
    }
    // clang-format on
}

}  // namespace kel::test
