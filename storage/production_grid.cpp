#include "storage/production_grid.h"

#include <array>
#include <vector>

#include "core/assessment_files.h"
#include "core/grid_rows.h"
#include "core/numbers.h"
#include "core/told_rows.h"
#include "storage/slurry_production.h"

namespace kel {

namespace {

constexpr auto entered = column_kind::entered;
constexpr auto calculated = column_kind::calculated;

// The slurry production table. Columns carry the names of [Slurry_animals].
// clang-format off
constexpr std::array<grid_column, 17> columns{{
    // heading                                                   stored column   kind        width
    {"Stock Unit On Slurry Based System",                        "Stock Unit",   entered,    30},
    {"Number Of Stock Units",                                    "Number",       entered,     9},
    {"Proportion Of Waste Collected As Slurry (%)",              "Percent",      entered,    12},
    {"Volume Produced Per Stock Unit (cubic m/month)",           "Volume",       calculated, 12},
    {"Total Volume Produced By These Animals (cubic m/month)",   "Total Volume", calculated, 18},
    {"January",                                                  "January",      entered,    10},
    {"February",                                                 "February",     entered,    10},
    {"March",                                                    "March",        entered,    10},
    {"April",                                                    "April",        entered,    10},
    {"May",                                                      "May",          entered,    10},
    {"June",                                                     "June",         entered,    10},
    {"July",                                                     "July",         entered,    10},
    {"August",                                                   "August",       entered,    10},
    {"September",                                                "September",    entered,    10},
    {"October",                                                  "October",      entered,    10},
    {"November",                                                 "November",     entered,    10},
    {"December",                                                 "December",     entered,    10},
}};
// clang-format on
static_assert(columns[production_column::total_volume].stored == "Total Volume" &&
              columns[production_column::january].stored == "January");

constexpr int all_months_end = production_column::january + months_in_year;

void blank_cells(text_grid& production, int row, int first) {
    for (int column = first; column < all_months_end; ++column)
        production.set_cell(row, column, "");
}

// The old row of totals becomes the empty line; the caller fills the new one.
void add_empty_line(text_grid& production) {
    blank_cells(production, production_totals_row(production), 0);
    production.add_row();
}

// The stock lines of a month added to `total`.
float with_stock_lines(float total, const text_grid& production, int column, explanation* why = nullptr) {
    std::vector<told_row> rows;
    for (int row = first_stock_row; row < empty_stock_row(production); ++row) {
        if (production.cell(row, column) != on_slurry_system) continue;
        const float volume = production.number(row, production_column::total_volume);
        total += volume;
        if (why && volume != 0)
            rows.push_back({production.cell(row, production_column::number) + " x " +
                                production.cell(row, production_column::stock) + ": " +
                                shortest_text(volume) + " cubic m",
                            volume});
    }
    if (why) tell_rows(*why, rows, "lines", "cubic m");
    return total;
}

void set_labels(text_grid& production) {
    production.set_cell(inputs_row, production_column::total_volume, "Rainfall & Dirty Water Inputs =");
    production.set_cell(production_totals_row(production), production_column::total_volume,
                        "Monthly Totals =");
}

}  // namespace

text_grid empty_production_grid() {
    text_grid production(columns);
    production.set_row_count(3);
    set_labels(production);
    return production;
}

std::string unit_volume_text(const text_grid& production, int row, explanation* why) {
    const std::string& unit = told_cell(production, row, production_column::stock, in_production_table, why);
    if (unit.empty()) return {};
    if (const auto volume = slurry_volume(unit)) {
        if (why)
            why->source("Slurry volumes of the guidelines for farmers in the zones, row \"" + unit +
                        "\": " + std::string(*volume) + " cubic m a month");
        return std::string(*volume);
    }
    if (why)
        why->rule("The table of slurry volumes has no such unit. The line keeps the volume that it has.");
    return production.cell(row, production_column::unit_volume);
}

std::string total_volume_text(const text_grid& production, int row, explanation* why) {
    const auto cell = [&](int column) -> const std::string& {
        return told_cell(production, row, column, in_production_table, why);
    };
    const std::string volume = unit_volume_text(production, row, why);
    const std::string& percent = cell(production_column::percent);
    return line_volume(volume, percent, cell(production_column::number), why);
}

void recalculate_stock_line(text_grid& production, int row) {
    using namespace production_column;
    const bool was_empty_line = row == empty_stock_row(production);
    production.set_cell(row, unit_volume, unit_volume_text(production, row));
    production.set_cell(row, total_volume, total_volume_text(production, row));
    for (int column = january; column < all_months_end; ++column)
        if (production.cell(row, column).empty())
            production.set_cell(row, column, std::string(on_slurry_system));
    if (was_empty_line) add_empty_line(production);
}

void erase_stock_line(text_grid& production, int row) {
    production.erase_row(row);
    blank_cells(production, empty_stock_row(production), production_column::total_volume);
}

std::string input_text(float input, explanation* why) {
    std::string text = shortest_text(round_half_even(input, 1));
    if (why) why->step("Rounded to 1 decimal, halves to the even digit: " + text + " cubic m");
    return text;
}

void set_inputs(text_grid& production, const monthly_values& inputs) {
    int column = production_column::january;
    for (const float input : inputs)
        production.set_cell(inputs_row, column++, input_text(input));
}

std::string production_total_text(const text_grid& production, int column, explanation* why) {
    const float inputs = production.number(inputs_row, column);
    if (why) {
        why->rule(
            "The rain and the dirty water of the month as the top row shows them, and the lines that are "
            "on the slurry system in it.");
        why->step("Rain and dirty water: " + shortest_text(inputs) + " cubic m");
    }
    std::string text = shortest_text(with_stock_lines(inputs, production, column, why));
    if (why) why->step("Together: " + text + " cubic m, not rounded");
    return text;
}

void set_production_totals(text_grid& production) {
    set_labels(production);
    for (int column = production_column::january; column < all_months_end; ++column)
        production.set_cell(production_totals_row(production), column,
                            production_total_text(production, column));
}

monthly_values production_totals(const text_grid& production) {
    monthly_values totals{};
    int column = production_column::january;
    for (float& total : totals)
        total = production.number(production_totals_row(production), column++);
    return totals;
}

monthly_values stock_totals(const text_grid& production) {
    monthly_values totals{};
    int column = production_column::january;
    for (float& total : totals)
        total = with_stock_lines(0, production, column++);
    return totals;
}

text_grid load_production(const database& db) {
    text_grid production(columns);
    production.add_row();
    append_rows(db, "Slurry_animals", production);
    production.set_row_count(production.row_count() + 2);
    set_labels(production);
    return production;
}

void import_production(const import_source& source, import_mode mode, text_grid& production) {
    load_messages none;
    if (import_rows(source.file, "Slurry_animals", production, {.above = 1, .below = 2}, mode, {}, none))
        set_labels(production);
}

void save_production(const database& db, const text_grid& production) {
    text_grid lines = production;
    lines.set_row_count(empty_stock_row(production));
    lines.erase_row(inputs_row);
    save_grid(db, "Slurry_animals", lines, lines.row_count());
}

}  // namespace kel
