#include "land/land_account.h"

#include <utility>
#include <vector>

#include "core/assessment_store.h"
#include "core/numbers.h"
#include "core/told_rows.h"
#include "land/land_grids.h"
#include "land/land_messages.h"

namespace kel {

namespace {

std::string of_field(std::string_view figure, const text_grid& land, int row) {
    const std::string& field = land.cell(row, land_column::field);
    return std::string(figure) + " of " + (field.empty() ? "the field without a name" : field);
}

bool row_is_empty(const text_grid& grid, int row, int first, int second) {
    return grid.cell(row, first).empty() && grid.cell(row, second).empty();
}

explanation why_available(const text_grid& land, int row) {
    explanation why(of_field("Available area", land, row));
    std::string shown = available_text(land, row, &why);
    why.set_result(std::move(shown), "ha");
    return why;
}

// A limit that was loaded follows from the rounded area; which of the two ways it went tells the cell.
explanation why_field_limit(const text_grid& land, int row) {
    explanation why(of_field("Field spreading limit", land, row));
    const std::string& cell = land.cell(row, land_column::field_limit);
    const bool loaded = field_limit_text(land, row) != cell && loaded_field_limit_text(land, row) == cell;
    why.set_result(loaded ? loaded_field_limit_text(land, row, &why) : field_limit_text(land, row, &why),
                   "kg N/year");
    why.rule("The limit holds for any twelve months, and counts no grazing deposition.");
    return why;
}

explanation why_profile_cell(const text_grid& land, int row, int column, const std::string& assess_file) {
    const bool soil = column == land_column::soil;
    explanation why(of_field(soil ? "Soil" : "Size", land, row));
    const auto profile = read_profile_texts(assess_file, land.cell(row, land_column::field));
    if (!profile) {
        why.set_missing("The farm profile has no field of this name.");
        return why;
    }
    why.rule("It stands as the farm profile had it when the field was chosen.");
    why.input(soil ? "Soil" : "Size", soil ? profile->soil : profile->size, soil ? "" : "ha", "Farm Profile");
    why.set_result(soil ? profile->soil : profile->size, soil ? "" : "ha");
    return why;
}

explanation why_deduction(const text_grid& land, int row, int column) {
    explanation why(of_field("Area that can be deducted", land, row));
    const float room = room_for_deduction(land, row, column, &why);
    why.set_follows("Entered here; at most " + shortest_text(room) + " ha");
    return why;
}

std::vector<told_row> told_column(const text_grid& grid, int name, int column, std::string_view unit) {
    std::vector<told_row> rows;
    for (int row = 0; row < grid.data_row_count(); ++row)
        if (const float amount = grid.number(row, column); amount != 0)
            rows.push_back(
                {grid.cell(row, name) + ": " + shortest_text(amount) + ' ' + std::string(unit), amount});
    return rows;
}

void tell_stock(const text_grid& animals, explanation& why) {
    using namespace stock_column;
    why.rule("The nitrogen of all lines of stock together.");
    std::vector<told_row> rows = told_column(animals, stock, total_n, "kg N/year");
    for (int row = 0, told = 0; row < animals.data_row_count(); ++row)
        if (animals.number(row, total_n) != 0)
            rows[static_cast<std::size_t>(told++)].text.insert(0, animals.cell(row, number) + " x ");
    tell_rows(why, rows, "lines", "kg N/year");
}

void tell_areas(const text_grid& land, int column, std::string_view of_what, explanation& why) {
    why.rule("The areas " + std::string(of_what) + " of all fields together, before any deduction.");
    tell_rows(why, told_column(land, land_column::field, column, "ha"), "fields", "ha");
}

void tell_field_limits(const text_grid& land, explanation& why) {
    why.rule("The limits of all fields together.");
    tell_rows(why, told_column(land, land_column::field, land_column::field_limit, "kg N/year"), "fields",
              "kg N/year");
}

std::string told_result(std::string_view label, const text_grid& land, const text_grid& animals,
                        explanation& why) {
    const farm_sums sums = sums_of(land, animals);
    if (label == land_label::production) {
        tell_stock(animals, why);
        return shown_per_year(sums.production_kg, &why);
    }
    if (label == land_label::field_limits) {
        tell_field_limits(land, why);
        return shown_per_year(sums.field_limits_kg, &why);
    }
    if (label == land_label::other_land) {
        tell_areas(land, land_column::not_in_grass, "not in grass", why);
        return shown_per_year(other_land_limit(sums, &why), &why);
    }
    if (label == land_label::grassland) {
        tell_areas(land, land_column::grass, "in grass", why);
        return shown_per_year(grassland_limit(sums, &why), &why);
    }
    if (label == land_label::farm_limit) return shown_per_year(farm_limit(sums, &why), &why);
    const spreading_result result = compare_with_limits(sums, &why);
    return label == land_label::comment ? land_messages::comment(result) : land_messages::note(result);
}

// clang-format off
constexpr named_result results[] = {
    {land_label::production,   "Nitrogen produced as organic manures"},
    {land_label::farm_limit,   "Farm limit on spreading organic manures"},
    {land_label::field_limits, "Field limits on spreading organic manures"},
    {land_label::other_land,   "Limit of the land not in grass"},
    {land_label::grassland,    "Limit of the grassland"},
    {land_label::comment,      "Whether there is enough land"},
    {land_label::note,         "Whether the field limits are lower than the farm limit"},
};
// clang-format on

}  // namespace

std::span<const named_result> land_results() {
    return results;
}

std::optional<profile_texts> read_profile_texts(const std::string& assess_file, const std::string& field) {
    if (assess_file.empty()) return std::nullopt;
    const recordset row = database(assess_file).open("Field Data", "Field Name", field);
    if (row.eof()) return std::nullopt;
    return profile_texts{row.text("Soil"), row.text("Size")};
}

std::optional<explanation> why_land_cell(const text_grid& land, int row, int column,
                                         const std::string& assess_file) {
    using namespace land_column;
    if (column == soil || column == total_area) return why_profile_cell(land, row, column, assess_file);
    if (column >= buffer && column <= other_deduction) return why_deduction(land, row, column);
    if (column != available && column != land_column::field_limit) return std::nullopt;
    if (land.cell(row, column).empty() && row_is_empty(land, row, grass, not_in_grass)) {
        explanation why(of_field("Available area and limit", land, row));
        why.set_missing("The areas in grass and not in grass are not entered yet (Step 1).");
        return why;
    }
    return column == available ? why_available(land, row) : why_field_limit(land, row);
}

std::optional<explanation> why_stock_cell(const text_grid& animals, int row, int column) {
    using namespace stock_column;
    if (column != unit_n && column != total_n) return std::nullopt;
    const std::string& type = animals.cell(row, stock);
    explanation why((column == unit_n ? "Nitrogen of one unit: " : "Nitrogen of the line: ") + type);
    if (animals.cell(row, column).empty() && row_is_empty(animals, row, stock, number)) {
        why.set_missing("No stock unit and no number are entered in this line yet (Step 1).");
        return why;
    }
    float constant = 0;
    for (int before = 0; before < row; ++before)
        stock_line_texts(animals, before, constant);
    stock_texts texts = stock_line_texts(animals, row, constant, &why);
    why.set_result(column == unit_n ? std::move(texts.unit_n) : std::move(texts.total_n), "kg N/year");
    return why;
}

std::optional<explanation> why_land_result(std::string_view label, const text_grid& land,
                                           const text_grid& animals) {
    for (const named_result& known : results) {
        if (known.name != label) continue;
        explanation why{std::string(known.caption)};
        std::string shown = told_result(label, land, animals, why);
        why.set_result(std::move(shown), "");
        return why;
    }
    return std::nullopt;
}

}  // namespace kel
