// The sample farm, Mains of Tullifern, through its three linked years: every table holds what the screens
// would have written, the years fit together, and the cases that the guides show are there.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "composting/composting_module.h"
#include "core/numbers.h"
#include "core/whole_file.h"
#include "crops/crop_messages.h"
#include "crops/crop_module.h"
#include "inorganic/inorganic_messages.h"
#include "inorganic/inorganic_module.h"
#include "land/land_module.h"
#include "manure/manure_messages.h"
#include "manure/manure_module.h"
#include "profile/profile_module.h"
#include "record/record_grid.h"
#include "record/record_module.h"
#include "rules/closed_periods.h"
#include "rules/crop_lists.h"
#include "rules/nitrogen_limits.h"
#include "storage/storage_module.h"
#include "tests/support/sample_chain.h"

namespace kel {
namespace {

using test::agreeing_person;
using test::sample_year;
using test::sample_years;

struct no_screens : screens {
    void open(screen_id) override {}
    void open_in_place_of(screen_id, screen_id) override {}
    bool exists(screen_id) const override { return true; }
    bool in_view(screen_id) const override { return false; }
};

/// One year after the other stands open as it does in the program.
class SampleFarm : public test::farm_test {
  protected:
    void open(const std::string& file, date start) {
        state.prev1_file = state.assess_file;
        state.assess_file = file;
        state.kel_year_start = start;
        state.farm_zone = "Strathmore and Fife KEL";
        state.farm_town = "Kirriemuir";
        state.manure_caller = manure_opener::front;
    }
    agreeing_person person;
};

/// The texts of a column by those of another.
std::map<std::string, std::string> by(const std::string& file, const char* table, const char* key,
                                      const char* column) {
    std::map<std::string, std::string> found;
    for (recordset rows = database(file).open(table); !rows.eof(); rows.move_next())
        found[rows.text(key)] = rows.text(column);
    return found;
}

std::map<std::string, crop_pair> crop_pairs(const sample_year& year) {
    std::map<std::string, crop_pair> pairs;
    for (const auto& [field, crop] : by(year.path, "Land", "Field Area ID", "Crop"))
        if (const auto pair = split_crop_pair(crop)) pairs[field] = *pair;
    return pairs;
}

std::vector<dated_rate> total_n_rates(const sample_year& year) {
    std::vector<dated_rate> rates;
    for (recordset rows = database(year.path).open("Manure_applic"); !rows.eof(); rows.move_next())
        rates.push_back({rows.text("Field Area ID"), rows.date_value("Date").value(),
                         leading_single(rows.text("Total N Applic Rate"))});
    return rates;
}

TEST_F(SampleFarm, ProfilePassesAllTestsOfSetProfile) {
    for (const sample_year& year : sample_years()) {
        open(path("copy.kel"), year.start);
        copy_whole_file(year.path, state.assess_file);
        profile_module profile(state, person);
        profile.load_profile();
        EXPECT_EQ(profile.set_profile(), set_profile_result::saved);
        EXPECT_EQ(person.told, std::vector<message>{});
        EXPECT_EQ(profile.farm().field_count, std::to_string(profile.fields().row_count()));
        EXPECT_EQ(profile.farm().year, short_date_text(year.start));
        EXPECT_EQ(database(state.places.climate_tables()).lookup("KEL", "KEL_rain", "Town", state.farm_town),
                  state.farm_zone);
    }
}

// What a person enters once more must change nothing, in this and the next tests.
TEST_F(SampleFarm, LandAndStockRowsAreAsStep1WritesThem) {
    for (const sample_year& year : sample_years()) {
        open(year.path, year.start);
        land_module module(state, person);
        module.load_land_stuff();
        const text_grid before = module.land();
        EXPECT_EQ(before.data_row_count(), static_cast<int>(module.field_names().size()));
        for (int row = 0; row < before.data_row_count(); ++row) {
            EXPECT_TRUE(module.enter_field(row, before.cell(row, land_column::field)).closes);
            for (const int area : {land_column::grass, land_column::not_in_grass})
                EXPECT_TRUE(module.enter_area(row, area, before.cell(row, area)).closes);
            for (const int d : {land_column::buffer, land_column::slope, land_column::other_deduction})
                EXPECT_TRUE(module.enter_deduction(row, d, before.cell(row, d)).closes);
            for (int stored = land_column::field; stored <= land_column::total_area; ++stored)
                EXPECT_EQ(module.land().cell(row, stored), before.cell(row, stored)) << row << " " << stored;
        }
        EXPECT_EQ(person.told, std::vector<message>{});
        // The stock table is worked out as it loads.
        const char* total = "Total N Excreted By All These Animals (kg/year)";
        for (const auto& [stock, total_n] : by(year.path, "Land_animals", "Stock Unit", total))
            EXPECT_EQ(module.animals().cell(module.animals().find(stock_column::stock, stock), 3), total_n);
    }
}

TEST_F(SampleFarm, MonthsAreClosedAsSoilAndSecondCropAsk) {
    for (const sample_year& year : sample_years())
        for (recordset land = database(year.path).open("Land"); !land.eof(); land.move_next()) {
            const auto pair = split_crop_pair(land.text("Crop"));
            EXPECT_EQ(pair.has_value(),
                      land.text("Field Area ID") != "Low Moss" || year_of(year.start) < 2024);
            if (!pair) continue;
            const auto closed = closed_months(land.text("Soil"), pair->second);
            for (int month = 1; month <= 12; ++month) {
                const bool expected = std::ranges::count(closed, month) != 0;
                const std::string name(month_name(month));
                EXPECT_EQ(land.text(name) == closed_month, expected) << land.text("Field Area ID") << name;
                EXPECT_EQ(land.text("Applic_" + name) == closed_month, expected);
            }
        }
}

TEST_F(SampleFarm, ManureRowsAreAsStep3WritesThemAfterAskingForTwo) {
    using namespace manure_column;
    for (const sample_year& year : sample_years()) {
        open(year.path, year.start);
        manure_module module(state, person);
        module.manure_load_stuff();
        const text_grid before = module.applications();
        ASSERT_GT(before.data_row_count(), 0);
        for (int row = 0; row < before.data_row_count(); ++row) {
            const auto cell = [&](int column) { return before.cell(row, column); };
            EXPECT_TRUE(module.enter_field(row, cell(field)).closes);
            const bool asks = module.enter_manure(row, cell(manure)).next.has_value();
            EXPECT_TRUE(!asks || module.enter_incorporation(row, cell(incorporation)).closes);
            EXPECT_TRUE(module.enter_date(row, parse_date(cell(manure_column::date)).value()).closes);
            EXPECT_TRUE(module.enter_area(row, cell(area)).closes);
            EXPECT_TRUE(module.enter_amount(row, cell(amount)).closes);
            const bool analysis = module.applications().cell(row, n_content) != cell(n_content);
            EXPECT_TRUE(!analysis || module.enter_n_content(row, cell(n_content)).closes);
        }
        EXPECT_EQ(module.applications(), before) << year.path;
    }
    using namespace manure_messages;
    EXPECT_EQ(person.told, (std::vector{no_land_available, closed_period, no_land_available}));
}

TEST_F(SampleFarm, InorganicRowsAreAsStep4WritesThem) {
    for (const sample_year& year : sample_years()) {
        open(year.path, year.start);
        inorganic_module module(state, person);
        module.inorganic_load_stuff();
        const text_grid before = module.applications();
        ASSERT_GT(before.data_row_count(), 0);
        for (int row = 0; row < before.data_row_count(); ++row) {
            box_entry entered;
            for (const entry_part& part : module.click(row, inorganic_column::type).parts)
                entered.parts.push_back({.text = part.text, .day = parse_date(part.text)});
            const auto changes = module.pick_date(row, entered.day().value()).changes;
            const bool commented =
                entered.text(application_part::comments).starts_with("Reason for application during closed");
            EXPECT_EQ(changes.size(), commented ? 2U : 1U);
            EXPECT_TRUE(module.enter_application(row, entered).closes);
        }
        EXPECT_EQ(module.applications(), before) << year.path;
    }
    EXPECT_EQ(person.told, std::vector(person.told.size(), inorganic_messages::closed_period));
}

/// The answer by which a question writes what the row had before: its place and, of delayed sowing, the days.
part_entry answer_of(const opening& asked, const text_grid& before, int row) {
    const auto cell = [&](int column) { return before.cell(row, column); };
    using namespace crop_messages;
    const auto& choices = asked.parts.front().choices;
    const auto place = [&](auto fits) {
        int at = 0;
        while (!fits(at))
            ++at;
        return part_entry{.text = choices.at(static_cast<std::size_t>(at)), .choice = at};
    };
    if (asked.caption == potato_caption)
        return place([&](int at) {
            return potato_types()[static_cast<std::size_t>(at)].code == cell(crop_column::planned_crop);
        });
    if (asked.caption == spring_question)
        return place([&](int at) { return spring_status_of(at) == cell(crop_column::spring_status); });
    if (asked.caption == delay_question) {
        const float days = before.number(row, crop_column::delayed_sowing) / -1.5F;
        return {.text = {}, .choice = days > 0 ? 1 : 0, .number = shortest_text(days)};
    }
    const crop_question question = asked.caption == wheat_market_question    ? crop_question::wheat_market
                                   : asked.caption == barley_market_question ? crop_question::barley_market
                                   : asked.caption == take_all_question      ? crop_question::take_all
                                   : asked.caption == undersowing_question   ? crop_question::undersowing
                                                                             : crop_question::variety;
    return place([&](int at) {
        const crop_answer& answer = answers_to(question)[static_cast<std::size_t>(at)];
        const answer_columns columns = columns_of(question);
        return std::to_string(answer.value) == cell(columns.figure) &&
               (columns.word < 0 || answer.word == cell(columns.word));
    });
}

TEST_F(SampleFarm, CropRowsAreAsTheCropsModuleWritesThemWithTheirRecommendations) {
    no_screens others;
    std::set<std::string> planned;
    for (const sample_year& year : sample_years()) {
        const std::string copy = path(std::to_string(year_of(year.start)) + ".kel");
        copy_whole_file(year.path, copy);
        state.prev2_file = state.prev1_file;
        open(copy, year.start);
        crop_module module(state, person, others);
        module.open();
        ASSERT_TRUE(module.enter_winter_rain(module.winter_answer()));
        const text_grid before = module.crops();
        ASSERT_GT(before.data_row_count(), 0);
        for (int row = 0; row < before.data_row_count(); ++row) {
            const auto cell = [&](int column) { return before.cell(row, column); };
            const auto day = [&](int column) { return part_entry{.day = parse_date(cell(column))}; };
            planned.insert(cell(crop_column::planned_crop));
            EXPECT_TRUE(module.enter_field(row, cell(crop_column::field)).closes);
            const std::string previous(previous_crop_name(cell(crop_column::previous_crop)));
            EXPECT_TRUE(
                module.enter_previous_crop(row, {{{.text = previous}, day(crop_column::previous_harvest)}})
                    .closes);
            const std::string name(planned_list_name(cell(crop_column::planned_crop)));
            outcome step = module.enter_planned_crop(
                row, {{{.text = name}, day(crop_column::harvest), day(crop_column::sowing)}});
            EXPECT_TRUE(step.closes);
            while (step.next)
                step = module.enter_answer(row, {{answer_of(*step.next, before, row)}});
            for (const int column : {crop_column::manures, crop_column::previous_manures}) {
                const auto figure = module.transfer(row, column).changes;
                EXPECT_EQ(figure.at(0).text, cell(column)) << cell(crop_column::field) << column;
            }
        }
        EXPECT_EQ(module.crops(), before) << year.path;
        const auto stored = by(year.path, "Recommendations", "Field Area ID", "N required");
        ASSERT_TRUE(module.calculate());
        module.back();
        EXPECT_EQ(by(copy, "Recommendations", "Field Area ID", "N required"), stored);
        for (int row = 0; row < module.results().row_count(); ++row)
            EXPECT_EQ(stored.count(module.results().cell(row, crop_result_column::field)), 1U);
    }
    EXPECT_EQ(person.told, std::vector<message>{});
    EXPECT_TRUE(planned.contains("WPOT") && planned.contains("CABS") && planned.contains("BROC"));
    EXPECT_GE(planned.size(), 5U);
    EXPECT_EQ(by(sample_years()[1].path, "Recommendations", "Field Area ID", "N required").at("Station Park"),
              "30 - 0");
}

// No row can hold the refusal, since the row that it leaves has no crop and stops Calculate; the fields on
// which the guide has it shown are there. The ley is why Station Park has feed barley.
TEST_F(SampleFarm, LowNMaltingBarleyIsRefusedAfterTheLeyAndAfterThePermanentGrass) {
    no_screens others;
    const auto years = sample_years();
    struct {
        std::size_t year;
        const char* field;
        const char* previous;
        const message& refusal;
    } const cases[] = {
        {1, "Station Park", nullptr, crop_messages::malting_after_crop},
        {2, "Low Moss", "Permanent grass", crop_messages::malting_after_crop},
        {2, "Low Moss", nullptr, crop_messages::malting_on_soil},
    };
    for (const auto& [year, field, previous, refusal] : cases) {
        state.assess_file = years[year - 1].path;
        open(years[year].path, years[year].start);
        crop_module module(state, person, others);
        module.open();
        module.enter_winter_rain(module.winter_answer());
        int row = module.crops().find(crop_column::field, field);
        if (row < 0) module.enter_field(row = module.crops().data_row_count(), field);
        if (previous) module.enter_previous_crop(row, {{{.text = previous}, {}}});
        module.enter_planned_crop(row, {{{.text = "Spring barley (low N malting)"}, {}, {}}});
        EXPECT_EQ(person.told.back(), refusal) << field;
        EXPECT_EQ(module.crops().cell(row, crop_column::planned_crop), "") << field;
        EXPECT_FALSE(module.calculate());
    }
}

TEST(SampleChain, FirstCropsFollowLastYearsSecondCropsButForOneField) {
    const auto years = sample_years();
    std::vector<std::string> mismatches;
    std::set<std::string> uses;
    for (std::size_t i = 0; i < years.size(); ++i) {
        for (const auto& [field, pair] : crop_pairs(years[i])) {
            uses.insert(compose_crop_pair(pair.first, pair.second));
            if (i > 0 && crop_pairs(years[i - 1]).at(field).second != pair.first) mismatches.push_back(field);
        }
    }
    EXPECT_EQ(mismatches, std::vector<std::string>{"Station Park"});
    EXPECT_EQ(uses.size(), 9u);  // every use is shown somewhere
}

TEST(SampleChain, OneFieldIsOverItsLimitByThisYearAndOneTogetherWithLastYear) {
    using fields = std::set<std::string, std::less<>>;
    const auto years = sample_years();
    const auto oldest = total_n_rates(years[0]);
    const auto last = total_n_rates(years[1]);
    const auto current = total_n_rates(years[2]);
    EXPECT_EQ(fields_over_limit(oldest, std::nullopt), fields{});
    EXPECT_EQ(fields_over_limit(last, oldest), fields{});
    EXPECT_EQ(fields_over_limit(current, std::nullopt), fields{"Steading Park"});
    EXPECT_EQ(fields_over_limit(current, last), (fields{"Lade Haugh", "Steading Park"}));
    float mill_croft = 0;
    for (const dated_rate& rate : current)
        if (rate.field == "Mill Croft") mill_croft += rate.total_n_kg_per_ha;
    EXPECT_EQ(mill_croft, rolling_field_limit_kg_per_ha);  // exactly at the limit is no breach
}

TEST_F(SampleFarm, StartAtLastDecemberAsStep2WorksItOut) {
    for (const sample_year& year : sample_years()) {
        const std::string saved = path(std::to_string(year_of(year.start)) + ".kel");
        copy_whole_file(year.path, saved);
        open(saved, year.start);
        storage_module storage(state, person);
        storage.storage_load_stuff();
        ASSERT_TRUE(storage.storage_cont1() && storage.storage_cont2() && storage.save_storage());
        for (const auto& [table, key, column] : {std::array{"Misc", "Item", "Value"},
                                                 {"Slurry_store", "Store_name", "Store_%"},
                                                 {"Store_in", "Water_cow", "January"}})
            EXPECT_EQ(by(saved, table, key, column), by(year.path, table, key, column)) << table << year.path;
        EXPECT_EQ(storage.plan().balance()->largest_percent > 100, year.start == make_date(19, 12, 2024));
    }
    EXPECT_EQ(person.told, std::vector<message>{});
}

TEST_F(SampleFarm, RecordShowsEveryKindOfBreachAndAFieldWithoutAny) {
    const auto years = sample_years();
    open(years[1].path, years[1].start);
    open(years[2].path, years[2].start);
    record_module record(state, person);
    record.record_load_stuff();
    const auto warned = [&](const char* field, const char* beginning) {
        record.select_field(field);
        for (int row = 0; row < record.warnings().row_count(); ++row)
            if (record.warnings().cell(row, record_warning_column::text).starts_with(beginning)) return true;
        return false;
    };
    EXPECT_TRUE(warned("Doocot Field", "Nitrogen Requirement Exceeded: "));
    EXPECT_TRUE(warned("Den Brae", "Closed Period Breach: An application of manure on 09/10/2025"));
    EXPECT_TRUE(
        warned("East Muir", "Closed Period Breach: An application of inorganic nitrogen on 08/09/2025"));
    EXPECT_TRUE(warned("Steading Park", "Limit breached: "));
    EXPECT_TRUE(warned("Low Moss", "Closed Periods: This field has not been assessed"));
    EXPECT_TRUE(warned("Low Moss", "No crop nitrogen requirement has been calculated"));
    record.select_field("West Muir");
    EXPECT_EQ(record.warnings().row_count(), 0);
    EXPECT_EQ(record.record().cell(0, record_column::day), "11/09/2024")
        << "last year's slurry after the harvest";
}

TEST_F(SampleFarm, CompostingRowsAreAsTheCalculatorGivesThem) {
    EXPECT_EQ(by(sample_years()[2].path, "Straw", "PMS or Straw", "Field Area ID").size(), 2U);
    for (recordset row = database(sample_years()[2].path).open("Straw"); !row.eof(); row.move_next()) {
        composting_module composting(state, person);
        ASSERT_TRUE(composting.calculate({row.text("Crop Residue Type"), row.text("Soil Mineral N"),
                                          row.text("PMS or Straw"), row.text("N Content")}));
        EXPECT_EQ(composting.shown().rate,
                  row.text("Recommendation") + " t DM " + row.text("PMS or Straw") + "/ha");
        EXPECT_EQ(composting.shown().release, row.text("Potential Spring Release") + " kg N/ha");
    }
}

}  // namespace
}  // namespace kel
