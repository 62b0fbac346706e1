#include "grass/site_class.h"

#include <algorithm>
#include <array>
#include <string>

#include "core/dates.h"
#include "core/explanation.h"
#include "core/numbers.h"
#include "rules/rainfall.h"

namespace kel {

namespace {

// clang-format off
constexpr std::array<rain_level, 4> rain_table{{
    // class  answer                          stored       above mm
    {1,       "More than 500 mm (20 in)",     ">500",      500.0F},
    {2,       "425 - 500 mm (17 - 20 in)",    "425 - 500", 425.0F},
    {3,       "350 - 425 mm (14 - 17 in)",    "350 - 425", 350.0F},
    {4,       "Less than 350 mm (14 in)",     "<350",        0.0F},
}};

constexpr std::array<altitude_level, 2> altitude_table{{
    // step  answer                                             stored
    {0,      "Farm altitude is less than 300 m (1000 ft)",      "Low"},
    {1,      "Farm altitude is greater than 300 m (1000 ft)",   "High"},
}};

// Site class by rain class, soil and altitude. Light soils are shallow soils and sands; the other soils are
// the profile's remaining four. Source: the site classes of the guidelines for farmers in the zones.
struct site_class_row {
    int rain_class;
    std::array<int, 2> light_soil;  // low, high altitude
    std::array<int, 2> other_soil;
};
constexpr std::array<site_class_row, 4> site_classes{{
    // rain  light low high   other low high
    {1,      {2, 3},          {1, 2}},
    {2,      {3, 4},          {2, 3}},
    {3,      {4, 5},          {2, 3}},
    {4,      {5, 5},          {3, 4}},
}};

constexpr std::array<std::string_view, 2> light_soils{"Shallow soils", "Sands"};
constexpr std::array<std::string_view, 4> other_soils{"Sandy loams", "Other mineral soils", "Humose soils", "Peaty soils"};
// clang-format on

constexpr int april = 4;
constexpr int september = 9;

template <class Level>
std::string answer_of(std::span<const Level> levels, int Level::*number, int wanted) {
    const auto found = std::ranges::find(levels, wanted, number);
    return found == levels.end() ? std::string{} : std::string(found->answer);
}

void tell_site(std::string_view soil, int rain_class, int altitude_step, explanation& why) {
    why.rule(
        "The site class, 1 (moist) to 5 (dry), follows from the summer rain, the soil and the altitude.");
    why.input("Rain from April to September",
              answer_of<rain_level>(rain_table, &rain_level::rain_class, rain_class), "",
              "opening question of the grassland module");
    why.input(
        "Altitude",
        answer_of<altitude_level>(altitude_table, &altitude_level::altitude_step, altitude_step > 0 ? 1 : 0),
        "", "opening question of the grassland module");
    why.input("Soil", soil, "", "farm profile, of the field");
}

void tell_class(const site_class_row& row, bool light, explanation& why) {
    const auto& classes = light ? row.light_soil : row.other_soil;
    why.source("Site classes of the guidelines for farmers in the zones: " +
               std::string(light ? "shallow soils and sands" : "soils other than shallow soils and sands") +
               " with this rain: class " + std::to_string(classes[0]) + " on low ground, class " +
               std::to_string(classes[1]) + " on high ground");
}

bool among(std::span<const std::string_view> soils, std::string_view soil) {
    return std::ranges::find(soils, soil) != soils.end();
}

}  // namespace

std::span<const rain_level> rain_levels() {
    return rain_table;
}

const rain_level* rain_level_stored_as(std::string_view stored) {
    const auto* const found = std::ranges::find(rain_table, stored, &rain_level::stored);
    return found == rain_table.end() ? nullptr : found;
}

const rain_level& rain_level_of(float apr_to_sep_mm) {
    const auto* const found = std::ranges::find_if(
        rain_table, [=](const rain_level& level) { return apr_to_sep_mm > level.above_mm; });
    return found == rain_table.end() ? rain_table.back() : *found;
}

std::span<const altitude_level> altitude_levels() {
    return altitude_table;
}

const altitude_level* altitude_level_stored_as(std::string_view stored) {
    const auto* const found = std::ranges::find(altitude_table, stored, &altitude_level::stored);
    return found == altitude_table.end() ? nullptr : found;
}

std::optional<float> apr_to_sep_rain_mm(const database& climate, explanation* why) {
    const auto rain = first_monthly_rain(climate);
    if (!rain) return std::nullopt;
    float sum = 0;
    std::string summands;
    for (int month = april; month <= september; ++month) {
        const float mm = (*rain)[static_cast<std::size_t>(month - 1)];
        sum += mm;
        if (why)
            summands +=
                (month == april ? "" : " + ") + std::string(month_name(month)) + ' ' + default_text(mm);
    }
    if (why) {
        why->source(
            "Climate tables, mean rainfall in mm a month of their first town, whatever that of the farm is");
        why->step(summands + " = " + default_text(sum) + " mm");
    }
    return sum;
}

std::optional<int> site_class(std::string_view soil, int rain_class, int altitude_step, explanation* why) {
    if (why) tell_site(soil, rain_class, altitude_step, *why);
    const bool light = among(light_soils, soil);
    if (!light && !among(other_soils, soil)) {
        if (why) why->rule("The soil is none of the farm profile's, which counts as class 0.");
        return 0;
    }
    const auto* const row = std::ranges::find(site_classes, rain_class, &site_class_row::rain_class);
    if (row == site_classes.end()) return std::nullopt;
    if (why) tell_class(*row, light, *why);
    return (light ? row->light_soil : row->other_soil)[altitude_step > 0 ? 1 : 0];
}

}  // namespace kel
