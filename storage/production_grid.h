// The slurry production table: a row of inputs from rain and dirty water, the stock lines, an empty line, and
// a row of monthly totals. Rows count from 0 without the heading.
#pragma once

#include <string>
#include <string_view>

#include "core/assessment_store.h"
#include "core/explanation.h"
#include "core/record_import.h"
#include "core/text_grid.h"
#include "rules/months.h"

namespace kel {

namespace production_column {
enum : int { stock, number, percent, unit_volume, total_volume, january };
}

/// Where an account says that its inputs were entered.
inline constexpr std::string_view in_production_table = "Step 2, Slurry Production";

/// Inputs, empty line and totals only.
text_grid empty_production_grid();

inline constexpr int inputs_row = 0;
inline constexpr int first_stock_row = 1;
inline int empty_stock_row(const text_grid& production) {
    return production.row_count() - 2;
}
inline int production_totals_row(const text_grid& production) {
    return production.row_count() - 1;
}

// The cells that follow from a stock line: cubic metres a month of one unit and of the line. A unit that is
// not in the table keeps the volume that the line has.
std::string unit_volume_text(const text_grid& production, int row, explanation* why = nullptr);
std::string total_volume_text(const text_grid& production, int row, explanation* why = nullptr);

/// Volumes and empty month cells of a stock line after a change of its stock, number or percentage. A line
/// that was the empty one gets a new empty line beneath it.
void recalculate_stock_line(text_grid& production, int row);
/// Removes a stock line and blanks the volumes and months of the empty one.
void erase_stock_line(text_grid& production, int row);

/// Row of inputs: cubic metres with at most 1 decimal.
std::string input_text(float input, explanation* why = nullptr);
void set_inputs(text_grid& production, const monthly_values& inputs);
/// Row of totals: inputs as shown, and the lines that are on the slurry system in the month.
std::string production_total_text(const text_grid& production, int column, explanation* why = nullptr);
void set_production_totals(text_grid& production);
monthly_values production_totals(const text_grid& production);
/// Cubic metres of the lines alone.
monthly_values stock_totals(const text_grid& production);

/// [Slurry_animals] between an empty row of inputs and an empty line.
text_grid load_production(const database& db);
/// The lines of another assessment, below those of the table or in their place. The totals are to be set
/// anew.
void import_production(const import_source& source, import_mode mode, text_grid& production);
/// Replaces the rows of [Slurry_animals]. Call it within a save_transaction.
void save_production(const database& db, const text_grid& production);

}  // namespace kel
