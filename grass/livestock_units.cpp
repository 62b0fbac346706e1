#include "grass/livestock_units.h"

#include <algorithm>
#include <array>
#include <string>

#include "core/explanation.h"
#include "core/numbers.h"

namespace kel {

namespace {

// Livestock units of one animal. A type is known by its exact text only. Source: the livestock unit ratios of
// the KEL assessment.
// clang-format off
constexpr std::array<grazing_stock, 16> stock_table{{
    // stock type                                                    LU per animal
    {"Dairy cows",                                                   1.0F},
    {"Dairy bulls",                                                  0.65F},
    {"Beef cows",                                                    0.75F},
    {"Beef bulls",                                                   0.65F},
    {"Other cattle 0-12 months (excl. intensive beef systems)",      0.34F},
    {"Other cattle 12-24 months (excl. intensive beef systems)",     0.65F},
    {"Other cattle over 24 months (excl. intensive beef systems)",   0.8F},
    {"Barley beef (excl. intensive beef systems)",                   0.47F},
    {"Horses",                                                       0.8F},
    {"Ewes and ewe replacements (light weight)",                     0.06F},
    {"Ewes and ewe replacements (medium weight)",                    0.08F},
    {"Ewes and ewe replacements (heavy weight)",                     0.11F},
    {"Lambs (birth to store)",                                       0.04F},
    {"Lambs (birth to fat)",                                         0.04F},
    {"Lambs (birth to hoggets)",                                     0.08F},
    {"Lambs (purchased stores)",                                     0.04F},
}};
// clang-format on

}  // namespace

std::span<const grazing_stock> grazing_stock_list() {
    return stock_table;
}

std::optional<float> lu_ratio(std::string_view stock_type, explanation* why) {
    const auto* const found = std::ranges::find(stock_table, stock_type, &grazing_stock::type);
    if (found == stock_table.end()) {
        if (why)
            why->rule("The list of livestock unit ratios lacks this type, so the ratio that it had stands.");
        return std::nullopt;
    }
    if (why)
        why->source("Livestock unit ratios: " + std::string(stock_type) + ": " +
                    default_text(found->lu_per_animal) + " livestock units (LU) per animal");
    return found->lu_per_animal;
}

float livestock_units(float percent_of_year, float number, float ratio, explanation* why) {
    const float units = percent_of_year / 100 * number * ratio;
    if (why)
        why->step(default_text(percent_of_year) + " / 100 x " + default_text(number) + " animals x " +
                  default_text(ratio) + " LU = " + default_text(units) + " LU");
    return units;
}

}  // namespace kel
