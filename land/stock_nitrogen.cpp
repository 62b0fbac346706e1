#include "land/stock_nitrogen.h"

#include <algorithm>
#include <array>
#include <string>

#include "core/numbers.h"

namespace kel {

namespace {

// Total nitrogen excreted by one stock unit, kg N per year, from the guidelines for farmers in the zones. A
// type is known by its exact text only; what a miss means is for the caller.
// clang-format off
constexpr std::array<stock_type, 31> stock_table{{
    // stock type                                                                           kg N per year
    {"1 dairy cow (650 kg)",                                                                 116.0F},
    {"1 dairy cow (550 kg)",                                                                  96.0F},
    {"1 dairy cow (450 kg)",                                                                  76.0F},
    {"1 dairy heifer replacement over 24 months (500 kg)",                                    58.0F},
    {"1 suckler cow",                                                                         58.0F},
    {"1 cattle grower/fattener over 24 months (500 kg)",                                      58.0F},
    {"1 cattle grower/fattener 12-24 months (400 kg)",                                        47.0F},
    {"1 young cattle 6-12 months",                                                            12.0F},
    {"1 bull beef cattle 6-13.5 months",                                                      23.0F},
    {"1 calf (to 6 months)",                                                                   7.0F},
    {"1 bull for breeding (1,350 kg, alter stock unit number for breed)",                     58.0F},
    {"1 sheep",                                                                                9.0F},
    {"1 fattening lamb 6-12 months",                                                           3.2F},
    {"1 fattening lamb 0-6 months",                                                            1.2F},
    {"1 breeding sow place (includes piglets to 3.5 weeks)",                                  19.5F},
    {"1 maiden gilt place",                                                                   13.0F},
    {"1 boar place",                                                                          16.0F},
    {"1 fattened pig, 3.5 to 7.5 weeks (18 kg)",                                               0.28F},
    {"1 fattened pig, 3.5 to 11 weeks (35 kg)",                                                0.77F},
    {"1 fattened pig, 3.5 to 20 weeks (85 kg)",                                                2.5F},
    {"1 fattened pig, 3.5 to 23 weeks (105 kg)",                                               3.36F},
    {"1 fattened pig, 7.5 to 11 weeks (35 kg)",                                                0.49F},
    {"1 fattened pig, 7.5 to 20 weeks (85 kg)",                                                2.22F},
    {"1 fattened pig, 7.5 to 23 weeks (105 kg)",                                               3.08F},
    {"1,000 laying hens (98% occupancy)",                                                    660.0F},
    {"1,000 broiler places (76% occupancy)",                                                 495.0F},
    {"1,000 broiler breeders (77% occupancy)",                                               975.0F},
    {"1,000 pullets (38% occupancy)",                                                        125.0F},
    {"1,000 male turkey places (140 days) (Assuming 2.1 crops per year; 80% occupancy)",    1390.0F},
    {"1,000 female turkey places (120 days) (Assuming 2.4 crops per year; 80% occupancy)",   650.0F},
    {"1,000 fattening duck places (50 days) (Assumes 80% occupancy)",                        900.0F},
}};
// clang-format on

constexpr bool names_are_unique() {
    for (std::size_t i = 0; i < stock_table.size(); ++i)
        for (std::size_t j = i + 1; j < stock_table.size(); ++j)
            if (stock_table[i].name == stock_table[j].name) return false;
    return true;
}
static_assert(names_are_unique());

void tell_constant(std::string_view type, float unit_n, explanation& why) {
    const std::string constant = shortest_text(unit_n) + " kg N/year";
    if (type.empty())
        why.rule("A line without a stock unit produces nothing.");
    else if (stock_nitrogen(type))
        why.source("Nitrogen excreted by stock, from the guidelines for farmers in the zones, row \"" +
                   std::string(type) + "\": " + constant);
    else
        why.rule(
            "The table of stock has no such unit. The line goes on with the figure of the line before "
            "it: " +
            constant);
}

}  // namespace

std::span<const stock_type> stock_types() {
    return stock_table;
}

std::optional<float> stock_nitrogen(std::string_view type) {
    const auto* const found = std::ranges::find(stock_table, type, &stock_type::name);
    if (found == stock_table.end()) return std::nullopt;
    return found->n_kg_per_year;
}

stock_line stock_line_nitrogen(std::string_view type, float number, float working_constant,
                               explanation* why) {
    const float unit_n = type.empty() ? 0.0F : stock_nitrogen(type).value_or(working_constant);
    if (why) tell_constant(type, unit_n, *why);
    return {unit_n, unit_n * number};
}

}  // namespace kel
