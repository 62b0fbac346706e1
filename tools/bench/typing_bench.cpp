// Typing as in a spreadsheet, measured: a cell typed and one step undone at 2,000 rows up to the painted
// screen, what the steps of undo keep in memory, and 500 applications pasted into Step 3.
#include <malloc.h>

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <memory>
#include <stdexcept>

#include "core/assessment_files.h"
#include "core/grid_history.h"
#include "core/paste_prompts.h"
#include "land/land_module.h"
#include "tools/bench/bench_farm.h"
#include "tools/bench/bench_screen.h"
#include "tools/bench/groups.h"
#include "tools/screen_driver.h"
#include "ui/screens/frmLand_new.h"
#include "ui/screens/frmReductions.h"
#include "ui/widgets/grid_view.h"

namespace kel::bench {

namespace {

constexpr int rows = 2000;
constexpr int edits = 41;
constexpr int undo_steps = 200;
constexpr int pasted_lines = 500;
constexpr int pastes = 3;
constexpr int grass_column = 1;
constexpr double typed_ms_at_most = 8;
constexpr double undo_ms_at_most = 16;
constexpr double undo_mb_at_most = 20;
constexpr double paste_ms_at_most = 2000;

std::string area_of(int step) {
    return std::to_string(1 + step % 2);
}

class land_table {
  public:
    land_table() {
        screen_->resize(1220, 720);
        screen_->show();
        screen_->activateWindow();  // for the keys of its menu
        drive::settle();
    }

    /// A figure typed on the cell and Enter: from Enter to the painted table, the next row current.
    double typed_ms(int step) {
        constexpr int row = rows / 2;
        grid_->setFocus();
        grid_->go_to(row, grass_column);
        drive::settle();
        QKeyEvent digit(QEvent::KeyPress, Qt::Key_1, Qt::NoModifier, QString::fromStdString(area_of(step)));
        QApplication::sendEvent(grid_, &digit);
        drive::settle();
        QWidget* edit = drive::control(screen_.get(), "txtLand_area");
        const double spent = painted_ms({grid_->viewport()}, [&] { drive::key(edit, Qt::Key_Return); });
        if (grid_->current_row() != row + 1) throw std::runtime_error("Enter did not go down");
        return spent;
    }
    double undo_ms() {
        grid_->setFocus();
        drive::settle();
        const auto area = [this] { return grid_->model()->index(rows / 2, grass_column).data(); };
        const QVariant before = area();
        const double spent =
            painted_ms({grid_->viewport()}, [&] { drive::key(grid_, Qt::Key_Z, Qt::ControlModifier); });
        if (area() == before) throw std::runtime_error("nothing was undone");
        return spent;
    }

  private:
    bench_desktop desktop_;
    bench_farm farm_{rows};
    report_desk desk_{desktop_.desk(farm_.state)};
    std::unique_ptr<frmLand_new> screen_ = std::make_unique<frmLand_new>(farm_.state, desktop_.person, desk_);
    grid_view* grid_ = drive::control<grid_view>(screen_.get(), "MSFlexGridLand");
};

/// MB that the steps keep, each an area entered in another row.
double undo_memory_mb() {
    bench_farm farm(rows);
    silent_person person;
    land_module module(farm.state, person);
    module.load_land_stuff();
    const auto before = mallinfo2().uordblks;
    for (int step = 0; step < undo_steps; ++step) {
        if (!module.enter_area(step, grass_column, area_of(step)).closes)
            throw std::runtime_error("the area was not entered");
        module.history().record();
    }
    return static_cast<double>(mallinfo2().uordblks - before) / (1024 * 1024);
}

// Field, incorporation and manure, a day of an open month, area and amount.
QString applications_text() {
    QString text;
    for (int line = 0; line < pasted_lines; ++line)
        text +=
            QString(
                "Nether Park %1\t\tOver 6 hours\tDairy slurry - high dry matter (10%)\t%2/%3/2025\t2\t40\n")
                .arg(line + 1)
                .arg(1 + line % 28)
                .arg(3 + line % 6);
    return text;
}

double paste_ms() {
    bench_desktop desktop;
    bench_farm farm(pasted_lines);
    application_state& state = farm.state;
    state.kel_year_start = read_assessment_year(state.assess_file);
    {
        const database db(state.assess_file);
        save_transaction save(db);
        db.delete_rows("Manure_applic");
        save.commit();
    }
    report_desk desk = desktop.desk(state);
    paste_prompts port(desktop.person);
    return median_of(pastes, [&] {
        frmReductions screen(state, port, desk);
        screen.set_paste_port(port);
        screen.show();
        auto* grid = drive::control<grid_view>(&screen, "MSFlexGridReductions");
        grid->go_to(0, 0);
        QApplication::clipboard()->setText(applications_text());
        const double spent =
            painted_ms({grid->viewport()}, [&] { drive::key(grid, Qt::Key_V, Qt::ControlModifier); });
        if (grid->model()->rowCount() != pasted_lines + 1)
            throw std::runtime_error("the applications were not pasted");
        return spent;
    });
}

}  // namespace

std::vector<bench_line> typing_bench() {
    std::vector<bench_line> lines;
    {
        land_table table;
        int step = 0;
        lines.push_back({"2,000 rows: a figure typed, from Enter to painted",
                         "ms",
                         median_of(edits, [&] { return table.typed_ms(step++); }),
                         {},
                         typed_ms_at_most});
        lines.push_back({"The same: one step undone",
                         "ms",
                         median_of(edits, [&] { return table.undo_ms(); }),
                         {},
                         undo_ms_at_most});
    }
    lines.push_back(
        {"Memory of 200 steps of undo at 2,000 rows", "MB", undo_memory_mb(), {}, undo_mb_at_most});
    lines.push_back(
        {"500 applications of five columns pasted into Step 3", "ms", paste_ms(), {}, paste_ms_at_most});
    return lines;
}

}  // namespace kel::bench
