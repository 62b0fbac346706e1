#include "inorganic/inorganic_grid.h"

#include <array>

#include "core/assessment_files.h"
#include "core/grid_rows.h"
#include "core/numbers.h"
#include "inorganic/application_rules.h"

namespace kel::inorganic_table {

namespace {

constexpr auto entered = column_kind::entered;
constexpr auto calculated = column_kind::calculated;
constexpr std::string_view table = "Inorganic N";

// The table of applications. Columns carry the names of [Inorganic N].
// clang-format off
constexpr std::array<grid_column, 7> columns{{
    // heading                   stored column    kind      width  date
    {"Field Area ID",            "Field Area ID", entered,    22},
    {"Date of application",      "Date",          entered,    13,  true},
    {"Type of fertiliser",       "Type",          entered,    26},
    {"Amount applied (kg/ha)",   "Amount",        entered,    14},
    {"N content (%)",            "N content",     entered,    11},
    {"Total N applied (kg)",     "Total N",       calculated, 14},
    {"Comments",                 "Comments",      entered,    48},
}};
// clang-format on
static_assert(columns[inorganic_column::day].is_date &&
              columns[inorganic_column::content].stored == "N content" &&
              columns[inorganic_column::comments].stored == "Comments");

}  // namespace

text_grid set_grid() {
    return text_grid(columns);
}

text_grid get_data(const database& db) {
    text_grid grid = set_grid();
    append_rows(db, table, grid);
    grid.add_row();
    return grid;
}

std::vector<std::string> set_fieldlist(const database& db) {
    return field_names(read_farm_fields(db));
}

std::string total_n_text(const text_grid& grid, int row, explanation* why) {
    return shortest_text(total_n_kg_per_ha(grid.number(row, inorganic_column::amount),
                                           grid.number(row, inorganic_column::content), why));
}

void recalculate(text_grid& grid, int row) {
    grid.set_cell(row, inorganic_column::total_n, total_n_text(grid, row));
}

void save(const database& db, const text_grid& grid) {
    save_grid(db, table, grid, grid.data_row_count());
}

}  // namespace kel::inorganic_table
