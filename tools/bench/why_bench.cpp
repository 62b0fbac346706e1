// The panel "Why?": what the account of a cell takes on a farm of 1,000 fields with 10,000 applications in
// each of two linked years. Of each table the slowest column counts. A module's measure is a function and a
// line.
#include <algorithm>
#include <stdexcept>

#include "core/assessment_files.h"
#include "inorganic/inorganic_module.h"
#include "manure/manure_module.h"
#include "tools/bench/bench_applications.h"
#include "tools/bench/bench_farm.h"
#include "tools/bench/groups.h"

namespace kel::bench {

namespace {

constexpr int fields = 1000;
constexpr int linked_years = 2;
constexpr int repetitions = 31;
constexpr double at_most_ms = 5;

/// The slowest column of a row in the middle of the table, ms.
template <class Module>
double slowest_cell_ms(const Module& module, const text_grid& table) {
    const auto row = static_cast<std::size_t>(table.row_count() / 2);
    double slowest = 0;
    int told = 0;
    for (std::size_t column = 0; column < table.columns().size(); ++column)
        slowest = std::max(slowest, median_of(repetitions, [&] {
                               return cpu_ms_of([&] { told += module.why(table, row, column).has_value(); });
                           }));
    if (told == 0) throw std::runtime_error("no cell of the table has an account");
    return slowest;
}

template <class Module>
double result_ms(const Module& module, std::string_view name) {
    return median_of(repetitions, [&] {
        return cpu_ms_of([&] {
            if (!module.why(name)) throw std::runtime_error("a result has no account");
        });
    });
}

class large_farm {
  public:
    large_farm() {
        farm_.state.kel_year_start = read_assessment_year(farm_.state.assess_file);
        farm_.state.manure_caller = manure_opener::front;
        for (const std::string& file : {farm_.state.assess_file, farm_.state.prev1_file})
            write_applications(file);
    }
    application_state& state() { return farm_.state; }
    silent_person person;

  private:
    bench_farm farm_{fields, linked_years};
};

bench_line line(const char* measure, double ms) {
    return {measure, "ms", ms, std::nullopt, at_most_ms};
}

void add_manure(large_farm& farm, std::vector<bench_line>& lines) {
    manure_module module(farm.state(), farm.person);
    module.manure_load_stuff();
    lines.push_back(line("Why?, a cell of Step 3", slowest_cell_ms(module, module.applications())));
    module.calculate();
    lines.push_back(line("Why?, a cell of Step 3's results", slowest_cell_ms(module, module.results())));
    lines.push_back(line("Why?, the field limit", result_ms(module, "lblReductions_instruction")));
    lines.push_back(line("Why?, the closed periods", result_ms(module, "txtReductions_warnings")));
}

void add_inorganic(large_farm& farm, std::vector<bench_line>& lines) {
    inorganic_module module(farm.state(), farm.person);
    module.inorganic_load_stuff();
    lines.push_back(line("Why?, a cell of Step 4", slowest_cell_ms(module, module.applications())));
}

}  // namespace

std::vector<bench_line> why_bench() {
    large_farm farm;
    std::vector<bench_line> lines;
    add_manure(farm, lines);
    add_inorganic(farm, lines);
    return lines;
}

}  // namespace kel::bench
