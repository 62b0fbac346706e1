#include "rules/closed_period_lookups.h"

#include <algorithm>
#include <optional>

#include "core/numbers.h"

namespace kel {

namespace {

std::optional<std::string> land_text(const database& file, std::string_view field, std::string_view column) {
    return file.lookup(column, "Land", "Field Area ID", field);
}

std::optional<std::string> month_cell(const database& file, std::string_view field, int month) {
    return land_text(file, field, month_name(month));
}

// The calendar year in which the file's KEL year ends; nothing for a file outside the two years worked on.
std::optional<int> base_year_of(const std::string& path, const application_state& state) {
    const int start_year = year_of(state.kel_year_start.value());
    if (path == state.assess_file) return start_year + 1;
    if (path == state.prev1_file) return start_year;
    return std::nullopt;
}

closed_answer answer_of(bool closed) {
    return closed ? closed_answer::closed : closed_answer::open;
}

constexpr std::string_view use_not_entered =
    "The use of the field has not been entered in Step 2, so it is not known when it is closed.";

// Months were closed as the use was entered, and stay so whatever has changed since.
void tell_month(const land_use& use, int month, bool closed, explanation& why) {
    const auto pair = split_crop_pair(use.crop_pair);
    if (!pair && !closed) return why.rule(std::string(use_not_entered));
    const std::string name(month_name(month));
    why.rule(name + " is " + (closed ? "" : "not ") +
             "closed to slurry and manures on this field: Step 2 settled that when the use of the field was "
             "entered. The whole month counts, whatever the day.");
    if (!pair) return;
    const auto months = closed_months(use.soil, pair->second, &why);
    if ((std::ranges::find(months, month) != months.end()) != closed)
        why.rule(
            "Soil or crop have changed since; the month stays as it is until the use of the field is "
            "entered again.");
}

}  // namespace

land_use read_land_use(const recordset& row) {
    land_use use{row.text("Crop"), {}, row.text("Soil")};
    for (int month = 1; month <= 12; ++month)
        use.closed_months.at(static_cast<std::size_t>(month - 1)) =
            row.text(month_name(month)) == closed_month;
    return use;
}

std::optional<land_use> read_land_use(const database& file, std::string_view field) {
    const recordset rows = file.open("Land", "Field Area ID", field);
    return rows.eof() ? std::nullopt : std::optional(read_land_use(rows));
}

closed_answer closed_for_inorganic(const std::optional<land_use>& use, date day, int base_year,
                                   std::string_view zone, explanation* why) {
    const auto pair = split_crop_pair(use ? use->crop_pair : "");
    if (!pair && why) why->rule(std::string(use_not_entered));
    if (!pair) return closed_answer::field_unknown;
    return answer_of(closed_by_calendar(day, base_year, zone, pair->second, why));
}

closed_answer closed_for_manure(const std::optional<land_use>& use, date day, explanation* why) {
    if (!use && why) why->rule(std::string(use_not_entered));
    if (!use) return closed_answer::field_unknown;
    const bool closed = use->closed_months.at(static_cast<std::size_t>(month_of(day) - 1));
    if (why) tell_month(*use, month_of(day), closed, *why);
    return answer_of(closed);
}

closed_answer closed_for_inorganic(const database& file, std::string_view field, date day,
                                   const application_state& state, explanation* why) {
    const auto use = read_land_use(file, field);
    if (!use || !split_crop_pair(use->crop_pair) || !state.kel_year_start)
        return closed_for_inorganic(std::nullopt, day, 0, state.farm_zone, why);
    if (const auto base_year = base_year_of(file.path(), state))
        return closed_for_inorganic(use, day, *base_year, state.farm_zone, why);
    if (why) why->rule("The assessment is neither this year's nor last year's, so every day counts as open.");
    return closed_answer::open;
}

closed_answer closed_for_inorganic(const std::string& path, std::string_view field, date day,
                                   const application_state& state, explanation* why) {
    if (path.empty()) return closed_answer::field_unknown;
    return closed_for_inorganic(database(path), field, day, state, why);
}

closed_answer closed_for_manure(const database& file, std::string_view field, date day, explanation* why) {
    return closed_for_manure(read_land_use(file, field), day, why);
}

closed_answer closed_for_manure(const std::string& path, std::string_view field, date day, explanation* why) {
    if (path.empty()) return closed_answer::field_unknown;
    return closed_for_manure(database(path), field, day, why);
}

std::string field_crop_pair(const database& file, std::string_view field) {
    const std::string pair = land_text(file, field, "Crop").value_or("");
    return pair.empty() ? std::string(field_not_assessed) : pair;
}

std::optional<crop_pair> stored_field_use(const database& file, std::string_view field) {
    return split_crop_pair(field_crop_pair(file, field));
}

float land_area_in_month(const database& file, std::string_view field, int month) {
    const auto cell = month_cell(file, field, month);
    return cell ? leading_single(*cell) : no_land_row;
}

std::string land_cell_in_month(const database& file, std::string_view field, int month) {
    return month_cell(file, field, month).value_or(std::string(field_not_assessed));
}

}  // namespace kel
