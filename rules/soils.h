// The soils of the farm profile. A field keeps its soil as one of these texts; every rule compares them
// exactly, and any other text is no soil.
#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace kel {

struct soil_class {
    std::string_view name;
    std::string_view code;  // on which the rainfall rules work
    bool light;             // nitrogen leaches from it: months close, and manures leave less behind
};

/// In the order in which a person picks from them.
std::span<const soil_class> soils();
/// Nothing for any other text.
std::optional<soil_class> find_soil(std::string_view name);
/// Nothing for any other text: the caller keeps the code that it had.
std::optional<std::string_view> soil_code(std::string_view name);

}  // namespace kel
