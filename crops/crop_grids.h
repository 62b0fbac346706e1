// The table of cropped fields and the table of results: their columns as data, and their rows in the file.
#pragma once

#include <string>

#include "core/assessment_store.h"
#include "core/text_grid.h"
#include "crops/crop_advice.h"

namespace kel {

namespace crop_column {
enum : int {
    field,
    soil,
    planned_crop,  // code
    previous_crop,
    residue_group,
    notes_ww,
    notes_wb,
    market,
    undersowing,
    delayed_sowing,
    take_all,
    turnip_rape,
    manures,
    previous_manures,
    winter_rain,
    spring_rain,
    variety,
    spring_status,
    previous_harvest,
    harvest,
    sowing,
    winter_status,
};
}  // namespace crop_column

namespace crop_result_column {
enum : int { field, spring, seedbed, total, requirement, manures, notes };
}

text_grid empty_crop_grid();
text_grid empty_crop_results();

/// The cells of a row that decide its recommendation; valid as long as the grid's cells are.
crop_row crop_row_of(const text_grid& crops, int row);

/// Adds a row of results for the field.
void add_crop_result(text_grid& results, const std::string& field, const crop_recommendation& found);

/// Replaces [Crops] by the rows of the grid but for the entry row. Belongs into a save_transaction.
void save_crops(const database& db, const text_grid& crops);

}  // namespace kel
