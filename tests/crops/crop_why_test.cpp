// The accounts of the crops' figures: each ends with what its cell shows, on the sample farm's three years
// and on farms of random rows, many of which the tables lack; and some of them word for word.
#include "core/explanation.h"

#include <gtest/gtest.h>

#include <array>

#include "rules/crop_catalogue.h"
#include "rules/residue_groups.h"
#include "rules/soils.h"
#include "tests/crops/crops_fixture.h"
#include "tests/support/compared_cells.h"
#include "tests/support/dice.h"
#include "tests/support/sample_chain.h"

namespace kel::test {

namespace {

constexpr std::array calculated_columns{crop_column::soil, crop_column::residue_group};

/// How many cells were compared with their accounts.
int compare(const crop_module& module, const text_grid& grid, int row, int column) {
    const auto why = module.why(grid, static_cast<std::size_t>(row), static_cast<std::size_t>(column));
    EXPECT_TRUE(why) << row << ' ' << column;
    if (!why) return 0;
    EXPECT_EQ(why->result(), grid.cell(row, column)) << why->subject();
    EXPECT_EQ(stale_note(*why, grid.cell(row, column)), "") << why->subject();
    EXPECT_LE(why->lines().size(), 19U) << why->subject();
    EXPECT_FALSE(why->last_line().empty());
    return 1;
}

int compare_all(const crop_module& module) {
    int compared = 0;
    for (int row = 0; row < module.crops().data_row_count(); ++row)
        for (const int column : calculated_columns)
            compared += compare(module, module.crops(), row, column);
    for (int row = 0; row < module.results().row_count(); ++row)
        for (int column = 0; column < module.results().column_count(); ++column)
            compared += compare(module, module.results(), row, column);
    return compared;
}

row_values random_crop(dice& roll, const std::string& field, const std::string& soil) {
    const auto number = [&](int end) { return roll.one_in(3) ? std::string{} : roll.number(end); };
    const auto signed_number = [&](int end) { return (roll.one_in(2) ? "-" : "") + roll.number(end); };
    std::string planned;
    while (planned.empty())
        planned = roll.one_of(load_crop_catalogue()).planned_code;
    const std::string previous(roll.one_of(load_crop_catalogue()).previous_code);
    const bool in_tables = field != "Field 0";  // the first row goes on from the calculation before
    if (!in_tables) planned = "SB (low N)";
    const std::string code = !in_tables ? "PG" : previous.empty() ? "SB" : previous;
    return {{"Field Area ID", field},
            {"Soil Type", soil},
            {"Next Crop", planned},
            {"Previous or Current Crop", code},
            {"N Residue Group", std::to_string(residue_group(code))},
            {"Notes WW", roll.one_in(2) ? "breadmaking" : ""},
            {"Notes WB", roll.one_in(2) ? "malt for brewing" : ""},
            {"Intended Market Adjustment (kg/ha)", signed_number(50)},
            {"Undersowing Adjustment (kg/ha)", roll.one_in(2) ? "-25" : ""},
            {"Delayed Sowing Adjustment (kg/ha)", signed_number(20)},
            {"Take-all Adjustment (kg/ha)", number(21)},
            {"Manures Adjustment (kg/ha)", number(120)},
            {"Previous Manures Adjustment (kg/ha)", number(60)},
            {"Variety Adjustment (%)", roll.one_in(3)   ? "-30"
                                       : roll.one_in(2) ? "10"
                                                        : ""},
            {"Spring Rainfall Status", roll.one_in(2) ? "High" : "Low"},
            {"Winter Rainfall Status", ""}};
}

void add_crops(const std::string& file, dice& roll, const std::vector<test_field>& fields) {
    const database db(file);
    save_transaction save(db);
    recordset rows = db.open("Crops");
    for (const test_field& field : fields) {
        rows.add_new();
        for (const auto& [column, text] : random_crop(roll, field.name, field.soil))
            rows.set(column, text);
        rows.update();
    }
    save.commit();
}

}  // namespace

class CropWhySample : public sample_chain_test {
  protected:
    scripted_prompts person;
    opened_screens shown;
    crop_module module{state, person, shown};
    void calculate(std::size_t year) {
        open_year(year);
        module.crop_load_stuff();
        ASSERT_TRUE(module.enter_winter_rain(module.winter_answer()));
        ASSERT_TRUE(module.calculate());
    }
};

TEST_F(CropWhySample, EveryCalculatedCellIsWhatItsAccountEndsWith) {
    int compared = 0;
    int rows = 0;
    for (std::size_t year = 0; year < files.size(); ++year) {
        calculate(year);
        rows += module.crops().data_row_count();
        compared += compare_all(module);
    }
    EXPECT_EQ(rows, 11);
    EXPECT_EQ(compared, rows * 9);
}

TEST_F(CropWhySample, TotalOfAWheatFieldTellsItsAdjustmentsWithTheirSigns) {
    calculate(2);
    const int row = module.crops().find(crop_column::field, "Doocot Field");
    const auto place = static_cast<std::size_t>(row);
    EXPECT_EQ(
        told(module.why(module.results(), place, crop_result_column::total)),
        (texts{
            "Total nitrogen recommended for Doocot Field",
            "What the tables require in spring and in the seedbed together, with each adjustment of the row "
            "added or taken off; never below 0.",
            "Winter rainfall: Less than 450 mm (18 inches) (nothing is added)",
            "Spring rainfall: Less than 200 mm (8 inches) (nothing is added)",
            "Planned crop: Winter wheat (Crops table, Planned Crop)",
            "Residue group of the previous crop: 4 (Crops table, from Previous Crop)",
            "Soil: Sandy loams (farm profile, of the field)",
            "Requirement table of arable crops, for spring: Winter wheat after residue group 4 on Sandy "
            "loams: "
            "160 kg N/ha",
            "Intended market (breadmaking): 160 + 30 = 190 kg/ha",
            "Take-all is expected: 190 + 20 = 210 kg/ha",
            "Manures applied to this crop: 210 - 16.2 = 193.8 kg/ha",
            "Manures applied to the previous crop: 193.8 - 28.64 = 165.16 kg/ha",
            "Empty or 0 in the row, so nothing changes for: undersowing, delayed sowing, turnip rape, winter "
            "rainfall, spring rainfall, variety.",
            "Rounded to 1 decimal, halves to the even digit: 165.2 kg/ha",
            "165.2 kg/ha",
        }));
    EXPECT_EQ(told(module.why(module.crops(), place, crop_column::residue_group)),
              (texts{"Nitrogen residue group for Doocot Field",
                     "The group tells how much nitrogen the previous crop leaves in the soil, from 1 (least) "
                     "to 6 (most). Soil, harvest date and manures play no part in it.",
                     "Residue groups of previous crops: Ware potatoes is in group 4", "4"}));
    EXPECT_EQ(told(module.why("Crops_winter_rain")),
              (texts{"Winter rainfall",
                     "The answer that was saved with the crops stands; the climate tables are not asked.",
                     "Less than 450 mm (18 inches)"}));
    EXPECT_FALSE(module.why(module.crops(), place, crop_column::planned_crop));
    EXPECT_EQ(told(module.why(module.crops(), place, crop_column::previous_manures)),
              (texts{"Nitrogen from manures to the previous crop for Doocot Field",
                     "Applications in Step 3, this year's and last year's, before 02/10/2024: what they "
                     "leave for the next crop. Of two years ago, those after the season's start that last "
                     "year's assessment has: what they supplied to their own crop.",
                     "26/03/2024, Dairy slurry - medium dry matter (6%): 9.012 kg N/ha",
                     "15/11/2023, Layer manure stored uncovered: 19.628 kg N/ha", "Together 28.64 kg N/ha",
                     "Entered here. \"Transfer data\" would enter what is stored, rounded to 2 decimals, "
                     "halves to the even digit: 28.64 kg/ha"}));
    EXPECT_FALSE(module.why("anything else"));
}

TEST_F(CropWhySample, AccountsTellARangeAVarietyAndAFloor) {
    calculate(1);
    const auto of = [&](const char* field, int column) {
        const int row = module.crops().find(crop_column::field, field);
        return told(
            module.why(module.results(), static_cast<std::size_t>(row), static_cast<std::size_t>(column)));
    };
    const texts barley = of("Station Park", crop_result_column::total);
    EXPECT_EQ(texts(barley.end() - 4, barley.end()),
              (texts{"Empty or 0 in the row, so nothing changes for: intended market, undersowing, take-all, "
                     "turnip rape, winter rainfall, spring rainfall, variety.",
                     "Rounded to 1 decimal, halves to the even digit: 0 kg/ha",
                     "The table gives a range of 30 kg/ha above the figure; the high figure is shown first: "
                     "30 - 0",
                     "30 - 0 kg/ha"}));
    EXPECT_EQ(barley[8], "Sowing was delayed (1.5 kg/ha less for each day of delay): 30 - 9 = 21 kg/ha");
    EXPECT_EQ(barley[11], "-24.28 kg/ha is below 0, so it is 0 kg/ha");
    const texts potatoes = of("Doocot Field", crop_result_column::spring);
    EXPECT_EQ(potatoes.back(), "0 kg/ha");
    const texts advice = of("Kirk Field", crop_result_column::notes);
    EXPECT_EQ(advice[1], "Planned crop: Winter wheat (grain distilling) (Crops table)");
}

class CropWhy : public crops_test {};

TEST_F(CropWhy, RowsOfRandomFarmsEndWithTheirCellsWhateverTheTablesLack) {
    constexpr int farms = 6;
    constexpr int rows = 25;
    int compared = 0;
    int carried = 0;
    for (unsigned seed = 1; seed <= farms; ++seed) {
        dice roll(seed);
        std::vector<test_field> fields;
        fields.reserve(rows);
        for (int row = 0; row < rows; ++row)
            fields.push_back({"Field " + std::to_string(row), "5", std::string(roll.one_of(soils()).name)});
        open_farm(fields);
        add_crops(state.assess_file, roll, fields);
        open_table(roll.one_in(3) ? dry_winter : wet_winter);
        for (int twice = 0; twice < 2; ++twice) {
            ASSERT_TRUE(module.calculate());
            compared += compare_all(module);
            for (int row = 0; row < rows; ++row)
                for (const std::string& line : told(module.why(
                         module.results(), static_cast<std::size_t>(row), crop_result_column::total)))
                    carried += line.starts_with("The requirement tables have no figure for ");
            module.back();
        }
    }
    EXPECT_EQ(compared, farms * rows * 2 * 9);
    EXPECT_GT(carried, farms);
}

TEST_F(CropWhy, ACellThatIsOlderThanItsInputsIsToldSo) {
    open({{"Long Rig", "4", "Sands"}});
    add_crop(0, "Long Rig", "Winter oilseed rape", "Winter wheat");
    ASSERT_TRUE(module.calculate());
    EXPECT_EQ(
        told(module.why(module.results(), 0, crop_result_column::requirement)),
        (texts{"Requirement of the crop for Long Rig",
               "What the requirement tables give in spring and in the seedbed together, before any "
               "adjustment.",
               "Planned crop: Winter oilseed rape (Crops table, Planned Crop)",
               "Residue group of the previous crop: 1 (Crops table, from Previous Crop)",
               "Soil: Sands (farm profile, of the field)",
               "Requirement table of arable crops, for spring: Winter oilseed rape after residue group 1 "
               "on Sands: 180 kg N/ha",
               "Requirement table of winter oilseed rape, for the seedbed: Winter oilseed rape after "
               "residue group 1 on Sands: 30 kg N/ha",
               "210 kg/ha"}));
    {
        recordset profile = database(state.assess_file).open("Field Data");
        profile.edit();
        profile.set("Soil", "Peaty soils");
        profile.update();
    }
    const auto soil = module.why(module.crops(), 0, crop_column::soil);
    EXPECT_EQ(stale_note(*soil, "Sands"),
              "The table shows \"Sands\", worked out before something was changed; "
              "it would now be \"Peaty soils\".");
    module.back();
    module.enter_field(0, "Long Rig");
    EXPECT_EQ(module.why(module.crops(), 0, crop_column::soil)->result(), "Peaty soils");
    EXPECT_EQ(told(module.why(module.crops(), 1, crop_column::soil)),
              (texts{"Soil", "No field has been selected in this row."}));
}

}  // namespace kel::test
