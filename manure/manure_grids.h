// The table of applications and the results as grids: columns as data, the calculations of a row, the way
// from and to the file.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/assessment_store.h"
#include "core/explanation.h"
#include "core/farm_fields.h"
#include "core/grid_rows.h"
#include "core/prompts.h"
#include "core/record_import.h"
#include "core/text_grid.h"
#include "manure/field_limit_check.h"
#include "rules/available_nitrogen.h"

namespace kel {

namespace manure_column {
enum : int {
    field = 0,
    soil = 1,
    incorporation = 2,
    manure = 3,
    date = 4,
    area = 5,
    amount = 6,
    rate = 7,
    n_content = 8,
    total_n = 9,
    percentage = 10,
    available = 11,
    available_next = 12,
    month = 13,
};
}

namespace manure_result_column {
enum : int { field = 0, current_crop = 1, next_crop = 2, warnings = 3 };
}

/// An empty table with its entry row, and results without a row.
text_grid empty_manure_grid();
text_grid empty_manure_results();

/// "Dairy slurry - low dry matter (2%) on Long Rig, 3 March 2025", as far as the row is filled.
std::string application_name(const text_grid& table, int row);

// The calculations of a row, each from the cells as they stand: what its cell is to show, and why.
/// Amount over area, two decimals; empty without an area.
std::string application_rate_text(const text_grid& table, int row, explanation* why = nullptr);
/// kg N/ha from N content and application rate.
std::string total_n_text(const text_grid& table, int row, explanation* why = nullptr);
std::string total_n_of_analysis_text(const text_grid& table, int row, explanation* why = nullptr);
/// Percentage available to the current crop, where one is found, after the working code of the row before.
percentage_result percentage_of_row(const text_grid& table, int row, int working_code,
                                    explanation* why = nullptr);
/// kg N/ha available to the current and to the next crop.
std::string available_n_text(const text_grid& table, int row, explanation* why = nullptr);
std::string available_n_next_text(const text_grid& table, int row, explanation* why = nullptr);

// The same, written into their cells.
void write_application_rate(text_grid& table, int row);
void write_total_n(text_grid& table, int row);
void write_total_n_of_analysis(text_grid& table, int row);
/// The row's manure becomes the working code.
percentage_outcome write_percentage(text_grid& table, int row, int& working_code);
void write_rates(text_grid& table, int row);

/// The days that the table takes, the first and the last included, and what is said of any other.
struct date_window {
    date first;
    date last;
    std::string refusal;
    bool contains(date day) const { return first <= day && day <= last; }
};

/// [Manure_applic] as it is stored, without the rows of fields that the profile lacks. A date outside the
/// window is left empty, with the cells that depend on it. What is to be said goes into `told`, in order.
text_grid load_applications(const database& db, const known_fields& fields, const date_window& window,
                            load_messages& told);
/// Those of another assessment, below the rows of the table or in their place.
void import_applications(const import_source& source, import_mode mode, const date_window& window,
                         text_grid& table, load_messages& told);
/// Replaces the rows of [Manure_applic]. Call within a save_transaction.
void save_applications(const database& db, const text_grid& table);

/// Whether an application has no empty cell. Without that there are no results.
bool is_complete(const text_grid& table, int row);

/// One row per field of the profile with the sums of its applications in kg N/ha, one decimal, and "No" for
/// warnings. Nothing if an application to one of the fields has an empty cell. What is told of a single field
/// is the sum of `told_column`.
std::optional<text_grid> sum_by_field(const std::vector<farm_field>& fields, const text_grid& table,
                                      explanation* why = nullptr, int told_column = manure_column::available);

/// The applications that name a day, or those of them to one field, with their total N, in row order.
std::vector<dated_rate> dated_rates(const text_grid& table);
std::vector<dated_rate> dated_rates(const text_grid& table, std::string_view field);
/// The applications of a file, or those to one field, in stored order. Throws file_error for a date that is
/// none.
std::vector<dated_rate> dated_rates(const database& db);
std::vector<dated_rate> dated_rates(const database& db, std::string_view field);

}  // namespace kel
