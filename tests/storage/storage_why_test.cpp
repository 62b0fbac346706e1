// Every figure of Step 2 against its account: the sample farm's three years, farms of random entries, and
// accounts word for word.
#include <algorithm>

#include "core/numbers.h"
#include "rules/soils.h"
#include "storage/slurry_production.h"
#include "storage/storage_account.h"
#include "storage/store_totals.h"
#include "tests/storage/storage_fixture.h"
#include "tests/support/compared_cells.h"
#include "tests/support/dice.h"
#include "tests/support/sample_chain.h"

namespace kel::test {

namespace {

/// The columns `first` to `last` of a row; a cell that the person entered counts, but is not compared.
int compared_row(const storage_module& module, const text_grid& grid, int row, int first, int last) {
    for (int column = first; column <= last; ++column) {
        const auto why = module.why(grid, static_cast<std::size_t>(row), static_cast<std::size_t>(column));
        EXPECT_TRUE(why) << row << ", " << column;
        if (!why || why->of_entry()) continue;
        EXPECT_EQ(why->result(), grid.cell(row, column)) << why->subject();
        EXPECT_LE(why->lines().size(), 15U) << why->subject();
    }
    return last - first + 1;
}

int compared_months(const storage_module& module, const text_grid& grid, int row, int january) {
    return compared_row(module, grid, row, january, january + 11);
}

int compared_levels(const storage_module& module) {
    const storage_balance& balance = module.plan().balance().value();
    for (std::size_t month = 0; month < balance.percent.size(); ++month) {
        const auto why = module.why("MSChartStorage" + std::to_string(month + 1));
        if (!why) return 0;
        EXPECT_EQ(why->result(), format_fixed(balance.percent[month], 1));
    }
    const auto warning = module.why("lblStorage_warning");
    EXPECT_EQ(warning->result(), balance.warning);
    for (std::size_t month = 0; month < balance.percent.size(); ++month) {
        const std::string line = std::string(month_name(static_cast<int>(month) + 1)) + ": ";
        const bool told_over = std::ranges::any_of(
            warning->lines(), [&](const explanation_line& l) { return l.text.starts_with(line); });
        EXPECT_EQ(told_over, exceeds_limit(balance.percent[month], 100)) << line;
    }
    EXPECT_EQ(module.why("fraStores")->result(), default_text(module.plan().stores().total_capacity));
    return 12;
}

/// All figures of the last page, and how many they are.
int compared_plan(const storage_module& module) {
    const plan_page& plan = module.plan();
    const text_grid& production = plan.production();
    int compared = compared_cells(module, production, first_stock_row, empty_stock_row(production));
    for (const int row : {inputs_row, production_totals_row(production)})
        compared += compared_months(module, production, row, production_column::january);
    const int fields = plan.fields().fields();
    compared += compared_cells(module, plan.land(), 0, fields);
    compared += compared_cells(module, plan.spreading(), 0, fields);
    for (int row = 0; row < fields; ++row) {
        compared += compared_months(module, plan.land(), row, plan_column::january);
        compared += compared_months(module, plan.spreading(), row, spreading_column::january);
    }
    compared += compared_months(module, plan.land(), fields + 1, plan_column::january);
    compared += compared_months(module, plan.spreading(), fields + 1, spreading_column::january);
    return compared + compared_levels(module);
}

/// Lines have 2, fields 4 calculated cells and 24 months; 2 rows of production, 2 of totals and the levels.
int cells_of(const plan_page& plan) {
    const int lines = empty_stock_row(plan.production()) - first_stock_row;
    return 2 * lines + 28 * plan.fields().fields() + 5 * 12;
}

}  // namespace

class StorageWhyOfSample : public sample_chain_test {};

TEST_F(StorageWhyOfSample, AccountsAgreeWithEveryCellOfThreeYears) {
    agreeing_person person;
    int compared = 0;
    for (std::size_t year = 0; year < files.size(); ++year) {
        open_year(year);
        storage_module module(state, person);
        module.storage_load_stuff();
        ASSERT_TRUE(module.storage_cont1() && module.storage_cont2());
        const int cells = compared_plan(module);
        EXPECT_EQ(cells, cells_of(module.plan()));
        for (int row = 0; row < module.stores().stores().data_row_count(); ++row)
            compared_row(module, module.stores().stores(), row, store_column::name, store_column::area);
        compared += cells;
    }
    EXPECT_EQ(compared, 1218);
}

class StorageWhy : public storage_test {
  protected:
    static std::vector<test_field> random_fields(dice& dice, int count) {
        std::vector<test_field> fields;
        fields.reserve(static_cast<std::size_t>(count));
        for (int i = 0; i < count; ++i)
            fields.push_back(
                {"Field " + std::to_string(i), dice.number(20), std::string(dice.one_of(soils()).name)});
        return fields;
    }
    static store_form random_store(dice& dice, const std::string& name) {
        const auto size = [&](int end) { return std::to_string(1 + dice.below(end)) + ".5"; };
        store_form form = choose_shape({.name = name}, dice.one_of(store_shapes()));
        form.depth = size(4);
        form.length = size(30);
        form.width = size(20);
        form.diameter = size(15);
        form.angle = std::to_string(20 + dice.below(60));
        form.percent = dice.number(100);
        form.area = dice.one_in(2) ? auto_area(form) : dice.number(300);
        return form;
    }
    static void enter_randomly(dice& dice, plan_page& plan) {
        for (int row = 0; row < plan.fields().fields(); ++row) {
            const date harvest = make_date(1 + dice.below(28), 1 + dice.below(11), 2025);
            const auto use = [&] { return std::string(dice.one_of(field_uses()).shown); };
            if (!dice.one_in(8)) plan.enter_field_use(row, use(), use(), harvest);
            for (int i = 0; i < 3; ++i) {
                const int month = dice.below(12);
                if (dice.one_in(5)) plan.enter_land_month(row, plan_column::january + month, dice.number(3));
                plan.enter_slurry_applic(row, spreading_column::january + month, dice.number(40));
            }
        }
        for (int row = first_stock_row; row < first_stock_row + 12; ++row) {
            plan.enter_stock(row, std::string(dice.one_of(slurry_units()).name));
            plan.enter_number(row, dice.number(200));
            if (!dice.one_in(4)) plan.enter_percent(row, dice.number(100));
            plan.enter_month(row, production_column::january + dice.below(12),
                             std::string(not_on_slurry_system));
        }
    }
};

TEST_F(StorageWhy, AccountsAgreeWithRandomEntries) {
    agreeing_person anyone;
    for (const unsigned seed : {1U, 2U, 3U}) {
        dice dice(seed);
        const std::vector<test_field> fields = random_fields(dice, 25);
        open_farm(fields);
        for (const test_field& field : fields)
            add_land(field, {});
        storage_module random(state, anyone);
        random.storage_load_stuff();
        random.water().set_cows(dice.number(90));
        random.water().set_pig_pens(dice.number(40));
        ASSERT_TRUE(random.storage_cont1());
        for (int i = 0; i < 5; ++i)
            ASSERT_TRUE(random.stores().add_store(random_store(dice, "Store " + std::to_string(i))));
        ASSERT_TRUE(random.storage_cont2());
        enter_randomly(dice, random.plan());
        EXPECT_EQ(compared_plan(random), 2 * 12 + 28 * 25 + 5 * 12);
    }
}

TEST_F(StorageWhy, TellsALevelFromItsBeginningToTheFloorAtNothing) {
    open_plan();
    plan.enter_stock(1, "1 dairy cow (650 kg)");
    plan.enter_number(1, "10");
    plan.enter_percent(1, "50");
    plan.enter_slurry_applic(0, spreading_column::january + 1, "20");
    EXPECT_EQ(told(module.why("MSChartStorage2")),
              (texts{"Level at the end of February", "Rain and dirty water: 2.5 cubic m",
                     "Slurry of the stock: 9.65 cubic m", "Together flow in: 12.15 cubic m",
                     "Spread on Home: 20 cubic m/ha x 10 ha = 200 cubic m",
                     "What is in the stores at the end of a month is what was in them at its beginning, plus "
                     "what flows in, less what is spread.",
                     "At the end of January: 62.95 cubic m", "Level: 62.95 + 12.15 - 200 = -124.9 cubic m",
                     "More is to be spread than there is: the stores are empty then, and owe nothing to the "
                     "next month.",
                     "Of what the stores hold: 0 / 100 x 100 = 0 %",
                     "Rounded to 1 decimal, halves up, as the chart tells it.", "0.0 %"}));
    EXPECT_EQ(
        told(module.why(plan.production(), 1, production_column::total_volume)),
        (texts{"Slurry of the line: 1 dairy cow (650 kg)",
               "Stock Unit On Slurry Based System: 1 dairy cow (650 kg) (Step 2, Slurry Production)",
               "Slurry volumes of the guidelines for farmers in the zones, row \"1 dairy cow (650 kg)\": "
               "1.93 cubic m a month",
               "Proportion Of Waste Collected As Slurry: 50 % (Step 2, Slurry Production)",
               "Number Of Stock Units: 10 (Step 2, Slurry Production)",
               "The volume of one unit, as much of it as is collected as slurry, times the number of "
               "units; what is not entered counts 0.",
               "1.93 / 100 x 50 x 10 = 9.65 cubic m a month, not rounded", "9.65 cubic m a month"}));
}

TEST_F(StorageWhy, TellsWhyAMonthIsClosedOrUnderCrop) {
    open_plan("Sandy loams");
    plan.enter_field_use(0, "Other", "Other", make_date(20, 7, 2025));
    EXPECT_EQ(
        told(module.why(plan.land(), 0, plan_column::january + 8)),
        (texts{"Land of Home in September", "Soil: Sandy loams (farm profile, Soil)",
               "Second crop: Other (Step 2, use of the field)",
               "On a light soil (Sands, Sandy loams and Shallow soils) the second crop decides which "
               "months are closed to slurry and manures; here: August, September and October.",
               "Closed periods for slurry of the KEL rules, light soils, second crop \"Other\": August, "
               "September and October.",
               "Closed"}));
    EXPECT_EQ(told(module.why(plan.spreading(), 0, spreading_column::january + 8)).back(), "Closed");
    const texts july = told(module.why(plan.land(), 0, plan_column::january + 6));
    EXPECT_EQ(july.at(july.size() - 2), "Under the crop up to July: 0 ha");
    plan.enter_land_month(0, plan_column::january + 6, "3");
    EXPECT_EQ(told(module.why(plan.land(), 0, plan_column::january + 6)).back(),
              "Entered here: 3 ha of 10 ha available");
    EXPECT_EQ(told(module.why(plan.land(), 0, plan_column::january + 5)).back(), "0 ha");
    EXPECT_EQ(told(module.why(plan.land(), 0, plan_column::crop)).back(),
              "Closed to slurry: August, September, October");
}

TEST_F(StorageWhy, TellsWhatEachShapeHolds) {
    const auto account = [](store_shape shape, const store_size& size) {
        explanation why("A store");
        store_capacity(shape, size, &why);
        return told(why);
    };
    EXPECT_EQ(
        account(store_shape::circular, {.depth_m = 3.3, .diameter_m = 10}),
        (texts{"A store", "A tank keeps 0.3 m free below its brim.", "Usable depth: 3.3 - 0.3 = 3 m",
               "Half the diameter squared x 3.142 x usable depth: 5 x 5 x 3.142 x 3 = 235.65 cubic m", ""}));
    const texts deep =
        account(store_shape::lagoon, {.depth_m = 2, .length_m = 20, .width_m = 10, .bank_angle_degrees = 45});
    EXPECT_EQ(texts(deep.begin() + 2, deep.end() - 1),
              (texts{"Slope: tangent of 45 degrees, with pi as 3.142 = 1.000204",
                     "First slice at 0.76 m: (20 - 1.51969) x (10 - 1.51969) x 0.01 = 1.567187 cubic m",
                     "Last slice at 1.99 m: (20 - 3.979189) x (10 - 3.979189) x 0.01 = 0.9645826 cubic m",
                     "124 slices together: 155.7298 cubic m"}));
    const texts shallow = account(
        store_shape::lagoon, {.depth_m = 0.775, .length_m = 20, .width_m = 10, .bank_angle_degrees = 45});
    EXPECT_EQ(shallow.at(4), "Slice at 0.77 m: (20 - 1.539686) x (10 - 1.539686) x 0.01 = 1.5618 cubic m");
    EXPECT_EQ(shallow.at(5), "2 slices together: 3.128988 cubic m");
}

TEST_F(StorageWhy, TellsTheSizesOfAStoreInTheTable) {
    open({{"Home", "10"}});
    walk_to_stores();
    ASSERT_TRUE(module.stores().add_store({.name = "Lagoon",
                                           .shape = "Earth banked lagoon",
                                           .depth = "2",
                                           .length = "20",
                                           .width = "10",
                                           .angle = "45",
                                           .percent = "50",
                                           .area = "210"}));
    const texts holds = told(module.why(module.stores().stores(), 0, store_column::depth));
    EXPECT_EQ(holds.at(5), "Bank Angle: 45 degrees (Step 2, slurry stores)");
    EXPECT_EQ(holds.back(), "The store holds 155.7298 cubic m");
    const texts level = told(module.why(module.stores().stores(), 0, store_column::percent));
    EXPECT_TRUE(level.back().starts_with("Entered here: 77.86")) << level.back();
    EXPECT_EQ(told(module.why(module.stores().stores(), 0, store_column::area)).back(),
              "Entered here: 210 square m");
    EXPECT_EQ(module.why(module.stores().stores(), 1, store_column::name), std::nullopt);
}

TEST_F(StorageWhy, SaysWhatIsMissingWithoutAStore) {
    open({{"Home", "10"}});
    walk_without_stores();
    EXPECT_EQ(told(module.why("MSChartStorage1")).back().substr(0, 41),
              "There is no slurry store with a capacity ");
    EXPECT_EQ(module.why(plan.production(), 1, production_column::stock), std::nullopt);
    EXPECT_EQ(told(module.why(plan.production(), 1, production_column::unit_volume)).back(),
              "No stock unit is entered in this line yet.");
}

}  // namespace kel::test
