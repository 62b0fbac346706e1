// Step 2 with 1,000 fields and 30 stock lines: what follows from an entry up to the painted screen, the Save
// beside the same updates by bare prepared statements, and the sum over the slices of a lagoon beside a plain
// loop.
#include <QTabWidget>
#include <array>
#include <cmath>
#include <span>
#include <stdexcept>

#include "core/assessment_files.h"
#include "storage/slurry_production.h"
#include "storage/storage_module.h"
#include "tools/bench/bench_bare.h"
#include "tools/bench/bench_screen.h"
#include "tools/bench/groups.h"
#include "tools/screen_driver.h"
#include "ui/screens/frmStorage.h"
#include "ui/screens/storage_chart.h"
#include "ui/widgets/grid_view.h"

namespace kel::bench {

namespace {

constexpr int stock_lines = 30;
constexpr int screen_fields = 1000;
constexpr int large_fields = 2000;
constexpr int small_fields = 500;
constexpr int small_runs = large_fields / small_fields;
constexpr int repetitions = 31;
constexpr int few_repetitions = 5;
constexpr int edits = 31;
constexpr int lagoon_calls = 200;
constexpr double frame_ms = 16;
constexpr double bare_ratio_at_most = 1.5;
constexpr double growth_at_most = 1.2;

// Half of a year's plan fits into the store, so that every change of a rate moves the chart.
void add_store(const database& db) {
    recordset stores = db.open("Slurry_store");
    stores.add_new();
    stores.set("Store_name", "Steading tank");
    stores.set("Store_shape", store_shapes()[0]);
    stores.set("Store_depth", "20.3");
    stores.set("Store_length", "400");
    stores.set("Store_width", "300");
    stores.set("Store_%", "50");
    stores.set("Rain_area", "120000");
    stores.update();
}

void add_stock(const database& db) {
    recordset rows = db.open("Slurry_animals");
    for (int line = 0; line < stock_lines; ++line) {
        const auto units = slurry_units();
        const slurry_unit& unit = units[static_cast<std::size_t>(line) % units.size()];
        const std::string number = std::to_string(100 + line);
        rows.add_new();
        rows.set("Stock Unit", unit.name);
        rows.set("Number", number);
        rows.set("Percent", "75");
        rows.set("Volume", unit.volume);
        rows.set("Total Volume", line_volume(unit.volume, "75", number));
        for (int month = 1; month <= 12; ++month)
            rows.set(month_name(month), month % 3 == 0 ? not_on_slurry_system : on_slurry_system);
        rows.update();
    }
}

// A farm whose first two pages are answered.
class answered_farm : public bench_farm {
  public:
    explicit answered_farm(int fields) : bench_farm(fields) {
        state.kel_year_start = read_assessment_year(state.assess_file);
        state.farm_town = "Kirriemuir";
        const database db(state.assess_file);
        save_transaction save(db);
        write_store_in(db, {}, {.cows = "150", .pig_pens = "0", .actual = ""});
        add_store(db);
        add_stock(db);
        save.commit();
    }
};

class plan_on_screen {
  public:
    plan_on_screen() {
        screen_ = std::make_unique<frmStorage>(farm_.state, desktop_.person, desk_);
        screen_->resize(1260, 760);
        screen_->show();
        drive::press(screen_.get(), "cmdStorage_continue");
        drive::press(screen_.get(), "cmdStores_continue");
        chart_ = drive::control<storage_chart>(screen_.get(), "MSChartStorage")->viewport();
    }

    void turn_to(plan_tab tab) {
        drive::control<QTabWidget>(screen_.get(), "SSTabStorage")->setCurrentIndex(static_cast<int>(tab));
        drive::settle();
    }

    /// From Enter in the cell's box to totals, tables and chart painted. The total stands in the last row.
    double entry_ms(const QString& table, int row, int column, const QString& box, const QString& text,
                    int total_column) {
        auto* grid = drive::control<grid_view>(screen_.get(), table);
        const auto total = [&] {
            return grid->model()->index(grid->model()->rowCount() - 1, total_column).data();
        };
        const QVariant before = total();
        drive::click_cell(grid, row, column);
        drive::type(screen_.get(), "txt" + box, text);
        QWidget* edit = drive::control(screen_.get(), "txt" + box);
        drive::settle();
        const double spent =
            painted_ms({grid->viewport(), chart_}, [&] { drive::key(edit, Qt::Key_Return); });
        if (total() == before)
            throw std::runtime_error("the entry did not change the total in " + table.toStdString());
        return spent;
    }

  private:
    bench_desktop desktop_;
    answered_farm farm_{screen_fields};
    report_desk desk_{desktop_.desk(farm_.state)};
    std::unique_ptr<frmStorage> screen_;
    QWidget* chart_ = nullptr;
};

std::vector<bench_line> screen_lines() {
    plan_on_screen plan;
    std::vector<bench_line> lines;
    const auto add = [&](const char* measure, plan_tab tab, auto&& entry_ms) {
        plan.turn_to(tab);
        int step = 0;
        lines.push_back({measure, "ms", median_of(edits, [&] { return entry_ms(step++); }), {}, frame_ms});
    };
    constexpr int april = 3;
    add("Step 2, 1,000 fields, 30 stock lines: a stock number entered", plan_tab::production, [&](int step) {
        return plan.entry_ms("MSFlexGridStorage_animals", first_stock_row + step % stock_lines,
                             production_column::number, "Storage_number", QString::number(300 + step),
                             production_column::january + april);
    });
    add("The same: an area of a month entered", plan_tab::land, [&](int step) {
        return plan.entry_ms("MSFlexGridStorage_land", screen_fields / 2 + step, plan_column::january + april,
                             "Storage_land_month", QString::number(1 + 0.125 * (step % 4)),
                             plan_column::january + april);
    });
    add("The same: a rate of a month entered", plan_tab::spreading, [&](int step) {
        return plan.entry_ms("MSFlexGridStorage_spreading", screen_fields / 2 + step,
                             spreading_column::january + april, "Storage_slurry_applic",
                             QString::number(26 + step % 4), spreading_column::january + april);
    });
    return lines;
}

// The columns of [Land] that the plan writes stand between the field's name and its total area.
std::string plan_update(const SQLite::Database& db) {
    SQLite::Statement columns(db, "SELECT * FROM [Land]");
    std::string sql = "UPDATE [Land] SET ";
    for (int c = 1; c < columns.getColumnCount() - 1; ++c)
        sql += (c == 1 ? "[" : ", [") + std::string(columns.getColumnName(c)) + "] = ?";
    return sql + " WHERE [Field Area ID] = ?";
}

void update_plan(SQLite::Database& db, const table_rows& land) {
    SQLite::Statement update(db, plan_update(db));
    for (const auto& row : land) {
        update.bindNoCopy(static_cast<int>(row.size()) - 1, row.front());
        run_bare(update, std::span(row).subspan(1, row.size() - 2));
    }
}

class planned_farm {
  public:
    explicit planned_farm(int fields) : farm_(fields) {
        module_.storage_load_stuff();
        if (!module_.storage_cont1() || !module_.storage_cont2())
            throw std::runtime_error("the plan was not reached");
        module_.save_storage();
        bare_file_ = farm_.copy_of_file("bare.kel");
        for (const char* table : tables)
            stored_.push_back(rows_of(bare_file_, table));
    }

    double save_ms() {
        return cpu_ms_of([this] { module_.save_storage(); });
    }
    /// The same with another rate in every field.
    double changed_save_ms(int turn) {
        constexpr int april = spreading_column::january + 3;
        for (int row = 0; row < module_.plan().fields().fields(); ++row)
            module_.plan().enter_slurry_applic(row, april, std::to_string(20 + turn % 2));
        return save_ms();
    }
    double save_us_per_field(int runs) {
        double spent = 0;
        for (int run = 0; run < runs; ++run)
            spent += save_ms();
        return spent * 1000 / (runs * static_cast<double>(stored_.front().size()));
    }
    double bare_save_ms() {
        return cpu_ms_of([this] {
            save_bare(bare_file_, [this](SQLite::Database& db) {
                update_plan(db, stored_[0]);
                write_bare(db, tables[1], stored_[1]);
                write_bare(db, tables[2], stored_[2]);
            });
        });
    }
    void check_rows() const {
        for (const std::string& file : {farm_.state.assess_file, bare_file_})
            for (std::size_t t = 0; t < tables.size(); ++t)
                if (rows_of(file, tables[t]) != stored_[t])
                    throw std::runtime_error("the saves that were compared did not write the same rows");
    }

  private:
    static constexpr std::array<const char*, 3> tables{"Land", "Slurry_animals", "Misc"};

    answered_farm farm_;
    silent_person person_;
    storage_module module_{farm_.state, person_};
    std::string bare_file_;
    std::vector<table_rows> stored_;
};

std::vector<bench_line> save_lines() {
    planned_farm middling(screen_fields);
    const auto [ours, bare] = medians_in_turn(
        repetitions, [&] { return middling.save_ms(); }, [&] { return middling.bare_save_ms(); });
    middling.check_rows();
    int turn = 0;
    const double changed = median_of(few_repetitions, [&] { return middling.changed_save_ms(turn++); });
    planned_farm large(large_fields);
    planned_farm small(small_fields);
    const auto [at_2000, at_500] = medians_in_turn(
        repetitions, [&] { return large.save_us_per_field(1); },
        [&] { return small.save_us_per_field(small_runs); });
    return {
        {"Step 2 Save, 1,000 fields as they stood, 30 stock lines; beside bare statements", "ms", ours, bare,
         bare_ratio_at_most},
        {"The same with all of the fields' rows changed", "ms", changed, bare, {}},
        {"Step 2 Save, cost of a field at 2,000; beside one at 500", "us", at_2000, at_500, growth_at_most}};
}

// The same arithmetic written down once more, with nothing round it.
float plain_lagoon_loop(double depth_m, double length_m, double width_m, double angle_degrees) {
    const double slope = std::tan(3.142 / 180 * angle_degrees);
    float volume = 0;
    for (double x = 0.76; x <= depth_m; x += 0.01) {
        const double inset_m = 2 * x / slope;
        volume = static_cast<float>(volume + (length_m - inset_m) * 0.01 * (width_m - inset_m));
    }
    return volume;
}

/// us of a call of `capacity` for lagoons 10 m deep of lengths from 50 m on; the volumes go into `total`.
template <class F>
double lagoon_us(double& total, F&& capacity) {
    return cpu_ms_of([&] {
               for (int call = 0; call < lagoon_calls; ++call)
                   total += static_cast<double>(capacity(50.0 + call));
           }) *
           1000 / lagoon_calls;
}

bench_line lagoon_line() {
    double ours_total = 0;
    double plain_total = 0;
    const auto ours = [](double length_m) {
        return store_capacity(store_shape::lagoon,
                              {.depth_m = 10, .length_m = length_m, .width_m = 40, .bank_angle_degrees = 45});
    };
    const auto plain = [](double length_m) { return plain_lagoon_loop(10, length_m, 40, 45); };
    const auto [summed, looped] = medians_in_turn(
        repetitions, [&] { return lagoon_us(ours_total, ours); },
        [&] { return lagoon_us(plain_total, plain); });
    if (ours_total != plain_total) throw std::runtime_error("the two sums of the lagoon differ");
    return {"Volume of a lagoon 10 m deep; beside a plain loop", "us", summed, looped, {}};
}

}  // namespace

std::vector<bench_line> storage_bench() {
    std::vector<bench_line> lines = screen_lines();
    for (const auto& line : save_lines())
        lines.push_back(line);
    lines.push_back(lagoon_line());
    return lines;
}

}  // namespace kel::bench
