// Twelve figures of a year, January first.
#pragma once

#include <array>

namespace kel {

inline constexpr int months_in_year = 12;
using monthly_values = std::array<float, months_in_year>;

}  // namespace kel
