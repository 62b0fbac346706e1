// How much nitrogen the previous crop leaves in the soil, and which crops the vegetable tables serve.
#pragma once

#include <string_view>

namespace kel {

class explanation;

/// N residue group, 1 (lowest) to 6, of a previous crop code; 0 for an empty code or one that leaves no known
/// residue. Soil, harvest date and manures play no part.
int residue_group(std::string_view previous_code, explanation* why = nullptr);

/// Whether a crop, by its name or its code, is one of the fifteen vegetables. Codes and names with a yield
/// are not.
bool is_vegetable_crop(std::string_view name_or_code);

}  // namespace kel
