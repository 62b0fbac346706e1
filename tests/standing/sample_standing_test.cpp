// The three linked years of the sample farm: the figures behind the verdicts were added up by hand from its
// tables, and the verdicts are held against what the modules' own screens show.
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <map>

#include "land/land_messages.h"
#include "land/land_module.h"
#include "manure/manure_messages.h"
#include "manure/manure_module.h"
#include "record/record_grid.h"
#include "record/record_messages.h"
#include "record/record_module.h"
#include "standing/farm_standing.h"
#include "storage/storage_module.h"
#include "tests/support/sample_chain.h"

namespace kel::test {
namespace {

class SampleStanding : public sample_chain_test {
  protected:
    farm_standing standing() { return standing_of(linked_paths(state), rain); }
    static const step_standing& of(const farm_standing& farm, farm_step step) {
        return farm.steps.at(static_cast<std::size_t>(step));
    }
    town_rain rain{state.places.climate_tables()};
    agreeing_person person;
};

using texts = std::vector<std::string>;

texts sums(const std::vector<field_nitrogen>& fields) {
    texts all;
    for (const field_nitrogen& field : fields)
        all.push_back(field.field + " " + std::to_string(std::lround(field.n_kg_per_ha * 100)));
    return all;
}
texts days(const std::vector<closed_breach>& breaches) {
    texts all;
    for (const closed_breach& breach : breaches)
        all.push_back(breach.field + " " + short_date_text(breach.day) +
                      (breach.inorganic ? " N" : " manure"));
    return all;
}
texts excesses(const std::vector<requirement_excess>& fields) {
    texts all;
    for (const requirement_excess& field : fields)
        all.push_back(field.field + " " + field.applied + " of " + field.required);
    return all;
}

TEST_F(SampleStanding, TellsTheFiguresOfEachYear) {
    struct year_figures {
        texts over;  // hundredths of kg N/ha
        texts near;
        texts closed;
        texts excess;
        std::string land;
        int fullest_month;
        std::size_t months_over;
        std::map<farm_step, severity> not_fine;
    };
    using enum farm_step;
    const std::vector<year_figures> years{
        {{},
         {"Steading Park 22500", "Station Park 22800"},
         {},
         {},
         "27800 kg N/year, and 30947 kg N/year",
         2,
         0,
         {{manure, severity::attention}, {record, severity::attention}}},
        {{},
         {"Long Rig 24612", "Station Park 23394"},
         {},
         {"East Muir 119.6 of 114.6", "West Muir 79.2 of 75.8", "Station Park 83.6 of 30 - 0"},
         "27939 kg N/year, and 30771 kg N/year",
         2,
         0,
         {{manure, severity::attention}, {record, severity::wrong}}},
        {{"Steading Park 25296", "Lade Haugh 30648"},
         {"Kirk Field 22800", "Mill Croft 25000", "Station Park 22800"},
         {"Den Brae 09/10/2025 manure", "East Muir 08/09/2025 N"},
         {"Kirk Field 119 of 113.8", "Mill Croft 36.8 of -43.5", "East Muir 155.6 of 87.2",
          "Den Brae 34.5 of -27", "Whinny Knowe 34.5 of -100", "Doocot Field 179.4 of 165.2"},
         "29099 kg N/year, and 32251 kg N/year",
         2,
         1,
         {{storage, severity::wrong},
          {manure, severity::wrong},
          {inorganic, severity::attention},
          {record, severity::wrong}}},
    };
    for (std::size_t year = 0; year < years.size(); ++year) {
        SCOPED_TRACE(year);
        open_year(year);
        const farm_standing farm = standing();
        const year_figures& expected = years[year];
        EXPECT_EQ(farm.trouble, "");
        EXPECT_EQ(farm.year_start, state.kel_year_start);
        EXPECT_EQ(sums(farm.over_limit), expected.over);
        EXPECT_EQ(sums(farm.near_limit), expected.near);
        EXPECT_EQ(days(farm.breaches), expected.closed);
        EXPECT_EQ(excesses(farm.requirement_exceeded), expected.excess);
        EXPECT_NE(of(farm, land).verdict.find(expected.land), std::string::npos) << of(farm, land).verdict;
        ASSERT_TRUE(farm.highest_level);
        EXPECT_EQ(farm.highest_level->month, expected.fullest_month);
        EXPECT_EQ(farm.months_over_full.size(), expected.months_over);
        for (const step_standing& step : farm.steps) {
            const auto found = expected.not_fine.find(step.step);
            EXPECT_EQ(step.worst, found == expected.not_fine.end() ? severity::fine : found->second)
                << title_of(step.step) << ": " << step.verdict;
            EXPECT_EQ(step.done, step.verdict.find("No use") == std::string::npos &&
                                     !(step.step == storage && year == 2) &&
                                     !(step.step == composting && year < 2))
                << title_of(step.step);
        }
        EXPECT_EQ(farm.missing.size(), year == 1 ? 0U : 1U) << "last year's file, or the use of Low Moss";
    }
}

TEST_F(SampleStanding, AgreesWithTheScreensOfTheModules) {
    for (std::size_t year = 0; year < files.size(); ++year) {
        SCOPED_TRACE(year);
        open_year(year);
        const farm_standing farm = standing();

        land_module land(state, person);
        land.load_land_stuff();
        land.calculate();
        const std::string& verdict = of(farm, farm_step::land).verdict;
        EXPECT_NE(verdict.find(land.result()->production), std::string::npos) << verdict;
        EXPECT_EQ(verdict.starts_with("Enough"), land.result()->balance != land_balance::too_little);

        storage_module storage(state, person);
        storage.storage_load_stuff();
        ASSERT_TRUE(storage.storage_cont1() && storage.storage_cont2());
        const storage_balance& balance = *storage.plan().balance();
        EXPECT_EQ(farm.highest_level->percent, balance.largest_percent);
        EXPECT_EQ(farm.months_over_full.empty(), balance.warning.empty());

        manure_module manure(state, person);
        manure.manure_load_stuff();
        ASSERT_TRUE(manure.calculate());
        texts over;
        for (const field_nitrogen& field : farm.over_limit)
            over.push_back(field.field);
        const std::string limit = over.empty() ? "" : manure_messages::limit_warning(over);
        EXPECT_EQ(manure.instructions(), manure_messages::result_instruction() + limit);
        std::string warnings(manure_messages::warnings_heading);
        for (const closed_breach& breach : farm.breaches)
            if (!breach.inorganic)
                warnings.append(line_break)
                    .append(line_break)
                    .append(manure_messages::closed_warning(breach.applied, breach.field,
                                                            short_date_text(breach.day)));
        EXPECT_EQ(manure.warnings(), warnings);
    }
}

TEST_F(SampleStanding, AgreesWithTheFieldRecord) {
    for (std::size_t year = 0; year < files.size(); ++year) {
        SCOPED_TRACE(year);
        open_year(year);
        const farm_standing farm = standing();
        record_module record(state, person);
        record.record_load_stuff();
        for (const std::string& field : record.field_names()) {
            record.select_field(field);
            texts told;
            for (int row = 0; row < record.warnings().row_count(); ++row)
                told.push_back(record.warnings().cell(row, record_warning_column::text));
            const auto tells = [&told](const std::string& text) {
                return std::ranges::count(told, text) == 1;
            };
            for (const requirement_excess& excess : farm.requirement_exceeded)
                EXPECT_TRUE(excess.field != field ||
                            tells(record_messages::requirement_exceeded(excess.applied, excess.required)));
            for (const closed_breach& breach : farm.breaches)
                EXPECT_TRUE(breach.field != field || !breach.inorganic ||
                            tells(record_messages::inorganic_breach(short_date_text(breach.day))));
            const bool breached = std::ranges::any_of(
                farm.breaches, [&](const closed_breach& breach) { return breach.field == field; });
            const auto breaches = std::ranges::count_if(
                told, [](const std::string& text) { return text.starts_with("Closed Period Breach"); });
            EXPECT_EQ(breaches > 0, breached) << field;
        }
    }
}

TEST_F(SampleStanding, LeavesTheFilesAsTheyAre) {
    open_year(2);
    const auto contents = [this] {
        std::map<std::string, std::string> all;
        for (const auto& entry :
             std::filesystem::directory_iterator(std::filesystem::path(state.assess_file).parent_path()))
            if (entry.is_regular_file()) all[entry.path().string()] = file_text(entry.path().string());
        return all;
    };
    const auto before = contents();
    std::filesystem::permissions(state.assess_file, std::filesystem::perms::owner_read);
    const farm_standing farm = standing();
    EXPECT_EQ(farm.trouble, "");
    EXPECT_EQ(contents(), before);
    EXPECT_EQ(standing(), farm);
}

}  // namespace
}  // namespace kel::test
