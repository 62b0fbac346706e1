// Set Profile with every field renamed in three linked years: the cost of a field must not grow with the
// farm.
#include <stdexcept>

#include "core/numbers.h"
#include "profile/profile_module.h"
#include "tools/bench/bench_farm.h"
#include "tools/bench/groups.h"

namespace kel::bench {

namespace {

constexpr int linked_years = 3;
constexpr int repetitions = 7;
constexpr double growth_at_most = 1.2;

class renamed_farm {
  public:
    explicit renamed_farm(int fields) : farm_(fields, linked_years) {}

    /// CPU time of one Set Profile after every field got a new name, ms.
    double set_profile_ms() {
        profile_.load_profile();
        const std::string round = " (" + std::to_string(++rounds_) + ")";
        for (int row = 0; row < profile_.fields().row_count(); ++row)
            profile_.enter_name(row, "Upper Park " + std::to_string(row + 1) + round);
        const float kel_area = profile_.fields().sum(field_column::kel_area, profile_.fields().row_count());
        profile_.set_kel_area(shortest_text(kel_area));
        profile_.set_total_area(shortest_text(kel_area));
        const double spent = cpu_ms_of([&] { profile_.set_profile(); });
        for (const std::string& file :
             {farm_.state.slot_current, farm_.state.slot_prev1, farm_.state.slot_prev2})
            if (!rows_of(file, "Land").back().front().ends_with(round))
                throw std::runtime_error("Set Profile did not carry the new names into " + file);
        return spent;
    }
    double us_per_field() { return set_profile_ms() * 1000 / profile_.fields().row_count(); }

  private:
    bench_farm farm_;
    silent_person person_;
    profile_module profile_{farm_.state, person_};
    int rounds_ = 0;
};

}  // namespace

std::vector<bench_line> profile_bench() {
    renamed_farm middling(1000);
    const double middling_ms = median_of(repetitions, [&] { return middling.set_profile_ms(); });
    renamed_farm large(2000);
    renamed_farm small(500);
    const auto [at_2000, at_500] = medians_in_turn(
        repetitions, [&] { return large.us_per_field(); }, [&] { return small.us_per_field(); });
    return {
        {"Set Profile, 1,000 fields renamed, three linked files", "ms", middling_ms, {}, {}},
        {"Set Profile, cost of a field at 2,000; beside one at 500", "us", at_2000, at_500, growth_at_most}};
}

}  // namespace kel::bench
