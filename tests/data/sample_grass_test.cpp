// The grass fields of the sample farm: every figure is what the screens would have written, through the three
// linked years, and the cases that the guide shows are there.
#include <gtest/gtest.h>

#include <set>

#include "grass/grass_module.h"
#include "grass/sward_choices.h"
#include "rules/crop_catalogue.h"
#include "tests/support/noted_screens.h"
#include "tests/support/sample_chain.h"
#include "tests/support/scripted_prompts.h"

namespace kel::test {

namespace {

namespace col = site_column;

class SampleGrass : public sample_chain_test {
  protected:
    scripted_prompts person;
    noted_screens shown;
};

void answer_opening(grass_module& module) {
    module.grass_load_stuff();
    module.confirm_rain(module.rain_answer());
    module.confirm_altitude(module.altitude_answer());
}

void enter_row_again(site_page& site, const text_grid& before, int row) {
    const auto cell = [&](int column) { return before.cell(row, column); };
    const auto day = parse_date(cell(col::season_end));
    site.enter_previous(row, {{{.text = std::string(ley_long_name(cell(col::previous)))}, {.day = day}}});
    site.enter_clover(row, cell(col::clover));
    const sward_management management = *management_of(cell(col::clover), cell(col::use));
    outcome step = site.enter_use(row, cell(col::use));
    if (management.cuts.empty()) step = site.enter_cuts(row, cell(col::cuts));
    if (step.next) site.enter_applications(row, cell(col::applications));
    for (const int manure : {col::manure_current, col::manure_previous}) {
        const outcome transfer = site.transfer_manure(row, manure);
        site.enter_manure(row, manure, transfer.changes.at(0).text);
    }
}

}  // namespace

TEST_F(SampleGrass, RowsAreAsTheSiteRouteWritesThem) {
    std::set<std::string> managements;
    for (std::size_t year = 0; year < files.size(); ++year) {
        open_year(year);
        grass_module module(state, person, shown);
        answer_opening(module);
        const text_grid before = module.site().table();
        ASSERT_GT(before.data_row_count(), 5);
        for (int row = 0; row < before.data_row_count(); ++row) {
            enter_row_again(module.site(), before, row);
            managements.insert(before.cell(row, col::clover) + before.cell(row, col::use) +
                               before.cell(row, col::cuts));
        }
        EXPECT_EQ(module.site().table(), before) << files[year];
        module.calculate();
        for (int row = 0; row < module.site().results().row_count(); ++row)
            EXPECT_EQ(
                module.site().results().cell(row, grass_result_column::to_be_applied),
                database(files[year])
                    .lookup("N required", "Recommendations", "Field Area ID", before.cell(row, col::field)))
                << files[year] << before.cell(row, col::field);
    }
    EXPECT_EQ(managements, (std::set<std::string>{"HighGrazing-", "HighHay1", "LowGrazing-", "LowSilage1",
                                                  "LowSilage2", "LowSilage3"}));
}

TEST_F(SampleGrass, LivestockAndRatesAreAsTheStockingRouteWritesThem) {
    int fields_of_two_groups = 0;
    for (std::size_t year = 0; year < files.size(); ++year) {
        open_year(year);
        const auto rates = column_of(files[year], "Site", "Silage Rate");
        {
            // The route is walked as on the day when no rate was stored yet.
            const database db(files[year]);
            for (recordset rows = db.open("Site"); !rows.eof(); rows.move_next()) {
                rows.edit();
                rows.set("Silage Rate", "");
                rows.update();
            }
        }
        grass_module module(state, person, shown);
        answer_opening(module);
        module.to_stock();
        const text_grid livestock = module.livestock().table();
        for (int row = 0; row < livestock.data_row_count(); ++row) {
            module.livestock().enter_type(row, livestock.cell(row, livestock_column::type));
            module.livestock().enter_number(row, livestock.cell(row, livestock_column::number));
        }
        EXPECT_EQ(module.livestock().table(), livestock) << files[year];
        for (const auto& type : column_of(files[year], "Site", "Livestock Group 2 (Type)"))
            fields_of_two_groups += !type.empty();
        person.expect_file("Save assesment profile", files[year]);
        module.cmdSU_continue();
        for (int row = 0; row < module.silage().table().row_count(); ++row)
            EXPECT_EQ(module.silage().table().cell(row, silage_column::lus_per_ha),
                      rates[static_cast<std::size_t>(row)])
                << files[year];
        EXPECT_GT(module.silage().plan().lus_left_for_silage, 0);
    }
    EXPECT_GE(fields_of_two_groups, 3);
}

}  // namespace kel::test
