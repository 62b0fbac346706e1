// The season of each field: closed days against days worked out by hand, what is missing instead of a band,
// and applications and sums against what Step 3 and the field record say of the sample farm.
#include "standing/season_calendar.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <regex>
#include <set>

#include "core/numbers.h"
#include "manure/manure_module.h"
#include "record/record_grid.h"
#include "record/record_module.h"
#include "rules/months.h"
#include "standing/season_messages.h"
#include "tests/support/sample_chain.h"

namespace kel::test {
namespace {

namespace says = season_messages;
using days = std::vector<std::string>;  // "01/10/2025-31/10/2025"

days days_of(const std::vector<season_span>& spans) {
    days found;
    for (const season_span& span : spans)
        found.push_back(short_date_text(span.first) + "-" + short_date_text(span.last));
    return found;
}

class Season : public farm_test {
  protected:
    /// The field's row as Step 2 leaves it; months not named have 5 ha.
    void assess(const std::string& field, const std::string& crops,
                const std::map<int, std::string>& months = {}) const {
        row_values row{{"Field Area ID", field}, {"Crop", crops}};
        for (int month = 1; month <= months_in_year; ++month) {
            const auto named = months.find(month);
            row.emplace_back(month_name(month), named == months.end() ? "5" : named->second);
        }
        add_row(state.assess_file, "Land", row);
    }
    void apply(const std::string& file, const std::string& field, const std::string& day,
               const std::string& total_n,
               const std::string& manure = "Dairy slurry - low dry matter (2%)") const {
        add_row(file, "Manure_applic",
                {{"Field Area ID", field},
                 {"Manure Type", manure},
                 {"Date", day},
                 {"Applic Rate", "30"},
                 {"Area Spread", "5"},
                 {"Total N Applic Rate", total_n}});
    }
    void fertilise(const std::string& field, const std::string& day) const {
        add_row(state.assess_file, "Inorganic N",
                {{"Field Area ID", field},
                 {"Type", "Urea"},
                 {"Date", day},
                 {"Amount", "100"},
                 {"N content", "46"},
                 {"Total N", "46"}});
    }
    void set_zone(const std::string& zone) const {
        database(state.assess_file).update_rows("FarmProfile", {{"KEL", zone}}, "Name", "Test Farm");
    }
    season_calendar season() const { return season_of(state); }
    field_season first_field() const { return season().fields.at(0); }
};

const std::string moray = "Moray/Aberdeenshire/Banff and Buchan KEL";
const std::string fife = "Strathmore and Fife KEL";
const std::map<int, std::string> closed_in_october{{10, "Closed"}};
const std::map<int, std::string> closed_in_autumn{{8, "Closed"}, {9, "Closed"}, {10, "Closed"}};

// Each day beside a span is open.
void expect_open_beside(const std::vector<season_span>& spans, const season_calendar& season) {
    for (const season_span& span : spans) {
        EXPECT_EQ(span_of(spans, span.first), &span);
        EXPECT_EQ(span_of(spans, span.last), &span);
        EXPECT_TRUE(span.first == season.first || !span_of(spans, add_days(span.first, -1)));
        EXPECT_TRUE(span.last == season.last || !span_of(spans, add_days(span.last, 1)));
    }
}

TEST_F(Season, BandsBeginAndEndOnTheDaysOfTheirRules) {
    const struct {
        int year;
        std::string zone;
        std::string soil;
        std::string crops;
        std::map<int, std::string> months;
        days manure;
        days fertiliser;
    } cases[] = {
        {2024,
         fife,
         "Sandy loams",
         "Grass / Grass",
         closed_in_october,
         {"01/10/2025-31/10/2025"},
         {"19/12/2024-15/02/2025", "15/09/2025-18/12/2025"}},
        {2024,
         moray,
         "Sands",
         "Other / Other",
         closed_in_autumn,
         {"01/08/2025-31/10/2025"},
         {"19/12/2024-20/02/2025", "01/09/2025-18/12/2025"}},
        {2024,
         fife,
         "Shallow soils",
         "Grass / Autumn sown crop",
         closed_in_october,
         {"01/10/2025-31/10/2025"},
         {"19/12/2024-15/02/2025", "01/09/2025-18/12/2025"}},
        {2024,
         moray,
         "Other mineral soils",
         "Other / Grass",
         {},
         {},
         {"19/12/2024-20/02/2025", "15/09/2025-18/12/2025"}},
        // Through 29 February; December closes at both ends of the year, as it stands stored.
        {2023,
         fife,
         "Humose soils",
         "Grass / Grass",
         {{12, "Closed"}, {2, "Closed"}},
         {"19/12/2023-31/12/2023", "01/02/2024-29/02/2024", "01/12/2024-18/12/2024"},
         {"19/12/2023-15/02/2024", "15/09/2024-18/12/2024"}},
    };
    for (const auto& c : cases) {
        open_farm({{"Long Rig", "5", c.soil}}, c.year);
        set_zone(c.zone);
        assess("Long Rig", c.crops, c.months);
        const season_calendar shown = season();
        const field_season& field = shown.fields.at(0);
        EXPECT_EQ(days_of(field.manure_closed), c.manure) << c.crops;
        EXPECT_EQ(days_of(field.fertiliser_closed), c.fertiliser) << c.crops << c.zone;
        EXPECT_EQ(field.manure_missing + field.fertiliser_missing, "");
        expect_open_beside(field.manure_closed, shown);
        expect_open_beside(field.fertiliser_closed, shown);
    }
}

TEST_F(Season, TheRuleIsToldAsItWasAppliedAndAChangedSoilIsNoted) {
    open_farm({{"Long Rig", "5", "Sandy loams"}, {"East Muir", "8", "Other mineral soils"}});
    assess("Long Rig", "Grass / Grass", {{10, "Closed"}, {1, "0"}, {2, "0"}});
    assess("East Muir", "Grass / Grass", closed_in_october);
    const season_calendar shown = season();
    EXPECT_EQ(shown.fields[0].manure_closed.at(0).rule,
              "Closed to slurries and manures 01/10/2025 to 31/10/2025: Sandy loams, crops Grass / Grass.");
    EXPECT_EQ(shown.fields[0].fertiliser_closed.at(1).rule,
              "Closed to inorganic nitrogen 15/09/2025 to 18/12/2025: Strathmore and Fife KEL, crops "
              "Grass / Grass.");
    EXPECT_EQ(days_of(shown.fields[0].no_land), days{"01/01/2025-28/02/2025"});
    EXPECT_TRUE(shown.fields[0].notes.empty());
    // Still closed, as every test of an application has it.
    EXPECT_EQ(days_of(shown.fields[1].manure_closed), days{"01/10/2025-31/10/2025"});
    EXPECT_EQ(shown.fields[1].manure_closed[0].rule,
              says::manure_closed_as_stored("01/10/2025 to 31/10/2025"));
    EXPECT_EQ(shown.fields[1].notes, std::vector<std::string>{std::string(says::soil_has_changed)});
}

TEST_F(Season, WhatIsMissingStandsInPlaceOfTheBand) {
    EXPECT_EQ(season().missing, says::no_assessment);
    open_farm({});
    EXPECT_EQ(season().missing, says::no_fields);
    open_farm({{"No row", "5"}, {"No crops", "5"}, {"No pair", "5"}, {"No soil", "5", ""}});
    assess("No crops", "", closed_in_october);
    assess("No pair", "Grass");
    assess("No soil", "Grass / Grass", closed_in_october);
    const std::vector<field_season> fields = season().fields;
    const std::string texts[] = {std::string(says::no_land_row), std::string(says::no_crops),
                                 says::unreadable_crops("Grass"), std::string(says::no_soil)};
    for (std::size_t i = 0; i < fields.size(); ++i) {
        EXPECT_EQ(fields[i].manure_missing, texts[i]);
        EXPECT_TRUE(fields[i].manure_closed.empty() && fields[i].no_land.empty()) << texts[i];
    }
    EXPECT_EQ(fields[2].fertiliser_missing, texts[2]);
    // Zone and crops alone close fertiliser.
    EXPECT_EQ(fields[3].fertiliser_missing, "");
    EXPECT_EQ(fields[3].fertiliser_closed.size(), 2U);
    set_zone("");
    EXPECT_EQ(season().notes.at(0), says::no_zone);
    const database file(state.assess_file);
    file.delete_rows("Type");
    EXPECT_EQ(season().missing, says::no_year);
}

// Days and months of the stored start do not count.
TEST_F(Season, AYearThatStartsOn29FebruaryRunsFromDecember) {
    open_farm({{"Long Rig", "5"}});
    {
        recordset type = database(state.assess_file).open("Type");
        type.edit();
        type.set("Year", make_date(29, 2, 2024));
        type.update();
    }
    assess("Long Rig", "Grass / Grass");
    const season_calendar shown = season();
    EXPECT_EQ(short_date_text(shown.first) + "-" + short_date_text(shown.last), "19/12/2024-18/12/2025");
    EXPECT_EQ(days_of(shown.fields.at(0).fertiliser_closed).at(0), "19/12/2024-15/02/2025");
}

TEST_F(Season, AMarkIsFramedWhereItsOwnRuleClosesTheDay) {
    open_farm({{"Long Rig", "5", "Sandy loams"}});
    assess("Long Rig", "Grass / Grass", closed_in_october);
    const std::string fym = "Pig FYM stored under cover";
    const std::string litter = "Broiler/Turkey litter stored uncovered";
    for (const auto& [day, manure] : std::vector<std::pair<std::string, std::string>>{{"2025-09-30", litter},
                                                                                      {"2025-10-01", litter},
                                                                                      {"2025-10-02", fym},
                                                                                      {"2025-10-31", litter},
                                                                                      {"2025-11-01", litter}})
        apply(state.assess_file, "Long Rig", day, "10", manure);
    for (const char* day : {"2025-02-15", "2025-02-16", "2025-09-14", "2025-09-15"})
        fertilise("Long Rig", day);
    const field_season field = first_field();
    std::string told;
    for (const season_mark& mark : field.marks)
        told += short_date_text(mark.day).substr(0, 5) + (mark.in_closed_period ? "! " : " ");
    EXPECT_EQ(told, "15/02! 16/02 14/09 15/09! 30/09 01/10! 02/10 31/10! 01/11 ");
    EXPECT_EQ(field.marks[6].kind, applied_as::exempt_manure);
    EXPECT_EQ(field.marks[5].amount, "30 tonne/ha on 5 ha, 10 kg N/ha");
    EXPECT_EQ(field.marks[0].amount, "100 kg/ha with 46 % N, 46 kg N/ha");
    EXPECT_EQ(field.peak.value().n_kg_per_ha, 50);
}

TEST_F(Season, ApplicationsThatCannotBeDrawnAreCounted) {
    open_farm({{"Long Rig", "5"}});
    assess("Long Rig", "Grass / Grass");
    apply(state.assess_file, "Long Rig", "2025-12-19", "10");  // a day late
    apply(state.assess_file, "Gone", "2025-03-01", "10");
    fertilise("Long Rig", "2024-12-18");  // a day early
    fertilise("Long Rig", "2024-12-19");
    fertilise("Gone", "2025-03-01");
    const season_calendar shown = season();
    EXPECT_EQ(shown.notes,
              (std::vector<std::string>{says::of_unknown_fields(1), std::string(says::no_last_year),
                                        says::of_unknown_fields(1), says::outside_year(1)}));
    EXPECT_EQ(shown.fields[0].marks.size(), 1U);
    EXPECT_EQ(shown.fields[0].peak_missing, says::application_without_day);
    EXPECT_FALSE(shown.fields[0].peak);
}

TEST_F(Season, LastYearCountsAsItsLinkAllows) {
    open_farm({{"Long Rig", "5"}});
    const std::string before = make_farm("before.kel", {{"Long Rig", "5"}}, 2023);
    assess("Long Rig", "Grass / Grass");
    apply(state.assess_file, "Long Rig", "2025-03-01", "100");
    EXPECT_EQ(first_field().peak.value().n_kg_per_ha, 100);
    EXPECT_EQ(season().notes, std::vector<std::string>{std::string(says::no_last_year)});
    state.prev1_file = before;
    EXPECT_EQ(first_field().peak_missing, says::last_year_has_none);
    apply(before, "Long Rig", "2024-03-01", "200");  // a year before: no longer
    apply(before, "Long Rig", "2024-03-02", "150.01");
    EXPECT_EQ(first_field().peak.value().n_kg_per_ha, 250.01F);
    EXPECT_TRUE(first_field().peak.value().over_limit);
    state.prev1_file = state.assess_file;
    EXPECT_TRUE(first_field().peak_missing.starts_with("Last year's applications cannot be counted."));
    EXPECT_FALSE(first_field().peak);
    state.prev1_file = path("gone.kel");
    EXPECT_TRUE(first_field().peak_missing.starts_with("Last year's applications cannot be counted."));
    EXPECT_EQ(first_field().marks.size(), 1U);
}

class SampleSeason : public sample_chain_test {
  protected:
    agreeing_person person;
};

TEST_F(SampleSeason, TheLimitIsJudgedAsStep3JudgesIt) {
    int peaks = 0;
    for (std::size_t year = 0; year < files.size(); ++year) {
        open_year(year);
        manure_module step3(state, person);
        step3.manure_load_stuff();
        ASSERT_TRUE(step3.calculate());
        const season_calendar season = season_of(state);
        const std::string limit_warning = step3.instructions();
        for (const field_season& field : season.fields) {
            const bool warned = limit_warning.find("- " + field.name) != std::string::npos;
            EXPECT_EQ(field.peak && field.peak->over_limit, warned) << field.name << " in " << year;
            EXPECT_EQ(field.peak_missing, "");
            if (field.peak) ++peaks;
        }
    }
    EXPECT_GT(peaks, 25);
    // By hand: 4 March of last year has left the twelve months of 5 March, 10 June those of 16 July.
    const std::vector<field_season> fields = season_of(state).fields;
    const auto park = std::ranges::find(fields, "Steading Park", &field_season::name);
    ASSERT_NE(park, fields.end());
    std::string sums;
    for (const season_mark& mark : park->marks)
        if (mark.rolling_n_kg_per_ha) sums += default_text(*mark.rolling_n_kg_per_ha) + " ";
    EXPECT_EQ(sums, "161.88 246.42 252.96 ");
    EXPECT_EQ(short_date_text(park->peak.value().day), "16/07/2025");
}

TEST_F(SampleSeason, ApplicationsInClosedPeriodsAreThoseOfTheFieldRecord) {
    const std::regex breach("Breach: An application of (manure|inorganic nitrogen) on ([0-9/]+) ");
    int breaches = 0;
    for (std::size_t year = 0; year < files.size(); ++year) {
        open_year(year);
        record_module record(state, person);
        record.record_load_stuff();
        for (const field_season& field : season_of(state).fields) {
            std::set<std::string> framed;
            for (const season_mark& mark : field.marks)
                if (mark.in_closed_period)
                    framed.insert((mark.kind == applied_as::fertiliser ? "inorganic nitrogen " : "manure ") +
                                  short_date_text(mark.day));
            record.select_field(field.name);
            std::set<std::string> told;
            for (int row = 0; row < record.warnings().row_count(); ++row) {
                const std::string& text = record.warnings().cell(row, record_warning_column::text);
                std::smatch found;
                if (std::regex_search(text, found, breach) &&
                    parse_date(found[2].str()) >= state.limits.year_start)
                    told.insert(found[1].str() + " " + found[2].str());
            }
            EXPECT_EQ(framed, told) << field.name << " in " << year;
            breaches += static_cast<int>(told.size());
        }
    }
    EXPECT_GE(breaches, 2);
}

}  // namespace
}  // namespace kel::test
