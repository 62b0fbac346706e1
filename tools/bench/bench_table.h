// The small harness of the measures: CPU time of the process, medians, and the one table that is printed.
// Nothing here fails by the clock; a measure beyond what is wanted is only marked.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace kel::bench {

/// CPU time of this process so far, user and system, ms.
double cpu_ms();

/// CPU time of one run of `work`, ms.
template <class F>
double cpu_ms_of(F&& work) {
    const double before = cpu_ms();
    work();
    return cpu_ms() - before;
}

/// Middle value; the mean of the two middle ones of an even number. `values` must not be empty.
double median(std::vector<double> values);

/// Median of `repetitions` results of `measure`.
template <class F>
double median_of(int repetitions, F&& measure) {
    std::vector<double> results;
    results.reserve(static_cast<std::size_t>(repetitions));
    for (int i = 0; i < repetitions; ++i)
        results.push_back(measure());
    return median(std::move(results));
}

struct compared {
    double ours;
    double reference;
};

/// Medians of both measures, taken in turn, so that a machine that changes its pace meets both alike.
template <class F, class G>
compared medians_in_turn(int repetitions, F&& ours, G&& reference) {
    std::vector<double> first;
    std::vector<double> second;
    for (int i = 0; i < repetitions; ++i) {
        first.push_back(ours());
        second.push_back(reference());
    }
    return {median(std::move(first)), median(std::move(second))};
}

/// One line of the table. `at_most` is the bound of the ratio, or of `ours` where there is no reference.
struct bench_line {
    std::string measure;
    std::string unit;
    double ours;
    std::optional<double> reference;
    std::optional<double> at_most;
};

/// measure | ours | reference | ratio | wanted, with columns aligned.
std::string table_text(const std::vector<bench_line>& lines);

}  // namespace kel::bench
