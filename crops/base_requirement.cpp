#include "crops/base_requirement.h"

#include <algorithm>

#include "core/numbers.h"
#include "crops/arable_requirements.h"
#include "crops/crop_account.h"
#include "crops/vegetable_requirements.h"
#include "rules/soils.h"

namespace kel {

namespace {

constexpr std::string_view potato_note = "Apply 1/2 to 2/3 in the seedbed and the rest at tuber initiation.";

struct soil_column {
    std::string_view soil_code;
    requirement_cell requirement_row::*cell;
};

constexpr soil_column soil_columns[] = {
    {"SS", &requirement_row::shallow_soils}, {"S", &requirement_row::sands},
    {"SL", &requirement_row::sandy_loams},   {"OMS", &requirement_row::other_mineral_soils},
    {"HS", &requirement_row::humose_soils},  {"PS", &requirement_row::peaty_soils},
};

struct table_key {
    std::string_view crop;
    int residue_group;
    std::string_view soil_code;
};

std::optional<requirement_cell> find_cell(requirement_table table, const table_key& key) {
    const auto row = std::ranges::find_if(table, [&](const requirement_row& r) {
        return r.crop == key.crop && r.residue_group == key.residue_group;
    });
    const auto column = std::ranges::find(soil_columns, key.soil_code, &soil_column::soil_code);
    if (row == table.end() || column == std::end(soil_columns)) return std::nullopt;
    const requirement_cell cell = (*row).*(column->cell);
    return cell.given() ? std::optional(cell) : std::nullopt;
}

base_requirement for_spring(const requirement_cell& cell) {
    return {.spring_n = cell.n_kg_per_ha,
            .spring_range = cell.range_kg_per_ha,
            .total_n = cell.n_kg_per_ha,
            .crop_note = {}};
}

base_requirement for_seedbed(const requirement_cell& cell, std::string_view soil_code) {
    const bool light = soil_code == "SS" || soil_code == "S";
    return {.seedbed_n = cell.n_kg_per_ha,
            .seedbed_range = cell.range_kg_per_ha,
            .total_n = cell.n_kg_per_ha,
            .crop_note = std::string(light ? potato_note : "")};
}

// What is looked up, and who is told where it was found.
struct looked_up {
    table_key key;
    std::string_view soil;
    explanation* why;
};

void tell(const looked_up& what, std::string_view table, const requirement_cell& cell) {
    if (what.why)
        tell_requirement_cell(table, what.key.crop, what.key.residue_group, what.soil, cell, *what.why);
}

std::optional<requirement_cell> find_told(const looked_up& what, requirement_table table,
                                          std::string_view name) {
    const auto cell = find_cell(table, what.key);
    if (cell) tell(what, name, *cell);
    return cell;
}

std::optional<base_requirement> find_sown_grass(const looked_up& what) {
    const auto rows = sown_grass_requirements();
    const auto row = std::ranges::find(rows, what.key.crop, &sown_grass_row::crop);
    const int group = what.key.residue_group;
    if (row == rows.end() || group < 1 || group > 6) return std::nullopt;
    const requirement_cell cell{row->n_kg_per_ha_by_group[static_cast<std::size_t>(group) - 1]};
    tell(what, "Requirement table of sown grass, which is the same on every soil", cell);
    return for_spring(cell);
}

}  // namespace

int residue_group_number(std::string_view cell) {
    const float number = leading_single(cell);
    for (int group = 1; group <= 6; ++group)
        if (number == static_cast<float>(group)) return group;
    return 0;
}

std::optional<base_requirement> lookup_requirement(std::string_view crop_code, int residue_group,
                                                   std::string_view soil, explanation* why) {
    if (std::ranges::count(nil_requirement_crops(), crop_code) > 0) {
        if (why) why->source("Crops that need no nitrogen: " + crop_words(crop_code) + ": 0 kg N/ha");
        return base_requirement{};
    }
    const looked_up what{{crop_code, residue_group, soil_code(soil).value_or("")}, soil, why};
    if (auto grass = find_sown_grass(what)) return grass;
    if (const auto cell = find_told(what, vegetable_requirements(), "Requirement table of vegetables"))
        return for_spring(*cell);
    if (const auto cell = find_told(what, potato_requirements(),
                                    "Requirement table of potatoes, all of it for the seedbed"))
        return for_seedbed(*cell, what.key.soil_code);
    const auto cell =
        find_told(what, arable_spring_requirements(), "Requirement table of arable crops, for spring");
    if (!cell) return std::nullopt;
    base_requirement found = for_spring(*cell);
    if (const auto seedbed = find_told(what, rape_seedbed_requirements(),
                                       "Requirement table of winter oilseed rape, for the seedbed")) {
        found.seedbed_n = seedbed->n_kg_per_ha;
        found.total_n += seedbed->n_kg_per_ha;
    }
    return found;
}

}  // namespace kel
