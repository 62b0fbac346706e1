#include "tests/support/sample_chain.h"

#include "core/whole_file.h"

namespace kel::test {

std::vector<sample_year> sample_years() {
    const std::string farm = stage_folder() + "/kel_calc/User_files/Mains of Tullifern ";
    return {{farm + "2022-23.kel", make_date(19, 12, 2022)},
            {farm + "2023-24.kel", make_date(19, 12, 2023)},
            {farm + "2024-25.kel", make_date(19, 12, 2024)}};
}

sample_chain_test::sample_chain_test() {
    for (const sample_year& year : sample_years()) {
        files.push_back(path(std::to_string(year_of(year.start)) + ".kel"));
        copy_whole_file(year.path, files.back());
    }
}

void sample_chain_test::open_year(std::size_t year) {
    state.assess_file = files.at(year);
    state.prev1_file = year > 0 ? files[year - 1] : "";
    state.prev2_file = year > 1 ? files[year - 2] : "";
    state.kel_year_start = sample_years()[year].start;
    state.limits = year_limits_of(*state.kel_year_start);
    state.farm_name = "Mains of Tullifern";
    state.farm_zone = "Strathmore and Fife KEL";
    state.farm_town = "Kirriemuir";
    state.manure_caller = manure_opener::front;
}

}  // namespace kel::test
