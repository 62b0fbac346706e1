// The tables of the module as grids: columns as data, and the way from and to the file. [Site] is one working
// copy for all pages: the site table holds every column of it, and the stocking table shows the same rows in
// an order of its own.
#pragma once

#include <string>
#include <vector>

#include "core/assessment_store.h"
#include "core/farm_fields.h"
#include "core/grid_rows.h"
#include "core/text_grid.h"
#include "grass/grass_recommendation.h"
#include "grass/silage_plan.h"

namespace kel {

namespace site_column {
enum : int {
    field = 0,
    soil = 1,
    site_class = 2,
    previous = 3,
    residue_group = 4,
    clover = 5,
    use = 6,
    cuts = 7,
    applications = 8,
    adjustment = 9,
    manure_current = 10,
    manure_previous = 11,
    season_end = 12,
    area = 13,
    first_group = 14,
    grazing_lus = 44,
    silage_rate = 45,
    stocked_field = 46,  // not stored: the field that the columns from the area on are about
};
}

namespace stocking_column {
enum : int {
    field = 0,
    area = 1,
    soil = 2,
    site_class = 3,
    use = 4,
    first_group = 5,
    grazing_lus = 35,
    silage_rate = 36,
};
}

/// A group's columns follow each other: type, number, time.
enum class group_part { type, number, time };
inline constexpr int columns_per_group = 3;

namespace livestock_column {
enum : int { type = 0, number = 1, time = 2, ratio = 3, units = 4 };
}

namespace grass_result_column {
enum : int { field = 0, use = 1, requirement = 2, adjustment = 3, manures = 4, to_be_applied = 5 };
}

namespace silage_column {
enum : int {
    field = 0,
    use = 1,
    lus_fed_by_grazing = 2,
    lus_fed_from_silage = 3,
    lus_per_ha = 4,
    n_kg_per_ha = 5,
    area = 6,
    notes = 7,
};
}

/// Empty grids: the site and the livestock table with their entry row, the others without rows.
text_grid empty_site_grid();
text_grid empty_livestock_grid();
text_grid empty_stocking_grid();
text_grid empty_grass_results();
text_grid empty_silage_grid();

/// [Site] without the rows of fields that the profile lacks, which are told. A row without an area takes the
/// profile's.
text_grid load_site(const database& db, const std::vector<farm_field>& fields, load_messages& told);
/// [LU] as it stands.
text_grid load_livestock(const database& db);

/// The rows of the site table but the last, as the stocking table shows them.
text_grid stocking_of(const text_grid& site);
/// Where a column of the stocking table lies in the site table.
int site_column_of(int stocking_column);

/// A row's values for the rules.
grass_field grass_field_of(const text_grid& site, int row);
std::vector<stocked_field> stocked_fields_of(const text_grid& stocking);
/// The silage table as it is shown.
text_grid silage_grid_of(const silage_plan& plan);

// Each replaces its table. What [Site] has in columns that the page does not show stays as it is stored for
// the field. Call within a save_transaction.
void save_site(const database& db, const text_grid& site);
void save_stocking(const database& db, const text_grid& stocking);
void save_livestock(const database& db, const text_grid& livestock);
/// The density of each row into the stored rate of the record at the same place of [Site].
void save_silage_rates(const database& db, const silage_plan& plan);

}  // namespace kel
