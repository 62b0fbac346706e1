// The sample farm, Mains of Tullifern, through its three linked years: every table holds what the screens
// would have written, the years fit together, and the cases that the guides show are there.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "core/assessment_files.h"
#include "core/numbers.h"
#include "inorganic/application_rules.h"
#include "manure/available_nitrogen.h"
#include "manure/field_limit_check.h"
#include "manure/manure_catalogue.h"
#include "storage/closed_period_lookups.h"
#include "storage/closed_periods.h"
#include "storage/slurry_production.h"
#include "storage/storage_module.h"
#include "tests/support/farm_files.h"
#include "tests/support/scripted_prompts.h"

namespace kel {
namespace {

const std::string stage = KEL_STAGE_DIR;

struct sample_year {
    std::string path;
    date start;
};

std::vector<sample_year> sample_years() {
    const std::string farm = stage + "/kel_calc/User_files/Mains of Tullifern ";
    return {{farm + "2022-23.kel", make_date(19, 12, 2022)},
            {farm + "2023-24.kel", make_date(19, 12, 2023)},
            {farm + "2024-25.kel", make_date(19, 12, 2024)}};
}

using SampleStores = test::farm_test;

float number(const recordset& row, std::string_view column) {
    return leading_single(row.text(column));
}

/// The texts of a column by those of another.
std::map<std::string, std::string> by(const sample_year& year, const char* table, const char* key,
                                      const char* column) {
    std::map<std::string, std::string> found;
    const database db(year.path);
    for (recordset rows = db.open(table); !rows.eof(); rows.move_next())
        found[rows.text(key)] = rows.text(column);
    return found;
}

std::map<std::string, crop_pair> crop_pairs(const sample_year& year) {
    std::map<std::string, crop_pair> pairs;
    for (const auto& [field, crop] : by(year, "Land", "Field Area ID", "Crop"))
        pairs[field] = split_crop_pair(crop).value();
    return pairs;
}

std::vector<dated_rate> total_n_rates(const sample_year& year) {
    std::vector<dated_rate> rates;
    const database db(year.path);
    for (recordset rows = db.open("Manure_applic"); !rows.eof(); rows.move_next())
        rates.push_back({rows.text("Field Area ID"), rows.date_value("Date").value(),
                         number(rows, "Total N Applic Rate")});
    return rates;
}

TEST(SampleFarm, ProfileAgreesWithFieldsAndTown) {
    for (const sample_year& year : sample_years()) {
        const database db(year.path);
        const recordset profile = db.open("FarmProfile");
        float kel_area = 0;
        for (recordset field = db.open("Field Data"); !field.eof(); field.move_next()) {
            kel_area += number(field, "KEL Size");
            EXPECT_LE(number(field, "KEL Size"), number(field, "Size"));
        }
        EXPECT_EQ(profile.text("KEL Area"), shortest_text(kel_area));
        EXPECT_GE(number(profile, "Area"), kel_area);
        EXPECT_EQ(profile.text("FieldNo"), std::to_string(db.open("Field Data").record_count()));
        EXPECT_EQ(database(stage + "/scdb/scdb.mdb").lookup("KEL", "KEL_rain", "Town", profile.text("Town")),
                  profile.text("KEL"));
        EXPECT_EQ(read_assessment_year(year.path), year.start);
    }
}

TEST(SampleFarm, LandAndStockRowsAreAsStep1WritesThem) {
    for (const sample_year& year : sample_years()) {
        const database db(year.path);
        EXPECT_EQ(db.open("Land").record_count(), db.open("Field Data").record_count());
        for (recordset land = db.open("Land"); !land.eof(); land.move_next()) {
            const std::string name = land.text("Field Area ID");
            const float used = number(land, "Area In Grass (ha)") + number(land, "Area Not In Grass (ha)");
            const float deducted = number(land, "Buffer Areas To Be Deducted (ha)") +
                                   number(land, "Slope Areas To Be Deducted (ha)") +
                                   number(land, "Other Areas To Be Deducted (ha)");
            EXPECT_EQ(land.text("Available Field Area (ha)"), format_fixed(used - deducted, 2)) << name;
            EXPECT_EQ(shortest_text(round_half_even(used, 2)), land.text("Total Area")) << name;
            EXPECT_EQ(db.lookup("Size", "Field Data", "Field Name", name), land.text("Total Area")) << name;
            EXPECT_EQ(db.lookup("Soil", "Field Data", "Field Name", name), land.text("Soil")) << name;
        }
        for (recordset stock = db.open("Land_animals"); !stock.eof(); stock.move_next())
            EXPECT_EQ(stock.text("Total N Excreted By All These Animals (kg/year)"),
                      shortest_text(number(stock, "Total N Excreted By One Stock Unit (kg/year)") *
                                    number(stock, "Number Of Stock Units")))
                << stock.text("Stock Unit");
    }
}

TEST(SampleFarm, MonthsAreClosedAsSoilAndSecondCropAsk) {
    for (const sample_year& year : sample_years()) {
        const database db(year.path);
        for (recordset land = db.open("Land"); !land.eof(); land.move_next()) {
            const auto closed =
                closed_months(land.text("Soil"), split_crop_pair(land.text("Crop")).value().second);
            for (int month = 1; month <= 12; ++month) {
                const bool expected = std::find(closed.begin(), closed.end(), month) != closed.end();
                const std::string name(month_name(month));
                EXPECT_EQ(land.text(name) == closed_month, expected) << land.text("Field Area ID") << name;
                EXPECT_EQ(land.text("Applic_" + name) == closed_month, expected);
                EXPECT_LE(number(land, name), number(land, "Available Field Area (ha)"));
            }
        }
    }
}

TEST(SampleFarm, SlurryVolumesAreAsStep2CalculatesThem) {
    for (const sample_year& year : sample_years()) {
        const database db(year.path);
        for (recordset line = db.open("Slurry_animals"); !line.eof(); line.move_next()) {
            EXPECT_EQ(line.text("Volume"), slurry_volume(line.text("Stock Unit")));
            EXPECT_EQ(line.text("Total Volume"),
                      line_volume(line.text("Volume"), line.text("Percent"), line.text("Number")));
        }
    }
}

TEST(SampleFarm, ManureRowsAreAsStep3CalculatesThem) {
    for (const sample_year& year : sample_years()) {
        const database db(year.path);
        const year_limits limits = year_limits_of(year.start);
        for (recordset row = db.open("Manure_applic"); !row.eof(); row.move_next()) {
            const std::string field = row.text("Field Area ID");
            const date day = row.date_value("Date").value();
            SCOPED_TRACE(field + " " + row.text("Date"));
            EXPECT_TRUE(day >= limits.year_start && day <= limits.year_end);
            EXPECT_EQ(row.text("Month Applied"), month_name(month_of(day)));
            EXPECT_EQ(db.lookup("Soil", "Field Data", "Field Name", field), row.text("Soil"));
            EXPECT_LE(number(row, "Area Spread"),
                      leading_single(
                          db.lookup("Available Field Area (ha)", "Land", "Field Area ID", field).value()));

            const auto rate = application_rate(number(row, "Amount Applied"), number(row, "Area Spread"));
            EXPECT_EQ(row.text("Applic Rate"), shortest_text(rate.value()));
            const std::string content = row.text("Total N Content");
            const bool analysis = content != find_manure(row.text("Manure Type")).value().default_n_content;
            const float total = total_n_rate(number(row, "Total N Content"), number(row, "Applic Rate"));
            EXPECT_EQ(row.text("Total N Applic Rate"),
                      analysis ? shortest_text(total_n_rate_of_analysis(
                                     leading_number(content), leading_number(row.text("Applic Rate"))))
                               : shortest_text(total));

            const auto available = available_percentage({row.text("Month Applied"), row.text("Soil"),
                                                         row.text("Manure Type"), row.text("Incorporation")},
                                                        0);
            EXPECT_EQ(row.text("Available N"), std::to_string(available.percentage));
            EXPECT_EQ(row.text("Available N Rate"),
                      shortest_text(available_n_rate(total, number(row, "Available N"))));
            EXPECT_EQ(row.text("Available N Rate Next"), shortest_text(available_n_rate_next(total)));
        }
    }
}

TEST(SampleFarm, InorganicRowsAreAsStep4CalculatesThem) {
    for (const sample_year& year : sample_years()) {
        const database db(year.path);
        const year_limits limits = year_limits_of(year.start);
        const auto pairs = crop_pairs(year);
        for (recordset row = db.open("Inorganic N"); !row.eof(); row.move_next()) {
            const std::string field = row.text("Field Area ID");
            const date day = row.date_value("Date").value();
            SCOPED_TRACE(field + " " + row.text("Date"));
            EXPECT_TRUE(day >= limits.year_start && day <= limits.year_end);
            EXPECT_EQ(row.text("Total N"),
                      shortest_text(total_n_kg_per_ha(number(row, "Amount"), number(row, "N content"))));
            EXPECT_EQ(closed_by_calendar(day, year_of(limits.year_end), "Strathmore and Fife KEL",
                                         pairs.at(field).second),
                      row.text("Comments").starts_with("Reason for application during closed period: "));
        }
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

TEST(SampleChain, ApplicationsToClosedOrMissingLandAreOneOfEachKind) {
    std::vector<std::string> closed, exempt, no_land;
    for (const sample_year& year : sample_years()) {
        const database db(year.path);
        for (recordset row = db.open("Manure_applic"); !row.eof(); row.move_next()) {
            const std::string field = row.text("Field Area ID");
            const date day = row.date_value("Date").value();
            const bool fym = is_exempt_fym(row.text("Manure Type"));
            if (closed_for_manure(db, field, day) == closed_answer::closed)
                (fym ? exempt : closed).push_back(field);
            else if (!fym && land_area_in_month(db, field, month_of(day)) == 0)
                no_land.push_back(field);
        }
    }
    EXPECT_EQ(closed, std::vector<std::string>{"Den Brae"});
    EXPECT_EQ(exempt, std::vector<std::string>{"Kirk Field"});
    EXPECT_EQ(no_land, std::vector<std::string>{"Doocot Field"});
}

TEST_F(SampleStores, StartAtLastDecemberAsStep2WorksItOut) {
    state.farm_town = "Kirriemuir";
    for (const sample_year& year : sample_years()) {
        state.prev1_file = state.assess_file;
        state.assess_file = path(std::to_string(year_of(year.start)) + ".kel");
        copy_assessment(year.path, state.assess_file);
        state.kel_year_start = year.start;
        test::scripted_prompts person;
        storage_module storage(state, person);
        storage.storage_load_stuff();
        ASSERT_TRUE(storage.storage_cont1() && storage.storage_cont2() && storage.save_storage());
        const sample_year saved{state.assess_file, year.start};
        for (const auto& [table, key, column] : {std::array{"Misc", "Item", "Value"},
                                                 {"Slurry_store", "Store_name", "Store_%"},
                                                 {"Store_in", "Water_cow", "January"}})
            EXPECT_EQ(by(saved, table, key, column), by(year, table, key, column)) << table << year.path;
        EXPECT_EQ(storage.plan().balance()->largest_percent > 100, year.start == make_date(19, 12, 2024));
    }
}

}  // namespace
}  // namespace kel
