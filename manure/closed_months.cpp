#include "manure/closed_months.h"

#include <unordered_map>

#include "manure/manure_grids.h"
#include "rules/manure_catalogue.h"

namespace kel {

namespace {

namespace col = manure_column;

// A field's first row counts.
using land_uses = std::unordered_map<std::string, std::optional<land_use>>;

land_uses read_land_uses(const database& db) {
    land_uses uses;
    for (recordset rows = db.open("Land"); !rows.eof(); rows.move_next()) {
        const auto [entry, is_new] = uses.try_emplace(rows.text("Field Area ID"));
        if (is_new) entry->second = read_land_use(rows);
    }
    return uses;
}

}  // namespace

bool in_closed_month(const text_grid& table, int row, const std::optional<land_use>& use, explanation* why) {
    const auto day = parse_date(table.cell(row, col::date));
    const bool exempt = is_exempt_fym(table.cell(row, col::manure));
    if (why && !day) why->rule("No date is entered.");
    if (why && exempt) why->rule("No month is closed to the farmyard manure of cattle and pigs.");
    if (!day || exempt) return false;
    return closed_for_manure(use, *day, why) == closed_answer::closed;
}

bool in_closed_month(const std::string& path, const text_grid& table, int row, explanation* why) {
    const std::string& field = table.cell(row, col::field);
    return in_closed_month(table, row, path.empty() ? std::nullopt : read_land_use(database(path), field),
                           why);
}

std::vector<int> rows_in_closed_months(const database& db, const text_grid& table) {
    const land_uses uses = read_land_uses(db);
    std::vector<int> rows;
    for (int row = 0; row < table.data_row_count(); ++row) {
        const auto field = uses.find(table.cell(row, col::field));
        if (field != uses.end() && in_closed_month(table, row, field->second)) rows.push_back(row);
    }
    return rows;
}

}  // namespace kel
