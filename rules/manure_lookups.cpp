#include "rules/manure_lookups.h"

#include "core/numbers.h"

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

// Adds the column of the field's applications within the bounds to the sum.
void add(float& sum, const std::optional<database>& file, std::string_view field, std::string_view column,
         const date_bounds& bounds) {
    if (!file) return;
    for (recordset rows = file->open(table, "Field Area ID", field); !rows.eof(); rows.move_next()) {
        const auto day = rows.date_value("Date");
        if (day && bounds.contain(*day)) sum += leading_single(rows.text(column));
    }
}

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
void add_two_years_ago(float& sum, application_state& state, const manure_years& years,
                       std::string_view field, std::string_view from, std::string_view column) {
    if (!years.before_previous) return;
    const auto start = first_date(years.previous, from, column, field);
    if (!start) return;
    state.limits.year_end = *start;
    add(sum, years.before_previous, field, for_current_crop, {.after = start, .before = {}});
}

}  // namespace

manure_years open_manure_years(const application_state& state) {
    return {opened(state.assess_file), opened(state.prev1_file), opened(state.prev2_file)};
}

float n_for_this_crop(application_state& state, const manure_years& years, std::string_view field,
                      std::optional<date> first, std::optional<date> second) {
    if (!first) first = state.kel_year_start;
    set_bounds(state, first, second);
    float sum = 0;
    add(sum, years.current, field, for_current_crop, {.after = first, .before = second});
    add(sum, years.previous, field, for_current_crop, {.after = first, .before = {}});
    return sum;
}

float n_for_this_crop(application_state& state, std::string_view field, std::optional<date> first,
                      std::optional<date> second) {
    return n_for_this_crop(state, open_manure_years(state), field, first, second);
}

float n_from_previous_crop(application_state& state, const manure_years& years, std::string_view field,
                           date first, std::optional<date> second) {
    set_bounds(state, first, second);
    const date_bounds earlier{.after = {}, .before = first};
    float sum = 0;
    add(sum, years.current, field, for_next_crop, earlier);
    add(sum, years.previous, field, for_next_crop, earlier);
    add_two_years_ago(sum, state, years, field, "Crops", "Hdate p_crop");
    return sum;
}

float n_from_previous_crop(application_state& state, std::string_view field, date first,
                           std::optional<date> second) {
    return n_from_previous_crop(state, open_manure_years(state), field, first, second);
}

float n_from_previous_season(application_state& state, const manure_years& years, std::string_view field,
                             date first, std::optional<date> second) {
    set_bounds(state, first, second);
    if (!years.previous) return 0;
    float sum = 0;
    add(sum, years.previous, field, for_next_crop, {.after = {}, .before = first});
    add_two_years_ago(sum, state, years, field, "Site", "End of season date");
    return sum;
}

float n_from_previous_season(application_state& state, std::string_view field, date first,
                             std::optional<date> second) {
    return n_from_previous_season(state, open_manure_years(state), field, first, second);
}

bool has_manure_applications(const database& file, std::string_view field) {
    return !file.open(table, "Field Area ID", field).eof();
}

}  // namespace kel
