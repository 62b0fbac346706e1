// Why the cells of the site table and of its results are what they are.
#include <algorithm>
#include <array>

#include "grass/management_adjustment.h"
#include "grass/site_class.h"
#include "grass/site_page.h"
#include "grass/sward_choices.h"
#include "rules/residue_groups.h"

namespace kel {

namespace col = site_column;

namespace {

// A figure of the results: where it stands, what it is and what holds of it.
struct result_words {
    int column;
    grass_figure figure;
    std::string grass_recommendation::*text;
    std::string_view subject;
    std::string_view rule;
};
// clang-format off
constexpr std::array<result_words, 4> figures{{
    {grass_result_column::requirement,   grass_figure::requirement,   &grass_recommendation::requirement,   "Nitrogen requirement",        "What grass of this clover content requires on its site class after its previous sward."},
    {grass_result_column::adjustment,    grass_figure::adjustment,    &grass_recommendation::adjustment,    "Adjustment",                  "What the use, the cuts and the applications add to the requirement or take from it."},
    {grass_result_column::manures,       grass_figure::manures,       &grass_recommendation::manures,       "Nitrogen from manures",       "What the manures of this season and of the season before supply. An empty cell counts as 0."},
    {grass_result_column::to_be_applied, grass_figure::to_be_applied, &grass_recommendation::to_be_applied, "Nitrogen to be applied",      "The requirement with its adjustment, less what manures supply."},
}};
// clang-format on

std::string of_field(std::string_view subject, const std::string& field) {
    return std::string(subject) + (field.empty() ? "" : " for " + field);
}

}  // namespace

explanation site_page::why_soil(int row) const {
    const std::string& field = farm_.site.cell(row, col::field);
    explanation why(of_field("Soil", field));
    const auto found = std::ranges::find(farm_.fields, field, &farm_field::name);
    if (field.empty()) {
        why.set_missing("No field has been selected in this row.");
        return why;
    }
    why.rule(
        found == farm_.fields.end()
            ? "The farm profile does not have the field, so the soil stands as it was stored."
            : "The soil that the farm profile has for the field, taken over when the field is selected.");
    why.set_result(found == farm_.fields.end() ? farm_.site.cell(row, col::soil) : found->soil, "");
    return why;
}

explanation site_page::why_site_class(int row) const {
    const std::string& field = farm_.site.cell(row, col::field);
    explanation why(of_field("Site class", field));
    if (field.empty()) {
        why.set_missing("No field has been selected in this row.");
        return why;
    }
    const auto found =
        site_class(farm_.site.cell(row, col::soil), farm_.rain_class, farm_.altitude_step, &why);
    if (found)
        why.set_result(std::to_string(*found), "");
    else
        why.set_missing("The question for the rainfall has not been answered.");
    return why;
}

explanation site_page::why_residue_group(int row) const {
    const std::string& code = farm_.site.cell(row, col::previous);
    explanation why(of_field("Nitrogen residue group", farm_.site.cell(row, col::field)));
    if (code.empty())
        why.set_missing("No previous sward has been entered in this row.");
    else
        why.set_result(std::to_string(residue_group(code, &why)), "");
    return why;
}

// A choice that its use fixes, or one that was answered.
explanation site_page::why_choice(int row, int column) const {
    explanation why(of_field(farm_.site.columns()[static_cast<std::size_t>(column)].heading,
                             farm_.site.cell(row, col::field)));
    const std::string& content = farm_.site.cell(row, col::clover);
    const std::string& use = farm_.site.cell(row, col::use);
    const sward_management* const management = management_of(content, use);
    std::string_view fixed = !management           ? std::string_view{}
                             : column == col::cuts ? management->cuts
                             : column == col::use  ? std::string_view{}
                                                   : management->applications;
    if (column == col::applications && fixed.empty() &&
        farm_.site.cell(row, col::cuts) == cuts_without_aftermath)
        fixed = no_applications;
    if (fixed.empty()) {
        why.rule(
            "Answered in the chain of questions that begins with Clover Content; click there to change it.");
        why.set_follows("The adjustment of the row follows from the answers.");
        return why;
    }
    why.rule("Clover " + content + ", " + use +
             (column == col::cuts ? ": the number of cuts is not asked"
                                  : ": the number of applications is not asked") +
             " with this management.");
    why.set_result(std::string(fixed), "");
    return why;
}

explanation site_page::why_adjustment(int row) const {
    explanation why(of_field("Management adjustment", farm_.site.cell(row, col::field)));
    const managed_sward sward{farm_.site.cell(row, col::clover), farm_.site.cell(row, col::use),
                              farm_.site.cell(row, col::cuts), farm_.site.cell(row, col::applications)};
    why.input("Clover content", sward.clover, "", "site table, Clover Content");
    why.input("Crop use", sward.use, "", "asked after the clover content");
    if (sward.clover.empty() || sward.use.empty() || sward.cuts.empty() || sward.applications.empty())
        why.set_missing("The questions on clover, use, cuts and applications have not all been answered.");
    else
        why.set_result(management_adjustment(tables(), sward, &why), "kg/ha");
    return why;
}

// A person enters or transfers the figure; this tells what the stored applications come to.
explanation site_page::why_manures(int row, int column) const {
    explanation why(of_field(column == col::manure_current ? "Nitrogen from manures of this season"
                                                           : "Nitrogen left of manures of the season before",
                             farm_.site.cell(row, col::field)));
    application_state asked = state_;  // the look-ups leave their bounds in it
    const auto found = stored_manures(asked, row, column, &why);
    why.set_follows(
        found ? "Entered here. \"Transfer\" would enter what is stored, rounded to 2 decimals, halves to "
                "the even digit: " +
                    *found + " kg/ha"
              : "Entered here. Without the end of the season nothing can be transferred.");
    return why;
}

std::optional<explanation> site_page::why(int row, int column) const {
    switch (column) {
        case col::soil:
            return why_soil(row);
        case col::site_class:
            return why_site_class(row);
        case col::residue_group:
            return why_residue_group(row);
        case col::use:
        case col::cuts:
        case col::applications:
            return why_choice(row, column);
        case col::adjustment:
            return why_adjustment(row);
        case col::manure_current:
        case col::manure_previous:
            return why_manures(row, column);
        default:
            return std::nullopt;
    }
}

explanation site_page::why_result(int row, int column) const {
    const std::string& field = farm_.site.cell(row, col::field);
    const auto words = std::ranges::find(figures, column, &result_words::column);
    if (words == figures.end()) {
        const bool use = column == grass_result_column::use;
        explanation why(of_field(use ? "Crop use" : "Field", use ? field : ""));
        why.rule("As row " + std::to_string(row + 1) + " of the site table has it.");
        why.set_result(use ? farm_.site.cell(row, col::use) : field, "");
        return why;
    }
    explanation why(of_field(words->subject, field));
    why.rule(std::string(words->rule));
    const grass_recommendation found =
        recommend_grass(tables(), grass_field_of(farm_.site, row), &why, words->figure);
    why.set_result(found.*words->text, "kg/ha");
    return why;
}

}  // namespace kel
