// Step 3 with 10,000 applications to 1,000 fields: Calculate beside one query of equal meaning on the same
// two files, its growth with the farm, and Load and Save beside bare prepared statements.
#include <set>
#include <stdexcept>

#include "core/assessment_files.h"
#include "manure/manure_module.h"
#include "tools/bench/bench_applications.h"
#include "tools/bench/bench_bare.h"
#include "tools/bench/groups.h"

namespace kel::bench {

namespace {

constexpr int large_fields = 1000;
constexpr int small_fields = 100;
constexpr int linked_years = 2;
constexpr int repetitions = 31;
constexpr int small_runs = large_fields / small_fields;
constexpr double query_ratio_at_most = 3;
constexpr double growth_at_most = 1.3;
constexpr double bare_ratio_at_most = 1.5;
constexpr double limit_kg_per_ha = 250;

using field_set = std::set<std::string>;

// The rolling sum of twelve months per field and day of application. Last year's file counts back to the day
// after the same day a year earlier.
constexpr const char* rolling_sums = R"(
    WITH applied AS MATERIALIZED (
        SELECT DISTINCT [Field Area ID] AS field, [Date] AS day, date([Date], '-1 year') AS year_before
        FROM main.[Manure_applic])
    SELECT field, day,
        (SELECT total([Total N Applic Rate]) FROM main.[Manure_applic]
         WHERE [Field Area ID] = field AND [Date] <= day) +
        (SELECT total([Total N Applic Rate]) FROM last_year.[Manure_applic]
         WHERE [Field Area ID] = field AND [Date] > year_before AND [Date] <= day)
    FROM applied)";

class spread_farm {
  public:
    explicit spread_farm(int fields) : farm_(fields, linked_years) {
        application_state& state = farm_.state;
        state.kel_year_start = read_assessment_year(state.assess_file);
        state.manure_caller = manure_opener::front;
        for (const std::string& file : {state.assess_file, state.prev1_file})
            write_applications(file);
        bare_file_ = farm_.copy_of_file("bare.kel");
        stored_ = rows_of(bare_file_, "Manure_applic");
        module_.manure_load_stuff();
        module_.calculate();
        if (over_limit_by_module() != over_limit_by_query())
            throw std::runtime_error("Calculate and the query do not find the same fields");
    }

    double calculate_ms() {
        return cpu_ms_of([this] { module_.calculate(); });
    }
    double calculate_us_per_application(int runs) {
        double spent = 0;
        for (int run = 0; run < runs; ++run)
            spent += calculate_ms();
        return spent * 1000 / (runs * static_cast<double>(stored_.size()));
    }
    double query_ms() {
        return cpu_ms_of([this] { over_limit_by_query(); });
    }

    double load_ms() {
        return cpu_ms_of([this] { module_.manure_load_stuff(); });
    }
    double bare_load_ms() {
        return cpu_ms_of([this] { rows_of(farm_.state.assess_file, "Manure_applic"); });
    }

    double save_ms() {
        return cpu_ms_of([this] { module_.save(); });
    }
    double bare_save_ms() {
        return cpu_ms_of([this] {
            save_bare(bare_file_, [this](SQLite::Database& db) { write_bare(db, "Manure_applic", stored_); });
        });
    }
    void check_rows() const {
        for (const std::string& file : {farm_.state.assess_file, bare_file_})
            if (rows_of(file, "Manure_applic") != stored_)
                throw std::runtime_error("the saves that were compared did not write the same rows");
    }

  private:
    field_set over_limit_by_module() const {
        field_set over;
        const text_grid& results = module_.results();
        for (int row = 0; row < results.row_count(); ++row)
            if (results.cell(row, manure_result_column::warnings) == "Yes")
                over.insert(results.cell(row, manure_result_column::field));
        return over;
    }
    // Opened anew, as Calculate does.
    field_set over_limit_by_query() const {
        SQLite::Database db(farm_.state.assess_file, SQLite::OPEN_READONLY);
        SQLite::Statement attach(db, "ATTACH DATABASE ? AS last_year");
        attach.bind(1, farm_.state.prev1_file);
        attach.exec();
        field_set over;
        for (SQLite::Statement sums(db, rolling_sums); sums.executeStep();)
            if (sums.getColumn(2).getDouble() > limit_kg_per_ha) over.insert(sums.getColumn(0).getString());
        return over;
    }

    bench_farm farm_;
    silent_person person_;
    manure_module module_{farm_.state, person_};
    std::string bare_file_;
    table_rows stored_;
};

}  // namespace

std::vector<bench_line> manure_bench() {
    spread_farm large(large_fields);
    spread_farm small(small_fields);
    const auto [calculated, queried] = medians_in_turn(
        repetitions, [&] { return large.calculate_ms(); }, [&] { return large.query_ms(); });
    const auto [at_10000, at_1000] = medians_in_turn(
        repetitions, [&] { return large.calculate_us_per_application(1); },
        [&] { return small.calculate_us_per_application(small_runs); });
    const auto [loaded, bare_loaded] = medians_in_turn(
        repetitions, [&] { return large.load_ms(); }, [&] { return large.bare_load_ms(); });
    const auto [saved, bare_saved] = medians_in_turn(
        repetitions, [&] { return large.save_ms(); }, [&] { return large.bare_save_ms(); });
    large.check_rows();
    return {{"Step 3 Calculate, 10,000 applications a year, two files; beside one query", "ms", calculated,
             queried, query_ratio_at_most},
            {"Step 3 Calculate, cost of an application at 10,000; beside one at 1,000", "us", at_10000,
             at_1000, growth_at_most},
            {"Step 3 Load, 10,000 applications; beside bare statements", "ms", loaded, bare_loaded,
             bare_ratio_at_most},
            {"Step 3 Save, 10,000 applications; beside bare statements", "ms", saved, bare_saved,
             bare_ratio_at_most}};
}

}  // namespace kel::bench
