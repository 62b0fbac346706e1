#include "storage/slurry_production.h"

#include <array>

#include "core/numbers.h"

namespace kel {

namespace {

// Slurry volumes. Source: guidelines for farmers in the zones, volume of excreta. A text in no row is no
// stock unit; the spellings are the stored ones.
// clang-format off
constexpr std::array<slurry_unit, 14> units{{
    // stock unit                                             cubic m per unit and month
    {"1 dairy cow (650 kg)",                                  "1.93"},
    {"1 dairy cow (550 kg)",                                  "1.61"},
    {"1 dairy cow (450 kg)",                                  "1.28"},
    {"1 suckler cow or dairy heifer replacement (550 kg)",    "0.98"},
    {"1 beef bullock (440 kg)",                               "0.79"},
    {"1 follower or young stock (180 kg)",                    "0.40"},
    {"1 calf (to 6 months)",                                  "0.21"},
    {"1 maiden gilt (90-130 kg)",                             "0.22"},
    {"1 breading sow place (and piglets to 4 wks)",           "0.33"},
    {"1 weaner place",                                        "0.04"},
    {"1 grower pig place",                                    "0.08"},
    {"1 light cutter pig place (35-105 kg, dry meal fed)",    "0.13"},
    {"1 bacon pig place (35-105 kg, dry meal fed)",           "0.14"},
    {"1 bacon pig place (35-105 kg, liquid fed)",             "0.22"},
}};
// clang-format on

}  // namespace

std::span<const slurry_unit> slurry_units() {
    return units;
}

std::optional<std::string_view> slurry_volume(std::string_view unit) {
    for (const slurry_unit& known : units)
        if (known.name == unit) return known.volume;
    return std::nullopt;
}

std::string line_volume(std::string_view volume, std::string_view percent, std::string_view number,
                        explanation* why) {
    const double product = leading_number(volume) / 100 * leading_number(percent) * leading_number(number);
    std::string text = default_text(product);
    if (why) {
        why->rule(
            "The volume of one unit, as much of it as is collected as slurry, times the number of units; "
            "what is not entered counts 0.");
        why->step(default_text(leading_number(volume)) + " / 100 x " + default_text(leading_number(percent)) +
                  " x " + default_text(leading_number(number)) + " = " + text +
                  " cubic m a month, not rounded");
    }
    return text;
}

}  // namespace kel
