// The recommendation of a row: the order of arithmetic, floors, rounding, ranges and notes.
#include "crops/crop_advice.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <utility>

namespace kel {

namespace {

using enum adjustment;

const std::string base_dressing =
    "Apply no more than 100kg/ha Nitrogen as base dressing. Nitrogen applications in excess of 100kg/ha "
    "should be applied as one or more top dressings. ";

crop_row row_of(std::string_view crop, std::string_view group, std::string_view soil,
                std::initializer_list<std::pair<adjustment, std::string_view>> adjustments = {}) {
    crop_row row{crop, group, soil, "", "", {}};
    for (const auto& [which, text] : adjustments)
        row.adjustments[static_cast<std::size_t>(which)] = text;
    return row;
}

crop_recommendation recommend(const crop_row& row) {
    base_requirement working;
    return recommend_row(row, working);
}

struct figures {
    std::string spring;
    std::string seedbed;
    std::string total;
    std::string requirement;
    std::string manures;
    bool operator==(const figures&) const = default;
};

figures figures_of(const crop_recommendation& r) {
    return {r.spring, r.seedbed, r.total, r.requirement, r.manures};
}

void PrintTo(const figures& f, std::ostream* out) {
    *out << f.spring << " | " << f.seedbed << " | " << f.total << " | " << f.requirement << " | "
         << f.manures;
}

}  // namespace

// Of every adjustment its sign, of the spring amount and the total their floor.
TEST(RecommendRow, AdjustmentsWorkOnSpringAndTotalAndLeaveSeedbedAndRangeAlone) {
    const std::pair<crop_row, figures> cases[] = {
        {row_of("WW", "1", "Sandy loams",
                {{market, "30"},
                 {take_all, "20"},
                 {manures, "40"},
                 {previous_manures, "10"},
                 {spring_rain, "10"}}),
         {"210", "0", "210", "200", "50"}},
        {row_of("CAB", "3", "Sands", {{manures, "50"}, {winter_rain, "20"}}),
         {"305.5", "0", "305.5", "335.5", "50"}},
        {row_of("SO", "1", "Sands", {{undersowing, "-25"}, {delayed_sowing, "-3.75"}}),
         {"91.2", "0", "91.2", "120", "0"}},
        {row_of("SOSR", "1", "Sands", {{turnip_rape, "-20"}}), {"80", "0", "80", "100", "0"}},
        {row_of("WW", "5", "Sands", {{manures, "40"}}), {"100 - 70", "0", "100 - 70", "140 - 110", "40"}},
        {row_of("WO", "6", "Sands", {{manures, "60"}}), {"40 - 0", "0", "40 - 0", "40 - 0", "60"}},
        {row_of("WOSR", "1", "Sands", {{spring_rain, "15"}}), {"195", "30", "225", "210", "0"}},
        {row_of("CAB", "5", "Sands"), {"280.5 - 236.5", "0", "280.5 - 236.5", "280.5 - 236.5", "0"}},
        // Potatoes have all in the seedbed: a variety works on what the adjustments leave in spring.
        {row_of("WPOT", "5", "Sands", {{winter_rain, "20"}}),
         {"20", "175 - 140", "195 - 160", "175 - 140", "0"}},
        {row_of("WPOT", "2", "Sands",
                {{manures, "40"}, {winter_rain, "10"}, {spring_rain, "20"}, {variety, "10"}}),
         {"0", "235", "225.9", "235", "40"}},
        {row_of("WPOT", "2", "Sands", {{winter_rain, "10"}, {spring_rain, "20"}, {variety, "-30"}}),
         {"39", "235", "276.7", "235", "0"}},
    };
    for (const auto& [row, expected] : cases)
        EXPECT_EQ(figures_of(recommend(row)), expected) << row.crop << row.residue_group;
}

TEST(RecommendRow, HalvesGoToTheEvenDigitInSpringAndTotalAlike) {
    const std::pair<std::string_view, std::string> cases[] = {
        {"0.05", "210"}, {"0.15", "209.8"},  {"0.25", "209.8"}, {"0.35", "209.6"},
        {"junk", "210"}, {"9.95 kg", "200"}, {"0.049", "210"},  {"0.051", "209.9"},
    };
    for (const auto& [text, expected] : cases) {
        const auto found = recommend(row_of("WW", "1", "Sands", {{manures, text}}));
        EXPECT_EQ(found.spring, expected) << text;
        EXPECT_EQ(found.total, expected) << text;
    }
    // Neither figure is a tie to its last binary digit; both are as a person adds them up.
    const auto both = recommend(row_of("WW", "1", "Sands", {{manures, "0.05"}, {previous_manures, "0.4"}}));
    EXPECT_EQ(figures_of(both), (figures{"209.6", "0", "209.6", "210", "0.45"}));
}

TEST(RecommendRow, ARowThatTheTablesLackGoesOnFromTheRowBefore) {
    base_requirement working;
    recommend_row(row_of("WPOT", "5", "Sands", {{manures, "30"}, {winter_rain, "20"}}), working);
    const auto missing = recommend_row(row_of("SB (low N)", "4", "Sands", {{undersowing, "-25"}}), working);
    EXPECT_EQ(figures_of(missing), (figures{"0", "175 - 140", "140 - 105", "165 - 130", "0"}));
    EXPECT_EQ(missing.notes, "Apply 1/2 to 2/3 in the seedbed and the rest at tuber initiation.");
    EXPECT_EQ(recommend_row(row_of("FB", "6", "Sands"), working).total, "0");
}

TEST(CropAdvice, FollowsTheMarketAndTheBaseDressingLimit) {
    const auto split = [](const std::string& shares) {
        return "A " + shares +
               " split between the start of spring growth and growth stage 30-31 is recommended.";
    };
    struct {
        crop_row row;
        std::string_view word;
        std::string expected;
    } const cases[] = {
        {row_of("WW", "1", "Sands"), "", split("33% / 67%")},
        {row_of("WW", "1", "Sands"), "breadmaking", split("20% / 80%")},
        {row_of("WW", "1", "Sands"), "grain distilling", split("50% / 50%")},
        {row_of("WB", "1", "Sands"), "", split("33% / 67%")},
        {row_of("WB", "1", "Sands"), "malt for brewing", split("50% / 50%")},
        {row_of("WB", "1", "Sands"), "malt for distilling", split("50% / 50%")},
        {row_of("WB", "1", "Sands"), "grain distilling", split("50% / 50%")},
        {row_of("WOSR", "6", "Sands"), "",
         "N top dressing in spring is best split, applying half at the start of spring growth and half prior "
         "to stem elongation."},
        {row_of("LET", "3", "Sands"), "",
         base_dressing +
             "(Base dressings up to 180kg/ha may sometimes be applied to transplanted lettuce only)."},
        {row_of("SR", "1", "Peaty soils"), "", base_dressing},
        {row_of("RB", "5", "Sands"), "", ""},
        {row_of("SR/TR", "1", "Sands"), "", ""},
        // The limit is tested before manures are taken off.
        {row_of("CAB", "1", "Sands", {{manures, "300"}}), "", base_dressing},
    };
    for (const auto& [row, word, expected] : cases) {
        crop_row answered = row;
        (row.crop == "WW" ? answered.notes_ww : answered.notes_wb) = word;
        EXPECT_EQ(recommend(answered).notes, expected) << row.crop << " " << word;
    }
}

}  // namespace kel
