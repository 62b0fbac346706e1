// Dirty water that goes to the stores: either estimated from dairy cows and cleaned pig pens, or entered as
// an actual figure. Source of the estimate: the KEL guidelines on parlour and yard washings.
#pragma once

#include <string>

#include "core/explanation.h"
#include "rules/months.h"

namespace kel {

/// The answers as typed. Either the estimate's pair or the actual figure is filled.
struct dirty_water_answers {
    std::string cows;      // dairy cows, average
    std::string pig_pens;  // pens cleaned a month, average
    std::string actual;    // cubic metres a month
    bool operator==(const dirty_water_answers&) const = default;
};

/// Cubic metres that go into the balance in a month, January as 0. Only the estimate does: with an actual
/// figure it is nothing.
float dirty_water_in(const dirty_water_answers& answers, std::size_t month, explanation* why = nullptr);
monthly_values monthly_dirty_water(const dirty_water_answers& answers);

/// The round monthly figures of the report, cubic metres.
double reported_cow_water(double cows);
double reported_pen_water(double pig_pens);

}  // namespace kel
