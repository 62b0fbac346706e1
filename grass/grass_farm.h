// What the pages of the module share: the working copies of the tables, the answers of the opening questions,
// the farm's livestock units and what was worked with last.
#pragma once

#include <string>
#include <vector>

#include "core/farm_fields.h"
#include "core/text_grid.h"
#include "grass/grass_grids.h"

namespace kel {

struct grass_farm {
    text_grid site = empty_site_grid();
    text_grid stocking = empty_stocking_grid();
    text_grid livestock = empty_livestock_grid();
    std::vector<farm_field> fields;
    int rain_class = 0;  // 0: not answered yet
    int altitude_step = 0;
    // Of [LU] as it is stored, not of what has not been saved yet.
    bool has_stock = false;
    std::vector<std::string> stock_types;
    float total_lus = 0;
    silage_working working{};
};

}  // namespace kel
