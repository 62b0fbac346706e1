#include "storage/dirty_water.h"

#include <string_view>

#include "core/dates.h"
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

void tell_water(const dirty_water_answers& answers, std::size_t month, float water, explanation& why) {
    constexpr std::string_view page = "Step 2, dirty water";
    why.input("Dairy cows", answers.cows, "", page);
    why.input("Pig pens cleaned a month", answers.pig_pens, "", page);
    why.source("Dirty water in " + std::string(month_name(static_cast<int>(month) + 1)) +
               ", from the KEL guidelines: " + default_text(cubic_m_per_cow[month]) + " cubic m a cow and " +
               default_text(cubic_m_per_pen) + " a pig pen");
    why.step("Dirty water: " + default_text(leading_number(answers.cows)) + " x " +
             default_text(cubic_m_per_cow[month]) + " + " + default_text(leading_number(answers.pig_pens)) +
             " x " + default_text(cubic_m_per_pen) + " = " + default_text(water) + " cubic m");
}

}  // namespace

float dirty_water_in(const dirty_water_answers& answers, std::size_t month, explanation* why) {
    // An actual figure is kept and reported, but does not enter the balance.
    if (holds_number(answers.actual) || !holds_number(answers.cows)) {
        if (why)
            why->step(
                holds_number(answers.actual)
                    ? "An actual figure of dirty water is reported, but not put into the stores: 0 cubic m."
                    : "No dirty water has been estimated: 0 cubic m.");
        return 0;
    }
    const double cows = leading_number(answers.cows);
    const double pens = reported_pen_water(leading_number(answers.pig_pens));
    const auto water = static_cast<float>(cows * cubic_m_per_cow[month] + pens);
    if (why) tell_water(answers, month, water, *why);
    return water;
}

monthly_values monthly_dirty_water(const dirty_water_answers& answers) {
    monthly_values water{};
    for (std::size_t month = 0; month < water.size(); ++month)
        water[month] = dirty_water_in(answers, month);
    return water;
}

double reported_cow_water(double cows) {
    return cows * reported_cubic_m_per_cow;
}

double reported_pen_water(double pig_pens) {
    return pig_pens * cubic_m_per_pen;
}

}  // namespace kel
