#include "crops/crop_grids.h"

#include <array>

#include "core/assessment_files.h"

namespace kel {

namespace {

constexpr auto entered = column_kind::entered;
constexpr auto calculated = column_kind::calculated;
constexpr auto carried = column_kind::carried;

// The table of crops. Stored columns are those of [Crops]; the last one is the same on every row.
// clang-format off
constexpr std::array<grid_column, 22> crop_columns{{
    // heading                                                       stored column                          kind        width  date
    {"Field Area ID",                                               "Field Area ID",                       entered,    20},
    {"Soil Type",                                                   "Soil Type",                           calculated, 22},
    {"Planned Crop",                                                "Next Crop",                           entered,    14},
    {"Previous Crop",                                               "Previous or Current Crop",            entered,    14},
    {"N Residue Group",                                             "N Residue Group",                     calculated, 9},
    {"Notes WW",                                                    "Notes WW",                            carried,    0},
    {"Notes WB",                                                    "Notes WB",                            carried,    0},
    {"Adjustment For Intended Market (kg/ha)",                      "Intended Market Adjustment (kg/ha)",  carried,    0},
    {"Adjustment For Undersowing (kg/ha)",                          "Undersowing Adjustment (kg/ha)",      carried,    0},
    {"Adjustment For Delayed Sowing (kg/ha)",                       "Delayed Sowing Adjustment (kg/ha)",   carried,    0},
    {"Adjustment For Take-all (kg/ha)",                             "Take-all Adjustment (kg/ha)",         carried,    0},
    {"Adjustment For Turnip Rape (kg/ha)",                          "Turnip Rape Adjustment (kg/ha)",      carried,    0},
    {"Adjustment For Manure Applications (kg/ha)",                  "Manures Adjustment (kg/ha)",          entered,    20},
    {"Adjustment For Manure Applications To Previous Crop (kg/ha)", "Previous Manures Adjustment (kg/ha)", entered,    26},
    {"Adjustment For Winter Rainfall (kg/ha)",                      "Winter Rainfall Adjustment (kg/ha)",  carried,    0},
    {"Adjustment For Spring Rainfall (kg/ha)",                      "Spring Rainfall Adjustment (kg/ha)",  carried,    0},
    {"Adjustment For Variety (%)",                                  "Variety Adjustment (%)",              carried,    0},
    {"Spring Rainfall Status",                                      "Spring Rainfall Status",              entered,    12},
    {"Harvest Date (P_crop)",                                       "Hdate p_crop",                        carried,    0, true},
    {"Harvest Date (C_crop)",                                       "Hdate c_crop",                        carried,    0, true},
    {"Sowing Date",                                                 "Sowing date",                         carried,    0, true},
    {"Winter Rainfall Status",                                      "Winter Rainfall Status",              carried,    0},
}};

constexpr std::array<grid_column, 7> result_columns{{
    // heading            stored kind        width
    {"Field Area ID",     "",    calculated, 20},
    {"Spring (kg/ha)",    "",    calculated, 15},
    {"Seedbed (kg/ha)",   "",    calculated, 16},
    {"Total (kg/ha)",     "",    calculated, 15},
    {"Crop requirement",  "",    calculated, 13},
    {"Manures",           "",    calculated, 10},
    {"Notes",             "",    calculated, 60},
}};
// clang-format on
static_assert(crop_columns[crop_column::residue_group].stored == "N Residue Group" &&
              crop_columns[crop_column::spring_status].stored == "Spring Rainfall Status" &&
              crop_columns[crop_column::sowing].is_date);
static_assert(crop_column::variety - crop_column::market + 1 == adjustment_count);

}  // namespace

text_grid empty_crop_grid() {
    text_grid grid(crop_columns);
    grid.add_row();
    return grid;
}

text_grid empty_crop_results() {
    return text_grid(result_columns);
}

crop_row crop_row_of(const text_grid& crops, int row) {
    crop_row cells{.crop = crops.cell(row, crop_column::planned_crop),
                   .residue_group = crops.cell(row, crop_column::residue_group),
                   .soil = crops.cell(row, crop_column::soil),
                   .notes_ww = crops.cell(row, crop_column::notes_ww),
                   .notes_wb = crops.cell(row, crop_column::notes_wb),
                   .adjustments = {}};
    for (std::size_t i = 0; i < adjustment_count; ++i)
        cells.adjustments[i] = crops.cell(row, crop_column::market + static_cast<int>(i));
    return cells;
}

void add_crop_result(text_grid& results, const std::string& field, const crop_recommendation& found) {
    const int row = results.add_row();
    results.set_cell(row, crop_result_column::field, field);
    results.set_cell(row, crop_result_column::spring, found.spring);
    results.set_cell(row, crop_result_column::seedbed, found.seedbed);
    results.set_cell(row, crop_result_column::total, found.total);
    results.set_cell(row, crop_result_column::requirement, found.requirement);
    results.set_cell(row, crop_result_column::manures, found.manures);
    results.set_cell(row, crop_result_column::notes, found.notes);
}

void save_crops(const database& db, const text_grid& crops) {
    save_grid(db, "Crops", crops, crops.data_row_count());
}

}  // namespace kel
