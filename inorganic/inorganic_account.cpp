// Why the table shows what it shows: the nitrogen of a row, and whether its day is closed.
#include <array>

#include "core/numbers.h"
#include "inorganic/inorganic_module.h"
#include "rules/closed_period_lookups.h"

namespace kel {

namespace {

namespace col = inorganic_column;

std::string on_field(const text_grid& table, int row) {
    std::string text = " on " + table.cell(row, col::field);
    if (const auto day = parse_date(table.cell(row, col::day))) text += ", " + long_date_text(*day);
    return text;
}

std::string told_of(closed_answer answer) {
    switch (answer) {
        case closed_answer::closed:
            return " is a closed day for inorganic nitrogen on this field.";
        case closed_answer::open:
            return " is an open day for inorganic nitrogen on this field.";
        case closed_answer::field_unknown:
            break;
    }
    return " cannot be judged: the field has not been assessed for closed periods.";
}

}  // namespace

std::optional<explanation> inorganic_module::why(const text_grid& grid, std::size_t row,
                                                 std::size_t column) const {
    const int at = static_cast<int>(row);
    if (&grid != &applications_ || at >= applications_.data_row_count()) return std::nullopt;
    if (column == col::total_n) return why_total(at);
    return column == col::day ? why_closed(at) : std::nullopt;
}

explanation inorganic_module::why_total(int row) const {
    explanation why("Nitrogen of " + applications_.cell(row, col::type) + on_field(applications_, row));
    why.rule(
        "The nitrogen applied is the amount of fertiliser times its nitrogen content. It is a rate per "
        "hectare, although the heading says kg.");
    const std::string& amount = applications_.cell(row, col::amount);
    const std::string& content = applications_.cell(row, col::content);
    why.input("Amount applied", amount, "kg/ha", "Step 4, Amount applied");
    why.input("Nitrogen content", content, "%", "Step 4, N content");
    if (amount.empty() || content.empty())
        why.set_missing("The amount or the nitrogen content is not entered.");
    else
        why.set_result(inorganic_table::total_n_text(applications_, row, &why), "kg N/ha");
    return why;
}

std::optional<explanation> inorganic_module::why_closed(int row) const {
    const auto day = parse_date(applications_.cell(row, col::day));
    if (!day || state_.assess_file.empty()) return std::nullopt;
    explanation why("Closed period for inorganic nitrogen" + on_field(applications_, row));
    const closed_answer answer =
        closed_for_inorganic(state_.assess_file, applications_.cell(row, col::field), *day, state_, &why);
    why.set_follows(long_date_text(*day) + told_of(answer));
    return why;
}

}  // namespace kel
