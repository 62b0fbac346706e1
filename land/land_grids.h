// The module's two tables as grids: columns as data, recalculation of a row, the way from and to the file.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/assessment_store.h"
#include "core/explanation.h"
#include "core/farm_fields.h"
#include "core/grid_rows.h"
#include "core/record_import.h"
#include "core/text_grid.h"
#include "land/spreading_limits.h"

namespace kel {

namespace land_column {
enum : int {
    field = 0,
    grass = 1,
    not_in_grass = 2,
    buffer = 3,
    slope = 4,
    other_deduction = 5,
    available = 6,
    crop = 7,
    soil = 8,
    january = 9,
    applic_january = 21,
    total_area = 33,
    field_limit = 34,
};
}

namespace stock_column {
enum : int { stock = 0, number = 1, unit_n = 2, total_n = 3 };
}

/// An empty grid with its entry row.
text_grid empty_land_grid();
text_grid empty_stock_grid();

/// Where an account says that its inputs were entered.
inline constexpr std::string_view in_land_table = "Step 1, Land Available For Spreading";
inline constexpr std::string_view in_stock_table = "Step 1, Manure Production";

// The cells that follow from a row's entries: available area ("0.00", ha), field limit (kg N, not rounded),
// and the hectares that the other deductions leave for one of them.
std::string available_text(const text_grid& land, int row, explanation* why = nullptr);
std::string field_limit_text(const text_grid& land, int row, explanation* why = nullptr);
float room_for_deduction(const text_grid& land, int row, int column, explanation* why = nullptr);
/// The limit as a row has it that was loaded: from the available area as it was stored.
std::string loaded_field_limit_text(const text_grid& land, int row, explanation* why = nullptr);
/// Nitrogen per unit and of the line, kg N.
struct stock_texts {
    std::string unit_n;
    std::string total_n;
};
/// An unknown type takes and every other one sets `working_constant`.
stock_texts stock_line_texts(const text_grid& animals, int row, float& working_constant,
                             explanation* why = nullptr);

/// Available area and field limit of a row.
void recalculate_land_row(text_grid& land, int row);
void recalculate_stock_row(text_grid& animals, int row, float& working_constant);

/// One row per field of the profile with its soil and size; the areas are left to the user.
text_grid fields_to_grid(const std::vector<farm_field>& fields);

/// [Land] with the field limits, without the rows of fields that the profile lacks.
text_grid load_land(const database& db, const std::vector<farm_field>& fields, load_messages& told);
/// The rows of [Land] in another assessment, total area and carried columns included, below those of the
/// table or in their place; a field may come twice. False, and the table as it was, if there are none.
bool import_land(const import_source& source, import_mode mode, text_grid& land, load_messages& told);
/// [Land_animals], recalculated, so that the program's constants replace those of the file.
text_grid load_stock(const database& db, float& working_constant);

void import_stock(const import_source& source, import_mode mode, text_grid& animals, float& working_constant);

/// What Calculate compares: the sums over the data rows of both tables.
farm_sums sums_of(const text_grid& land, const text_grid& animals);

/// Fills empty deductions of the data rows with "0", as they are saved.
void fill_deductions(text_grid& land);
/// Replaces the rows of [Land] and of [Land_animals], the latter by the rows with a stock unit. `land` must
/// carry what Step 2 has saved by now. Call within a save_transaction.
void save_land(const database& db, const text_grid& land);
void save_stock(const database& db, const text_grid& animals);

}  // namespace kel
