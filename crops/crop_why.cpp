// Why the cells of the two tables are what they are: the accounts of the rules, each with its subject.
#include <array>

#include "crops/crop_messages.h"
#include "crops/crop_module.h"
#include "rules/residue_groups.h"

namespace kel {

namespace {

namespace text = crop_messages;

// A column of the results, by its place: what its figure is, in words, and what holds of it.
struct result_words {
    crop_figure figure;
    std::string_view subject;
    std::string_view unit;
    std::string_view rule;
};
// clang-format off
constexpr std::array<result_words, 6> columns{{
    {crop_figure::spring,      "Nitrogen to apply in spring",       "kg/ha", "The spring amount of the requirement tables, with each adjustment of the row added or taken off; never below 0."},
    {crop_figure::seedbed,     "Nitrogen to apply in the seedbed",  "kg/ha", "The seedbed amount of the requirement tables. Adjustments do not change it."},
    {crop_figure::total,       "Total nitrogen recommended",        "kg/ha", "What the tables require in spring and in the seedbed together, with each adjustment of the row added or taken off; never below 0."},
    {crop_figure::requirement, "Requirement of the crop",           "kg/ha", "What the requirement tables give in spring and in the seedbed together, before any adjustment."},
    {crop_figure::manures,     "Nitrogen from manures",             "kg/ha", ""},
    {crop_figure::notes,       "Advice",                            "",      ""},
}};
// clang-format on
static_assert(columns[crop_result_column::total - 1].figure == crop_figure::total &&
              columns[crop_result_column::notes - 1].figure == crop_figure::notes);

std::string text_of(crop_recommendation& found, crop_figure figure) {
    switch (figure) {
        case crop_figure::spring:
            return found.spring;
        case crop_figure::seedbed:
            return found.seedbed;
        case crop_figure::total:
            return found.total;
        case crop_figure::requirement:
            return found.requirement;
        case crop_figure::manures:
            return found.manures;
        case crop_figure::notes:
            break;
    }
    return found.notes;
}

std::string of_field(std::string_view subject, const std::string& field) {
    return std::string(subject) + (field.empty() ? "" : " for " + field);
}

}  // namespace

explanation crop_module::why_soil(int row) const {
    const std::string& field = crops_.cell(row, crop_column::field);
    explanation why(of_field("Soil", field));
    if (field.empty()) {
        why.set_missing("No field has been selected in this row.");
        return why;
    }
    why.rule("The soil that the farm profile has for the field, taken over when the field is selected.");
    why.set_result(
        database(state_.assess_file).lookup("Soil", "Field Data", "Field Name", field).value_or(""), "");
    return why;
}

explanation crop_module::why_residue_group(int row) const {
    const std::string& code = crops_.cell(row, crop_column::previous_crop);
    explanation why(of_field("Nitrogen residue group", crops_.cell(row, crop_column::field)));
    if (code.empty())
        why.set_missing("No previous crop has been entered in this row.");
    else
        why.set_result(std::to_string(residue_group(code, &why)), "");
    return why;
}

// A person enters or transfers the figure; this tells what the stored applications come to.
explanation crop_module::why_manures(int row, int column) const {
    explanation why(of_field(column == crop_column::manures ? "Nitrogen from manures to this crop"
                                                            : "Nitrogen from manures to the previous crop",
                             crops_.cell(row, crop_column::field)));
    application_state asked = state_;  // the look-ups leave their bounds in it
    const auto found = stored_manures(asked, row, column, &why);
    why.set_follows(
        found ? "Entered here. \"Transfer data\" would enter what is stored, rounded to 2 decimals, "
                "halves to the even digit: " +
                    *found + " kg/ha"
              : "Entered here. Without the harvest dates of both crops nothing can be transferred.");
    return why;
}

// The rows before are worked out again, since a row may go on from their figures.
explanation crop_module::why_result(int row, int column) const {
    const std::string& field = results_.cell(row, crop_result_column::field);
    if (row >= crops_.data_row_count()) {
        explanation gone(of_field("Recommendation", field));
        gone.set_missing("The row is no longer in the crops table.");
        return gone;
    }
    if (column == crop_result_column::field) {
        explanation why("Field");
        why.rule("The field of row " + std::to_string(row + 1) + " of the crops table.");
        why.set_result(crops_.cell(row, crop_column::field), "");
        return why;
    }
    const result_words& words = columns.at(static_cast<std::size_t>(column) - 1);
    explanation why(of_field(words.subject, field));
    if (!words.rule.empty()) why.rule(std::string(words.rule));
    crop_memory memory = before_results_;
    for (int before = 0; before < row; ++before)
        calculate_crop(crops_, before, winter_status_, memory.working, memory.rain);
    calculated_crop crop =
        calculate_crop(crops_, row, winter_status_, memory.working, memory.rain, {&why, words.figure});
    why.set_result(text_of(crop.found, words.figure), words.unit);
    return why;
}

std::optional<explanation> crop_module::why(const text_grid& grid, std::size_t row,
                                            std::size_t column) const {
    const auto r = static_cast<int>(row);
    const auto c = static_cast<int>(column);
    if (r >= grid.row_count()) return std::nullopt;
    if (&grid == &results_) return why_result(r, c);
    if (&grid == &crops_ && c == crop_column::soil) return why_soil(r);
    if (&grid == &crops_ && c == crop_column::residue_group) return why_residue_group(r);
    if (&grid == &crops_ && (c == crop_column::manures || c == crop_column::previous_manures))
        return why_manures(r, c);
    return std::nullopt;
}

std::optional<explanation> crop_module::why(std::string_view result) const {
    if (result != "Crops_winter_rain") return std::nullopt;
    explanation why("Winter rainfall");
    const auto answer = winter_answer();
    if (winter_is_stored_)
        why.rule("The answer that was saved with the crops stands; the climate tables are not asked.");
    else
        winter_rain_default(database(state_.places.climate_tables()), state_.farm_town, &why);
    if (answer)
        why.set_result(winter_answers().at(static_cast<std::size_t>(*answer)), "");
    else
        why.set_missing("The climate tables have no rainfall for the town of the farm.");
    return why;
}

}  // namespace kel
