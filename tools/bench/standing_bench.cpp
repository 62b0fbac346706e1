// Where a farm stands: read and judged from its files, and written as a page. A farm of 60 fields with three
// linked years is what an adviser has most of.
#include "core/assessment_files.h"
#include "reports/report_page.h"
#include "standing/farm_standing.h"
#include "standing/standing_report.h"
#include "tools/bench/bench_farm.h"
#include "tools/bench/groups.h"

namespace kel::bench {

namespace {

constexpr int fields_adviser = 60;
constexpr int fields_usual = 100;
constexpr int fields_large = 1000;
constexpr int repetitions = 21;
constexpr double adviser_ms_at_most = 25;
constexpr double page_ms_at_most = 100;
constexpr double growth_at_most = 1.2;

class judged_farm {
  public:
    explicit judged_farm(int fields) : farm_(fields, 3), rain_(farm_.state.places.climate_tables()) {}

    double standing_ms() {
        return median_of(repetitions, [this] { return cpu_ms_of([this] { judge(); }); });
    }
    double page_ms() {
        return median_of(repetitions, [this] {
            return cpu_ms_of([this] {
                write_page(farm_.folder() + "/" + std::string(standing_report_file),
                           framed_page(standing_report(judge()), make_date(15, 11, 2026), "the bench"));
            });
        });
    }

  private:
    farm_standing judge() {
        farm_standing farm = standing_of(linked_paths(farm_.state), rain_);
        if (!farm.trouble.empty()) throw file_error(farm.files.current, farm.trouble);
        return farm;
    }

    bench_farm farm_;
    town_rain rain_;
};

}  // namespace

std::vector<bench_line> standing_bench() {
    const double page = judged_farm(fields_usual).page_ms();
    const double large = judged_farm(fields_large).page_ms();
    return {
        {"where a farm stands: 60 fields, 3 linked years",
         "ms",
         judged_farm(fields_adviser).standing_ms(),
         {},
         adviser_ms_at_most},
        {"where a farm stands: the page of 100 fields", "ms", page, {}, page_ms_at_most},
        {"where a farm stands: a field of the page, 1,000 beside 100", "ms", large / fields_large,
         page / fields_usual, growth_at_most},
    };
}

}  // namespace kel::bench
