#include "crops/crop_adjustments.h"

#include <algorithm>
#include <array>

#include "core/dates.h"
#include "core/numbers.h"
#include "crops/base_requirement.h"
#include "crops/crop_account.h"
#include "crops/crop_messages.h"
#include "rules/rainfall.h"
#include "rules/soils.h"

namespace kel {

namespace {

// Source of all figures here: the crop adjustments of the KEL assessment.

// clang-format off
constexpr crop_answer wheat_market[] = {
    // answer            kg/ha word
    {"Neither",          0,    ""},
    {"Bread making",     30,   "breadmaking"},
    {"Grain distilling", 0,    "grain distilling"},
};

constexpr crop_answer barley_market[] = {
    // answer               kg/ha word
    {"Malt for brewing",    -30,  "malt for brewing"},
    {"Malt for distilling", -50,  "malt for distilling"},
    {"Grain distilling",    0,    "grain distilling"},
    {"None of these",       0,    ""},
};

constexpr crop_answer undersowing[] = {{"Yes", -25}, {"No", 0}};
constexpr crop_answer take_all[]    = {{"Yes", 20},  {"No", 0}};
constexpr crop_answer turnip_rape[] = {{"Yes", -20}, {"No", 0}};

// Percent taken off; a negative one adds.
constexpr crop_answer varieties[] = {
    {"Determinate variety (producing small and short lived canopies - e.g. Estima, Maris Peer, Saxon)",            10},
    {"Indeterminate variety (exhibiting vigourous and prolonged haulm growth - e.g. Maris Piper, Saturna, Cultra)", -10},
    {"Cara (a very indeterminate variety)",                                                                        -30},
    {"None of the above",                                                                                          0},
};

struct late_sowing {
    std::string_view crop;
    float kg_per_ha_per_day;
};
constexpr late_sowing late_sowings[] = {
    {"SB (F/high N)", -1.5F},
    {"SO",            -1.5F},
    {"SB (low N)",    -2.25F},
};

// How the crops answer to heavy rain. A crop in no row has no winter figure, and 0 for a wet spring.
enum class winter_class { a, b, c, d };
enum class spring_class { none, early, late };

struct rain_class {
    std::string_view crop;
    winter_class winter;
    spring_class spring;
};

using enum winter_class;
constexpr auto none = spring_class::none;
constexpr auto early = spring_class::early;
constexpr auto late = spring_class::late;

constexpr rain_class rain_classes[] = {
    {"WW",            a, early},
    {"WB",            a, early},
    {"WOSR",          a, early},
    {"WO",            a, early},
    {"T",             a, early},
    {"SB (F/high N)", a, late},
    {"SB (low N)",    a, late},
    {"SO",            a, late},
    {"SOSR",          a, late},
    {"SPOT",          a, late},
    {"WPOT",          a, late},
    {"DPOT",          a, late},
    {"PPOT",          a, late},
    {"SR/TR",         a, none},
    {"K",             b, early},
    {"LIN",           b, none},
    {"SW",            b, early},
    {"DAF",           b, none},
    {"FM",            b, late},
    {"C",             c, none},
    {"SR",            c, none},
    {"PP",            c, none},
    {"FB",            c, none},
    {"RB",            c, none},
    {"BS",            c, none},
    {"CAB",           c, none},
    {"CABP",          c, none},
    {"CABS",          c, none},
    {"BROC",          c, none},
    {"CAU",           c, none},
    {"LEEK",          c, none},
    {"LET",           c, none},
    {"PARS",          c, none},
    {"G",             d, none},
    {"G/C",           d, none},
    {"SET-A",         d, none},
};

// kg/ha by soil code, in the order of soil_codes.
constexpr std::array<std::string_view, 6> soil_codes{"SS", "S", "SL", "OMS", "HS", "PS"};
using by_soil = std::array<int, 6>;

struct winter_row {
    winter_class crops;
    by_soil group_2;
    by_soil groups_3_to_6;  // group 1: 0
};
constexpr winter_row winter_rows[] = {
    //   SS  S   SL  OMS HS  PS    SS  S   SL  OMS HS  PS
    {a, {10, 10, 10, 10, 10, 10}, {20, 20, 20, 10, 10, 10}},
    {b, {10, 10, 10, 10, 0,  0},  {20, 20, 20, 10, 0,  0}},
    {c, {10, 10, 10, 10, 10, 10}, {20, 20, 10, 10, 10, 10}},
    {d, {0,  0,  0,  0,  0,  0},  {0,  0,  0,  0,  0,  0}},
};

struct spring_row {
    spring_class crops;
    by_soil kg_per_ha;
};
constexpr spring_row spring_rows[] = {
    //       SS  S   SL  OMS HS PS
    {none,  {0,  0,  0,  0,  0, 0}},
    {early, {15, 15, 10, 0,  0, 0}},
    {late,  {20, 20, 10, 0,  0, 0}},
};
// clang-format on

constexpr float high_winter_rain_mm = 450;

// Low nitrogen malting barley has figures for the groups 1 to 3 only.
bool has_figures(std::string_view crop, int group) {
    const int last_group = crop == "SB (low N)" ? 3 : 6;
    return group >= 1 && group <= last_group;
}

std::optional<std::size_t> soil_place(std::string_view code) {
    const auto found = std::ranges::find(soil_codes, code);
    if (found == soil_codes.end()) return std::nullopt;
    return static_cast<std::size_t>(found - soil_codes.begin());
}

const rain_class* class_of(std::string_view crop) {
    const auto found = std::ranges::find(rain_classes, crop, &rain_class::crop);
    return found == std::end(rain_classes) ? nullptr : found;
}

std::optional<int> winter_figure(std::string_view crop, int group, std::string_view soil) {
    const rain_class* found = class_of(crop);
    const auto place = soil_place(soil);
    if (!found || !place || !has_figures(crop, group)) return std::nullopt;
    if (group == 1) return 0;
    const auto row = std::ranges::find(winter_rows, found->winter, &winter_row::crops);
    return (group == 2 ? row->group_2 : row->groups_3_to_6)[*place];
}

std::optional<int> spring_figure(std::string_view crop, int group, std::string_view soil) {
    const rain_class* found = class_of(crop);
    if (!found || found->spring == none) return 0;
    const auto place = soil_place(soil);
    if (!place || (crop == "SB (low N)" && !has_figures(crop, group))) return std::nullopt;
    return std::ranges::find(spring_rows, found->spring, &spring_row::crops)->kg_per_ha[*place];
}

constexpr rain_words winter_words{"Winter rainfall", crop_messages::more_than_450_mm,
                                  crop_messages::less_than_450_mm};
constexpr rain_words spring_words{"Spring rainfall", crop_messages::more_than_200_mm,
                                  crop_messages::less_than_200_mm};

// The frame of both rules; `kept` is what the rule gave last.
template <class Figure>
rain_outcome adjust_for_rain(bool high, const rained_on& row, std::string_view& soil, int& kept,
                             Figure figure) {
    if (!high) {
        kept = 0;
        return rain_outcome::dry;
    }
    if (row.crop.empty() || row.residue_group.empty() || row.soil.empty())
        return rain_outcome::row_incomplete;
    soil = soil_code(row.soil).value_or(soil);
    const auto found = figure(row.crop, residue_group_number(row.residue_group), soil);
    kept = found.value_or(kept);
    return found ? rain_outcome::figure : rain_outcome::kept;
}

std::optional<int> figure_of(rain_outcome outcome, int kept) {
    return outcome == rain_outcome::row_incomplete ? std::nullopt : std::optional(kept);
}

}  // namespace

std::span<const crop_answer> wheat_market_answers() {
    return wheat_market;
}
std::span<const crop_answer> barley_market_answers() {
    return barley_market;
}
std::span<const crop_answer> undersowing_answers() {
    return undersowing;
}
std::span<const crop_answer> take_all_answers() {
    return take_all;
}
std::span<const crop_answer> turnip_rape_answers() {
    return turnip_rape;
}
std::span<const crop_answer> variety_answers() {
    return varieties;
}

float delayed_sowing_kg_per_ha(std::string_view crop_code, float days) {
    const auto found = std::ranges::find(late_sowings, crop_code, &late_sowing::crop);
    return found == std::end(late_sowings) ? 0 : days * found->kg_per_ha_per_day;
}

bool is_shallow_or_sand(std::string_view soil) {
    return soil == "Shallow soils" || soil == "Sands";
}

int wet_summer_kg_per_ha(std::string_view soil) {
    return is_shallow_or_sand(soil) ? 15 : 10;
}

std::optional<int> winter_rain_adjustment(std::string_view status, const rained_on& row, rain_memory& memory,
                                          explanation* why) {
    const rain_outcome outcome = adjust_for_rain(status != rain_status::low, row, memory.soil_code,
                                                 memory.winter_kg_per_ha, winter_figure);
    if (why) tell_rain(winter_words, status, outcome, row, memory.winter_kg_per_ha, *why);
    return figure_of(outcome, memory.winter_kg_per_ha);
}

std::optional<int> spring_rain_adjustment(std::string_view status, const rained_on& row, rain_memory& memory,
                                          explanation* why) {
    const bool high = !status.empty() && status != rain_status::low;
    const rain_outcome outcome =
        adjust_for_rain(high, row, memory.soil_code, memory.spring_kg_per_ha, spring_figure);
    if (why) tell_rain(spring_words, status, outcome, row, memory.spring_kg_per_ha, *why);
    return figure_of(outcome, memory.spring_kg_per_ha);
}

std::optional<std::string_view> winter_rain_default(const database& climate, std::string_view town,
                                                    explanation* why) {
    const auto rain_mm = monthly_rain(climate, town);
    if (!rain_mm) return std::nullopt;
    float winter_mm = 0;
    std::string sum;
    for (const std::size_t month : {9U, 10U, 11U, 0U, 1U}) {
        winter_mm += (*rain_mm)[month];
        if (why)
            sum += (sum.empty() ? "" : " + ") + std::string(month_name(static_cast<int>(month) + 1)) + ' ' +
                   default_text((*rain_mm)[month]);
    }
    const bool high = winter_mm > high_winter_rain_mm;
    if (why) tell_winter_default(sum, default_text(winter_mm), default_text(high_winter_rain_mm), high, *why);
    return high ? rain_status::high : rain_status::low;
}

}  // namespace kel
