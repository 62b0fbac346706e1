#include "storage/dirty_water.h"

#include "core/numbers.h"

namespace kel {

namespace {

// Cubic metres of dirty water per dairy cow and month, January first. Source: the estimate of the KEL
// guidelines, 0.018 a day. February is that of a leap year in every year.
// clang-format off
constexpr std::array<double, months_in_year> cubic_m_per_cow{
    0.558,  // January
    0.522,  // February
    0.558,  // March
    0.54,   // April
    0.558,  // May
    0.54,   // June
    0.558,  // July
    0.558,  // August
    0.54,   // September
    0.558,  // October
    0.54,   // November
    0.558,  // December
};
// clang-format on
constexpr double cubic_m_per_pen = 0.018;
constexpr double reported_cubic_m_per_cow = 0.55;

}  // namespace

monthly_values monthly_dirty_water(const dirty_water_answers& answers) {
    monthly_values water{};
    // An actual figure is kept and reported, but does not enter the balance.
    if (holds_number(answers.actual) || !holds_number(answers.cows)) return water;
    const double cows = leading_number(answers.cows);
    const double pens = reported_pen_water(leading_number(answers.pig_pens));
    for (std::size_t month = 0; month < water.size(); ++month)
        water[month] = static_cast<float>(cows * cubic_m_per_cow[month] + pens);
    return water;
}

double reported_cow_water(double cows) {
    return cows * reported_cubic_m_per_cow;
}

double reported_pen_water(double pig_pens) {
    return pig_pens * cubic_m_per_pen;
}

}  // namespace kel
