// Step 1's land table with 2,000 rows on its real screen: opened, scrolled and edited as a person does, each
// up to the painted screen. What answers a key has one frame of the screen, 16 ms.
#include <QScrollBar>
#include <memory>
#include <stdexcept>

#include "tools/bench/bench_farm.h"
#include "tools/bench/bench_screen.h"
#include "tools/bench/groups.h"
#include "tools/screen_driver.h"
#include "ui/screens/frmLand_new.h"
#include "ui/widgets/grid_view.h"

namespace kel::bench {

namespace {

constexpr int fields = 2000;
constexpr int openings = 5;
constexpr int pages = 60;
constexpr int edits = 41;
constexpr int grass_column = 1;
constexpr double frame_ms = 16;

class land_table {
  public:
    /// Step 1 opened anew, up to its first painting.
    double open_ms() {
        screen_.reset();
        return cpu_ms_of([this] {
            screen_ = std::make_unique<frmLand_new>(farm_.state, desktop_.person, desk_);
            screen_->resize(1220, 720);
            screen_->show();
            grid_ = drive::control<grid_view>(screen_.get(), "MSFlexGridLand");
            paint_watch(grid_->viewport()).wait_until_painted();
        });
    }

    double key_ms(Qt::Key key) {
        return painted_ms({grid_->viewport()}, [&] { drive::key(grid_, key); });
    }
    double page_by_bar_ms() {
        return painted_ms({grid_->viewport()},
                          [&] { grid_->verticalScrollBar()->triggerAction(QScrollBar::SliderPageStepAdd); });
    }

    /// The area in grass of a row in view, entered through its box.
    double edit_ms(int row) {
        const QString area = QString::number(1 + 0.25 * (row % 4));
        const double spent = painted_ms({grid_->viewport()}, [&] {
            drive::enter_number(screen_.get(), grid_, row, grass_column, "Land_area", area);
        });
        if (grid_->model()->index(row, grass_column).data().toString() != area)
            throw std::runtime_error("the area was not entered");
        return spent;
    }

    void go_to(int row) {
        grid_->setCurrentIndex(grid_->model()->index(row, grass_column));
        drive::settle();
    }

  private:
    bench_desktop desktop_;
    bench_farm farm_{fields};
    report_desk desk_{desktop_.desk(farm_.state)};
    std::unique_ptr<frmLand_new> screen_;
    grid_view* grid_ = nullptr;
};

}  // namespace

std::vector<bench_line> land_screen_bench() {
    land_table table;
    std::vector<bench_line> lines;
    const auto add = [&](const char* measure, double found, std::optional<double> at_most) {
        lines.push_back({measure, "ms", found, {}, at_most});
    };
    add("Step 1 opened with 2,000 rows", median_of(openings, [&] { return table.open_ms(); }), {});
    table.go_to(0);
    add("A page down by its key", median_of(pages, [&] { return table.key_ms(Qt::Key_PageDown); }), frame_ms);
    add("A row down by its key", median_of(pages, [&] { return table.key_ms(Qt::Key_Down); }), frame_ms);
    table.go_to(0);
    add("A page down by the scroll bar", median_of(pages, [&] { return table.page_by_bar_ms(); }), frame_ms);
    table.go_to(fields / 2);
    int row = fields / 2;
    add("An area entered by its box", median_of(edits, [&] { return table.edit_ms(row++); }), frame_ms);
    return lines;
}

}  // namespace kel::bench
