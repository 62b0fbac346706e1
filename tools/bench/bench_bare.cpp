#include "tools/bench/bench_bare.h"

namespace kel::bench {

void write_bare(SQLite::Database& db, const std::string& table, const table_rows& rows) {
    db.exec("DELETE FROM [" + table + "]");
    std::string marks = "?";
    for (std::size_t c = 1; c < rows.front().size(); ++c)
        marks += ", ?";
    SQLite::Statement insert(db, "INSERT INTO [" + table + "] VALUES (" + marks + ")");
    for (const auto& row : rows)
        run_bare(insert, row);
}

}  // namespace kel::bench
