// The recorded calculations as a grid: columns as data, the way from and to the file.
#pragma once

#include <vector>

#include "core/assessment_store.h"
#include "core/farm_fields.h"
#include "core/grid_rows.h"
#include "core/record_import.h"
#include "core/text_grid.h"

namespace kel {

namespace composting_column {
enum : int { field = 0, soil_n = 1, residue = 2, waste = 3, waste_n = 4, rate = 5, release = 6 };
}

/// An empty table with its entry row.
text_grid empty_composting_grid();
/// [Straw] as it is stored; rows of fields that the profile lacks are left out and told.
text_grid load_calculations(const database& db, const std::vector<farm_field>& fields, load_messages& told);
/// The rows of [Straw] in another assessment, below those of the table or in their place.
void import_calculations(const import_source& source, import_mode mode, text_grid& calculations,
                         load_messages& told);
/// Replaces the rows of [Straw]. Call within a save_transaction.
void save_calculations(const database& db, const text_grid& calculations);

}  // namespace kel
