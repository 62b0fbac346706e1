// Screens under measure: what was done counts only once it has been painted.
#pragma once

#include <QObject>
#include <array>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "reports/report_viewer.h"
#include "tools/bench/bench_farm.h"
#include "tools/bench/bench_table.h"
#include "ui/kel_application.h"

class QWidget;

namespace kel::bench {

/// Counts the paintings of a widget.
class paint_watch : public QObject {
  public:
    explicit paint_watch(QWidget* watched);

    /// Lets the event loop run until the widget has been painted since the last call. Throws
    /// std::runtime_error if that does not happen.
    void wait_until_painted();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    int paintings_ = 0;
};

/// CPU time of `action` up to the painting of every one of the widgets, ms.
template <class F>
double painted_ms(std::initializer_list<QWidget*> widgets, F&& action) {
    std::vector<std::unique_ptr<paint_watch>> watches;
    for (QWidget* widget : widgets)
        watches.push_back(std::make_unique<paint_watch>(widget));
    return cpu_ms_of([&] {
        action();
        for (const auto& watch : watches)
            watch->wait_until_painted();
    });
}

/// The application in which screens are measured, with nobody to talk to and no viewer.
class bench_desktop {
  public:
    bench_desktop() { application_.set_prompts(&person); }

    report_desk desk(application_state& state);

    silent_person person;

  private:
    class no_viewer : public report_viewer {
      public:
        void wait_cursor(bool) override {}
        void hide_screen(screen_id) override {}
        void show(const viewer_request&) override {}
    };

    int argc_ = 1;
    std::string name_ = "kel_bench";
    std::array<char*, 2> argv_{name_.data(), nullptr};
    kel_application application_{argc_, argv_.data()};
    no_viewer viewer_;
};

}  // namespace kel::bench
