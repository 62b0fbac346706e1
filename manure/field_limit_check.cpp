#include "manure/field_limit_check.h"

#include <string_view>
#include <unordered_map>

#include "core/numbers.h"
#include "rules/nitrogen_limits.h"

namespace kel {

namespace {

struct field_history {
    std::vector<const dated_rate*> table;
    std::vector<const dated_rate*> last_year;
};
using histories = std::unordered_map<std::string_view, field_history>;

// In single precision and in this order: the application itself, the table's others in row order, last
// year's in stored order.
float sum_at(const dated_rate& application, const field_history& history) {
    float sum = application.total_n_kg_per_ha;
    for (const dated_rate* other : history.table)
        if (other != &application && other->day <= application.day) sum += other->total_n_kg_per_ha;
    const date a_year_before = add_years(application.day, -1);
    for (const dated_rate* past : history.last_year)
        if (past->day > a_year_before && past->day <= application.day) sum += past->total_n_kg_per_ha;
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

}  // namespace kel
