// Every figure of Step 1 against its account: the sample farm's three years, farms of random entries, and
// some accounts word for word.
#include "land/land_account.h"
#include "land/stock_nitrogen.h"
#include "tests/land/land_fixture.h"
#include "tests/support/compared_cells.h"
#include "tests/support/dice.h"
#include "tests/support/sample_chain.h"

namespace kel::test {

namespace {

int compared_cells_of(const land_module& module) {
    return compared_cells(module, module.land(), 0, module.land().data_row_count()) +
           compared_cells(module, module.animals(), 0, module.animals().data_row_count());
}

// Available area, soil, size and limit of a field; nitrogen of a unit and of the line.
int cells_of(const land_module& module) {
    return 4 * module.land().data_row_count() + 2 * module.animals().data_row_count();
}

void expect_results_told(land_module& module) {
    module.calculate();
    const spreading_result& result = *module.result();
    const std::pair<std::string_view, std::string> labels[] = {
        {land_label::production, result.production},     {land_label::farm_limit, result.farm_limit},
        {land_label::field_limits, result.field_limits}, {land_label::other_land, result.other_land_limit},
        {land_label::grassland, result.grassland_limit}, {land_label::comment, says::comment(result)},
        {land_label::note, says::note(result)},
    };
    for (const auto& [label, shown] : labels) {
        const auto why = module.why(label);
        ASSERT_TRUE(why) << label;
        EXPECT_EQ(why->result(), shown) << label;
        EXPECT_LE(why->lines().size(), 15U) << label;
    }
}

}  // namespace

class LandWhyOfSample : public sample_chain_test {};

TEST_F(LandWhyOfSample, AccountsAgreeWithEveryCellOfThreeYears) {
    agreeing_person person;
    int compared = 0;
    for (std::size_t year = 0; year < files.size(); ++year) {
        open_year(year);
        land_module module(state, person);
        module.load_land_stuff();
        const int cells = compared_cells_of(module);
        EXPECT_EQ(cells, cells_of(module));
        expect_results_told(module);
        compared += cells;
    }
    EXPECT_EQ(compared, 192);
}

class LandWhy : public land_test {};

TEST_F(LandWhy, AccountsAgreeWithRandomEntriesBeforeAndAfterTheyAreLoaded) {
    for (const unsigned seed : {1U, 2U, 3U, 4U}) {
        dice dice(seed);
        agreeing_person anyone;
        std::vector<test_field> fields;
        fields.reserve(40);
        for (int i = 0; i < 40; ++i)
            fields.push_back({"Field " + std::to_string(i), dice.number(30)});
        open_farm(fields);
        land_module random(state, anyone);
        random.load_land_stuff();
        for (int row = 0; row < 40; ++row) {
            random.enter_area(row, land_col::grass + dice.below(2), dice.number(30));
            for (const int deduction : {land_col::buffer, land_col::slope, land_col::other_deduction})
                if (dice.one_in(2)) random.enter_deduction(row, deduction, dice.number(4));
            random.enter_stock(row, std::string(dice.one_of(stock_types()).name));
            if (!dice.one_in(5)) random.enter_number(row, dice.number(300));
        }
        EXPECT_EQ(compared_cells_of(random), 4 * 40 + 2 * 40);
        expect_results_told(random);
        ASSERT_TRUE(random.save());
        add_row(state.assess_file, "Land_animals",
                {{"Stock Unit", "1 alpaca"}, {"Number Of Stock Units", "7"}});
        land_module loaded(state, anyone);
        loaded.load_land_stuff();
        EXPECT_EQ(compared_cells_of(loaded), 4 * 40 + 2 * 41);
        expect_results_told(loaded);
    }
}

TEST_F(LandWhy, TellsAreaAndLimitOfAField) {
    open({{"Low Moss", "12"}});
    module.enter_area(0, land_col::grass, "10");
    module.enter_deduction(0, land_col::buffer, "0.125");
    EXPECT_EQ(
        told(module.why(module.land(), 0, land_col::field_limit)),
        (texts{"Field spreading limit of Low Moss",
               "Area In Grass: 10 ha (Step 1, Land Available For Spreading)",
               "Area Not In Grass: 2 ha (Step 1, Land Available For Spreading)",
               "Buffer Areas To Be Deducted: 0.125 ha (Step 1, Land Available For Spreading)",
               "Slope Areas To Be Deducted: not entered (Step 1, Land Available For Spreading)",
               "Other Areas To Be Deducted: not entered (Step 1, Land Available For Spreading)",
               "The available area is the area of the field less what is deducted from it.",
               "Area: 10 + 2 = 12 ha", "Deducted: 0.125 + 0 + 0 = 0.125 ha", "Left: 12 - 0.125 = 11.875 ha",
               "A field may take the same nitrogen on each available hectare, in grass or not.",
               "11.875 ha x 250 kg N/ha = 2968.75 kg N/year",
               "The limits on nitrogen in organic manures of the KEL rules",
               "The limit is worked out from the area before it is rounded, and is not rounded.",
               "The limit holds for any twelve months, and counts no grazing deposition.",
               "2968.75 kg N/year"}));
    EXPECT_EQ(told(module.why(module.land(), 0, land_col::available)).at(10),
              "Rounded to 2 decimals, halves up: 11.88 ha");
    EXPECT_EQ(told(module.why(module.land(), 0, land_col::slope)).back(), "Entered here; at most 11.875 ha");
    EXPECT_EQ(module.why(module.land(), 0, land_col::grass), std::nullopt);
    EXPECT_EQ(told(module.why(module.land(), 1, land_col::available)).back(),
              "The areas in grass and not in grass are not entered yet (Step 1).");
}

// What is loaded is worked out from the area as it was rounded; once entered anew, from the area itself.
TEST_F(LandWhy, FollowsTheWayTheLimitWent) {
    open({{"Low Moss", "12"}});
    module.enter_area(0, land_col::grass, "12");
    module.enter_deduction(0, land_col::buffer, "0.125");
    ASSERT_TRUE(module.save());
    module.load_land_stuff();
    const auto why = module.why(module.land(), 0, land_col::field_limit);
    EXPECT_EQ(why->result(), "2970");
    EXPECT_EQ(why->lines().at(1).text,
              "Available Field Area: 11.88 ha (Step 1, Land Available For Spreading)");
}

TEST_F(LandWhy, TellsStockAndBalance) {
    open({{"Low Moss", "12"}});
    enter_sheep(0, "400");
    module.enter_area(0, land_col::not_in_grass, "12");
    EXPECT_EQ(told(module.why(module.animals(), 0, stock_column::total_n)),
              (texts{"Nitrogen of the line: 1 sheep", "Stock Unit: 1 sheep (Step 1, Manure Production)",
                     "Number Of Stock Units: 400 (Step 1, Manure Production)",
                     "Nitrogen excreted by stock, from the guidelines for farmers in the zones, row \"1 "
                     "sheep\": 9 kg N/year",
                     "400 x 9 kg N/year = 3600 kg N/year, not rounded", "3600 kg N/year"}));
    module.calculate();
    const texts balance = told(module.why(land_label::comment));
    EXPECT_EQ(texts(balance.begin() + 2, balance.end() - 1),
              (texts{"Farm limit: 2040 kg N/year", "Production: 3600 kg N/year",
                     "The difference is that of the figures before they are rounded: 3600 - 2040 = 1560 kg "
                     "N/year",
                     "Field limits together 3000 kg N/year, farm limit 2040 kg N/year: not lower, so that "
                     "there is no note"}));
    EXPECT_EQ(balance.back(), says::comment(*module.result()));
}

}  // namespace kel::test
