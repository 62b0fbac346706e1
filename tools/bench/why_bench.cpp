// The panel "Why?": what the account of a cell takes on a farm of 1,000 fields with 10,000 applications in
// each of two linked years. Of each table the slowest column counts. A module's measure is a function and a
// line.
#include <algorithm>
#include <stdexcept>

#include "core/assessment_files.h"
#include "core/farm_fields.h"
#include "crops/crop_module.h"
#include "grass/grass_module.h"
#include "inorganic/inorganic_module.h"
#include "land/land_account.h"
#include "land/land_module.h"
#include "manure/manure_module.h"
#include "record/record_module.h"
#include "storage/storage_account.h"
#include "storage/storage_module.h"
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
        farm_.state.farm_town = "Kirriemuir";
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

// A row of the table for each field, the same in all.
void write_rows(const std::string& file, const char* table,
                const std::vector<std::pair<const char*, std::string>>& values) {
    const database db(file);
    const auto names = read_farm_fields(db);
    save_transaction save(db);
    db.delete_rows(table);
    recordset rows = db.open(table);
    for (const farm_field& field : names) {
        rows.add_new();
        rows.set("Field Area ID", field.name);
        for (const auto& [column, text] : values)
            rows.set(column, text);
        rows.update();
    }
    save.commit();
}

class no_screens : public screens {
  public:
    void open(screen_id) override {}
    void open_in_place_of(screen_id, screen_id) override {}
    bool exists(screen_id) const override { return true; }
    bool in_view(screen_id) const override { return false; }
};

void add_crops(large_farm& farm, std::vector<bench_line>& lines) {
    write_rows(farm.state().assess_file, "Crops",
               {{"Soil Type", "Sands"},
                {"Next Crop", "WW"},
                {"Previous or Current Crop", "WPOT"},
                {"N Residue Group", "4"},
                {"Take-all Adjustment (kg/ha)", "20"},
                {"Manures Adjustment (kg/ha)", "24.34"},
                {"Spring Rainfall Status", "High"},
                {"Hdate p_crop", "2024-08-20"},
                {"Hdate c_crop", "2025-08-20"}});
    no_screens others;
    crop_module module(farm.state(), farm.person, others);
    module.open();
    module.enter_winter_rain(0);
    lines.push_back(line("Why?, a cell of the crops", slowest_cell_ms(module, module.crops())));
    module.calculate();
    lines.push_back(line("Why?, a cell of the crops' results", slowest_cell_ms(module, module.results())));
}

void add_grass(large_farm& farm, std::vector<bench_line>& lines) {
    write_rows(farm.state().assess_file, "Site",
               {{"Soil Type", "Sands"},
                {"Previous crop", "PG"},
                {"N residue group", "6"},
                {"Clover", "Low"},
                {"Site Use", "Silage"},
                {"Cuts", "2"},
                {"Applications", "1"},
                {"Adjustment", "0"},
                {"End of season date", "2024-10-15"}});
    no_screens others;
    grass_module module(farm.state(), farm.person, others);
    module.grass_load_stuff();
    module.confirm_rain(1);
    module.confirm_altitude(0);
    lines.push_back(line("Why?, a cell of the grass fields", slowest_cell_ms(module, module.site().table())));
    module.calculate();
    lines.push_back(
        line("Why?, a cell of grassland's results", slowest_cell_ms(module, module.site().results())));
    module.to_stock();
    module.silage().fill();
    lines.push_back(
        line("Why?, a cell of the silage table", slowest_cell_ms(module, module.silage().table())));
}

void add_record(large_farm& farm, std::vector<bench_line>& lines) {
    record_module module(farm.state(), farm.person);
    module.record_load_stuff();
    lines.push_back(line("Why?, a cell of the record", slowest_cell_ms(module, module.record())));
    lines.push_back(line("Why?, a warning of the record", slowest_cell_ms(module, module.warnings())));
}

void add_inorganic(large_farm& farm, std::vector<bench_line>& lines) {
    inorganic_module module(farm.state(), farm.person);
    module.inorganic_load_stuff();
    lines.push_back(line("Why?, a cell of Step 4", slowest_cell_ms(module, module.applications())));
}

void add_land(large_farm& farm, std::vector<bench_line>& lines) {
    land_module module(farm.state(), farm.person);
    module.load_land_stuff();
    lines.push_back(line("Why?, a cell of Step 1", slowest_cell_ms(module, module.land())));
    module.calculate();
    double slowest = 0;
    for (const named_result& result : land_results())
        slowest = std::max(slowest, result_ms(module, result.name));
    lines.push_back(line("Why?, a result of Step 1", slowest));
}

void add_storage(large_farm& farm, std::vector<bench_line>& lines) {
    storage_module module(farm.state(), farm.person);
    module.storage_load_stuff();
    module.water().set_cows("100");
    module.water().set_pig_pens("10");
    const store_form tank{.name = "Tank",
                          .shape = "Square or rectangular",
                          .depth = "3",
                          .length = "60",
                          .width = "40",
                          .percent = "20",
                          .area = "2400"};
    if (!module.storage_cont1() || !module.stores().add_store(tank) || !module.storage_cont2())
        throw std::runtime_error("Step 2 stops");
    const plan_page& plan = module.plan();
    double slowest = 0;
    for (const text_grid* table : {&plan.production(), &plan.land(), &plan.spreading()})
        slowest = std::max(slowest, slowest_cell_ms(module, *table));
    lines.push_back(line("Why?, a cell of Step 2", slowest));
    for (const named_result& result : storage_results())
        slowest = std::max(slowest, result_ms(module, result.name));
    lines.push_back(line("Why?, a level of Step 2", slowest));
}

}  // namespace

std::vector<bench_line> why_bench() {
    large_farm farm;
    std::vector<bench_line> lines;
    add_manure(farm, lines);
    add_inorganic(farm, lines);
    add_crops(farm, lines);
    add_grass(farm, lines);
    add_record(farm, lines);
    add_land(farm, lines);
    add_storage(farm, lines);
    return lines;
}

}  // namespace kel::bench
