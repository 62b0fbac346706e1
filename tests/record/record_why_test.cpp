// The accounts of the field record: each cell and each warning of every field of the sample farm and of
// random farms is what its account ends with; and the kinds of warnings word for word.
#include <gtest/gtest.h>

#include "record/record_grid.h"
#include "record/record_module.h"
#include "rules/closed_periods.h"
#include "rules/manure_catalogue.h"
#include "tests/support/compared_cells.h"
#include "tests/support/dice.h"
#include "tests/support/sample_chain.h"
#include "tests/support/scripted_prompts.h"

namespace kel::test {

namespace {

using texts = std::vector<std::string>;

constexpr int told_columns_of_record = 11;
constexpr int told_columns_of_warnings = 2;  // icon and text

struct held_against_cells {
    int compared = 0;
    int in_the_tables = 0;
    int warnings = 0;
};

void compare_fields(record_module& module, held_against_cells& counts) {
    module.record_load_stuff();
    for (const std::string& field : module.field_names()) {
        module.select_field(field);
        for (const text_grid* grid : {&module.record(), &module.warnings()})
            counts.compared += compared_cells(module, *grid, 0, grid->row_count());
        counts.in_the_tables += module.record().row_count() * told_columns_of_record +
                                module.warnings().row_count() * told_columns_of_warnings;
        counts.warnings += module.warnings().row_count();
    }
}

std::string random_day(dice& roll, int year) {
    return iso_date_text(add_days(make_date(19, 12, year), roll.below(365)));
}

void add_rows(const database& db, const char* table, const std::vector<row_values>& rows) {
    recordset stored = db.open(table);
    for (const row_values& row : rows) {
        stored.add_new();
        for (const auto& [column, text] : row)
            stored.set(column, text);
        stored.update();
    }
}

row_values random_land(dice& roll, const std::string& field) {
    const std::string pair =
        compose_crop_pair(roll.one_of(field_uses()).stored, roll.one_of(field_uses()).stored);
    return {{"Field Area ID", field},
            {"Soil", roll.one_in(2) ? "Sands" : "Peaty soils"},
            {"Crop", roll.one_in(4) ? "" : pair},
            {"October", roll.one_in(2) ? "Closed" : "4"},
            {"September", roll.one_in(3) ? "Closed" : "4"}};
}

/// Applications of a field, and what the record asks of it besides, some of it missing.
void add_random_field(const database& db, dice& roll, const std::string& field, int year) {
    for (int i = roll.below(5); i > 0; --i)
        add_rows(db, "Manure_applic",
                 {{{"Field Area ID", field},
                   {"Date", roll.one_in(9) ? "soon" : random_day(roll, year)},
                   {"Manure Type", std::string(roll.one_of(manure_catalogue()).name)},
                   {"Applic Rate", roll.number(50)},
                   {"Total N Content", roll.number(7)},
                   {"Total N Applic Rate", roll.number(160)}}});
    for (int i = roll.below(4); i > 0; --i)
        add_rows(db, "Inorganic N",
                 {{{"Field Area ID", field},
                   {"Date", random_day(roll, year)},
                   {"Type", "34.5% N"},
                   {"Amount", roll.number(300)},
                   {"Total N", roll.number(90)}}});
    if (!roll.one_in(4)) add_rows(db, "Land", {random_land(roll, field)});
    if (roll.one_in(2))
        add_rows(db, "Recommendations", {{{"Field Area ID", field}, {"N required", roll.number(150)}}});
    if (roll.one_in(2))
        add_rows(db, "Crops",
                 {{{"Field Area ID", field},
                   {"Next Crop", "WW"},
                   {"Previous or Current Crop", "SB"},
                   {"Hdate p_crop", roll.one_in(4) ? "" : random_day(roll, year - 1)},
                   {"Hdate c_crop", random_day(roll, year)},
                   {"Sowing date", random_day(roll, year - 1)}}});
    else if (roll.one_in(2))
        add_rows(db, "Site",
                 {{{"Field Area ID", field},
                   {"Site Use", "Silage"},
                   {"End of season date", roll.one_in(3) ? "" : random_day(roll, year - 1)}}});
}

}  // namespace

class RecordWhy : public sample_chain_test {
  protected:
    scripted_prompts person;
    record_module module{state, person};

    /// What the first warning of the field that begins so tells.
    texts warned(const char* field, const char* beginning) {
        module.select_field(field);
        for (int row = 0; row < module.warnings().row_count(); ++row)
            if (module.warnings().cell(row, record_warning_column::text).starts_with(beginning))
                return told(module.why(module.warnings(), static_cast<std::size_t>(row),
                                       record_warning_column::text));
        return {};
    }
};

TEST_F(RecordWhy, EveryCellAndWarningOfTheSampleIsWhatItsAccountEndsWith) {
    held_against_cells counts;
    for (std::size_t year = 0; year < files.size(); ++year) {
        open_year(year);
        compare_fields(module, counts);
    }
    EXPECT_EQ(counts.compared, counts.in_the_tables);
    EXPECT_EQ(counts.compared, 1279);
}

TEST_F(RecordWhy, WarningsTellTheirRuleTheirApplicationsAndTheirSum) {
    open_year(2);
    module.record_load_stuff();
    EXPECT_EQ(
        warned("Steading Park", "Limit breached"),
        (texts{
            "Warning 1, Steading Park",
            "In no twelve months may a field get more than 250 kg/ha of total nitrogen from organic manures; "
            "sums are rounded to 3 decimals first. The day on which they began is no longer within them a "
            "year on.",
            "Limit of the KEL rules for a field in twelve months: 250 kg N/ha",
            "05/03/2025, Dairy slurry - medium dry matter (6%): 83.88 kg N/ha",
            "29/05/2025, Dairy slurry - medium dry matter (6%): 84.54 kg N/ha",
            "16/07/2025, Dairy slurry - medium dry matter (6%): 84.54 kg N/ha",
            "Together 252.96 kg N/ha in the twelve months from 05/03/2025, which is more than 250 kg N/ha",
            "Limit breached: The application of manures has exceeded the 250 kg/ha of total Nitrogen within "
            "a 12 month period. You should review the slurry and manure applications made to this field."}));
    const texts exceeded = warned("Doocot Field", "Nitrogen Requirement Exceeded");
    ASSERT_EQ(exceeded.size(), 8U);
    EXPECT_EQ(
        texts(exceeded.begin() + 1, exceeded.end() - 1),
        (texts{"All inorganic nitrogen of the record, its sum rounded to 3 decimals, is held against what "
               "the crop requires. Of a range the high figure counts.",
               "Nitrogen required: 165.2 kg/ha (recommendation of the crops or grassland module)",
               "04/03/2025, Ammonium nitrate: 41.4 kg N/ha", "10/04/2025, Ammonium nitrate: 79.4 kg N/ha",
               "12/05/2025, Ammonium nitrate: 58.6 kg N/ha",
               "Together 179.4 kg N/ha, which is more than 165.2 kg N/ha"}));
    // The rules of closed periods tell the rest.
    const texts manure = warned("Den Brae", "Closed Period Breach");
    ASSERT_GT(manure.size(), 5U);
    EXPECT_EQ(texts(manure.begin(), manure.begin() + 3),
              (texts{"Warning 2, Den Brae", "Manure: Dairy slurry - medium dry matter (6%) (Step 3)",
                     "Applied on: 09/10/2025"}));
    const texts inorganic = warned("East Muir", "Closed Period Breach");
    ASSERT_GT(inorganic.size(), 5U);
    EXPECT_EQ(texts(inorganic.begin(), inorganic.begin() + 3),
              (texts{"Warning 2, East Muir", "Inorganic nitrogen: NPK 20-10-10 (Step 4)",
                     "Applied on: 08/09/2025"}));
    EXPECT_EQ(warned("Low Moss", "Closed Periods"),
              (texts{"Warning 1, Low Moss",
                     "The first manure stored for the field is one that closed periods apply to, and Step 2 "
                     "has no use of the field this year: without it nobody knows which months are closed.",
                     "Closed Periods: This field has not been assessed for closed periods."}));
    EXPECT_EQ(warned("Low Moss", "No crop nitrogen requirement"),
              (texts{"Warning 2, Low Moss",
                     "The crops and the grassland module store what a field requires when their results are "
                     "left. Neither has stored anything for this field.",
                     "No crop nitrogen requirement has been calculated for this field."}));
}

TEST_F(RecordWhy, RowsTellWhoseCropTheyFedAndWhereTheyWereEntered) {
    open_year(2);
    module.record_load_stuff();
    module.select_field("West Muir");
    EXPECT_EQ(
        told(module.why(module.record(), 0, record_column::crop)),
        (texts{"Crop, West Muir, 11/09/2024", "Crop grown: Calabrese/Broccoli (Crops or grassland module)",
               "End of the crop or season before: 29/08/2024 (Crops or grassland module)",
               "Last year's applications since the end of the crop before were made for the crop grown this "
               "year.",
               "Calabrese/Broccoli"}));
    EXPECT_EQ(told(module.why(module.record(), 0, record_column::manure_n)),
              (texts{"Total N applied, West Muir, 11/09/2024",
                     "Entered or worked out in Step 3 (manures) of last year's assessment; it stands here "
                     "because it was made for this year's crop.",
                     "73.26 kg N/ha"}));
    EXPECT_FALSE(module.why(module.record(), 99, 0));
}

TEST_F(RecordWhy, RowsAndWarningsOfRandomFarmsAreWhatTheirAccountsEndWith) {
    constexpr int farm_fields = 8;
    held_against_cells counts;
    for (unsigned seed = 1; seed <= 10; ++seed) {
        dice roll(seed);
        std::vector<test_field> fields;
        fields.reserve(farm_fields);
        for (int field = 0; field < farm_fields; ++field)
            fields.push_back({"Field " + std::to_string(field), "5"});
        open_farm(fields);
        state.prev1_file = make_farm("last.kel", fields, 2023);
        for (const auto& [file, year] :
             {std::pair{state.assess_file, 2024}, std::pair{state.prev1_file, 2023}}) {
            const database db(file);
            save_transaction save(db);
            for (const test_field& field : fields)
                add_random_field(db, roll, field.name, year);
            save.commit();
        }
        compare_fields(module, counts);
    }
    EXPECT_EQ(counts.compared, counts.in_the_tables);
    EXPECT_GT(counts.warnings, 100);
    EXPECT_GT(counts.compared, 2000);
}

}  // namespace kel::test
