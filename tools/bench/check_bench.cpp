// What kel-check takes for an adviser's folder: 170 farms of 60 fields, three linked years of each, ten
// applications a year to each field.
#include <malloc.h>

#include <filesystem>

#include "core/assessment_store.h"
#include "standing/folder_check.h"
#include "tools/bench/bench_applications.h"
#include "tools/bench/bench_farm.h"
#include "tools/bench/groups.h"

namespace kel::bench {

namespace {

namespace fs = std::filesystem;

constexpr int farms = 170;
constexpr int fields = 60;
constexpr int linked_years = 3;
constexpr double at_most_s = 5;

void rename_farm(const std::string& file, const std::string& name) {
    recordset profile = database(file).open("FarmProfile");
    profile.edit();
    profile.set("Name", name);
    profile.update();
}

void fill(const std::string& folder, const application_state& state) {
    for (int farm = 0; farm < farms; ++farm) {
        const std::string own = folder + "/" + std::to_string(farm);
        fs::create_directories(own);
        for (const std::string& file : {state.assess_file, state.prev1_file, state.prev2_file}) {
            const std::string copy = own + "/" + file_name_of(file);
            fs::copy_file(file, copy);
            rename_farm(copy, "Farm " + std::to_string(farm));
        }
    }
}

}  // namespace

std::vector<bench_line> check_bench() {
    const bench_farm farm(fields, linked_years);
    for (const std::string& file : {farm.state.assess_file, farm.state.prev1_file, farm.state.prev2_file})
        write_applications(file);
    const std::string folder = farm.folder() + "/all";
    fill(folder, farm.state);

    const std::size_t held_before = mallinfo2().uordblks;
    folder_check check(folder, farm.state.places.climate_tables());
    const double seconds = cpu_ms_of([&] {
                               while (check.step()) {
                               }
                           }) /
                           1000;
    const double kept_kib = static_cast<double>(mallinfo2().uordblks - held_before) / 1024;
    return {{"kel-check, 170 farms of 60 fields, 3 years", "s", seconds, std::nullopt, at_most_s},
            {"Memory that it keeps of a file", "KiB", kept_kib / (farms * linked_years), std::nullopt,
             std::nullopt}};
}

}  // namespace kel::bench
