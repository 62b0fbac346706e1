#include "tools/bench/bench_screen.h"

#include <QEvent>
#include <QWidget>
#include <stdexcept>

#include "tools/screen_driver.h"
#include "ui/today.h"

namespace kel::bench {

namespace {
constexpr int most_rounds = 100;
}

paint_watch::paint_watch(QWidget* watched) {
    watched->installEventFilter(this);
}

void paint_watch::wait_until_painted() {
    drive::settle();
    for (int round = 0; paintings_ == 0 && round < most_rounds; ++round)
        drive::settle();
    if (paintings_ == 0) throw std::runtime_error("what was measured was not painted");
    paintings_ = 0;
}

bool paint_watch::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Paint) ++paintings_;
    return QObject::eventFilter(watched, event);
}

report_desk bench_desktop::desk(application_state& state) {
    return {state, viewer_, today, {}};
}

}  // namespace kel::bench
