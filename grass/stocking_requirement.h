// Nitrogen that grass needs to carry its stock: a straight line over the stocking density, one for grazing
// and one for silage in each site class, and the number of cuts that go with a requirement.
#pragma once

#include <optional>
#include <string_view>

namespace kel {

class explanation;

// kg N/ha for a density in LU/ha, never negative; nothing for a class other than 1 to 5: what was worked out
// last stands.
std::optional<float> grazing_requirement(int site_class, float lu_per_ha, explanation* why = nullptr);
std::optional<float> silage_requirement(int site_class, float lu_per_ha, explanation* why = nullptr);

/// "1 cut" to "3 cuts" for a requirement in kg N/ha; nothing at 0: the note that is there stands.
std::optional<std::string_view> cuts_note(float n_kg_per_ha, explanation* why = nullptr);

}  // namespace kel
