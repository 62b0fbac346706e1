// The grassland module: the fill of the silage table for a large farm and how it grows with it, Calculate of
// the site table with the reference tables read, and the saves of [Site] beside bare prepared statements.
#include <functional>
#include <stdexcept>
#include <vector>

#include "core/assessment_files.h"
#include "grass/grass_module.h"
#include "grass/livestock_units.h"
#include "grass/silage_plan.h"
#include "tools/bench/bench_bare.h"
#include "tools/bench/bench_farm.h"
#include "tools/bench/groups.h"

namespace kel::bench {

namespace {

constexpr int silage_fields = 500;
constexpr int small_fields = 250;
constexpr int large_fields = 1000;
constexpr int site_rows = 1000;
constexpr int repetitions = 31;
constexpr double frame_ms = 16;
constexpr double calculate_ms = 100;
constexpr double growth_at_most = 1.2;
constexpr double bare_ratio_at_most = 1.5;

std::vector<stocked_field> stocked_farm(int fields) {
    const auto stock = grazing_stock_list();
    std::vector<stocked_field> farm;
    for (int i = 0; i < fields; ++i) {
        stocked_field field{.field = "Field " + std::to_string(i),
                            .area_ha = "7.25",
                            .site_class = std::to_string(1 + i % 5),
                            .use = i % 3 == 0 ? "Silage" : "Grazing"};
        for (std::size_t g = 0; g < field.groups.size(); ++g)
            field.groups[g] = {std::string(stock[(g + static_cast<std::size_t>(i)) % stock.size()].type),
                               "14", "35"};
        if (i % 6 == 0) field.silage_rate = "2.345";
        farm.push_back(std::move(field));
    }
    return farm;
}

double fill_ms(const std::vector<stocked_field>& farm) {
    return cpu_ms_of([&] {
        if (fill_silage_table(farm, 5000).rows.size() != farm.size())
            throw std::runtime_error("the silage table lacks fields");
    });
}

/// Saves to the file that is open.
class saving_person : public silent_person {
  public:
    explicit saving_person(const application_state& state) : state_(state) {}
    std::string file_to_save(const file_request&) override { return state_.assess_file; }

  private:
    const application_state& state_;
};

class no_screens : public screens {
  public:
    void open(screen_id) override {}
    void open_in_place_of(screen_id, screen_id) override {}
    bool exists(screen_id) const override { return false; }
    bool in_view(screen_id) const override { return false; }
};

/// Every column of [Site] has a text, as both routes leave it.
void fill_site(const database& db) {
    save_transaction save(db);
    const text_grid columns = empty_site_grid();
    for (recordset rows = db.open("Site"); !rows.eof(); rows.move_next()) {
        rows.edit();
        for (const grid_column& column : columns.columns())
            if (column.stored.ends_with("(Type)"))
                rows.set(column.stored, "Dairy cows");
            else if (column.stored.starts_with("Livestock Group"))
                rows.set(column.stored, "12.5");
        for (const auto& [column, text] : {std::pair{"Soil Type", "Sands"},
                                           {"Site Class", "3"},
                                           {"Previous crop", "PG"},
                                           {"N residue group", "6"},
                                           {"Clover", "Low"},
                                           {"Site Use", "Grazing"},
                                           {"Cuts", "-"},
                                           {"Applications", "2"},
                                           {"Adjustment", "-110"},
                                           {"Manure current", "20.5"},
                                           {"Manure previous", "4.25"},
                                           {"End of season date", "2024-10-31"},
                                           {"Field Area Size (ha)", "7.25"},
                                           {"LUs Fed By Grazing", "10"},
                                           {"Silage Rate", "2.34"}})
            rows.set(column, text);
        rows.update();
    }
    save.commit();
}

void fill_livestock(const database& db) {
    save_transaction save(db);
    recordset rows = db.open("LU");
    for (const grazing_stock& stock : grazing_stock_list()) {
        rows.add_new();
        rows.set("Stock Type", stock.type);
        rows.set("Number of Animals", "120");
        rows.set("% Of Year Animals Are On Farm", "100");
        rows.set("LU Ratio", "1");
        rows.set("Livestock Units", "120");
        rows.update();
    }
    save.commit();
}

class grass_bench_farm : public bench_farm {
  public:
    grass_bench_farm() : bench_farm(site_rows), person(state) {
        state.kel_year_start = read_assessment_year(state.assess_file);
        fill_site(database(state.assess_file));
        fill_livestock(database(state.assess_file));
    }
    /// With both questions answered.
    std::unique_ptr<grass_module> module() {
        auto made = std::make_unique<grass_module>(state, person, shown);
        made->grass_load_stuff();
        made->confirm_rain(1);
        made->confirm_altitude(0);
        return made;
    }
    saving_person person;
    no_screens shown;
};

std::vector<bench_line> fill_lines() {
    const auto farm = stocked_farm(silage_fields);
    const auto small = stocked_farm(small_fields);
    const auto large = stocked_farm(large_fields);
    const double one = median_of(repetitions, [&] { return fill_ms(farm); });
    const auto [big, four_small] = medians_in_turn(
        repetitions, [&] { return fill_ms(large); },
        [&] {
            double sum = 0;
            for (int i = 0; i < large_fields / small_fields; ++i)
                sum += fill_ms(small);
            return sum;
        });
    return {
        {"Grassland, fill of the silage table, 500 fields of ten groups", "ms", one, std::nullopt, frame_ms},
        {"The same with 1,000 fields beside four times 250", "ms", big, four_small, growth_at_most}};
}

bench_line calculate_line(grass_bench_farm& farm) {
    const double spent = median_of(repetitions, [&] {
        const auto module = farm.module();
        const double ms = cpu_ms_of([&] { module->calculate(); });
        if (module->site().results().row_count() != site_rows)
            throw std::runtime_error("the calculation did not reach its end");
        return ms;
    });
    return {"Grassland, Calculate of 1,000 rows with the reference tables read", "ms", spent, std::nullopt,
            calculate_ms};
}

// Every row has another figure at each Save.
bench_line changed_save_line(grass_bench_farm& farm) {
    const std::string bare_file = farm.copy_of_file("changed.kel");
    const auto module = farm.module();
    table_rows rows = rows_of(bare_file, "Site");
    int turn = 0;
    const auto [ours, bare] = medians_in_turn(
        repetitions,
        [&] {
            const std::string figure = std::to_string(++turn);
            for (int row = 0; row < site_rows; ++row)
                module->site().enter_manure(row, site_column::manure_current, figure);
            return cpu_ms_of([&] { module->cmdSite_save(); });
        },
        [&] {
            for (auto& row : rows)
                row[site_column::manure_current] = std::to_string(turn);
            return cpu_ms_of(
                [&] { save_bare(bare_file, [&](SQLite::Database& db) { write_bare(db, "Site", rows); }); });
        });
    if (rows_of(farm.state.assess_file, "Site") != rows)
        throw std::runtime_error("the saves that were compared did not write the same rows");
    return {"Grassland, Save of the site table with all of its rows changed", "ms", ours, bare,
            bare_ratio_at_most};
}

/// A save, the tables that it writes, and what leads to it, which is not measured.
struct grass_save {
    const char* measure;
    std::vector<const char*> tables;
    std::function<void(grass_module&)> lead_to;
    std::function<void(grass_module&)> save;
};

// The bare statements write the rows that the first save has left.
bench_line save_line(grass_bench_farm& farm, const grass_save& measured) {
    const auto module = farm.module();
    measured.lead_to(*module);
    measured.save(*module);
    const std::string bare_file = farm.copy_of_file("bare.kel");
    std::vector<table_rows> stored;
    for (const char* table : measured.tables)
        stored.push_back(rows_of(bare_file, table));
    const auto [ours, bare] = medians_in_turn(
        repetitions,
        [&] {
            measured.lead_to(*module);
            return cpu_ms_of([&] { measured.save(*module); });
        },
        [&] {
            return cpu_ms_of([&] {
                save_bare(bare_file, [&](SQLite::Database& db) {
                    for (std::size_t t = 0; t < stored.size(); ++t)
                        write_bare(db, measured.tables[t], stored[t]);
                });
            });
        });
    for (std::size_t t = 0; t < stored.size(); ++t)
        if (rows_of(farm.state.assess_file, measured.tables[t]) != stored[t])
            throw std::runtime_error("the saves that were compared did not write the same rows");
    return {measured.measure, "ms", ours, bare, bare_ratio_at_most};
}

std::vector<grass_save> grass_saves() {
    const auto to_stock = [](grass_module& module) { module.to_stock(); };
    const auto to_silage = [](grass_module& module) {
        if (module.page() == grass_page::silage) return;
        module.to_stock();
        module.cmdSU_continue();
    };
    return {
        {"Grassland, Save of the site table, 1,000 fields as they stood; beside bare statements",
         {"Site"},
         to_stock,
         [](grass_module& module) { module.cmdSite_save(); }},
        {"Grassland, Save of the stocking table as it stood; beside bare statements",
         {"Site"},
         to_stock,
         [](grass_module& module) { module.cmdGrass_SU_save(); }},
        {"Grassland, Save of the livestock with the stocking; beside bare statements",
         {"Site", "LU"},
         to_stock,
         [](grass_module& module) { module.cmdLU_save(); }},
        {"Grassland, Save of the silage rates; beside bare statements",
         {"Site"},
         to_silage,
         [](grass_module& module) { module.cmdGrass_rec_save(); }},
        {"Grassland, 1,000 recommendations stored as the results are left; beside bare statements",
         {"Recommendations"},
         [](grass_module& module) {
             while (module.page() == grass_page::stock || module.page() == grass_page::silage)
                 module.back();
             module.calculate();
         },
         [](grass_module& module) { module.back(); }},
    };
}

}  // namespace

std::vector<bench_line> grass_bench() {
    std::vector<bench_line> lines = fill_lines();
    grass_bench_farm farm;
    lines.push_back(calculate_line(farm));
    for (const grass_save& measured : grass_saves())
        lines.push_back(save_line(farm, measured));
    lines.push_back(changed_save_line(farm));
    return lines;
}

}  // namespace kel::bench
