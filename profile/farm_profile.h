// The farm as the profile screen holds it: the entries above the grid, the columns of the field list, the
// texts to choose from, and the names that Create Fields gives.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/prompts.h"
#include "core/text_grid.h"

namespace kel {

/// The entries above the field list, as typed or chosen.
struct farm_details {
    std::string name;
    std::string location;     // town - zone
    std::string total_area;   // ha
    std::string kel_area;     // ha within the zone
    std::string field_count;  // as typed: need not be the number of rows until Create Fields
    std::string year;         // 19/12/yyyy
    bool operator==(const farm_details&) const = default;
};

/// Columns of the field list. The last one holds a field's name as it was last read from the file, and is
/// empty for a field added since: renames are carried from that name.
namespace field_column {
inline constexpr int name = 0;
inline constexpr int area = 1;
inline constexpr int kel_area = 2;
inline constexpr int soil = 3;
inline constexpr int stored_name = 4;
}  // namespace field_column

// clang-format off
inline constexpr std::array<grid_column, 5> field_columns{{
    // heading           stored        kind                  width
    {"Field Name",      "Field Name", column_kind::entered, 40},
    {"Field Area (ha)", "Size",       column_kind::entered, 15},
    {"KEL Area (ha)",   "KEL Size",   column_kind::entered, 15},
    {"Soil Type",       "Soil",       column_kind::entered, 20},
    {"Field Name 2",    "",           column_kind::carried,  0},
}};
// clang-format on

/// Starts of the KEL years that can be assessed, "19/12/2000" to "19/12/2040".
std::vector<std::string> year_choices();

/// What keeps the profile from being set, in the order of its tests; null: nothing is missing.
const message* missing_from_profile(const farm_details& farm, const text_grid& fields);

/// More fields than any farm has; larger counts are not believed.
inline constexpr int most_fields = 100'000;

/// Gives every nameless row "Field " and the row's number counted from 1, or the next number whose name is
/// free.
void name_nameless_fields(text_grid& fields);

}  // namespace kel
