#include "manure/field_limit_check.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "core/numbers.h"
#include "core/told_rows.h"
#include "rules/nitrogen_limits.h"

namespace kel {

namespace {

struct field_history {
    std::vector<const dated_rate*> table;
    std::vector<const dated_rate*> last_year;
};
using counted_rates = field_history;
using histories = std::unordered_map<std::string_view, field_history>;

// In single precision and in this order: the application itself, the table's others in row order, last
// year's in stored order.
float sum_at(const dated_rate& application, const field_history& history, counted_rates* counted = nullptr) {
    float sum = application.total_n_kg_per_ha;
    if (counted) counted->table.push_back(&application);
    for (const dated_rate* other : history.table) {
        if (other == &application || other->day > application.day) continue;
        sum += other->total_n_kg_per_ha;
        if (counted) counted->table.push_back(other);
    }
    const date a_year_before = add_years(application.day, -1);
    for (const dated_rate* past : history.last_year) {
        if (past->day <= a_year_before || past->day > application.day) continue;
        sum += past->total_n_kg_per_ha;
        if (counted) counted->last_year.push_back(past);
    }
    return sum;
}

histories by_field(std::span<const dated_rate> table, std::span<const dated_rate> last_year) {
    histories found;
    for (const dated_rate& application : table)
        found[application.field].table.push_back(&application);
    for (const dated_rate& application : last_year)
        if (const auto at = found.find(application.field); at != found.end())
            at->second.last_year.push_back(&application);
    return found;
}

void tell_counted(counted_rates counted, explanation& why) {
    std::vector<told_row> rows;
    const auto tell = [&](std::vector<const dated_rate*>& rates, const char* where) {
        std::ranges::stable_sort(rates, {}, &dated_rate::day);
        for (const dated_rate* rate : rates)
            rows.push_back(
                {long_date_text(rate->day) + where + default_text(rate->total_n_kg_per_ha) + " kg N/ha",
                 rate->total_n_kg_per_ha});
    };
    tell(counted.last_year, " (last year's assessment): ");
    tell(counted.table, ": ");
    tell_rows(why, rows, "applications", "kg N/ha");
}

// Told of the application at which the sum is highest.
void tell_twelve_months(const dated_rate& application, const field_history& history, explanation& why) {
    counted_rates counted;
    const float sum = sum_at(application, history, &counted);
    tell_counted(std::move(counted), why);
    const std::string limit = shortest_text(rolling_field_limit_kg_per_ha) + " kg N/ha";
    why.step("The twelve months that end on " + long_date_text(application.day) +
             " are the fullest: together " + default_text(sum) + " kg N/ha, " +
             (exceeds_limit(sum, rolling_field_limit_kg_per_ha) ? "over " : "within ") + limit +
             ", judged on 3 decimals.");
}

}  // namespace

std::optional<std::vector<float>> rolling_sums(std::span<const dated_rate> table,
                                               const std::optional<std::vector<dated_rate>>& last_year) {
    if (last_year && last_year->empty()) return std::nullopt;
    const std::span<const dated_rate> past = last_year ? *last_year : std::span<const dated_rate>{};
    const histories fields = by_field(table, past);
    std::vector<float> sums;
    sums.reserve(table.size());
    for (const dated_rate& application : table)
        sums.push_back(sum_at(application, fields.at(application.field)));
    return sums;
}

std::set<std::string, std::less<>> fields_over_limit(
    std::span<const dated_rate> table, const std::optional<std::vector<dated_rate>>& last_year) {
    std::set<std::string, std::less<>> over;
    const auto sums = rolling_sums(table, last_year);
    for (std::size_t row = 0; sums && row < table.size(); ++row)
        if (exceeds_limit((*sums)[row], rolling_field_limit_kg_per_ha)) over.insert(table[row].field);
    return over;
}

bool over_field_limit(std::span<const dated_rate> table,
                      const std::optional<std::vector<dated_rate>>& last_year, explanation& why) {
    why.rule("Organic manures may bring at most " + shortest_text(rolling_field_limit_kg_per_ha) +
             " kg N/ha to a field in any twelve months. Each application is judged with all others up to its "
             "day.");
    const auto sums = rolling_sums(table, last_year);
    if (!sums) why.rule("Last year's assessment has not a single application, so this limit is not judged.");
    if (!sums || sums->empty()) return false;
    const auto highest = std::max_element(sums->begin(), sums->end()) - sums->begin();
    const dated_rate& fullest = table[static_cast<std::size_t>(highest)];
    const std::span<const dated_rate> past = last_year ? *last_year : std::span<const dated_rate>{};
    tell_twelve_months(fullest, by_field(table, past).at(fullest.field), why);
    return exceeds_limit((*sums)[static_cast<std::size_t>(highest)], rolling_field_limit_kg_per_ha);
}

}  // namespace kel
