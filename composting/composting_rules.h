// In-field composting: the straw or paper mill sludge that locks up the nitrogen of a vegetable crop's
// residues and of the soil, and what of it comes back in the next spring. Source of the figures: the
// composting table of the KEL guidelines.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "core/explanation.h"

namespace kel {

/// A residue of the list with the nitrogen that it adds to that of the soil.
struct crop_residue {
    std::string_view name;
    float n_kg_per_ha;
};

/// The 16 residues in the order of the list.
std::span<const crop_residue> crop_residues();
/// Nothing for a text that the list does not hold.
std::optional<crop_residue> find_residue(std::string_view name);

// The waste products, as they are stored and named in the results.
inline constexpr std::string_view pms_waste = "PMS";
inline constexpr std::string_view straw_waste = "Straw";

/// What a tonne of dry matter of a waste product does, by its N content.
struct waste_factors {
    float immobilised_kg_per_t_dm;
    float released_kg_per_t_dm;
};
/// Any waste but straw counts as paper mill sludge.
waste_factors factors_of(std::string_view waste, float n_percent, explanation* why = nullptr);

/// From this N content (%) on the person is asked whether it is right, whatever the waste product.
inline constexpr float high_n_percent = 1.2F;

enum class composting_figure { rate, release };

/// The figures as they are shown and kept, each a number with at most one decimal.
struct composting_result {
    std::string rate;     // t dry matter of the waste per ha
    std::string release;  // kg N/ha in the next spring; below 0: more is locked up
    bool operator==(const composting_result&) const = default;
};

// The two figures, each with one decimal, halves away from zero; nothing beyond all measure, as for a waste
// that immobilises exactly no nitrogen. The release follows from the rate as it was rounded.
std::optional<std::string> compost_rate(float residue_kg_per_ha, float soil_kg_per_ha,
                                        const waste_factors& factors, explanation* why = nullptr);
std::optional<std::string> compost_release(const std::string& rate, const waste_factors& factors,
                                           explanation* why = nullptr);

/// Both of them.
std::optional<composting_result> compost(float residue_kg_per_ha, float soil_kg_per_ha,
                                         std::string_view waste, float n_percent);

}  // namespace kel
