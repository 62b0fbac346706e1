#include "rules/manure_history.h"

#include "core/numbers.h"

namespace kel {

manure_history::manure_history(const manure_years& years) {
    for (const auto* file : {&years.before_previous, &years.previous, &years.current})
        if (*file) read(**file);
}

void manure_history::read(const database& file) {
    for (recordset rows = file.open("Manure_applic"); !rows.eof(); rows.move_next()) {
        const std::string stored = rows.text("Date");
        const auto day = parse_date(stored);  // what is no date is shown as it stands
        by_field_[rows.text("Field Area ID")].push_back({rows.text("Manure Type"), rows.text("Incorporation"),
                                                         day ? short_date_text(*day) : stored,
                                                         rows.text("Applic Rate")});
    }
}

std::vector<manure_application> manure_history::of(std::string_view field) const {
    const auto found = by_field_.find(field);
    if (found == by_field_.end()) return {};
    double sum = 0;
    for (const manure_application& application : found->second)
        sum += leading_number(application.back());
    return sum == 0 ? std::vector<manure_application>{} : found->second;
}

}  // namespace kel
