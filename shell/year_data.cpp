#include "shell/year_data.h"

#include <array>
#include <string_view>

namespace kel {

namespace {

struct dated_table {
    std::string_view table;
    std::array<std::string_view, 3> date_columns;  // empty: no further one
};

// Tables that belong to one year only, in the order they are worked on, with the columns that hold dates.
// clang-format off
constexpr std::array<dated_table, 4> dated_tables{{
    {"Crops",         {"Hdate p_crop", "Hdate c_crop", "Sowing date"}},
    {"Inorganic N",   {"Date"}},
    {"Manure_applic", {"Date"}},
    {"Site",          {"End of season date"}},
}};
// clang-format on

void move_dates(const database& db, const dated_table& dated, int years) {
    for (recordset rows = db.open(dated.table); !rows.eof(); rows.move_next()) {
        rows.edit();
        for (const std::string_view column : dated.date_columns) {
            if (column.empty()) continue;
            if (const auto day = rows.date_value(column)) rows.set(column, add_years(*day, years));
        }
        rows.update();
    }
}

}  // namespace

void clear_year_data(const std::string& path, int years, year_data_mode mode) {
    const database db(path);
    save_transaction save(db);
    clear_year_data(db, years, mode);
    save.commit();
}

void clear_year_data(const database& db, int years, year_data_mode mode) {
    for (const dated_table& dated : dated_tables) {
        if (mode == year_data_mode::delete_rows)
            db.delete_rows(dated.table);
        else
            move_dates(db, dated, years);
    }
}

}  // namespace kel
