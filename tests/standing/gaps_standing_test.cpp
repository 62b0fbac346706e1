// Farms that lack something, each in one way: what is missing is said, and no figure takes its place. And the
// links between the years, which may lead anywhere.
#include <SQLiteCpp/SQLiteCpp.h>

#include <algorithm>
#include <filesystem>

#include "core/whole_file.h"
#include "standing/farm_standing.h"
#include "standing/standing_messages.h"
#include "standing/standing_module.h"
#include "standing/standing_report.h"
#include "tests/support/sample_chain.h"

namespace kel::test {
namespace {

namespace text = standing_messages;
using texts = std::vector<std::string>;

class GapsStanding : public sample_chain_test {
  protected:
    void SetUp() override { open_year(2); }

    static void run_sql(const std::string& file, const std::string& sql) {
        SQLite::Database(file, SQLite::OPEN_READWRITE).exec(sql);
    }
    farm_standing standing() { return standing_of(linked_paths(state), rain); }
    static const step_standing& of(const farm_standing& farm, farm_step step) {
        return farm.steps.at(static_cast<std::size_t>(step));
    }
    texts missing(farm_step step) {
        texts all;
        for (const missing_data& lack : standing().missing)
            if (lack.step == step) all.push_back(lack.text);
        return all;
    }
    town_rain rain{state.places.climate_tables()};
};

TEST_F(GapsStanding, SaysOfEachStepWhatIsMissing) {
    using enum farm_step;
    struct gap {
        const char* sql;
        farm_step step;
        std::string says;
        severity least;
        bool done = false;
    };
    const std::vector<gap> gaps{
        {"DELETE FROM [FarmProfile]", profile, std::string(text::no_profile), severity::not_done},
        {"UPDATE [Field Data] SET [Soil] = '' WHERE [Field Name] = 'Low Moss'", profile,
         text::fields_without_soil({"Low Moss"}), severity::attention},
        {"UPDATE [Field Data] SET [Soil] = 'Clay' WHERE [Field Name] IN ('Low Moss', 'Long Rig')", profile,
         "No soil is entered for Long Rig and Low Moss.", severity::attention},
        {"UPDATE [Field Data] SET [Size] = '0' WHERE [Field Name] = 'Long Rig'", profile,
         text::fields_without_area({"Long Rig"}), severity::attention},
        {"DELETE FROM [Land]", land, std::string(text::no_land), severity::not_done},
        {"DELETE FROM [Land] WHERE [Field Area ID] = 'Long Rig'", land, text::land_missing({"Long Rig"}),
         severity::attention},
        {"DELETE FROM [Land_animals]", land, std::string(text::no_stock), severity::attention},
        {"DELETE FROM [Slurry_store]", storage, std::string(text::no_stores), severity::attention},
        {"UPDATE [Slurry_store] SET [Store_shape] = 'Round' WHERE [Store_name] = 'Lagoon'", storage,
         text::stores_incomplete({"Lagoon"}), severity::attention},
        {"UPDATE [Slurry_store] SET [Store_%] = NULL WHERE [Store_name] = 'Lagoon'", storage,
         text::stores_incomplete({"Lagoon"}), severity::attention},
        {"UPDATE [Slurry_store] SET [Store_depth] = '0'", storage, std::string(text::no_capacity),
         severity::attention},
        {"UPDATE [Slurry_animals] SET [Percent] = NULL WHERE rowid = 1", storage, "", severity::attention},
        {"DELETE FROM [Store_in]", storage, std::string(text::no_dirty_water), severity::attention},
        {"UPDATE [FarmProfile] SET [Town] = 'Nowhere'", storage, text::no_rain("Nowhere"),
         severity::attention},
        {"UPDATE [Land] SET [Crop] = ''", storage, "", severity::attention},
        {"UPDATE [Manure_applic] SET [Area Spread] = NULL WHERE [Field Area ID] = 'Low Moss'", manure,
         text::manure_gaps({"Low Moss"}), severity::attention},
        {"UPDATE [Type] SET [Year] = NULL", manure, std::string(text::no_year), severity::attention},
        {"UPDATE [Type] SET [Year] = NULL", inorganic, std::string(text::no_year), severity::attention},
        {"UPDATE [Inorganic N] SET [Type] = '' WHERE [Field Area ID] = 'Den Brae'", inorganic,
         text::inorganic_gaps({"Den Brae"}), severity::attention},
        {"UPDATE [Land] SET [Crop] = '' WHERE [Field Area ID] = 'Den Brae'", inorganic,
         text::calendar_not_known({"Den Brae"}), severity::attention, true},
        {"DELETE FROM [Recommendations] WHERE [Field Area ID] = 'Kirk Field'", crops,
         text::requirement_missing({"Kirk Field"}), severity::attention},
        {"DELETE FROM [Crops]", crops, text::requirement_missing({"Kirk Field", "West Muir", "Doocot Field"}),
         severity::not_done},
        {"DELETE FROM [Site]", grass, "", severity::not_done},
    };
    const std::string whole = path("whole.kel");
    copy_whole_file(state.assess_file, whole);
    for (const gap& gap : gaps) {
        SCOPED_TRACE(gap.sql);
        copy_whole_file(whole, state.assess_file);
        run_sql(state.assess_file, gap.sql);
        const farm_standing farm = standing();
        ASSERT_EQ(farm.trouble, "");
        const auto says = missing(gap.step);
        EXPECT_FALSE(says.empty());
        const bool said = gap.says.empty() || std::ranges::count(says, gap.says) == 1;
        EXPECT_TRUE(said) << (says.empty() ? "" : says.front());
        const step_standing& step = of(farm, gap.step);
        EXPECT_GE(step.worst, gap.least) << step.verdict;
        EXPECT_EQ(step.done, gap.done);
        // Neither a level nor a breach comes from what is not there.
        if (gap.step == storage && std::string_view(gap.sql).find("[Land]") == std::string_view::npos) {
            EXPECT_FALSE(farm.highest_level);
            EXPECT_NE(step.verdict.find("cannot be worked out"), std::string::npos) << step.verdict;
        }
    }
}

TEST_F(GapsStanding, LinksThatLeadNowhereOrInACircleAreSaidAndNotFollowed) {
    const std::string before = files[1];
    const auto over = [this] { return standing().over_limit.size(); };
    ASSERT_EQ(over(), 2U);
    run_sql(path("2022.kel"), "UPDATE [FarmProfile] SET [Name] = 'Knowehead & Son'");
    struct link {
        std::string previous;
        std::string before_previous;
        std::string says;
        std::size_t over;  // fields: 252.96 kg of one of them are this year's alone
    };
    write_file(path("spoilt.kel"), "no database at all, but of some length");
    const std::vector<link> links{
        {"", "", std::string(text::no_last_year), 1},
        {"", files[0], std::string(text::half_a_chain), 1},
        {state.assess_file, "", std::string(text::links_to_itself), 1},
        {files[0], "", std::string(text::not_the_year_before), 1},
        {before, before, std::string(text::links_in_a_circle), 2},
        {before, state.assess_file, std::string(text::links_in_a_circle), 2},
        {path("gone.kel"), "", text::last_year_unreadable("it is not there."), 1},
        {path("spoilt.kel"), "",
         text::last_year_unreadable("it is not an assessment file, or it is damaged."), 1},
    };
    for (const link& link : links) {
        SCOPED_TRACE(link.says);
        state.prev1_file = link.previous;
        state.prev2_file = link.before_previous;
        EXPECT_EQ(missing(farm_step::manure), texts{link.says});
        EXPECT_EQ(over(), link.over);
    }
    open_year(1);
    EXPECT_EQ(missing(farm_step::manure), texts{text::of_another_farm("Knowehead & Son")});
}

TEST_F(GapsStanding, LastYearsFileMaySpoilTheTwelveMonthsButNotTheRest) {
    run_sql(files[1], "UPDATE [Manure_applic] SET [Date] = 'in spring' WHERE rowid = 3");
    farm_standing farm = standing();
    EXPECT_EQ(farm.trouble, "");
    EXPECT_EQ(farm.over_limit.size(), 1U);
    ASSERT_FALSE(missing(farm_step::manure).empty());
    EXPECT_EQ(missing(farm_step::manure).front().find("Last year's file cannot be read"), 0U);
    run_sql(files[1], "DELETE FROM [Manure_applic]");
    farm = standing();
    EXPECT_TRUE(farm.over_limit.empty()) << "the check is switched off, as in Step 3";
    EXPECT_EQ(missing(farm_step::manure), texts{std::string(text::last_year_without_applications)});
    EXPECT_EQ(of(farm, farm_step::manure).worst, severity::wrong) << "the closed period stands";
}

TEST_F(GapsStanding, AFileThatCannotBeReadOrChangesMeanwhileHasNoVerdict) {
    {
        const farm_year year = open_farm_year(linked_paths(state));
        check_unchanged(year);
        std::filesystem::last_write_time(files[1], std::filesystem::file_time_type::clock::now());
        EXPECT_THROW(check_unchanged(year), file_error);
    }
    {
        SQLite::Database other(state.assess_file, SQLite::OPEN_READWRITE);
        other.exec("BEGIN EXCLUSIVE");
        EXPECT_EQ(standing().trouble, "it is in use by another program.");
    }
    std::filesystem::resize_file(state.assess_file, 20000);
    EXPECT_NE(standing().trouble, "");
    EXPECT_TRUE(standing().steps.empty());
    EXPECT_EQ(standing().worst(), severity::wrong);
    state.assess_file = std::filesystem::path(path("")).string();
    EXPECT_EQ(standing().trouble, "it is no file.");
}

TEST_F(GapsStanding, RowsOfFieldsThatTheProfileLacksAreSaid) {
    run_sql(state.assess_file, "DELETE FROM [Field Data] WHERE [Field Name] = 'Lade Haugh'");
    const farm_standing farm = standing();
    for (const farm_step step : {farm_step::land, farm_step::manure}) {
        ASSERT_EQ(missing(step).size(), 1U) << title_of(step);
        EXPECT_NE(missing(step).front().find("(Lade Haugh)"), std::string::npos);
    }
    EXPECT_EQ(farm.over_limit.size(), 1U) << "its applications go with the field";
}

TEST_F(GapsStanding, AReasonIsWhatStandsBehindTheWordsThatStep4PutsThere) {
    const auto judged = [this](const std::string& comments) {
        run_sql(state.assess_file, "UPDATE [Inorganic N] SET [Comments] = '" + comments +
                                       "' WHERE [Field Area ID] = 'East Muir' AND [Date] LIKE '2025-09%'");
        return of(standing(), farm_step::inorganic).worst;
    };
    EXPECT_EQ(judged("Reason for application during closed period: "), severity::wrong);
    EXPECT_EQ(judged("Reason for application during closed period:"), severity::wrong);
    EXPECT_EQ(judged(""), severity::wrong);
    EXPECT_EQ(judged("Reason for application during closed period: oilseed rape"), severity::attention);
}

TEST_F(GapsStanding, ThePageTellsNamesAsTheyAreTyped) {
    for (const char* table : {"Land", "Manure_applic", "Inorganic N", "Site", "Recommendations"})
        run_sql(state.assess_file,
                std::string("UPDATE [") + table +
                    "] SET [Field Area ID] = '<b>Park & Co' WHERE [Field Area ID] = 'Steading Park'");
    run_sql(state.assess_file,
            "UPDATE [Field Data] SET [Field Name] = '<b>Park & Co' WHERE [Field Name] = 'Steading Park'");
    std::string page;
    for (const std::string& line : standing_report(standing()))
        page += line + "\n";
    EXPECT_EQ(page.find("<b>"), std::string::npos);
    EXPECT_NE(page.find("&lt;b&gt;Park &amp; Co"), std::string::npos);
    for (const char* told : {"253.0", "09/10/2025", "of 87.2", "Low Moss", "KEL year 19 December 2024"})
        EXPECT_NE(page.find(told), std::string::npos) << told;
}

TEST_F(GapsStanding, TheOpenFarmsStandingFollowsItsFiles) {
    struct quiet : report_viewer {
        void wait_cursor(bool) override {}
        void hide_screen(screen_id) override {}
        void show(const viewer_request&) override {}
    } viewer;
    report_desk desk{state, viewer, [] { return make_date(15, 11, 2026); }, "the developer"};
    standing_module module(state, desk);
    module.bring_up_to_date();
    EXPECT_TRUE(module.is_current());
    EXPECT_EQ(module.standing()->over_limit.size(), 2U);
    run_sql(files[1], "DELETE FROM [Manure_applic] WHERE [Field Area ID] = 'Lade Haugh'");
    EXPECT_FALSE(module.is_current());
    module.bring_up_to_date();
    EXPECT_EQ(module.standing()->over_limit.size(), 1U) << "last year's file counts too";
    module.report();
    EXPECT_NE(file_text(path("KEL_report_standing.htm")).find("Where the farm stands"), std::string::npos);
    state.assess_file.clear();
    module.bring_up_to_date();
    EXPECT_FALSE(module.standing());
}

}  // namespace
}  // namespace kel::test
