#include "rules/rainfall.h"

#include <array>

#include "core/explanation.h"
#include "core/numbers.h"

namespace kel {

namespace {

// Columns of [KEL_rain], January first.
constexpr std::array<std::string_view, months_in_year> rain_columns{
    "Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec",
};

std::optional<monthly_values> rain_of(const recordset& row) {
    if (row.eof()) return std::nullopt;
    monthly_values rain{};
    for (std::size_t month = 0; month < rain.size(); ++month)
        rain[month] = leading_single(row.text(rain_columns[month]));
    return rain;
}

}  // namespace

std::optional<monthly_values> monthly_rain(const database& climate, std::string_view town) {
    return rain_of(climate.open("KEL_rain", "Town", town));
}

std::optional<monthly_values> first_monthly_rain(const database& climate) {
    return rain_of(climate.open("KEL_rain"));
}

float rain_volume(float rain_mm, float area_sq_m, explanation* why) {
    const float volume_m3 = rain_mm / 1000 * area_sq_m;
    if (why)
        why->step("Rain of " + default_text(rain_mm) + " mm on " + default_text(area_sq_m) +
                  " square metres: " + default_text(rain_mm) + " / 1000 x " + default_text(area_sq_m) +
                  " = " + default_text(volume_m3) + " cubic metres");
    return volume_m3;
}

}  // namespace kel
