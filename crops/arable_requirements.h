// The requirement tables of arable and root crops, by residue group and soil.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "crops/requirement_table.h"

namespace kel {

/// What goes on in spring.
requirement_table arable_spring_requirements();
/// What winter oilseed rape gets in the seedbed beside its spring dressing.
requirement_table rape_seedbed_requirements();
/// The four kinds of potato: all of it is for the seedbed.
requirement_table potato_requirements();

/// Grass that is sown directly takes the same on every soil, in spring.
struct sown_grass_row {
    std::string_view crop;  // planned code
    std::array<float, 6> n_kg_per_ha_by_group;
};
std::span<const sown_grass_row> sown_grass_requirements();

/// Crops that need no nitrogen, whatever the soil and the residue group.
std::span<const std::string_view> nil_requirement_crops();

}  // namespace kel
