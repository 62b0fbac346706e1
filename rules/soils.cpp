#include "rules/soils.h"

#include <algorithm>
#include <array>

namespace kel {

namespace {

// Source: the soil classes of the KEL assessment.
// clang-format off
constexpr std::array<soil_class, 6> all_soils{{
    // name                 code   light
    {"Humose soils",        "HS",  false},
    {"Other mineral soils", "OMS", false},
    {"Peaty soils",         "PS",  false},
    {"Sands",               "S",   true},
    {"Sandy loams",         "SL",  true},
    {"Shallow soils",       "SS",  true},
}};
// clang-format on
static_assert(std::ranges::is_sorted(all_soils, {}, &soil_class::name));

}  // namespace

std::span<const soil_class> soils() {
    return all_soils;
}

std::optional<soil_class> find_soil(std::string_view name) {
    const auto found = std::ranges::find(all_soils, name, &soil_class::name);
    return found == all_soils.end() ? std::nullopt : std::optional(*found);
}

std::optional<std::string_view> soil_code(std::string_view name) {
    const auto found = find_soil(name);
    return found ? std::optional(found->code) : std::nullopt;
}

}  // namespace kel
