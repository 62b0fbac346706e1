// Why a row of the record is what it is, and why it is flagged.
#include "record/record_grid.h"
#include "record/record_module.h"
#include "record/record_source.h"

namespace kel {

namespace {

namespace col = record_column;

// Where the figures of a row come from.
std::string origin_of(const record_row& row) {
    const std::string step = row.is_manure() ? "Step 3 (manures)" : "Step 4 (inorganic nitrogen)";
    if (row.last_year)
        return "Entered or worked out in " + step +
               " of last year's assessment; it stands here because it was made for this year's crop.";
    return "Entered or worked out in " + step + ".";
}

bool belongs_to(const record_row& row, int column) {
    const bool of_manures = column >= col::manure && column <= col::manure_n;
    return row.is_manure() == of_manures;
}

void tell_cell(const record_row& row, int column, explanation& why) {
    if (column == col::day)
        why.rule(
            "The day of the application. Of two applications of one day the one stored later stands first.");
    else if (belongs_to(row, column))
        why.rule(origin_of(row));
    else if (row.is_manure())
        why.rule("The application is one of manure, so nothing stands here.");
    else
        why.rule("The application is one of inorganic nitrogen, so nothing stands here.");
}

}  // namespace

explanation record_module::why_record(std::size_t row, int column) const {
    const record_year year = record_year_of(state_);
    record_row shown = get_record(shown_.history, year).rows.at(row);
    const grid_column& described = shown_.record.columns()[static_cast<std::size_t>(column)];
    explanation why(std::string(described.heading) + ", " + field() + ", " + short_date_text(shown.day));
    if (column == col::crop || column == col::date_planted)
        name_crop(shown, shown_.history, year, &why);
    else
        tell_cell(shown, column, why);
    const bool per_hectare = column == col::inorganic_n || column == col::manure_n;
    why.set_result(record_grid({shown}).cell(0, column), per_hectare ? "kg N/ha" : "");
    return why;
}

explanation record_module::why_warning(std::size_t row, int column) const {
    const record_year year = record_year_of(state_);
    explanation why("Warning " + std::to_string(row + 1) + ", " + field());
    const auto warnings = analysis(get_record(shown_.history, year), shown_.history, year, {&why, row});
    why.set_result(warnings_grid(warnings).cell(static_cast<int>(row), column), "");
    return why;
}

std::optional<explanation> record_module::why(const text_grid& grid, std::size_t row,
                                              std::size_t column) const {
    if (static_cast<int>(row) >= grid.row_count()) return std::nullopt;
    if (&grid == &shown_.record) return why_record(row, static_cast<int>(column));
    if (&grid == &shown_.warnings) return why_warning(row, static_cast<int>(column));
    return std::nullopt;
}

}  // namespace kel
