#include "rules/closed_period_lookups.h"

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

}  // namespace

land_use read_land_use(const recordset& row) {
    land_use use{row.text("Crop"), {}};
    for (int month = 1; month <= 12; ++month)
        use.closed_months.at(static_cast<std::size_t>(month - 1)) =
            row.text(month_name(month)) == closed_month;
    return use;
}

closed_answer closed_for_inorganic(const std::optional<land_use>& use, date day, int base_year,
                                   std::string_view zone) {
    const auto pair = split_crop_pair(use ? use->crop_pair : "");
    if (!pair) return closed_answer::field_unknown;
    return answer_of(closed_by_calendar(day, base_year, zone, pair->second));
}

closed_answer closed_for_manure(const std::optional<land_use>& use, date day) {
    if (!use) return closed_answer::field_unknown;
    return answer_of(use->closed_months.at(static_cast<std::size_t>(month_of(day) - 1)));
}

closed_answer closed_for_inorganic(const database& file, std::string_view field, date day,
                                   const application_state& state) {
    const auto pair = split_crop_pair(land_text(file, field, "Crop").value_or(""));
    if (!pair || !state.kel_year_start) return closed_answer::field_unknown;
    const auto base_year = base_year_of(file.path(), state);
    if (!base_year) return closed_answer::open;
    return answer_of(closed_by_calendar(day, *base_year, state.farm_zone, pair->second));
}

closed_answer closed_for_inorganic(const std::string& path, std::string_view field, date day,
                                   const application_state& state) {
    if (path.empty()) return closed_answer::field_unknown;
    return closed_for_inorganic(database(path), field, day, state);
}

closed_answer closed_for_manure(const database& file, std::string_view field, date day) {
    const auto cell = month_cell(file, field, month_of(day));
    if (!cell) return closed_answer::field_unknown;
    return answer_of(*cell == closed_month);
}

closed_answer closed_for_manure(const std::string& path, std::string_view field, date day) {
    if (path.empty()) return closed_answer::field_unknown;
    return closed_for_manure(database(path), field, day);
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
