// Step 1's Save beside the same rows written by bare prepared statements: what the working copy, the store
// and its guards cost on top of the database.
#include <stdexcept>

#include "land/land_module.h"
#include "tools/bench/bench_bare.h"
#include "tools/bench/bench_farm.h"
#include "tools/bench/groups.h"

namespace kel::bench {

namespace {

constexpr int fields = 1000;
constexpr int repetitions = 31;
constexpr double ratio_at_most = 1.5;

}  // namespace

std::vector<bench_line> land_bench() {
    bench_farm farm(fields);
    const std::string bare_file = farm.copy_of_file("bare.kel");
    const table_rows land = rows_of(bare_file, "Land");
    const table_rows animals = rows_of(bare_file, "Land_animals");
    silent_person person;
    land_module module(farm.state, person);
    module.load_land_stuff();
    const auto write_both = [&](SQLite::Database& db) {
        write_bare(db, "Land", land);
        write_bare(db, "Land_animals", animals);
    };
    const auto [ours, bare] = medians_in_turn(
        repetitions, [&] { return cpu_ms_of([&] { module.save(); }); },
        [&] { return cpu_ms_of([&] { save_bare(bare_file, write_both); }); });
    for (const std::string& file : {farm.state.assess_file, bare_file})
        if (rows_of(file, "Land") != land || rows_of(file, "Land_animals") != animals)
            throw std::runtime_error("the saves that were compared did not write the same rows");
    return {{"Step 1 Save, 1,000 fields, 50 stock lines; beside bare statements", "ms", ours, bare,
             ratio_at_most}};
}

}  // namespace kel::bench
