#include "record/record_analysis.h"

#include <algorithm>
#include <array>

#include "core/numbers.h"
#include "record/record_messages.h"
#include "rules/manure_catalogue.h"
#include "rules/nitrogen_limits.h"

namespace kel {

namespace {

namespace text = record_messages;

// clang-format off
struct icon {
    warning_kind kind;
    std::string_view word;
    std::string_view path;
};
constexpr std::array<icon, 3> icons{{
    {warning_kind::information,   "Information",   "graphics/info.ico"},
    {warning_kind::alert,         "Alert",         "graphics/alert.ico"},
    {warning_kind::closed_period, "Closed period", "graphics/closed.ico"},
}};
// clang-format on

const icon& icon_of(warning_kind kind) {
    return *std::find_if(icons.begin(), icons.end(), [kind](const icon& i) { return i.kind == kind; });
}

// Added as it stands and made single once.
float inorganic_sum(const std::vector<record_row>& rows) {
    double sum = 0;
    for (const record_row& row : rows)
        sum += leading_number(row.inorganic_n);
    return static_cast<float>(sum);
}

std::vector<record_warning> requirement_warning(const std::vector<record_row>& rows,
                                                const std::optional<std::string>& required) {
    if (!required) return {{warning_kind::information, std::string(text::no_requirement)}};
    const auto excess = nitrogen_above_requirement(rows, required);
    if (!excess) return {};
    return {{warning_kind::alert, text::requirement_exceeded(excess->applied, excess->required)}};
}

// Days before the year assessed are judged by what last year's file says of the field.
std::optional<std::string> closed_period_text(const record_row& row, const field_history& field,
                                              const record_year& year) {
    if (is_exempt_fym(row.manure)) return std::nullopt;
    const bool last_year = year.start && row.day < *year.start;
    const auto& land = last_year ? field.previous.land : field.current.land;
    const std::string day = short_date_text(row.day);
    if (row.is_manure()) {
        const closed_answer answer = closed_for_manure(land, row.day);
        if (answer == closed_answer::closed) return text::manure_breach(day);
        if (answer == closed_answer::field_unknown) return text::manure_uncertain(day);
        return std::nullopt;
    }
    if (!year.start) return text::inorganic_uncertain(day);
    const int base_year = year_of(*year.start) + (last_year ? 0 : 1);
    const closed_answer answer = closed_for_inorganic(land, row.day, base_year, year.zone);
    if (answer == closed_answer::closed) return text::inorganic_breach(day);
    if (answer == closed_answer::field_unknown) return text::inorganic_uncertain(day);
    return std::nullopt;
}

// The rows stand in the order of their days, so the first manure too late ends the window.
float total_from(std::vector<record_row>::const_iterator row, std::vector<record_row>::const_iterator end) {
    float total = 0;
    std::optional<date> window_end;
    for (; row != end; ++row) {
        if (!row->is_manure()) continue;
        if (!window_end) window_end = add_years(row->day, 1);
        if (row->day >= *window_end) break;
        total += leading_single(row->manure_n);
    }
    return total;
}

bool man250_check(const std::vector<record_row>& rows) {
    const std::vector<float> totals = twelve_month_totals(rows);
    return std::any_of(totals.begin(), totals.end(),
                       [](float total) { return exceeds_limit(total, rolling_field_limit_kg_per_ha); });
}

record_warning not_assessed_closed() {
    return {warning_kind::closed_period, std::string(text::not_assessed)};
}

}  // namespace

std::string_view icon_word(warning_kind kind) {
    return icon_of(kind).word;
}

std::string_view icon_path(warning_kind kind) {
    return icon_of(kind).path;
}

std::vector<std::string> icon_paths() {
    std::vector<std::string> paths;
    paths.reserve(icons.size());
    for (const icon& i : icons)
        paths.emplace_back(i.path);
    return paths;
}

std::optional<excess_nitrogen> nitrogen_above_requirement(const std::vector<record_row>& rows,
                                                          const std::optional<std::string>& required) {
    if (!required) return std::nullopt;
    const float applied = inorganic_sum(rows);
    if (!exceeds_limit(applied, leading_single(*required))) return std::nullopt;
    return excess_nitrogen{default_text(applied), *required};
}

std::vector<float> twelve_month_totals(const std::vector<record_row>& rows) {
    std::vector<float> totals;
    for (auto row = rows.begin(); row != rows.end(); ++row)
        totals.push_back(total_from(row, rows.end()));
    return totals;
}

std::vector<record_warning> analysis(const field_record& record, const field_history& field,
                                     const record_year& year) {
    std::vector<record_warning> warnings;
    if (record.not_assessed) warnings.push_back(not_assessed_closed());
    for (const std::string& day : record.unreadable_days)
        warnings.push_back({warning_kind::information, text::unreadable_day(day)});
    for (record_warning& warning : requirement_warning(record.rows, field.n_required))
        warnings.push_back(std::move(warning));
    for (const record_row& row : record.rows)
        if (auto told = closed_period_text(row, field, year))
            warnings.push_back({warning_kind::closed_period, *std::move(told)});
    if (man250_check(record.rows))
        warnings.push_back({warning_kind::alert, std::string(text::limit_breached)});
    return warnings;
}

}  // namespace kel
