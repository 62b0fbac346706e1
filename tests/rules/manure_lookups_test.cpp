// Nitrogen of the applications as the requirement modules take it over.
#include "rules/manure_lookups.h"

#include "rules/manure_history.h"
#include "tests/support/farm_files.h"

namespace kel::test {

class ManureLookups : public farm_test {
  protected:
    void SetUp() override {
        open_farm({{"Long Rig", "15"}});
        state.limits = year_limits_of(*state.kel_year_start);
    }
    void link() {
        state.prev1_file = make_farm("last.kel", {{"Long Rig", "15"}}, 2023);
        state.prev2_file = make_farm("before.kel", {{"Long Rig", "15"}}, 2022);
    }
    static void apply(const std::string& file, const std::string& day, const std::string& now,
                      const std::string& next, const std::string& field = "Long Rig") {
        add_row(file, "Manure_applic",
                {{"Field Area ID", field},
                 {"Date", day},
                 {"Available N Rate", now},
                 {"Available N Rate Next", next}});
    }
};

TEST_F(ManureLookups, NForThisCropLiesBetweenItsDates) {
    link();
    apply(state.assess_file, "2025-02-01", "1", "0");  // on the first date
    apply(state.assess_file, "2025-02-02", "10.5", "0");
    apply(state.assess_file, "2025-07-31", "20", "0");
    apply(state.assess_file, "2025-08-01", "2", "0");  // on the second date
    apply(state.assess_file, "2025-03-01", "4", "0", "East Muir");
    apply(state.assess_file, "", "8", "0");
    apply(state.prev1_file, "2025-02-01", "16", "0");
    apply(state.prev1_file, "2025-02-02", "32", "0");
    apply(state.prev1_file, "2025-09-01", "100", "0");  // no upper bound
    apply(state.prev1_file, "", "64", "0");
    const date first = make_date(1, 2, 2025);
    const date second = make_date(1, 8, 2025);
    EXPECT_EQ(n_for_this_crop(state, "Long Rig", first, second), 162.5F);
    EXPECT_EQ(state.limits.year_end, first);
    EXPECT_EQ(state.limits.year_start, second);
    state.prev1_file.clear();
    EXPECT_EQ(n_for_this_crop(state, "Long Rig", std::nullopt, second), 31.5F);
    EXPECT_EQ(state.limits.year_end, make_date(19, 12, 2024));
}

TEST_F(ManureLookups, NFromThePreviousCropGoesBackTwoYears) {
    link();
    const date harvest = make_date(20, 8, 2024);
    apply(state.assess_file, "2024-08-19", "1", "10");
    apply(state.assess_file, "2024-08-20", "1", "2");
    apply(state.prev1_file, "2024-03-01", "1", "5.25");
    apply(state.prev2_file, "2023-08-15", "100", "1");
    apply(state.prev2_file, "2023-09-01", "40", "1");
    EXPECT_EQ(n_from_previous_crop(state, "Long Rig", harvest, std::nullopt), 15.25F);
    EXPECT_EQ(state.limits.year_end, harvest);
    EXPECT_EQ(state.limits.year_start, make_date(19, 12, 2024)) << "no second date";
    add_row(state.prev1_file, "Crops", {{"Field Area ID", "Long Rig"}});
    add_row(state.prev1_file, "Crops", {{"Field Area ID", "Long Rig"}, {"Hdate p_crop", "2023-08-15"}});
    EXPECT_EQ(n_from_previous_crop(state, "Long Rig", harvest, std::nullopt), 55.25F);
    EXPECT_EQ(state.limits.year_end, make_date(15, 8, 2023));
}

TEST_F(ManureLookups, NFromThePreviousSeasonNeedsALinkedFile) {
    const date end = make_date(1, 10, 2024);
    apply(state.assess_file, "2024-01-05", "1", "7");
    EXPECT_EQ(n_from_previous_season(state, "Long Rig", end, std::nullopt), 0.0F);
    link();
    apply(state.prev1_file, "2024-09-30", "1", "3.5");
    apply(state.prev1_file, "2024-10-01", "1", "9");
    apply(state.prev2_file, "2023-10-02", "20", "1");
    EXPECT_EQ(n_from_previous_season(state, "Long Rig", end, std::nullopt), 3.5F);
    add_row(state.prev1_file, "Site", {{"Field Area ID", "Long Rig"}, {"End of season date", "2023-10-01"}});
    EXPECT_EQ(n_from_previous_season(state, "Long Rig", end, std::nullopt), 23.5F);
}

TEST_F(ManureLookups, HistoryHoldsTheYearsOfAFieldOldestFirst) {
    link();
    const auto spread = [](const std::string& file, const std::string& field, const std::string& day,
                           const std::string& rate) {
        row_values row{{"Field Area ID", field}, {"Manure Type", "slurry"}, {"Incorporation", "late"}};
        row.emplace_back("Applic Rate", rate);
        if (!day.empty()) row.emplace_back("Date", day);
        add_row(file, "Manure_applic", row);
    };
    spread(state.assess_file, "Long Rig", "2025-03-01", "30.5");
    spread(state.prev2_file, "Long Rig", "2023-03-02", "10");
    spread(state.prev1_file, "Long Rig", "", "");
    spread(state.prev1_file, "East Muir", "2024-03-02", "0");
    const manure_history history(open_manure_years(state));
    EXPECT_EQ(history.of("Long Rig"),
              (std::vector<manure_application>{{"slurry", "late", "02/03/2023", "10"},
                                               {"slurry", "late", "", ""},
                                               {"slurry", "late", "01/03/2025", "30.5"}}));
    EXPECT_TRUE(history.of("East Muir").empty()) << "its rates add up to 0";
    EXPECT_TRUE(history.of("Low Moss").empty());
}

TEST_F(ManureLookups, ApplicationsOfAFieldAreFoundAndBadDatesNamed) {
    apply(state.assess_file, "2025-02-30", "1", "1");
    const database db(state.assess_file);
    EXPECT_TRUE(has_manure_applications(db, "Long Rig"));
    EXPECT_FALSE(has_manure_applications(db, "long rig"));
    EXPECT_THROW(n_for_this_crop(state, "Long Rig", std::nullopt, std::nullopt), file_error);
}

}  // namespace kel::test
