#include "rules/available_nitrogen.h"

#include <algorithm>
#include <array>
#include <string>

#include "core/numbers.h"
#include "rules/manure_catalogue.h"
#include "rules/soils.h"

namespace kel {

namespace {

enum class month_group { aug_oct, nov_jan, feb_apr, may_jul };

struct month_row {
    std::array<std::string_view, 3> months;
    month_group group;
    bool soil_matters;
};

struct availability_row {
    int code;
    int aug_oct_light_pct;
    int aug_oct_other_pct;
    int nov_jan_light_pct;
    int nov_jan_other_pct;
    int feb_apr_pct;
    int may_jul_pct;
};

// Seasons of application. A text in no row is no month.
// clang-format off
constexpr std::array<month_row, 4> month_groups{{
    {{"August",   "September", "October"}, month_group::aug_oct, true},
    {{"November", "December",  "January"}, month_group::nov_jan, true},
    {{"February", "March",     "April"},   month_group::feb_apr, false},
    {{"May",      "June",      "July"},    month_group::may_jul, false},
}};

// Available nitrogen, % of the total N applied, by manure code, season and soil. Source: the available
// nitrogen table of the KEL assessment. The table is complete; codes 29 and 30 do differ from their
// neighbours in May to July.
constexpr std::array<availability_row, 43> available_nitrogen{{
//      Aug-Oct Nov-Jan Feb May
//  code  l   o   l   o Apr Jul      l: light soils, o: other soils
    { 1,  5, 10, 15, 20, 25,  0},  // Cattle FYM, covered, within 24 hours
    { 2,  5, 10, 10, 15, 20,  0},  // Cattle FYM, covered, over 24 hours
    { 3,  5, 10, 15, 20, 25,  0},  // Cattle FYM, outside, within 24 hours
    { 4,  5, 10, 10, 15, 20,  0},  // Cattle FYM, outside, over 24 hours
    { 5,  5, 10, 15, 20, 25,  0},  // Pig FYM, covered, within 24 hours
    { 6,  5, 10, 10, 15, 20,  0},  // Pig FYM, covered, over 24 hours
    { 7,  5, 10, 15, 20, 25,  0},  // Pig FYM, outside, within 24 hours
    { 8,  5, 10, 10, 15, 20,  0},  // Pig FYM, outside, over 24 hours
    { 9, 10, 20, 20, 30, 50,  0},  // Layer manure, covered, within 24 hours
    {10, 10, 15, 15, 25, 35,  0},  // Layer manure, covered, over 24 hours
    {11, 10, 20, 20, 30, 50,  0},  // Layer manure, uncovered, within 24 hours
    {12, 10, 15, 15, 25, 35,  0},  // Layer manure, uncovered, over 24 hours
    {13, 10, 20, 20, 30, 45,  0},  // Broiler/Turkey litter, covered, within 24 hours
    {14, 10, 15, 15, 20, 30,  0},  // Broiler/Turkey litter, covered, over 24 hours
    {15, 10, 20, 20, 30, 45,  0},  // Broiler/Turkey litter, uncovered, within 24 hours
    {16, 10, 15, 15, 20, 30,  0},  // Broiler/Turkey litter, uncovered, over 24 hours
    {17,  5, 10, 15, 25, 30,  0},  // Dairy slurry high, within 6 hours
    {18,  5, 15, 20, 30, 40,  0},  // Dairy slurry medium, within 6 hours
    {19,  5, 15, 25, 35, 50,  0},  // Dairy slurry low, within 6 hours
    {20,  5, 10, 10, 15, 20,  5},  // Dairy slurry high, over 6 hours
    {21,  5, 10, 20, 25, 30, 20},  // Dairy slurry medium, over 6 hours
    {22,  5, 15, 25, 30, 40, 35},  // Dairy slurry low, over 6 hours
    {23,  5, 10, 15, 25, 30,  0},  // Young cattle slurry high, within 6 hours
    {24,  5, 15, 20, 30, 40,  0},  // Young cattle slurry medium, within 6 hours
    {25,  5, 15, 25, 35, 50,  0},  // Young cattle slurry low, within 6 hours
    {26,  5, 10, 10, 15, 20,  5},  // Young cattle slurry high, over 6 hours
    {27,  5, 10, 20, 25, 30, 20},  // Young cattle slurry medium, over 6 hours
    {28,  5, 15, 25, 30, 40, 35},  // Young cattle slurry low, over 6 hours
    {29,  5, 10, 15, 25, 30, 20},  // Fattening cattle slurry high, within 6 hours
    {30,  5, 15, 20, 30, 40, 35},  // Fattening cattle slurry medium, within 6 hours
    {31,  5, 15, 25, 35, 50,  0},  // Fattening cattle slurry low, within 6 hours
    {32,  5, 10, 10, 15, 20,  5},  // Fattening cattle slurry high, over 6 hours
    {33,  5, 10, 20, 25, 30, 20},  // Fattening cattle slurry medium, over 6 hours
    {34,  5, 15, 25, 30, 40, 35},  // Fattening cattle slurry low, over 6 hours
    {35,  5, 15, 25, 30, 40, 35},  // Separated, strainer box
    {36,  5, 15, 25, 30, 40, 35},  // Separated, weeping wall
    {37,  5, 15, 25, 30, 40, 35},  // Separated, mechanical separator
    {38,  5, 15, 20, 35, 45,  0},  // Pig slurry high, within 6 hours
    {39,  5, 15, 25, 40, 50,  0},  // Pig slurry medium, within 6 hours
    {40,  5, 20, 30, 45, 60,  0},  // Pig slurry low, within 6 hours
    {41,  5, 10, 15, 25, 35, 20},  // Pig slurry high, over 6 hours
    {42,  5, 15, 20, 35, 45, 30},  // Pig slurry medium, over 6 hours
    {43,  5, 20, 25, 40, 55, 40},  // Pig slurry low, over 6 hours
}};
// clang-format on

consteval bool codes_run_from_one() {
    for (std::size_t i = 0; i < available_nitrogen.size(); ++i)
        if (available_nitrogen[i].code != static_cast<int>(i) + 1) return false;
    return true;
}
static_assert(codes_run_from_one());

const month_row* group_of_month(std::string_view month) {
    for (const month_row& row : month_groups)
        if (std::find(row.months.begin(), row.months.end(), month) != row.months.end()) return &row;
    return nullptr;
}

int percentage_of(const availability_row& row, month_group months, bool light) {
    switch (months) {
        case month_group::aug_oct:
            return light ? row.aug_oct_light_pct : row.aug_oct_other_pct;
        case month_group::nov_jan:
            return light ? row.nov_jan_light_pct : row.nov_jan_other_pct;
        case month_group::feb_apr:
            return row.feb_apr_pct;
        case month_group::may_jul:
            break;
    }
    return row.may_jul_pct;
}

bool in_table(int code) {
    return code >= 1 && code <= static_cast<int>(available_nitrogen.size());
}

std::string season_text(const month_row& months) {
    return std::string(months.months.front()) + " to " + std::string(months.months.back());
}

std::string soil_text(const month_row& months, bool light) {
    if (!months.soil_matters) return "any soil";
    return light ? "light soils" : "other soils";
}

void tell_inputs(const application_texts& row, explanation& why) {
    why.input("Manure", row.manure, "", "Step 3, Manure Type");
    why.input("Worked in", row.incorporation, "", "Step 3, Incorporation Time");
    why.input("Month", row.month, "", "Step 3, Date Applied");
}

void tell_soil(const month_row& months, std::string_view soil, bool light, explanation& why) {
    if (!months.soil_matters) return why.rule("From " + season_text(months) + " the soil plays no part.");
    why.input("Soil", soil, "", "farm profile, Soil");
    why.rule("\"" + std::string(soil) + "\" counts as " + (light ? "a light soil." : "an other soil."));
}

void tell_row(int code, int own_code, const month_row& months, bool light, int percentage, explanation& why) {
    if (code != own_code)
        why.rule(
            "This manure with this incorporation time has no line in the table, so the line of the "
            "manure handled last counts.");
    why.source("Table of available nitrogen, line \"" + name_of_code(code) + "\", " + season_text(months) +
               ", " + soil_text(months, light) + ": " + std::to_string(percentage) +
               " % of the total nitrogen.");
}

constexpr float next_crop_part = 10.0F;  // one part in so many

}  // namespace

percentage_result available_percentage(const application_texts& row, int working_code, explanation* why) {
    if (why) tell_inputs(row, *why);
    if (row.month.empty()) return {percentage_outcome::unchanged, 0, working_code};
    const month_row* months = group_of_month(row.month);
    if (!months) return {percentage_outcome::invalid_month, 0, working_code};
    const int code = resolve_code(row.manure, row.incorporation, working_code);
    const auto soil = find_soil(row.soil);
    const bool light = soil && soil->light;
    if (why) tell_soil(*months, row.soil, light, *why);
    if (months->soil_matters && !soil) return {percentage_outcome::invalid_soil, 0, code};
    if (!in_table(code)) return {percentage_outcome::unchanged, 0, code};
    const availability_row& found = available_nitrogen[static_cast<std::size_t>(code - 1)];
    const int percentage = percentage_of(found, months->group, light);
    if (why)
        tell_row(code, resolve_code(row.manure, row.incorporation, no_manure_code), *months, light,
                 percentage, *why);
    return {percentage_outcome::found, percentage, code};
}

std::optional<float> application_rate(float amount, float area_ha, explanation* why) {
    if (area_ha == 0.0F) return std::nullopt;
    const float rate = round_half_even(amount / area_ha, 2);
    if (why)
        why->step(shortest_text(amount) + " / " + shortest_text(area_ha) + " ha = " + shortest_text(rate) +
                  " per ha, rounded to 2 decimals, halves to the even digit.");
    return rate;
}

namespace {

template <class Number>
void tell_product(Number n_content, Number rate, Number total, std::string_view digits, explanation* why) {
    if (why)
        why->step(shortest_text(n_content) + " kg x " + shortest_text(rate) + " per ha = " +
                  default_text(total) + " kg N/ha, kept to " + std::string(digits) + " figures.");
}

}  // namespace

float total_n_rate(float n_content, float rate, explanation* why) {
    const float total = n_content * rate;
    tell_product(n_content, rate, total, "7", why);
    return total;
}

double total_n_rate_of_analysis(double n_content, double rate, explanation* why) {
    const double total = n_content * rate;
    tell_product(n_content, rate, total, "15", why);
    return total;
}

float available_n_rate(float total_n_kg_per_ha, float percentage, explanation* why) {
    const float available = total_n_kg_per_ha * percentage / 100.0F;
    if (why)
        why->step(default_text(total_n_kg_per_ha) + " kg N/ha x " + shortest_text(percentage) +
                  " % = " + default_text(available) + " kg N/ha, kept to 7 figures.");
    return available;
}

float available_n_rate_next(float total_n_kg_per_ha, explanation* why) {
    // Divided, since 0.1 has no exact single: 7 kg leave 0.7, not 0.70000005.
    const float left = total_n_kg_per_ha / next_crop_part;
    if (why) {
        why->step(default_text(total_n_kg_per_ha) + " kg N/ha / " + shortest_text(next_crop_part) + " = " +
                  default_text(left) + " kg N/ha, kept to 7 figures.");
        why->source("One part in " + shortest_text(next_crop_part) +
                    " of the total nitrogen is left to the next crop, of every manure, in every month, on "
                    "every soil.");
    }
    return left;
}

}  // namespace kel
