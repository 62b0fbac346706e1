// The season calendar on its real screen with 100 fields: opened, and painted after a key; worked out from
// the file for 100 and for 1,000 fields. What answers a key has one frame of the screen, 16 ms.
#include <memory>

#include "core/farm_fields.h"
#include "rules/months.h"
#include "standing/season_calendar.h"
#include "tools/bench/bench_farm.h"
#include "tools/bench/bench_screen.h"
#include "tools/bench/groups.h"
#include "tools/screen_driver.h"
#include "ui/screens/frmCalendar.h"
#include "ui/screens/season_view.h"

namespace kel::bench {

namespace {

constexpr int fields_usual = 100;
constexpr int fields_many = 1000;
constexpr int applications = 10;
constexpr int openings = 5;
constexpr int keys = 41;
constexpr double frame_ms = 16;
constexpr double growth_at_most = 1.5;

// Every field with both bands, ten manures and ten fertilisers.
void write_season(const std::string& path) {
    const database file(path);
    const auto fields = read_farm_fields(file);
    save_transaction save(file);
    for (const char* table : {"Land", "Manure_applic", "Inorganic N"})
        file.delete_rows(table);
    recordset land = file.open("Land");
    recordset manures = file.open("Manure_applic");
    recordset fertilisers = file.open("Inorganic N");
    for (const farm_field& field : fields) {
        land.add_new();
        land.set("Field Area ID", field.name);
        land.set("Crop", "Other / Other");
        for (int month = 1; month <= months_in_year; ++month)
            land.set(month_name(month), month < 8 ? "0" : month < 11 ? "Closed" : "5");
        land.update();
        for (int i = 0; i < applications; ++i) {
            manures.add_new();
            manures.set("Field Area ID", field.name);
            manures.set("Manure Type", "Dairy slurry - low dry matter (2%)");
            manures.set("Date", make_date(3 + i, 1 + i, 2025));
            manures.set("Total N Applic Rate", "24.5");
            manures.update();
            fertilisers.add_new();
            fertilisers.set("Field Area ID", field.name);
            fertilisers.set("Type", "Urea");
            fertilisers.set("Date", make_date(13 + i, 1 + i, 2025));
            fertilisers.update();
        }
    }
    recordset type = file.open("Type");
    type.edit();
    type.set("Year", make_date(19, 12, 2024));
    type.update();
    save.commit();
}

double reading_ms(int fields) {
    bench_farm farm(fields);
    write_season(farm.state.assess_file);
    return median_of(openings, [&] { return cpu_ms_of([&] { season_of(farm.state); }); });
}

}  // namespace

std::vector<bench_line> calendar_bench() {
    bench_desktop desktop;
    bench_farm farm(fields_usual);
    write_season(farm.state.assess_file);
    report_desk desk = desktop.desk(farm.state);
    frmCalendar screen(farm.state, desktop.person, desk);
    screen.resize(1220, 720);
    const double opened = cpu_ms_of([&] {
        screen.show();
        drive::settle();
    });
    auto* view = drive::control<season_view>(&screen, "calSeason");
    const auto key_ms = [&](Qt::Key key) {
        return median_of(keys,
                         [&] { return painted_ms({view->viewport()}, [&] { drive::key(view, key); }); });
    };
    const double few = reading_ms(fields_usual);
    const double many = reading_ms(fields_many);
    return {
        {"Season calendar of 100 fields shown", "ms", opened, {}, {}},
        {"A day on by its key, all in view painted", "ms", key_ms(Qt::Key_Right), {}, frame_ms},
        {"A page of fields down by its key", "ms", key_ms(Qt::Key_PageDown), {}, frame_ms},
        {"Season worked out for a field, 1,000 beside 100", "ms", many / fields_many, few / fields_usual,
         growth_at_most},
    };
}

}  // namespace kel::bench
