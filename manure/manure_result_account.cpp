// Why the results show what they show: the sums of a field, its marks, the fields over the limit and the
// applications in closed months.
#include <algorithm>
#include <string>

#include "core/numbers.h"
#include "manure/closed_months.h"
#include "manure/manure_module.h"
#include "rules/nitrogen_limits.h"

namespace kel {

namespace {

namespace col = manure_column;
namespace result_col = manure_result_column;

constexpr std::string_view kg_per_ha = "kg N/ha";
constexpr std::size_t most_told = 10;  // of applications in closed months

explanation why_sum(const text_grid& table, const std::string& field, int column) {
    const bool current = column == result_col::current_crop;
    const std::string crop = current ? "current" : "next";
    explanation why("Nitrogen for the " + crop + " crop of " + field);
    why.rule("The nitrogen that all manures of the table leave for the " + crop + " crop of this field.");
    const auto sums =
        sum_by_field({{field, {}, {}}}, table, &why, current ? col::available : col::available_next);
    if (!sums) {
        why.set_missing("An application to this field has an empty cell.");
        return why;
    }
    why.step("Together, rounded to 1 decimal, halves to the even digit: " + sums->cell(0, column) + ' ' +
             std::string(kg_per_ha) + '.');
    why.set_result(sums->cell(0, column), kg_per_ha);
    return why;
}

explanation why_field(const std::string& field) {
    explanation why("Field of the results");
    why.rule("Every field of the farm profile has a line.");
    why.set_result(field, "");
    return why;
}

}  // namespace

std::optional<explanation> manure_module::why_result(int row, int column) const {
    const std::string& field = results_.cell(row, result_col::field);
    switch (column) {
        case result_col::field:
            return why_field(field);
        case result_col::warnings:
            return why_marked(row);
        default:
            return why_sum(applications_, field, column);
    }
}

// Of last year's file only the field's own applications are read; whether it has any at all still counts.
bool manure_module::tell_limit(const std::string& field, explanation& why) const {
    std::optional<std::vector<dated_rate>> past;
    if (!for_previous_year() && !state_.prev1_file.empty()) {
        const database last_year(state_.prev1_file);
        past = dated_rates(last_year, field);
        if (past->empty() && !last_year.open("Manure_applic").eof()) past.reset();
    }
    return over_field_limit(dated_rates(applications_, field), past, why);
}

// The mark of an application in a closed month stands in the line of its own number, whatever field that is.
explanation manure_module::why_marked(int row) const {
    const std::string& field = results_.cell(row, result_col::field);
    explanation why("Warnings of " + field);
    bool marked = tell_limit(field, why);
    if (row < applications_.data_row_count()) {
        const std::string line = "Line " + std::to_string(row + 1) + " of the applications, " +
                                 application_name(applications_, row) + ", ";
        const bool closed = in_closed_month(state_.assess_file, applications_, row);
        if (closed)
            why.step(line + "is in a closed month. Its mark stands in the line of the same number here.");
        marked = marked || closed;
    }
    why.step(marked ? "So the line is marked." : "Nothing marks the line.");
    why.set_result(marked ? "Yes" : "No", "");
    return why;
}

std::optional<explanation> manure_module::why(std::string_view result) const {
    if (!results_shown_) return std::nullopt;
    if (result == "lblReductions_instruction") return why_over_limit();
    if (result == "txtReductions_warnings") return why_closed_periods();
    return std::nullopt;
}

explanation manure_module::why_over_limit() const {
    explanation why("Fields over the limit on organic nitrogen");
    if (over_limit_.empty()) {
        why.rule("No field had more than " + shortest_text(rolling_field_limit_kg_per_ha) +
                 " kg N/ha of organic manures in any twelve months. The warnings of a line tell its fullest "
                 "twelve months.");
        why.set_follows("Nothing is said of the limit.");
        return why;
    }
    tell_limit(over_limit_.front(), why);
    std::string named;
    for (const std::string& field : over_limit_)
        named += (named.empty() ? "" : ", ") + field;
    why.rule("Told here of " + over_limit_.front() + "; the warnings of each line tell of its own field.");
    why.set_follows("Over the limit: " + named + '.');
    return why;
}

explanation manure_module::why_closed_periods() const {
    explanation why("Applications in closed months");
    why.rule(
        "An application is named if its month is closed to slurry and manures on its field. The "
        "farmyard manure of cattle and pigs never is.");
    for (std::size_t i = 0; i < std::min(closed_rows_.size(), most_told); ++i)
        why.step("Line " + std::to_string(closed_rows_[i] + 1) + ": " +
                 application_name(applications_, closed_rows_[i]));
    if (closed_rows_.size() > most_told)
        why.step("And " + std::to_string(closed_rows_.size() - most_told) + " more.");
    why.rule("Choose the date of an application in the table to see why its month is closed.");
    why.set_follows(closed_rows_.empty()
                        ? "No application is in a closed month."
                        : "Applications in closed months: " + std::to_string(closed_rows_.size()) + '.');
    return why;
}

}  // namespace kel
