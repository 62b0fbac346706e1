#include "rules/manure_catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "core/numbers.h"

namespace kel {

TEST(ManureCatalogue, CodesOneTo43BelongToOneManureAndTimeEach) {
    std::set<int> codes;
    for (const manure_type& row : manure_catalogue()) {
        EXPECT_TRUE(codes.insert(row.code_early).second) << row.name;
        if (row.incorporation != no_choice)
            EXPECT_TRUE(codes.insert(row.code_late).second) << row.name;
        else
            EXPECT_EQ(row.code_early, row.code_late) << row.name;
    }
    EXPECT_EQ(codes.size(), 43U);
    EXPECT_EQ(*codes.begin(), 1);
    EXPECT_EQ(*codes.rbegin(), 43);
}

TEST(ManureCatalogue, SolidsGoByTonneAndDayAndHaveTheLowCodes) {
    int position = 0;
    float weighted = 0;
    for (const manure_type& row : manure_catalogue()) {
        weighted += static_cast<float>(row.position) * leading_single(row.default_n_content);
        EXPECT_EQ(row.position, ++position);
        const bool solid = row.kind == manure_kind::solid;
        EXPECT_EQ(row.unit_applied, solid ? "tonne" : "cubic m") << row.name;
        EXPECT_EQ(row.incorporation == hours_24, solid) << row.name;
        EXPECT_EQ(row.code_late <= 16, solid) << row.name;
        EXPECT_EQ(row.default_n_content.find('.') == std::string_view::npos, solid) << row.name;
    }
    EXPECT_EQ(weighted, 1356.0F) << "positions times contents, as added up from the printed table";
}

TEST(ManureCatalogue, ResolveCodeNamesManureAndTime) {
    const struct {
        std::string_view manure, incorporation;
        int code;
    } cases[] = {
        {"Pig FYM stored under cover", "Within 24 hours", 5},
        {"Pig FYM stored under cover", "Over 24 hours", 6},
        {"Dairy slurry - high dry matter (10%)", "Within 6 hours", 17},
        {"Dairy slurry - high dry matter (10%)", "Over 6 hours", 20},
        {"Dairy slurry - low dry matter (2%)", "Over 6 hours", 22},
        {"Young cattle slurry (250kg) - high dry matter (10%)", "Within 6 hours", 23},
        {"Pig slurry - low dry matter (2%)", "Over 6 hours", 43},
        {"Separated cattle slurry - strainer box", "Surface or rapid incorporation", 35},
        {"Separated cattle slurry - weeping wall", "", 36},
        {"Separated cattle slurry - mechanical separator", "Over 24 hours", 37},
    };
    for (const auto& c : cases)
        EXPECT_EQ(resolve_code(c.manure, c.incorporation, 9), c.code) << c.manure;
}

TEST(ManureCatalogue, ResolveCodeKeepsTheWorkingCodeWhenTheRowNamesNone) {
    const struct {
        std::string_view manure, incorporation;
    } cases[] = {
        {"Pig FYM stored under cover", ""},
        {"Pig FYM stored under cover", "Within 6 hours"},
        {"Dairy slurry - high dry matter (10%)", "Within 24 hours"},
        {"Dairy slurry - high dry matter (10%)", "within 6 hours"},
        {"dairy slurry - high dry matter (10%)", "Within 6 hours"},
        {"Compost", "Within 24 hours"},
        {"", ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(resolve_code(c.manure, c.incorporation, 31), 31) << c.manure;
}

TEST(ManureCatalogue, DefaultNContentIsTheSameForBothTimes) {
    for (const manure_type& row : manure_catalogue()) {
        EXPECT_EQ(default_n_content(row.code_early), row.default_n_content) << row.name;
        EXPECT_EQ(default_n_content(row.code_late), row.default_n_content) << row.name;
    }
    EXPECT_EQ(default_n_content(20), "4.0");  // the ".0" of a slurry stays
    for (const int code : {no_manure_code, 44, -1})
        EXPECT_FALSE(default_n_content(code)) << code;
}

TEST(ManureCatalogue, FifteenSlurriesAndFourExemptManures) {
    const auto rows = manure_catalogue();
    const auto is_slurry = [](const manure_type& row) { return slurry_test(row.name); };
    EXPECT_EQ(std::count_if(rows.begin(), rows.end(), is_slurry), 15);
    for (const manure_type& row : rows)
        EXPECT_EQ(is_exempt_fym(row.name), row.name.find(" FYM ") != std::string_view::npos) << row.name;
    for (const auto text : {"", "Slurry", "Layer manure stored uncovered"}) {
        EXPECT_FALSE(slurry_test(text)) << text;
        EXPECT_FALSE(is_exempt_fym(text)) << text;
    }
}

}  // namespace kel
