// Why the table of applications shows what it shows. Each account is told by the functions that work the
// cells out.
#include <string>

#include "manure/closed_months.h"
#include "manure/manure_module.h"
#include "rules/manure_catalogue.h"

namespace kel {

namespace {

namespace col = manure_column;

constexpr std::string_view kg_per_ha = "kg N/ha";

std::string unit_of(const text_grid& table, int row) {
    const auto manure = find_manure(table.cell(row, col::manure));
    return manure ? std::string(manure->unit_applied) : "tonne or cubic m";
}

explanation why_soil(const application_state& state, const text_grid& table, int row) {
    const std::string& field = table.cell(row, col::field);
    explanation why("Soil of " + (field.empty() ? "a field" : field));
    why.input("Field", field, "", "Step 3, Field Area ID");
    why.rule("The soil is taken from the farm profile when the field is entered.");
    if (field.empty() || state.assess_file.empty())
        why.set_missing("No field is entered.");
    else
        why.set_result(
            database(state.assess_file).lookup("Soil", "Field Data", "Field Name", field).value_or(""), "");
    return why;
}

// Nothing for an analysis.
std::optional<explanation> why_n_content(const text_grid& table, int row) {
    const auto manure = find_manure(table.cell(row, col::manure));
    if (!manure || table.cell(row, col::n_content) != manure->default_n_content) return std::nullopt;
    explanation why("Total nitrogen content of " + application_name(table, row));
    why.source("List of manures, \"" + std::string(manure->name) +
               "\": " + std::string(manure->default_n_content) + " kg of nitrogen per " +
               std::string(manure->unit_applied) + '.');
    why.set_follows("It came with the manure. An analysis typed here takes its place.");
    return why;
}

explanation why_rate(const text_grid& table, int row) {
    explanation why("Application rate of " + application_name(table, row));
    why.rule("The application rate is the amount over the area on which it was spread.");
    why.input("Amount", table.cell(row, col::amount), unit_of(table, row), "Step 3, Amount Applied");
    why.input("Area", table.cell(row, col::area), "ha", "Step 3, Area Spread");
    std::string rate = application_rate_text(table, row, &why);
    if (rate.empty())
        why.set_missing("Without an area spread there is no rate.");
    else
        why.set_result(std::move(rate), unit_of(table, row) + " per ha");
    return why;
}

void tell_total_input(const text_grid& table, int row, explanation& why) {
    why.input("Total nitrogen", table.cell(row, col::total_n), kg_per_ha,
              "this table, Total N Application Rate");
}

explanation why_available(const text_grid& table, int row) {
    explanation why("Nitrogen for the current crop from " + application_name(table, row));
    why.rule(
        "The current crop can use the available part of the total nitrogen. An empty percentage counts "
        "as 0.");
    tell_total_input(table, row, why);
    why.input("Available", table.cell(row, col::percentage), "%", "this table, Available N");
    why.set_result(available_n_text(table, row, &why), kg_per_ha);
    return why;
}

explanation why_available_next(const text_grid& table, int row) {
    explanation why("Nitrogen for the next crop from " + application_name(table, row));
    why.rule("The next crop can use a small part of the total nitrogen.");
    tell_total_input(table, row, why);
    why.set_result(available_n_next_text(table, row, &why), kg_per_ha);
    return why;
}

}  // namespace

std::optional<explanation> manure_module::why(const text_grid& grid, std::size_t row,
                                              std::size_t column) const {
    const int at = static_cast<int>(row);
    if (&grid == &results_ && at < results_.row_count()) return why_result(at, static_cast<int>(column));
    if (&grid == &applications_ && at < applications_.data_row_count())
        return why_cell(at, static_cast<int>(column));
    return std::nullopt;
}

std::optional<explanation> manure_module::why_cell(int row, int column) const {
    switch (column) {
        case col::soil:
            return why_soil(state_, applications_, row);
        case col::date:
            return why_closed(row);
        case col::n_content:
            return why_n_content(applications_, row);
        case col::rate:
            return why_rate(applications_, row);
        case col::total_n:
            return why_total_n(row);
        case col::percentage:
            return why_percentage(row);
        case col::available:
            return why_available(applications_, row);
        case col::available_next:
            return why_available_next(applications_, row);
        default:
            return std::nullopt;
    }
}

// After an analysis the cell has more figures than after every other entry; which entry came last, only the
// cell itself still tells.
explanation manure_module::why_total_n(int row) const {
    explanation why("Total nitrogen of " + application_name(applications_, row));
    why.rule("The total nitrogen is the nitrogen content times the application rate.");
    why.input("Nitrogen content", applications_.cell(row, col::n_content),
              "kg per " + unit_of(applications_, row), "Step 3, Total N Content");
    why.input("Application rate", applications_.cell(row, col::rate), unit_of(applications_, row) + " per ha",
              "this table, Application Rate");
    std::string shown = total_n_text(applications_, row);
    const bool of_analysis =
        applications_.cell(row, col::total_n) != shown &&
        applications_.cell(row, col::total_n) == total_n_of_analysis_text(applications_, row);
    if (of_analysis) why.rule("The nitrogen content was typed in from an analysis.");
    shown = of_analysis ? total_n_of_analysis_text(applications_, row, &why)
                        : total_n_text(applications_, row, &why);
    why.set_result(std::move(shown), kg_per_ha);
    return why;
}

explanation manure_module::why_percentage(int row) const {
    explanation why("Available nitrogen of " + application_name(applications_, row));
    why.rule(
        "Manure, time of working in, season and, from August to January, soil decide how much of the "
        "total nitrogen the current crop can use.");
    const percentage_result found = percentage_of_row(applications_, row, working_code_, &why);
    const std::string& shown = applications_.cell(row, col::percentage);
    if (found.outcome == percentage_outcome::found)
        why.set_result(std::to_string(found.percentage), "%");
    else if (shown.empty())
        why.set_missing("It cannot be found: the date, the soil or the manure is missing or unknown.");
    else {
        why.rule("The date, the soil or the manure is missing or unknown, so the percentage stays as it is.");
        why.set_result(shown, "%");
    }
    return why;
}

explanation manure_module::why_closed(int row) const {
    explanation why("Closed period for " + application_name(applications_, row));
    const bool closed = in_closed_month(state_.assess_file, applications_, row, &why);
    why.set_follows(closed ? "The application is in a closed month. The date may stay; the results name it."
                           : "The application is not in a month that is known to be closed.");
    return why;
}

}  // namespace kel
