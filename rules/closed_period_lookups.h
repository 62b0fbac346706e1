// What other modules ask of [Land]: whether a field was closed on a day, what its use is, and what land it
// had in a month. A lookup takes an open file; fields are found by their exact name, and the first row
// counts. Nothing is said to the person: each caller chooses its words for a field that was not assessed.
// Failures of the file throw file_error.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "core/application_state.h"
#include "core/assessment_store.h"
#include "rules/closed_periods.h"

namespace kel {

enum class closed_answer { open = 0, closed = 1, field_unknown = 2 };

/// Instead of a crop pair or a month cell of a field that has none.
inline constexpr std::string_view field_not_assessed = "Field not assessed";
/// Instead of an area of a field that has no row.
inline constexpr float no_land_row = -1.0F;

/// What the row of a field in [Land] says of its closed periods.
struct land_use {
    std::string crop_pair;               // as stored; empty: not assessed
    std::array<bool, 12> closed_months;  // to slurries and manures, from January
    std::string soil{};                  // that stands there
};
/// Of the current row of [Land], for those who read the table in one pass; a field's first row counts.
land_use read_land_use(const recordset& row);
/// Of one field; nothing: it has no row.
std::optional<land_use> read_land_use(const database& file, std::string_view field);

/// The two rules for a field whose row is at hand; nothing: it has none. `base_year` is the year in which the
/// KEL year of that row's file ends.
closed_answer closed_for_inorganic(const std::optional<land_use>& use, date day, int base_year,
                                   std::string_view zone, explanation* why = nullptr);
closed_answer closed_for_manure(const std::optional<land_use>& use, date day, explanation* why = nullptr);

/// The calendar rule for inorganic nitrogen. The file must be this year's or last year's of the state, which
/// gives the base year; in any other file every day is open. A row without a crop pair, or a state without a
/// year, answers field_unknown.
closed_answer closed_for_inorganic(const database& file, std::string_view field, date day,
                                   const application_state& state, explanation* why = nullptr);
/// Opens the file; field_unknown without one.
closed_answer closed_for_inorganic(const std::string& path, std::string_view field, date day,
                                   const application_state& state, explanation* why = nullptr);

/// The monthly rule for slurries and manures: whether the month of the day is closed, in whatever year.
closed_answer closed_for_manure(const database& file, std::string_view field, date day,
                                explanation* why = nullptr);
/// Opens the file; field_unknown without one.
closed_answer closed_for_manure(const std::string& path, std::string_view field, date day,
                                explanation* why = nullptr);

/// [Land].Crop, or field_not_assessed without a row or with an empty cell.
std::string field_crop_pair(const database& file, std::string_view field);

/// The two crop types of the field's use; nothing for a field that was not assessed.
std::optional<crop_pair> stored_field_use(const database& file, std::string_view field);

/// Hectares of the month's cell, month 1 to 12; 0 for an empty or a closed one, no_land_row without a row.
float land_area_in_month(const database& file, std::string_view field, int month);

/// The month's cell as it stands, or field_not_assessed without a row.
std::string land_cell_in_month(const database& file, std::string_view field, int month);

}  // namespace kel
