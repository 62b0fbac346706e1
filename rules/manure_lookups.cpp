#include "rules/manure_lookups.h"

#include <utility>
#include <vector>

#include "core/explanation.h"
#include "core/numbers.h"
#include "core/told_rows.h"

namespace kel {

namespace {

constexpr std::string_view table = "Manure_applic";
constexpr std::string_view for_current_crop = "Available N Rate";
constexpr std::string_view for_next_crop = "Available N Rate Next";

std::optional<database> opened(const std::string& path) {
    return path.empty() ? std::nullopt : std::optional(database(path));
}

// Exclusive bounds; a missing one bounds nothing.
struct date_bounds {
    std::optional<date> after;
    std::optional<date> before;
    bool contain(date day) const { return !(after && day <= *after) && !(before && day >= *before); }
};

// What is summed up, and the applications that were counted, if somebody is to be told.
struct manure_sum {
    std::string_view field;
    explanation* why;
    float n_kg_per_ha = 0;
    std::vector<told_row> told{};
};

std::string words_of(const recordset& row, date day, float n_kg_per_ha) {
    return short_date_text(day) + ", " + row.text("Manure Type") + ": " + default_text(n_kg_per_ha) +
           " kg N/ha";
}

// Adds the column of the field's applications within the bounds to the sum.
void add(manure_sum& sum, const std::optional<database>& file, std::string_view column,
         const date_bounds& bounds) {
    if (!file) return;
    for (recordset rows = file->open(table, "Field Area ID", sum.field); !rows.eof(); rows.move_next()) {
        const auto day = rows.date_value("Date");
        if (!day || !bounds.contain(*day)) continue;
        const float n_kg_per_ha = leading_single(rows.text(column));
        sum.n_kg_per_ha += n_kg_per_ha;
        if (sum.why) sum.told.push_back({words_of(rows, *day, n_kg_per_ha), n_kg_per_ha});
    }
}

float told_sum(const manure_sum& sum) {
    if (!sum.why) return sum.n_kg_per_ha;
    tell_rows(*sum.why, sum.told, "applications", "kg N/ha");
    sum.why->step(sum.told.empty() ? "No application is counted: 0 kg N/ha"
                                   : "Together " + default_text(sum.n_kg_per_ha) + " kg N/ha");
    return sum.n_kg_per_ha;
}

void tell_rule(explanation* why, std::string rule) {
    if (why) why->rule(std::move(rule));
}

std::string day_words(const std::optional<date>& day) {
    return day ? short_date_text(*day) : "(no date)";
}

constexpr std::string_view left_of_manures =
    ": what they leave for the next crop. Of two years ago, those after the season's start that last year's "
    "assessment has: what they supplied to their own crop.";

void set_bounds(application_state& state, std::optional<date> first, std::optional<date> second) {
    if (first) state.limits.year_end = *first;
    if (second) state.limits.year_start = *second;
}

std::optional<date> first_date(const std::optional<database>& file, std::string_view from,
                               std::string_view column, std::string_view field) {
    if (!file) return std::nullopt;
    for (recordset rows = file->open(from, "Field Area ID", field); !rows.eof(); rows.move_next())
        if (const auto day = rows.date_value(column)) return day;
    return std::nullopt;
}

// The applications of two years ago, once their season's start is known; the start becomes the bound.
void add_two_years_ago(manure_sum& sum, application_state& state, const manure_years& years,
                       std::string_view from, std::string_view column) {
    if (!years.before_previous) return;
    const auto start = first_date(years.previous, from, column, sum.field);
    if (!start) return;
    state.limits.year_end = *start;
    add(sum, years.before_previous, for_current_crop, {.after = start, .before = {}});
}

}  // namespace

manure_years open_manure_years(const application_state& state) {
    return {opened(state.assess_file), opened(state.prev1_file), opened(state.prev2_file)};
}

float n_for_this_crop(application_state& state, const manure_years& years, std::string_view field,
                      std::optional<date> first, std::optional<date> second, explanation* why) {
    if (!first) first = state.kel_year_start;
    set_bounds(state, first, second);
    tell_rule(why, "The available nitrogen of the applications in Step 3 after " + day_words(first) +
                       " and before " + day_words(second) + "; those days themselves are left out.");
    manure_sum sum{field, why};
    add(sum, years.current, for_current_crop, {.after = first, .before = second});
    add(sum, years.previous, for_current_crop, {.after = first, .before = {}});
    return told_sum(sum);
}

float n_for_this_crop(application_state& state, std::string_view field, std::optional<date> first,
                      std::optional<date> second, explanation* why) {
    return n_for_this_crop(state, open_manure_years(state), field, first, second, why);
}

float n_from_previous_crop(application_state& state, const manure_years& years, std::string_view field,
                           date first, std::optional<date> second, explanation* why) {
    set_bounds(state, first, second);
    tell_rule(why, "Applications in Step 3, this year's and last year's, before " + short_date_text(first) +
                       std::string(left_of_manures));
    const date_bounds earlier{.after = {}, .before = first};
    manure_sum sum{field, why};
    add(sum, years.current, for_next_crop, earlier);
    add(sum, years.previous, for_next_crop, earlier);
    add_two_years_ago(sum, state, years, "Crops", "Hdate p_crop");
    return told_sum(sum);
}

float n_from_previous_crop(application_state& state, std::string_view field, date first,
                           std::optional<date> second, explanation* why) {
    return n_from_previous_crop(state, open_manure_years(state), field, first, second, why);
}

float n_from_previous_season(application_state& state, const manure_years& years, std::string_view field,
                             date first, std::optional<date> second, explanation* why) {
    set_bounds(state, first, second);
    if (!years.previous) {
        tell_rule(why, "No assessment of last year is linked, so nothing is known of the season before.");
        return 0;
    }
    tell_rule(why, "Last year's applications in Step 3 before " + short_date_text(first) +
                       std::string(left_of_manures));
    manure_sum sum{field, why};
    add(sum, years.previous, for_next_crop, {.after = {}, .before = first});
    add_two_years_ago(sum, state, years, "Site", "End of season date");
    return told_sum(sum);
}

float n_from_previous_season(application_state& state, std::string_view field, date first,
                             std::optional<date> second, explanation* why) {
    return n_from_previous_season(state, open_manure_years(state), field, first, second, why);
}

bool has_manure_applications(const database& file, std::string_view field) {
    return !file.open(table, "Field Area ID", field).eof();
}

}  // namespace kel
