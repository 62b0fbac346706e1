#include "storage/storage_account.h"

#include <utility>
#include <vector>

#include "core/dates.h"
#include "core/numbers.h"
#include "core/told_rows.h"
#include "storage/production_grid.h"
#include "storage/store_totals.h"

namespace kel {

namespace {

// The months are points of the chart.
// clang-format off
constexpr named_result results[] = {
    {"fraStores",          "What the slurry stores hold"},
    {"lblStorage_warning", "Whether the stores are large enough"},
    {"MSChartStorage1",   "Level at the end of January"},
    {"MSChartStorage2",   "Level at the end of February"},
    {"MSChartStorage3",   "Level at the end of March"},
    {"MSChartStorage4",   "Level at the end of April"},
    {"MSChartStorage5",   "Level at the end of May"},
    {"MSChartStorage6",   "Level at the end of June"},
    {"MSChartStorage7",   "Level at the end of July"},
    {"MSChartStorage8",   "Level at the end of August"},
    {"MSChartStorage9",   "Level at the end of September"},
    {"MSChartStorage10",  "Level at the end of October"},
    {"MSChartStorage11",  "Level at the end of November"},
    {"MSChartStorage12",  "Level at the end of December"},
};
// clang-format on

constexpr std::string_view no_capacity =
    "There is no slurry store with a capacity (Step 2, slurry stores), so that no level can be worked out.";

explanation why_start_level(const text_grid& stores, int row, const std::optional<std::string>& previous) {
    const std::string& cell = stores.cell(row, store_column::percent);
    explanation why("Level of " + stores.cell(row, store_column::name) + " at the start of the year");
    if (previous && *previous == cell) {
        why.rule(
            "It is the level at the end of December in last year's assessment, at most 100 %, rounded to "
            "1 decimal, halves to the even digit.");
        why.set_result(cell, "%");
        return why;
    }
    if (previous)
        why.rule("It is entered here. Last year's assessment ends with " + *previous +
                 " %, which takes its place when the stores are loaded again.");
    const auto capacity = capacity_of_row(stores, row, &why);
    const float content = capacity.value_or(0) * (stores.number(row, store_column::percent) / 100);
    why.set_follows("Entered here: " + default_text(content) + " cubic m of " +
                    default_text(capacity.value_or(0)));
    return why;
}

explanation why_area(const text_grid& stores, int row) {
    const std::string& cell = stores.cell(row, store_column::area);
    explanation why("Drainage area of " + stores.cell(row, store_column::name));
    why.rule("The box of the area is filled from the sizes as they are typed, and can be changed then.");
    const auto area = area_of_row(stores, row, &why);
    if (area && *area == cell)
        why.set_result(cell, "square m");
    else
        why.set_follows("Entered here: " + cell + " square m");
    return why;
}

explanation why_row_capacity(const text_grid& stores, int row) {
    explanation why("What " + stores.cell(row, store_column::name) + " holds");
    if (const auto capacity = capacity_of_row(stores, row, &why))
        why.set_follows("The store holds " + default_text(*capacity) + " cubic m");
    else
        why.set_missing("The shape of the store is none that the program knows, so that it holds nothing.");
    return why;
}

// What is spread, a line a field.
void tell_spreading(const land_plan& plan, int month, explanation& why) {
    std::vector<told_row> rows;
    for (int row = 0; row < plan.fields(); ++row) {
        const float volume = volume_spread(plan, row, month);
        if (volume == 0) continue;
        const auto cell = [&](const text_grid& grid, int january) {
            return grid.cell(row, january + month - 1);
        };
        rows.push_back({"Spread on " + plan.land.cell(row, plan_column::field) + ": " +
                            cell(plan.spreading, spreading_column::january) + " cubic m/ha x " +
                            cell(plan.land, plan_column::january) + " ha = " + default_text(volume) +
                            " cubic m",
                        volume});
    }
    if (rows.empty()) why.step("Nothing is spread.");
    tell_rows(why, rows, "fields", "cubic m");
}

}  // namespace

std::span<const named_result> storage_results() {
    return results;
}

std::optional<explanation> why_store(const text_grid& stores, int row, int column,
                                     const std::optional<std::string>& previous_percent) {
    if (row >= stores.data_row_count()) return std::nullopt;
    if (column == store_column::percent) return why_start_level(stores, row, previous_percent);
    return column == store_column::area ? why_area(stores, row) : why_row_capacity(stores, row);
}

explanation why_capacity(const text_grid& stores, const monthly_values& rain_mm) {
    explanation why{std::string(results[capacity_result].caption)};
    const store_totals totals = compute_store_totals(stores, rain_mm, &why);
    if (totals.total_capacity > 0)
        why.set_result(default_text(totals.total_capacity), "cubic m");
    else
        why.set_missing(std::string(no_capacity));
    return why;
}

explanation why_level(const balance_sources& sources, std::size_t month) {
    const int number = static_cast<int>(month) + 1;
    explanation why{std::string(results[january_result + month].caption)};
    const monthly_values inputs = production_totals(sources.production);
    const float rain = sources.production.number(inputs_row, production_column::january + number - 1);
    why.step("Rain and dirty water: " + default_text(rain) + " cubic m");
    why.step("Slurry of the stock: " + default_text(stock_totals(sources.production)[month]) + " cubic m");
    why.step("Together flow in: " + default_text(inputs[month]) + " cubic m");
    tell_spreading(sources.plan, number, why);
    const auto balance = build_balance(sources.stores, inputs, monthly_spreading(sources.plan), &why, month);
    if (!balance) {
        why.set_missing(std::string(no_capacity));
        return why;
    }
    if (number == months_in_year)
        why.rule("With this level, but at most 100 %, next year's assessment begins.");
    why.step("Rounded to 1 decimal, halves up, as the chart tells it.");
    why.set_result(format_fixed(balance->percent[month], 1), "%");
    return why;
}

explanation why_warning(const balance_sources& sources) {
    explanation why{std::string(results[warning_result].caption)};
    const auto balance = build_balance(sources.stores, production_totals(sources.production),
                                       monthly_spreading(sources.plan), &why);
    if (balance)
        why.set_result(std::string(balance->warning), "");
    else
        why.set_missing(std::string(no_capacity));
    return why;
}

}  // namespace kel
