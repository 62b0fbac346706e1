// Step 1's Save beside the same rows written by bare prepared statements: what the working copy, the store
// and its guards cost on top of the database.
#include <SQLiteCpp/SQLiteCpp.h>

#include <stdexcept>

#include "land/land_module.h"
#include "tools/bench/bench_farm.h"
#include "tools/bench/groups.h"

namespace kel::bench {

namespace {

constexpr int fields = 1000;
constexpr int repetitions = 31;
constexpr double ratio_at_most = 1.5;

void write_bare(SQLite::Database& db, const std::string& table, const table_rows& rows) {
    db.exec("DELETE FROM [" + table + "]");
    std::string marks = "?";
    for (std::size_t c = 1; c < rows.front().size(); ++c)
        marks += ", ?";
    SQLite::Statement insert(db, "INSERT INTO [" + table + "] VALUES (" + marks + ")");
    for (const auto& row : rows) {
        for (std::size_t c = 0; c < row.size(); ++c)
            insert.bindNoCopy(static_cast<int>(c) + 1, row[c]);
        insert.exec();
        insert.reset();
    }
}

// Opened anew, with the store's journal, default synchronous setting and one transaction.
void save_bare(const std::string& file, const table_rows& land, const table_rows& animals) {
    SQLite::Database db(file, SQLite::OPEN_READWRITE);
    db.exec("PRAGMA journal_mode = DELETE");
    db.exec("BEGIN IMMEDIATE");
    write_bare(db, "Land", land);
    write_bare(db, "Land_animals", animals);
    db.exec("COMMIT");
}

}  // namespace

std::vector<bench_line> land_bench() {
    bench_farm farm(fields);
    const std::string bare_file = farm.copy_of_file("bare.kel");
    const table_rows land = rows_of(bare_file, "Land");
    const table_rows animals = rows_of(bare_file, "Land_animals");
    silent_person person;
    land_module module(farm.state, person);
    module.load_land_stuff();
    const auto [ours, bare] = medians_in_turn(
        repetitions, [&] { return cpu_ms_of([&] { module.save(); }); },
        [&] { return cpu_ms_of([&] { save_bare(bare_file, land, animals); }); });
    for (const std::string& file : {farm.state.assess_file, bare_file})
        if (rows_of(file, "Land") != land || rows_of(file, "Land_animals") != animals)
            throw std::runtime_error("the saves that were compared did not write the same rows");
    return {{"Step 1 Save, 1,000 fields, 50 stock lines; beside bare statements", "ms", ours, bare,
             ratio_at_most}};
}

}  // namespace kel::bench
