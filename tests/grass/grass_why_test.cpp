// The accounts of the grassland's figures: each ends with what its cell shows, on the sample farm's three
// years and on random farms, altered feed included; and some of them word for word.
#include <gtest/gtest.h>

#include "core/numbers.h"
#include "grass/livestock_units.h"
#include "grass/site_class.h"
#include "grass/sward_choices.h"
#include "rules/crop_lists.h"
#include "rules/soils.h"
#include "tests/grass/grass_fixture.h"
#include "tests/support/compared_cells.h"
#include "tests/support/dice.h"
#include "tests/support/sample_chain.h"

namespace kel::test {

namespace {

std::optional<explanation> why(const grass_module& module, const text_grid& grid, int row, int column) {
    return module.why(grid, static_cast<std::size_t>(row), static_cast<std::size_t>(column));
}

struct cell_counts {
    int of_entries = 0;
    int calculated = 0;
};

/// Every cell of the columns that a person does not enter.
void compare(const grass_module& module, const text_grid& grid, int rows, cell_counts& compared) {
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < grid.column_count(); ++column) {
            const grid_column& described = grid.columns()[static_cast<std::size_t>(column)];
            const auto told = why(module, grid, row, column);
            EXPECT_TRUE(told || described.kind != column_kind::calculated) << described.heading;
            if (!told || described.kind != column_kind::calculated) continue;
            ++(told->of_entry() ? compared.of_entries : compared.calculated);
            EXPECT_EQ(stale_note(*told, grid.cell(row, column)), "") << told->subject();
            if (!told->of_entry()) {
                EXPECT_EQ(told->result(), grid.cell(row, column)) << told->subject();
            }
            EXPECT_LE(told->lines().size(), 15U) << told->subject();
            EXPECT_FALSE(told->last_line().empty());
        }
}

/// The site table with its results, the livestock, the stocking and the silage table.
void walk(grass_module& module, cell_counts& compared) {
    module.calculate();
    ASSERT_EQ(module.page(), grass_page::results);
    compare(module, module.site().table(), module.site().table().data_row_count(), compared);
    compare(module, module.site().results(), module.site().results().row_count(), compared);
    module.to_stock();
    compare(module, module.livestock().table(), module.livestock().table().data_row_count(), compared);
    compare(module, module.stocking().table(), module.stocking().table().row_count(), compared);
    module.silage().fill();
    compare(module, module.silage().table(), module.silage().table().row_count(), compared);
    EXPECT_EQ(module.why("lblGrass_summary")->result(), module.silage().summary());
}

void answer_opening(grass_module& module) {
    module.grass_load_stuff();
    module.confirm_rain(module.rain_answer());
    module.confirm_altitude(module.altitude_answer());
}

/// Answers the chain of questions of a row, whatever it asks.
void answer_row(site_page& site, int row, dice& roll) {
    site.enter_previous(
        row, {{{.text = std::string(roll.one_of(previous_swards()))}, {.day = make_date(15, 10, 2024)}}});
    site.enter_clover(row, std::string(roll.one_in(2) ? clover::high : clover::low));
    outcome step = site.enter_use(
        row, std::string(roll.one_of(std::array{grass_use::silage, grass_use::hay, grass_use::grazing})));
    while (step.next) {
        const entry_part& part = step.next->parts.front();
        const std::string& chosen = roll.one_of(part.choices);
        step = step.next->box == box_id(site_box::cuts) ? site.enter_cuts(row, chosen)
                                                        : site.enter_applications(row, chosen);
    }
    site.enter_manure(row, site_column::manure_current, roll.number(80));
    if (roll.one_in(2)) site.enter_manure(row, site_column::manure_previous, roll.number(30));
}

/// Up to three groups; a type that the list lacks goes by the ratio of the group before.
row_values random_groups(dice& roll) {
    row_values groups;
    if (roll.one_in(4)) groups.emplace_back("Silage Rate", roll.number(6));
    const int count = roll.below(4);
    for (int group = 1; group <= count; ++group) {
        const std::string heading = "Livestock Group " + std::to_string(group);
        const std::string type(roll.one_of(grazing_stock_list()).type);
        groups.emplace_back(heading + " (Type)", roll.one_in(8) ? "Llamas" : type);
        groups.emplace_back(heading + " (Number)", roll.number(90));
        groups.emplace_back(heading + " (% Year Grazed)", roll.number(100));
    }
    return groups;
}

}  // namespace

class GrassWhySample : public sample_chain_test {
  protected:
    scripted_prompts person;
    noted_screens shown;
    grass_module module{state, person, shown};
};

TEST_F(GrassWhySample, EveryCalculatedCellIsWhatItsAccountEndsWith) {
    cell_counts compared;
    int fields = 0;
    int stock = 0;
    for (std::size_t year = 0; year < files.size(); ++year) {
        open_year(year);
        answer_opening(module);
        fields += module.site().table().data_row_count();
        stock += module.livestock().table().data_row_count();
        walk(module, compared);
    }
    EXPECT_EQ(fields, 24);
    EXPECT_EQ(stock, 21);
    // Seven columns of the site table, six of the results, six of the stocking and eight of the silage table.
    EXPECT_EQ(compared.calculated + compared.of_entries, fields * 27 + stock * 2);
    EXPECT_EQ(compared.of_entries, 53) << "what was answered, not worked out";
}

TEST_F(GrassWhySample, SiteClassAndRecommendationOfAFieldWordForWord) {
    open_year(2);
    answer_opening(module);
    module.calculate();
    const text_grid& site = module.site().table();
    const int row = site.find(site_column::field, "Den Brae");
    EXPECT_EQ(
        told(why(module, site, row, site_column::site_class)),
        (texts{"Site class for Den Brae",
               "The site class, 1 (moist) to 5 (dry), follows from the summer rain, the soil and the "
               "altitude.",
               "Rain from April to September: 350 - 425 mm (14 - 17 in) (opening question of the grassland "
               "module)",
               "Altitude: Farm altitude is less than 300 m (1000 ft) (opening question of the grassland "
               "module)",
               "Soil: Shallow soils (farm profile, of the field)",
               "Site classes of the guidelines for farmers in the zones: shallow soils and sands with this "
               "rain: class 4 on low ground, class 5 on high ground",
               "4"}));
    const int steading = site.find(site_column::field, "Steading Park");
    EXPECT_EQ(
        told(why(module, module.site().results(), steading, grass_result_column::to_be_applied)),
        (texts{"Nitrogen to be applied for Steading Park",
               "The requirement with its adjustment, less what manures supply.",
               "Clover content: Low (site table)", "Site class: 2 (site table, from rain, soil and altitude)",
               "Residue group: 5 (site table, from the previous sward)",
               "Requirement table of grassland: clover Low, site class 2, residue group 5: 195 kg "
               "N/ha. Requirements and adjustments are constructed from published figures for this "
               "program; they are not an official table.",
               "Nitrogen from manures applied this season: 58.98 kg/ha (site table)",
               "Nitrogen left of manures of the season before: 15.6 kg/ha (site table)",
               "58.98 + 15.6 = 74.58 kg/ha from manures",
               "Adjustment for the management: 50 kg/ha (site table, Adjustment)",
               "195 + 50 - 74.58 = 170.42 kg/ha",
               "Rounded to 1 decimal, halves to the even digit: 170.4 kg/ha", "170.4 kg/ha"}));
    EXPECT_EQ(
        told(why(module, site, steading, site_column::adjustment)),
        (texts{"Management adjustment for Steading Park", "Clover content: Low (site table, Clover Content)",
               "Crop use: Silage (asked after the clover content)",
               "Adjustment table of grassland: clover Low, Silage, cuts 3, applications 0: 50 kg N/ha. "
               "Requirements and adjustments are constructed from published figures for this program; they "
               "are not an official table.",
               "50 kg/ha"}));
    EXPECT_EQ(told(module.why("Grass_rain")),
              (texts{"Rain from April to September",
                     "The answer that this assessment has stands before the climate tables.",
                     "350 - 425 mm (14 - 17 in)"}));
}

TEST_F(GrassWhySample, StockingFiguresWordForWord) {
    open_year(2);
    answer_opening(module);
    module.to_stock();
    module.silage().fill();
    const text_grid& silage = module.silage().table();
    const int grazed = silage.find(silage_column::field, "East Muir");
    const int cut = silage.find(silage_column::field, "Long Rig");
    EXPECT_EQ(told(why(module, module.livestock().table(), 2, livestock_column::units)),
              (texts{"Livestock units of Other cattle 12-24 months (excl. intensive beef systems)",
                     "Number of animals: 62 (livestock table)",
                     "Part of the year on the farm: 50 % (livestock table)",
                     "Ratio: 0.65 LU per animal (from the stock type)",
                     "50 / 100 x 62 animals x 0.65 LU = 20.15 LU", "20.15 LU"}));
    EXPECT_EQ(told(why(module, silage, grazed, silage_column::lus_fed_by_grazing)),
              (texts{"Livestock fed by grazing for East Muir",
                     "What grazes the field, in livestock units (LU): of each group its ratio, its number "
                     "and the part of the year that it is there.",
                     "Dairy cows: 1 LU x 80 animals x 45 % of the year / 100 = 36 LU",
                     "Other cattle 12-24 months (excl. intensive beef systems): 0.65 LU x 20 animals x 15 % "
                     "of the year / 100 = 1.95 LU",
                     "Together 37.95 LU, rounded to 2 decimals, halves away from 0: 37.95 LU", "37.95 LU"}));
    EXPECT_EQ(
        told(why(module, silage, grazed, silage_column::n_kg_per_ha)),
        (texts{"Nitrogen for the stocking for East Muir",
               "What the grass needs to carry its stocking, along the line of its use and site class.",
               "Stocking density: 2.55 LU/ha (LUs/ha here)",
               "Stocking lines, grazing on site class 2: 286.27 x LU/ha - 490.59 kg N/ha, never below 0",
               "286.27 x 2.55 - 490.59 = 239.3985 kg N/ha",
               "Rounded to whole kilograms, halves away from 0: 239 kg N/ha", "239 kg/ha"}));
    EXPECT_EQ(
        told(why(module, silage, cut, silage_column::lus_fed_from_silage)),
        (texts{"Livestock fed from silage for Long Rig",
               "What the farm's grazing leaves of its livestock units (LU) is fed from silage, spread evenly "
               "over the silage fields.",
               "Livestock units of the farm: 255.85 LU (livestock table, as saved)",
               "Less what is grazed: 255.85 - 129.71 = 126.14 LU",
               "Less what the silage fields with a rate of their own take: 126.0352 LU, which leaves "
               "0.1047935 LU",
               "No silage field with an area lacks a rate, so the rate worked with last stands: 3.76 LU/ha.",
               "Area: 16.3 ha (stocking table)",
               "16.3 ha x 3.76 LU/ha, rounded to 2 decimals, halves away from 0: 61.29 LU", "61.29 LU"}));
    EXPECT_EQ(told(why(module, silage, cut, silage_column::notes)),
              (texts{"Number of cuts for Long Rig", "The cuts go by the nitrogen that the stocking needs.",
                     "Stocking density: 3.76 LU/ha (LUs/ha here)",
                     "Stocking lines, silage on site class 2: 214.88 x LU/ha - 488.43 kg N/ha, never below 0",
                     "214.88 x 3.76 - 488.43 = 319.5188 kg N/ha",
                     "Cuts by requirement: 319.5188 kg N/ha is more than 300 kg N/ha: 3 cuts", "3 cuts"}));
    module.silage().make_alteration("Lade Haugh", "Long Rig");
    module.silage().make_alteration("Lade Haugh", "Long Rig");
    const texts fed = told(why(module, silage, cut, silage_column::lus_fed_from_silage));
    EXPECT_EQ(texts(fed.end() - 3, fed.end()),
              (texts{"The feed of the field was altered 2 times by 0.1 LU. The last time:",
                     "61.39 + 0.1 = 61.49 LU", "61.49 LU"}));
}

class GrassWhy : public grass_test {
  protected:
    static constexpr int rows = 12;

    void store_site(const std::vector<test_field>& fields, dice& roll) {
        const database db(state.assess_file);
        save_transaction save(db);
        recordset rows_of_site = db.open("Site");
        for (const test_field& field : fields) {
            rows_of_site.add_new();
            rows_of_site.set("Field Area ID", field.name);
            rows_of_site.set("Soil Type", field.soil);
            for (const auto& [column, text] : random_groups(roll))
                rows_of_site.set(column, text);
            rows_of_site.update();
        }
        save.commit();
    }
    void make_random_farm(dice& roll) {
        std::vector<test_field> fields;
        fields.reserve(rows);
        for (int row = 0; row < rows; ++row)
            fields.push_back({"Field " + std::to_string(row), "1" + roll.number(10),
                              std::string(roll.one_of(soils()).name)});
        open_farm(fields);
        store_site(fields, roll);
        module.grass_load_stuff();
        module.confirm_rain(roll.below(4));
        module.confirm_altitude(roll.below(2));
        for (int row = 0; row < rows; ++row)
            answer_row(module.site(), row, roll);
        for (int row = 0; row < 3; ++row) {
            module.livestock().enter_type(row, std::string(roll.one_of(grazing_stock_list()).type));
            module.livestock().enter_number(row, roll.number(300));
            module.livestock().enter_time(row, roll.number(100));
        }
        person.expect_file("Save assesment profile", state.assess_file);
        module.cmdLU_save();
    }
};

TEST_F(GrassWhy, RandomFarmsEndWithTheirCellsAlsoAfterAlterations) {
    constexpr int farms = 12;
    cell_counts compared;
    cell_counts altered;
    int altered_farms = 0;
    for (unsigned seed = 1; seed <= farms; ++seed) {
        dice roll(seed);
        make_random_farm(roll);
        walk(module, compared);
        const auto silage_fields = module.silage().silage_fields();
        if (silage_fields.size() < 2) continue;
        ++altered_farms;
        for (int times = 0; times < 3; ++times)
            module.silage().make_alteration(silage_fields[0], silage_fields[1]);
        module.silage().keep_rates();
        compare(module, module.silage().table(), rows, altered);
    }
    EXPECT_EQ(compared.calculated + compared.of_entries, farms * (rows * 27 + 3 * 2));
    EXPECT_GT(altered_farms, farms / 2);
    EXPECT_EQ(altered.calculated, altered_farms * rows * 8);
}

TEST_F(GrassWhy, WhatCannotBeWorkedOutSaysWhatIsMissing) {
    open({{"Low Moss", "0", "Sands"}});
    add_site("Low Moss", {{"Site Use", "Grazing"}});
    load();
    module.to_stock();
    person.expect(grass_messages::no_area("Low Moss"));
    module.silage().fill();
    const text_grid& silage = module.silage().table();
    EXPECT_EQ(told(why(module, silage, 0, silage_column::n_kg_per_ha)),
              (texts{"Nitrogen for the stocking for Low Moss",
                     "What the grass needs to carry its stocking, along the line of its use and site class.",
                     "The field \"Low Moss\" has no stocking density, so nothing can be worked out from it.",
                     "The area of the field is missing."}));
    EXPECT_EQ(told(why(module, site().table(), 1, site_column::adjustment)).back(),
              "The questions on clover, use, cuts and applications have not all been answered.");
    site().enter_clover(0, "High");
    EXPECT_NE(stale_note(*why(module, site().table(), 0, site_column::adjustment),
                         cell(0, site_column::adjustment)),
              "");
}

}  // namespace kel::test
