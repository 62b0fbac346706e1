// How a requirement table is laid out: a line for each crop and residue group, a cell for each soil of the
// farm profile, in kg N per hectare.
#pragma once

#include <algorithm>
#include <span>
#include <string_view>

namespace kel {

/// An amount and, where the table gives a range, its width above the amount: {110, 30} is 110 to 140.
struct requirement_cell {
    float n_kg_per_ha;
    float range_kg_per_ha = 0;
    constexpr bool given() const { return n_kg_per_ha >= 0; }
};

/// A soil on which the table has no value for the crop.
inline constexpr requirement_cell no_value{-1};

struct requirement_row {
    std::string_view crop;  // planned code
    int residue_group;      // 1 to 6
    requirement_cell shallow_soils;
    requirement_cell sands;
    requirement_cell sandy_loams;
    requirement_cell other_mineral_soils;
    requirement_cell humose_soils;
    requirement_cell peaty_soils;
};

using requirement_table = std::span<const requirement_row>;

/// Whether each crop's lines stand together, its groups counting up from 1.
constexpr bool groups_count_up(requirement_table table) {
    for (std::size_t i = 0; i < table.size(); ++i) {
        const auto lines_before = std::ranges::count(table.first(i), table[i].crop, &requirement_row::crop);
        const bool follows = lines_before == 0 || table[i - 1].crop == table[i].crop;
        if (!follows || table[i].residue_group != lines_before + 1) return false;
    }
    return true;
}

}  // namespace kel
