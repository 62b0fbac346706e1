// The nitrogen that one application of manure supplies: the share of its total nitrogen that is available to
// the current crop, by manure, incorporation time, season and soil, and the rates that follow. Source of the
// figures: the available nitrogen table of the KEL assessment.
#pragma once

#include <optional>
#include <string_view>

#include "core/explanation.h"

namespace kel {

/// What decides the percentage of one application, as texts of its row.
struct application_texts {
    std::string_view month;  // full English name
    std::string_view soil;
    std::string_view manure;
    std::string_view incorporation;
};

enum class percentage_outcome {
    unchanged,      // no month entered, or no manure resolved so far: the percentage stays, nothing is said
    invalid_month,  // the percentage stays
    invalid_soil,   // the percentage stays; soil is asked for from August to January only
    found,
};

struct percentage_result {
    percentage_outcome outcome;
    int percentage;    // of total N, only when found
    int working_code;  // manure code to hand in with the next row
    bool operator==(const percentage_result&) const = default;
};

/// Percentage of total N available to the current crop. `working_code` is the code of the row handled before,
/// which also counts for a row whose manure and incorporation name none.
percentage_result available_percentage(const application_texts& row, int working_code,
                                       explanation* why = nullptr);

/// Amount (t or cubic m) over area (ha), two decimals, half to even; nothing without an area.
std::optional<float> application_rate(float amount, float area_ha, explanation* why = nullptr);
/// kg N/ha from N content (kg per t or cubic m) and application rate (t or cubic m per ha), unrounded.
float total_n_rate(float n_content, float rate, explanation* why = nullptr);
/// The same for an N content typed in from an analysis, in double precision.
double total_n_rate_of_analysis(double n_content, double rate, explanation* why = nullptr);
/// kg N/ha available to the current crop; an empty percentage counts as 0.
float available_n_rate(float total_n_kg_per_ha, float percentage, explanation* why = nullptr);
/// kg N/ha available to the next crop: a tenth of the total for every manure.
float available_n_rate_next(float total_n_kg_per_ha, explanation* why = nullptr);

}  // namespace kel
