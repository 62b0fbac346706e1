#include "record/record_analysis.h"

#include <algorithm>
#include <array>

#include "core/numbers.h"
#include "core/told_rows.h"
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

// An application as a line of a sum: "12/03/2025, Cattle slurry: 42.5 kg N/ha".
told_row told_application(const record_row& row, const std::string& what, const std::string& n_kg_per_ha) {
    return {short_date_text(row.day) + (what.empty() ? "" : ", " + what) + ": " +
                (n_kg_per_ha.empty() ? "0" : n_kg_per_ha) + " kg N/ha" +
                (row.last_year ? " (last year's assessment)" : ""),
            leading_number(n_kg_per_ha)};
}

void tell_excess(const std::vector<record_row>& rows, const std::string& applied, const std::string& required,
                 explanation& why) {
    why.rule(
        "All inorganic nitrogen of the record, its sum rounded to 3 decimals, is held against what the crop "
        "requires. Of a range the high figure counts.");
    why.input("Nitrogen required", required, "kg/ha", "recommendation of the crops or grassland module");
    std::vector<told_row> told;
    for (const record_row& row : rows)
        if (!row.inorganic_n.empty())
            told.push_back(told_application(row, row.inorganic_type, row.inorganic_n));
    tell_rows(why, told, "applications", "kg N/ha");
    why.step("Together " + applied + " kg N/ha, which is more than " +
             default_text(leading_single(required)) + " kg N/ha");
}

std::vector<record_warning> requirement_warning(const std::vector<record_row>& rows,
                                                const std::optional<std::string>& required,
                                                explanation* why) {
    if (!required) {
        if (why)
            why->rule(
                "The crops and the grassland module store what a field requires when their results are left. "
                "Neither has stored anything for this field.");
        return {{warning_kind::information, std::string(text::no_requirement)}};
    }
    const auto excess = nitrogen_above_requirement(rows, required, why);
    if (!excess) return {};
    return {{warning_kind::alert, text::requirement_exceeded(excess->applied, excess->required)}};
}

void tell_day(const record_row& row, bool last_year, explanation& why) {
    why.input(row.is_manure() ? "Manure" : "Inorganic nitrogen",
              row.is_manure() ? row.manure : row.inorganic_type, "", row.is_manure() ? "Step 3" : "Step 4");
    why.input("Applied on", short_date_text(row.day), "", "");
    if (last_year)
        why.rule(
            "The day lies before the year assessed, so last year's assessment says when the field was "
            "closed.");
}

std::optional<std::string> manure_text(closed_answer answer, const std::string& day) {
    if (answer == closed_answer::closed) return text::manure_breach(day);
    if (answer == closed_answer::field_unknown) return text::manure_uncertain(day);
    return std::nullopt;
}

std::optional<std::string> inorganic_text(closed_answer answer, const std::string& day) {
    if (answer == closed_answer::closed) return text::inorganic_breach(day);
    if (answer == closed_answer::field_unknown) return text::inorganic_uncertain(day);
    return std::nullopt;
}

// Days before the year assessed are judged by what last year's file says of the field.
std::optional<std::string> closed_period_text(const record_row& row, const field_history& field,
                                              const record_year& year, explanation* why) {
    if (is_exempt_fym(row.manure)) return std::nullopt;
    const bool last_year = year.start && row.day < *year.start;
    const auto& land = last_year ? field.previous.land : field.current.land;
    const std::string day = short_date_text(row.day);
    if (why) tell_day(row, last_year, *why);
    if (row.is_manure()) return manure_text(closed_for_manure(land, row.day, why), day);
    if (!year.start) {
        if (why) why->rule("The assessment has no year, so the calendar of closed days cannot be drawn up.");
        return text::inorganic_uncertain(day);
    }
    const int base_year = year_of(*year.start) + (last_year ? 0 : 1);
    return inorganic_text(closed_for_inorganic(land, row.day, base_year, year.zone, why), day);
}

// A row without a warning is told and untold.
std::optional<std::string> told_if_closed(const record_row& row, const field_history& field,
                                          const record_year& year, explanation* why) {
    if (!why) return closed_period_text(row, field, year, nullptr);
    explanation told = *why;
    auto found = closed_period_text(row, field, year, &told);
    if (found) *why = std::move(told);
    return found;
}

// The rows stand in the order of their days, so the first manure too late ends the window.
float total_from(std::vector<record_row>::const_iterator row, std::vector<record_row>::const_iterator end,
                 std::vector<told_row>* told = nullptr) {
    float total = 0;
    std::optional<date> window_end;
    for (; row != end; ++row) {
        if (!row->is_manure()) continue;
        if (!window_end) window_end = add_years(row->day, 1);
        if (row->day >= *window_end) break;
        total += leading_single(row->manure_n);
        if (told) told->push_back(told_application(*row, row->manure, row->manure_n));
    }
    return total;
}

void tell_twelve_months(const std::vector<record_row>& rows, std::size_t first, explanation& why) {
    const auto limit = default_text(rolling_field_limit_kg_per_ha);
    const auto from = rows.begin() + static_cast<std::ptrdiff_t>(first);
    std::vector<told_row> told;
    const float total = total_from(from, rows.end(), &told);
    why.rule("In no twelve months may a field get more than " + limit +
             " kg/ha of total nitrogen from organic manures; sums are rounded to 3 decimals first. The day "
             "on which "
             "they began is no longer within them a year on.");
    why.source("Limit of the KEL rules for a field in twelve months: " + limit + " kg N/ha");
    tell_rows(why, told, "applications", "kg N/ha");
    why.step("Together " + default_text(total) + " kg N/ha in the twelve months from " +
             short_date_text(from->day) + ", which is more than " + limit + " kg N/ha");
}

bool man250_check(const std::vector<record_row>& rows, explanation* why) {
    const std::vector<float> totals = twelve_month_totals(rows);
    const auto over = std::find_if(totals.begin(), totals.end(), [](float total) {
        return exceeds_limit(total, rolling_field_limit_kg_per_ha);
    });
    if (over == totals.end()) return false;
    if (why) tell_twelve_months(rows, static_cast<std::size_t>(over - totals.begin()), *why);
    return true;
}

record_warning not_assessed_closed(explanation* why) {
    if (why)
        why->rule(
            "The first manure stored for the field is one that closed periods apply to, and Step 2 has no "
            "use of "
            "the field this year: without it nobody knows which months are closed.");
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
                                                          const std::optional<std::string>& required,
                                                          explanation* why) {
    if (!required) return std::nullopt;
    const float applied = inorganic_sum(rows);
    if (!exceeds_limit(applied, leading_single(*required))) return std::nullopt;
    if (why) tell_excess(rows, default_text(applied), *required, *why);
    return excess_nitrogen{default_text(applied), *required};
}

std::vector<float> twelve_month_totals(const std::vector<record_row>& rows) {
    std::vector<float> totals;
    for (auto row = rows.begin(); row != rows.end(); ++row)
        totals.push_back(total_from(row, rows.end()));
    return totals;
}

std::vector<record_warning> analysis(const field_record& record, const field_history& field,
                                     const record_year& year, const warning_account& account) {
    std::vector<record_warning> warnings;
    const auto of_next = [&] { return warnings.size() == account.place ? account.why : nullptr; };
    if (record.not_assessed) warnings.push_back(not_assessed_closed(of_next()));
    for (const std::string& day : record.unreadable_days) {
        if (explanation* why = of_next()) why->input("Date", day, "", "Step 3 or Step 4, as it is stored");
        warnings.push_back({warning_kind::information, text::unreadable_day(day)});
    }
    for (record_warning& warning : requirement_warning(record.rows, field.n_required, of_next()))
        warnings.push_back(std::move(warning));
    for (const record_row& row : record.rows)
        if (auto told = told_if_closed(row, field, year, of_next()))
            warnings.push_back({warning_kind::closed_period, *std::move(told)});
    if (man250_check(record.rows, of_next()))
        warnings.push_back({warning_kind::alert, std::string(text::limit_breached)});
    return warnings;
}

}  // namespace kel
