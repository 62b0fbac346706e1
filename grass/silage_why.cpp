// Why the cells of the silage table are what they are.
#include <algorithm>
#include <array>

#include "core/numbers.h"
#include "grass/silage_page.h"
#include "grass/sward_choices.h"

namespace kel {

namespace {

struct column_words {
    int column;
    silage_figure figure;
    std::string silage_row::*cell;
    std::string_view subject;
    std::string_view unit;
    std::string_view rule;
};
// clang-format off
constexpr std::array<column_words, 5> columns{{
    {silage_column::lus_fed_by_grazing,  silage_figure::grazing_lus, &silage_row::lus_fed_by_grazing,  "Livestock fed by grazing",      "LU",       "What grazes the field, in livestock units (LU): of each group its ratio, its number and the part of the year that it is there."},
    {silage_column::lus_fed_from_silage, silage_figure::silage_lus,  &silage_row::lus_fed_from_silage, "Livestock fed from silage",     "LU",       "What the farm's grazing leaves of its livestock units (LU) is fed from silage, spread evenly over the silage fields."},
    {silage_column::lus_per_ha,          silage_figure::density,     &silage_row::lus_per_ha,          "Stocking density",              "LU/ha",    "The livestock units (LU) that a hectare of the field feeds."},
    {silage_column::n_kg_per_ha,         silage_figure::requirement, &silage_row::n_kg_per_ha,         "Nitrogen for the stocking",     "kg/ha",    "What the grass needs to carry its stocking, along the line of its use and site class."},
    {silage_column::notes,               silage_figure::notes,       &silage_row::notes,               "Number of cuts",                "",         "The cuts go by the nitrogen that the stocking needs."},
}};
// clang-format on

explanation copied(const text_grid& table, int row, int column) {
    explanation why(std::string(table.columns()[static_cast<std::size_t>(column)].heading) + " for " +
                    table.cell(row, silage_column::field));
    why.rule("As the stocking table has it.");
    why.set_result(table.cell(row, column), column == silage_column::area ? "ha" : "");
    return why;
}

// What an empty cell lacks.
void tell_end(const column_words& words, const silage_row& row, explanation& why) {
    const std::string& shown = row.*words.cell;
    const bool of_density =
        words.figure == silage_figure::density || words.figure == silage_figure::requirement;
    const bool silage = row.use == grass_use::silage;
    if (shown.empty() && of_density) return why.set_missing("The area of the field is missing.");
    if (words.figure == silage_figure::grazing_lus && silage)
        why.rule("The field is cut for silage and not grazed.");
    if (words.figure == silage_figure::silage_lus && !silage) why.rule("The field is not cut for silage.");
    why.set_result(shown, words.unit);
}

}  // namespace

// The last alteration of the field tells; those before it are counted.
silage_plan silage_page::built_again(const silage_account& account) const {
    const std::string& field = filled_from_.at(account.row).field;
    std::size_t last = alterations_.size();
    std::size_t times = 0;
    for (std::size_t i = 0; i < alterations_.size(); ++i)
        if (alterations_[i].decrease == field || alterations_[i].increase == field) last = i, ++times;
    const bool fill_tells =
        times == 0 || account.of == silage_figure::grazing_lus || account.of == silage_figure::silage_lus;
    silage_plan plan = fill_silage_table(filled_from_, built_for_lus_, worked_with_before_,
                                         fill_tells ? account : silage_account{});
    if (times > 0 && account.of != silage_figure::grazing_lus)
        account.why->rule("The feed of the field was altered " + std::to_string(times) +
                          (times == 1 ? " time" : " times") + " by " + default_text(feed_step_lu) +
                          " LU. The last time:");
    for (std::size_t i = 0; i < alterations_.size(); ++i)
        move_feed(plan, alterations_[i].decrease, alterations_[i].increase, altered_classes_,
                  i == last ? account : silage_account{});
    return plan;
}

explanation silage_page::why(int row, int column) const {
    const auto words = std::ranges::find(columns, column, &column_words::column);
    if (words == columns.end()) return copied(table_, row, column);
    explanation why(std::string(words->subject) + " for " + table_.cell(row, silage_column::field));
    why.rule(std::string(words->rule));
    const auto place = static_cast<std::size_t>(row);
    tell_end(*words, built_again({&why, place, words->figure}).rows.at(place), why);
    return why;
}

}  // namespace kel
