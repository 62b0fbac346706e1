// Step 3: the field limit over twelve months and the closed months, as its results warn of them.
#include <algorithm>
#include <map>
#include <set>

#include "core/numbers.h"
#include "manure/closed_months.h"
#include "manure/field_limit_check.h"
#include "manure/manure_grids.h"
#include "manure/manure_messages.h"
#include "rules/nitrogen_limits.h"
#include "standing/standing_messages.h"
#include "standing/step_standings.h"

namespace kel {

namespace text = standing_messages;
namespace col = manure_column;

namespace {

constexpr float near_share = 0.9F;  // of the limit

text_grid load_table(const farm_year& year, load_messages& told) {
    const year_limits limits = year_limits_of(*year.profile.kel_year_start);
    const date_window window{limits.year_start, limits.year_end,
                             std::string(manure_messages::outside_kel_year)};
    return load_applications(year.current.file, known_fields(year.fields), window, told);
}

std::vector<std::string> fields_with_gaps(const farm_year& year, const text_grid& table) {
    std::set<std::string, std::less<>> gaps;
    for (int row = 0; row < table.data_row_count(); ++row)
        if (!is_complete(table, row)) gaps.insert(table.cell(row, col::field));
    return fields_where(year.fields, [&](const farm_field& field) { return gaps.contains(field.name); });
}

// The highest sum of each field; nothing when the check is switched off.
using field_sums = std::map<std::string, float, std::less<>>;
std::optional<field_sums> highest_sums(const std::vector<dated_rate>& applied,
                                       const std::optional<std::vector<dated_rate>>& last_year) {
    const auto sums = rolling_sums(applied, last_year);
    if (!sums) return std::nullopt;
    field_sums highest;
    for (std::size_t row = 0; row < applied.size(); ++row) {
        float& field = highest[applied[row].field];
        field = std::max(field, (*sums)[row]);
    }
    return highest;
}

void take_sums(const farm_year& year, const field_sums& highest, farm_standing& farm) {
    for (const farm_field& field : year.fields) {
        const auto found = highest.find(field.name);
        if (found == highest.end()) continue;
        const float sum = round_to_3(found->second);
        if (exceeds_limit(sum, rolling_field_limit_kg_per_ha))
            farm.over_limit.push_back({field.name, sum});
        else if (sum >= near_share * rolling_field_limit_kg_per_ha)
            farm.near_limit.push_back({field.name, sum});
    }
}

void take_closed_rows(const farm_year& year, const text_grid& table, farm_standing& farm) {
    for (const int row : rows_in_closed_months(year.current.file, table))
        farm.breaches.push_back({.field = table.cell(row, col::field),
                                 .day = *parse_date(table.cell(row, col::date)),
                                 .applied = table.cell(row, col::manure)});
}

// What keeps the twelve months from being judged, or judges them with less than all there is.
void add_last_year(const farm_year& year, bool judged, farm_standing& farm) {
    for (const std::string& trouble : year.link_troubles)
        add_missing(farm, farm_step::manure, trouble);
    if (!judged) return add_missing(farm, farm_step::manure, text::last_year_without_applications);
    if (!year.last_year && year.link_troubles.empty())
        add_missing(farm, farm_step::manure, text::no_last_year);
}

std::string verdict_of(const text_grid& table, const std::optional<field_sums>& highest,
                       const farm_standing& farm) {
    std::string verdict;
    if (!farm.over_limit.empty()) verdict = text::over_field_limit(farm.over_limit);
    if (!farm.breaches.empty())
        verdict += (verdict.empty() ? "" : " ") + text::in_closed_months(farm.breaches);
    if (!verdict.empty()) return verdict;
    const auto applications = static_cast<std::size_t>(table.data_row_count());
    if (!highest || highest->empty()) return text::limit_not_judged(applications);
    const auto most = std::ranges::max_element(*highest, {}, [](const auto& field) { return field.second; });
    return text::within_field_limit(applications, {most->first, round_to_3(most->second)});
}

std::string next_of(const std::vector<std::string>& gaps, const farm_standing& farm) {
    if (!farm.over_limit.empty()) return text::look_at_limit(farm.over_limit);
    if (!farm.breaches.empty()) return std::string(text::look_at_closed);
    if (!gaps.empty()) return text::fill_gaps(gaps);
    if (!farm.near_limit.empty()) return text::near_field_limit(farm.near_limit);
    return {};
}

}  // namespace

step_standing manure_standing(const farm_year& year, farm_standing& farm) {
    if (!year.profile.kel_year_start) {
        add_missing(farm, farm_step::manure, text::no_year);
        return incomplete(farm_step::manure, text::no_year, text::complete_profile);
    }
    load_messages told;
    const text_grid table = load_table(year, told);
    const bool rows_left_out = add_told(farm, farm_step::manure, told);
    if (table.data_row_count() == 0) return not_done(farm_step::manure, text::no_manure, text::enter_manure);
    std::optional<std::vector<dated_rate>> last_year;
    if (year.last_year) last_year = dated_rates(year.last_year->file);
    const auto highest = highest_sums(dated_rates(table), last_year);
    if (highest) take_sums(year, *highest, farm);
    take_closed_rows(year, table, farm);
    add_last_year(year, highest.has_value(), farm);
    const auto gaps = fields_with_gaps(year, table);
    if (!gaps.empty()) add_missing(farm, farm_step::manure, text::manure_gaps(gaps));

    step_standing standing{farm_step::manure, gaps.empty(), severity::fine};
    standing.verdict = verdict_of(table, highest, farm);
    standing.next = next_of(gaps, farm);
    if (!gaps.empty() || rows_left_out || !highest || !year.link_troubles.empty() || !farm.near_limit.empty())
        raise(standing, severity::attention);
    if (!farm.over_limit.empty() || !farm.breaches.empty()) raise(standing, severity::wrong);
    return standing;
}

}  // namespace kel
