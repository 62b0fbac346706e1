#include "inorganic/application_rules.h"

#include "core/numbers.h"

namespace kel {

float total_n_kg_per_ha(float amount_kg_per_ha, float n_content_percent, explanation* why) {
    const float total = round_half_even(amount_kg_per_ha * n_content_percent / 100.0F, 1);
    if (why)
        why->step(shortest_text(amount_kg_per_ha) + " kg/ha x " + shortest_text(n_content_percent) +
                  " / 100 = " + shortest_text(total) +
                  " kg N/ha, rounded to 1 decimal, halves to the even digit.");
    return total;
}

std::optional<std::string_view> content_after_content(std::string_view content) {
    const double percent = leading_number(content);
    if (percent > 100) return "100";
    if (percent < 0) return "0";
    return std::nullopt;
}

std::optional<std::string_view> content_after_amount(std::string_view amount) {
    if (leading_number(amount) < 0) return "0";
    return std::nullopt;
}

calendar_window calendar_window_of(date kel_year_start) {
    return {kel_year_start, add_years(kel_year_start, 1)};
}

}  // namespace kel
