// The slurry applications of Step 3 as monthly rates of the spreading table.
#pragma once

#include <array>
#include <map>
#include <string>

#include "core/assessment_store.h"
#include "storage/land_plan.h"

namespace kel {

/// Rates per month of each field that has applications, in cubic metres per hectare: slurries with a date are
/// added up, solid manures count nothing. The sums are not rounded before they are put into the table.
using monthly_sums = std::array<double, months_in_year>;
using slurry_rates = std::map<std::string, monthly_sums, std::less<>>;

/// [Manure_applic] in one pass; empty without an application. Throws file_error for a date that is none.
slurry_rates read_slurry_rates(const database& db);

/// What the transfer had to leave out.
struct transfer_result {
    bool into_closed_month = false;
    bool without_land = false;
};

/// Puts the rates into the spreading table. A field without applications keeps its cells, a closed month
/// stays closed, and a month without land gets 0.
transfer_result transfer_slurry(land_plan& plan, const slurry_rates& rates);

}  // namespace kel
