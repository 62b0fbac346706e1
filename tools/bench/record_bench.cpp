// The field record on a farm with twenty applications to each field in each of two files: one field, the
// report of all and its growth with the farm; and records taken over from another file beside their plain
// load.
#include "core/assessment_files.h"
#include "core/farm_fields.h"
#include "core/record_import.h"
#include "land/land_grids.h"
#include "record/record_module.h"
#include "tools/bench/bench_farm.h"
#include "tools/bench/groups.h"

namespace kel::bench {

namespace {

constexpr int fields_usual = 1000;
constexpr int fields_small = 250;
constexpr int rows_of_each_kind = 10;
constexpr int imported_rows = 2000;
constexpr int repetitions = 31;
constexpr int report_repetitions = 5;
constexpr double field_ms_at_most = 16;
constexpr double report_ms_at_most = 1000;
constexpr double growth_at_most = 1.2;
constexpr double import_ratio_at_most = 2;

void write_applications(const std::string& file, int year) {
    const database db(file);
    const auto fields = read_farm_fields(db);
    save_transaction save(db);
    db.delete_rows("Manure_applic");
    db.delete_rows("Inorganic N");
    recordset manures = db.open("Manure_applic");
    recordset inorganics = db.open("Inorganic N");
    for (int i = 0; i < rows_of_each_kind; ++i)
        for (const farm_field& field : fields) {
            manures.add_new();
            manures.set("Field Area ID", field.name);
            manures.set("Manure Type", "Dairy slurry - high dry matter (10%)");
            manures.set("Date", make_date(1 + i, 10, year));
            manures.set("Applic Rate", "25");
            manures.set("Total N Applic Rate", "24.5");
            manures.update();
            inorganics.add_new();
            inorganics.set("Field Area ID", field.name);
            inorganics.set("Type", "Ammonium nitrate");
            inorganics.set("Date", make_date(1 + i, 11, year));
            inorganics.set("Amount", "50");
            inorganics.set("Total N", "17.2");
            inorganics.update();
        }
    save.commit();
}

// Wants the report of all fields.
class reporting_person : public silent_person {
  public:
    answer ask(const message& /*box*/) override { return answer::no; }
};

class no_viewer : public report_viewer {
  public:
    void wait_cursor(bool /*on*/) override {}
    void hide_screen(screen_id /*id*/) override {}
    void show(const viewer_request& /*request*/) override {}
};

class recorded_farm {
  public:
    explicit recorded_farm(int fields) : farm_(fields, 2) {
        farm_.state.kel_year_start = read_assessment_year(farm_.state.assess_file);
        const int year = year_of(farm_.state.kel_year_start.value());
        write_applications(farm_.state.assess_file, year + 1);
        write_applications(farm_.state.prev1_file, year);
        module_.record_load_stuff();
    }

    double field_ms() {
        const std::string& field = module_.field_names()[module_.field_names().size() / 2];
        return median_of(repetitions, [&] { return cpu_ms_of([&] { module_.select_field(field); }); });
    }
    double report_ms() {
        report_desk desk{farm_.state, viewer_, [] { return make_date(15, 11, 2026); }, "the bench"};
        return median_of(report_repetitions, [&] { return cpu_ms_of([&] { module_.report(desk); }); });
    }

  private:
    bench_farm farm_;
    reporting_person person_;
    no_viewer viewer_;
    record_module module_{farm_.state, person_};
};

compared import_and_load_ms() {
    const bench_farm farm(imported_rows);
    const database db(farm.state.assess_file);
    const std::vector<farm_field> fields = read_farm_fields(db);
    load_messages told;
    return medians_in_turn(
        repetitions,
        [&] {
            text_grid land = empty_land_grid();
            return cpu_ms_of([&] { import_land({db, fields}, import_mode::add, land, told); });
        },
        [&] { return cpu_ms_of([&] { load_land(db, fields, told); }); });
}

}  // namespace

std::vector<bench_line> record_bench() {
    recorded_farm usual(fields_usual);
    const double report = usual.report_ms();
    const double small = recorded_farm(fields_small).report_ms();
    const compared import = import_and_load_ms();
    return {
        {"field record: one field of 1,000, 20 rows in each of 2 files",
         "ms",
         usual.field_ms(),
         {},
         field_ms_at_most},
        {"field record: report of all 1,000 fields", "ms", report, {}, report_ms_at_most},
        {"field record: a field of the report, 1,000 beside 250", "ms", report / fields_usual,
         small / fields_small, growth_at_most},
        {"add records: 2,000 rows of [Land] beside their load", "ms", import.ours, import.reference,
         import_ratio_at_most},
    };
}

}  // namespace kel::bench
