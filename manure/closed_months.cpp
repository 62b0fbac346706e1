#include "manure/closed_months.h"

#include <string>
#include <unordered_map>

#include "core/dates.h"
#include "manure/manure_grids.h"
#include "rules/closed_period_lookups.h"
#include "rules/manure_catalogue.h"

namespace kel {

namespace {

namespace col = manure_column;

// A field's first row counts.
std::unordered_map<std::string, land_use> read_land_uses(const database& db) {
    std::unordered_map<std::string, land_use> uses;
    for (recordset rows = db.open("Land"); !rows.eof(); rows.move_next())
        uses.try_emplace(rows.text("Field Area ID"), read_land_use(rows));
    return uses;
}

}  // namespace

std::vector<int> rows_in_closed_months(const database& db, const text_grid& table) {
    const auto uses = read_land_uses(db);
    std::vector<int> rows;
    for (int row = 0; row < table.data_row_count(); ++row) {
        const auto day = parse_date(table.cell(row, col::date));
        const auto use = uses.find(table.cell(row, col::field));
        if (!day || use == uses.end() || is_exempt_fym(table.cell(row, col::manure))) continue;
        if (closed_for_manure(use->second, *day) == closed_answer::closed) rows.push_back(row);
    }
    return rows;
}

}  // namespace kel
