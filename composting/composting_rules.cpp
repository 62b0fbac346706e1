#include "composting/composting_rules.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/numbers.h"

namespace kel {

namespace {

// Nitrogen of the residues left on the field, kg N/ha.
// clang-format off
constexpr std::array<crop_residue, 16> residues{{
    // name             n_kg_per_ha
    {"Broccoli",         78},
    {"Brussel sprouts",  99},
    {"Cabbage (green)",  25},
    {"Carrot",           19},
    {"Cauliflower",     104},
    {"Celery",           21},
    {"Green beans",      45},
    {"Iceberg lettuce",  30},
    {"Leeks",            35},
    {"Lettuce (round)",  12},
    {"Onion",             6},
    {"Peas",            104},
    {"Red cabbage",      69},
    {"Savoy cabbage",    80},
    {"Spinach",          23},
    {"White cabbage",    66},
}};

// The factors as straight lines over the N content n (%): immobilised = a - b n, released = c n - d, in kg N
// per tonne of dry matter. A row holds up to and including its N content; the last row of a waste for any.
struct factor_line {
    std::string_view waste;
    float up_to_percent;
    double a, b;
    double c, d;
};
constexpr float any = 3.4e38F;
constexpr float turn = 0.8F;  // N content at which sludge changes its line
constexpr std::array<factor_line, 3> factor_lines{{
    // waste      up to    a     b    c    d
    {straw_waste, any,   14.5, 8.0, 1.5, 1.3},
    {pms_waste,   turn,   9.6, 9.5, 3.5, 2.3},
    {pms_waste,   any,    8.4, 8.0, 1.5, 0.7},
}};
// clang-format on

// A tie is what seven digits show as one, not what the binary fraction makes of it.
std::string one_decimal(float value, explanation* why) {
    std::string text = default_text(round_shown_half_away(value, 1));
    if (why) why->step("Rounded to 1 decimal, halves away from 0: " + text);
    return text;
}

// "Locked up: 14.5 - 8 x 0.5 = 10.5 kg N per tonne of dry matter"
void tell_factors(const factor_line& line, float n_percent, const waste_factors& factors, explanation& why) {
    const bool straw = line.waste == straw_waste;
    const std::string n = default_text(n_percent);
    std::string row = straw ? "straw" : "paper mill sludge";
    if (!straw) row += line.up_to_percent == any ? ", above " : ", up to ";
    if (!straw) row += default_text(turn) + "% N";
    why.source("Composting table of the KEL guidelines, row \"" + row + "\"");
    const auto tell = [&](const char* what, const std::string& sum, float result) {
        why.step(what + sum + " = " + default_text(result) + " kg N per tonne of dry matter");
    };
    tell("Locked up: ", default_text(line.a) + " - " + default_text(line.b) + " x " + n,
         factors.immobilised_kg_per_t_dm);
    tell("Released in spring: ", default_text(line.c) + " x " + n + " - " + default_text(line.d),
         factors.released_kg_per_t_dm);
}

}  // namespace

std::span<const crop_residue> crop_residues() {
    return residues;
}

std::optional<crop_residue> find_residue(std::string_view name) {
    const auto found =
        std::find_if(residues.begin(), residues.end(), [&](const auto& r) { return r.name == name; });
    if (found == residues.end()) return std::nullopt;
    return *found;
}

waste_factors factors_of(std::string_view waste, float n_percent, explanation* why) {
    const std::string_view kind = waste == straw_waste ? straw_waste : pms_waste;
    const auto line = std::find_if(factor_lines.begin(), factor_lines.end(), [&](const auto& l) {
        return l.waste == kind && n_percent <= l.up_to_percent;
    });
    if (line == factor_lines.end()) return {0, 0};
    // The N content is single, the lines are as printed: where they all but meet 0, what is left of them is
    // not to be lost in the figures of the lines.
    const waste_factors factors{static_cast<float>(line->a - line->b * n_percent),
                                static_cast<float>(line->c * n_percent - line->d)};
    if (why) tell_factors(*line, n_percent, factors, *why);
    return factors;
}

std::optional<std::string> compost_rate(float residue_kg_per_ha, float soil_kg_per_ha,
                                        const waste_factors& factors, explanation* why) {
    const float rate = (residue_kg_per_ha + soil_kg_per_ha) / factors.immobilised_kg_per_t_dm;
    if (!std::isfinite(rate)) return std::nullopt;
    if (why) {
        why->rule("As much waste is spread as locks up the nitrogen of the residue and of the soil.");
        why->step("(" + default_text(residue_kg_per_ha) + " + " + default_text(soil_kg_per_ha) + ") / " +
                  default_text(factors.immobilised_kg_per_t_dm) + " = " + default_text(rate) +
                  " tonnes of dry matter a hectare");
    }
    return one_decimal(rate, why);
}

std::optional<std::string> compost_release(const std::string& rate, const waste_factors& factors,
                                           explanation* why) {
    const float release = factors.released_kg_per_t_dm * leading_single(rate);
    if (!std::isfinite(release)) return std::nullopt;
    if (why) {
        why->rule("What comes back in the next spring follows from the quantity as it was rounded.");
        why->step(default_text(factors.released_kg_per_t_dm) + " x " + rate + " = " + default_text(release) +
                  " kg N/ha");
    }
    return one_decimal(release, why);
}

std::optional<composting_result> compost(float residue_kg_per_ha, float soil_kg_per_ha,
                                         std::string_view waste, float n_percent) {
    const waste_factors factors = factors_of(waste, n_percent);
    auto rate = compost_rate(residue_kg_per_ha, soil_kg_per_ha, factors);
    if (!rate) return std::nullopt;
    auto release = compost_release(*rate, factors);
    if (!release) return std::nullopt;
    return composting_result{*std::move(rate), *std::move(release)};
}

}  // namespace kel
