// The nitrogen requirement of crops with a row for each field: Calculate with the recommendations that it
// leaves, its growth with the farm, opening and Save beside bare prepared statements, and the report with the
// manures of three years.
#include <stdexcept>

#include "core/farm_fields.h"
#include "crops/crop_module.h"
#include "crops/crop_report.h"
#include "rules/manure_history.h"
#include "tools/bench/bench_bare.h"
#include "tools/bench/groups.h"

namespace kel::bench {

namespace {

constexpr int rows_usual = 1000;
constexpr int rows_small = 500;
constexpr int rows_large = 2000;
constexpr int repetitions = 31;
constexpr int report_repetitions = 5;
constexpr int linked_years = 3;
constexpr double calculate_ms_at_most = 100;
constexpr double growth_at_most = 1.2;
constexpr double bare_ratio_at_most = 1.5;
constexpr double report_ms_at_most = 1000;

class no_screens : public screens {
  public:
    void open(screen_id) override {}
    void open_in_place_of(screen_id, screen_id) override {}
    bool exists(screen_id) const override { return true; }
    bool in_view(screen_id) const override { return false; }
};

// A cereal, a potato and a vegetable in turn, with most of what a row can hold.
constexpr const char* planned[] = {"WW", "WPOT", "CAB", "SB (F/high N)"};
constexpr const char* previous[] = {"K", "SB", "LEEK 0", "WW"};
constexpr const char* groups[] = {"5", "1", "3", "1"};

void write_crops(const std::string& file) {
    const database db(file);
    const auto fields = read_farm_fields(db);
    save_transaction save(db);
    db.delete_rows("Crops");
    recordset rows = db.open("Crops");
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const auto kind = i % 4;
        rows.add_new();
        for (const auto& [column, text] : std::initializer_list<std::pair<const char*, std::string>>{
                 {"Field Area ID", fields[i].name},
                 {"Soil Type", fields[i].soil},
                 {"Next Crop", planned[kind]},
                 {"Previous or Current Crop", previous[kind]},
                 {"N Residue Group", groups[kind]},
                 {"Intended Market Adjustment (kg/ha)", "30"},
                 {"Take-all Adjustment (kg/ha)", "20"},
                 {"Manures Adjustment (kg/ha)", "24.34"},
                 {"Previous Manures Adjustment (kg/ha)", "10"},
                 {"Winter Rainfall Adjustment (kg/ha)", "10"},
                 {"Spring Rainfall Adjustment (kg/ha)", "10"},
                 {"Spring Rainfall Status", "High"},
                 {"Hdate p_crop", "2024-08-20"},
                 {"Hdate c_crop", "2025-08-20"},
                 {"Sowing date", "2024-10-01"},
                 {"Winter Rainfall Status", "High"}})
            rows.set(column, text);
        rows.update();
    }
    save.commit();
}

void write_manures(const std::string& file) {
    const database db(file);
    const auto fields = read_farm_fields(db);
    save_transaction save(db);
    db.delete_rows("Manure_applic");
    recordset rows = db.open("Manure_applic");
    for (const farm_field& field : fields) {
        rows.add_new();
        rows.set("Field Area ID", field.name);
        rows.set("Manure Type", "Dairy slurry - high dry matter (10%)");
        rows.set("Incorporation", "Over 6 hours");
        rows.set("Date", "2025-03-01");
        rows.set("Applic Rate", "25");
        rows.update();
    }
    save.commit();
}

class cropped_farm {
  public:
    explicit cropped_farm(int fields) : farm_(fields, linked_years) {
        write_crops(farm_.state.assess_file);
        for (const std::string& file :
             {farm_.state.assess_file, farm_.state.prev1_file, farm_.state.prev2_file})
            write_manures(file);
        bare_file_ = farm_.copy_of_file("bare.kel");
        stored_ = rows_of(bare_file_, "Crops");
        module_.open();
        module_.enter_winter_rain(0);
        module_.calculate();
        module_.back();
    }

    double calculate_ms() {
        return cpu_ms_of([this] {
            module_.calculate();
            module_.back();
        });
    }
    double calculate_us_per_row() { return calculate_ms() * 1000 / static_cast<double>(stored_.size()); }
    double open_ms() {
        const double spent = cpu_ms_of([this] { module_.open(); });
        module_.enter_winter_rain(0);
        return spent;
    }
    double bare_open_ms() {
        return cpu_ms_of([this] {
            rows_of(farm_.state.assess_file, "Field Data");
            rows_of(farm_.state.assess_file, "Crops");
        });
    }
    double save_ms() {
        return cpu_ms_of([this] { module_.save(); });
    }
    double bare_save_ms() {
        return cpu_ms_of([this] {
            save_bare(bare_file_, [this](SQLite::Database& db) { write_bare(db, "Crops", stored_); });
        });
    }
    double report_ms() {
        module_.calculate();
        const double spent = cpu_ms_of([this] {
            crop_report(module_.crops(), module_.results(), manure_history(open_manure_years(farm_.state)));
        });
        module_.back();
        return spent;
    }
    void check_rows() const {
        for (const std::string& file : {farm_.state.assess_file, bare_file_})
            if (rows_of(file, "Crops") != stored_)
                throw std::runtime_error("the saves that were compared did not write the same rows");
    }

  private:
    bench_farm farm_;
    silent_person person_;
    no_screens screens_;
    crop_module module_{farm_.state, person_, screens_};
    std::string bare_file_;
    table_rows stored_;
};

}  // namespace

std::vector<bench_line> crops_bench() {
    cropped_farm usual(rows_usual);
    cropped_farm small(rows_small);
    cropped_farm large(rows_large);
    const double calculated = median_of(repetitions, [&] { return usual.calculate_ms(); });
    const auto [at_large, at_small] = medians_in_turn(
        repetitions, [&] { return large.calculate_us_per_row(); },
        [&] { return small.calculate_us_per_row(); });
    const auto [opened, bare_opened] = medians_in_turn(
        repetitions, [&] { return usual.open_ms(); }, [&] { return usual.bare_open_ms(); });
    const auto [saved, bare_saved] = medians_in_turn(
        repetitions, [&] { return usual.save_ms(); }, [&] { return usual.bare_save_ms(); });
    const double reported = median_of(report_repetitions, [&] { return usual.report_ms(); });
    usual.check_rows();
    return {
        {"Crops Calculate and its recommendations, 1,000 rows", "ms", calculated, std::nullopt,
         calculate_ms_at_most},
        {"Crops Calculate, cost of a row at 2,000; beside one at 500", "us", at_large, at_small,
         growth_at_most},
        {"Crops opening, 1,000 rows; beside bare statements", "ms", opened, bare_opened, bare_ratio_at_most},
        {"Crops Save, 1,000 rows; beside bare statements", "ms", saved, bare_saved, bare_ratio_at_most},
        {"Crops report, 1,000 rows, manures of three years", "ms", reported, std::nullopt,
         report_ms_at_most}};
}

}  // namespace kel::bench
