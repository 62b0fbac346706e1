#include "core/told_rows.h"

#include "core/numbers.h"

namespace kel {

namespace {

constexpr std::size_t most_rows = 10;

std::string told_rest(const std::vector<told_row>& rows, std::size_t first, std::string_view things,
                      std::string_view unit) {
    double amount = 0;
    for (std::size_t i = first; i < rows.size(); ++i)
        amount += rows[i].amount;
    return "And " + std::to_string(rows.size() - first) + " more " + std::string(things) + ": together " +
           default_text(static_cast<float>(amount)) + ' ' + std::string(unit);
}

}  // namespace

void tell_rows(explanation& why, const std::vector<told_row>& rows, std::string_view things,
               std::string_view unit) {
    const std::size_t told = rows.size() > most_rows ? most_rows - 1 : rows.size();
    for (std::size_t i = 0; i < told; ++i)
        why.step(rows[i].text);
    if (told < rows.size()) why.step(told_rest(rows, told, things, unit));
}

}  // namespace kel
