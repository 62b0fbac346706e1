#include "ui/widgets/why_side.h"

#include <QAction>
#include <QApplication>
#include <QLayout>
#include <QShowEvent>
#include <QTabWidget>
#include <QTimer>
#include <algorithm>
#include <memory>

#include "ui/widgets/grid_view.h"

namespace kel {

namespace {
constexpr int usual_characters = 46;
}

why_side::why_side(QWidget& screen, QWidget* tables, why_source source)
    : screen_(screen),
      tables_(tables),
      panel_(new why_panel(std::move(source), screen)),
      action_(new QAction(tr("&Why?"), this)) {
    setObjectName("splWhy");
    setChildrenCollapsible(false);
    const std::unique_ptr<QLayoutItem> replaced(
        tables->parentWidget()->layout()->replaceWidget(tables, this));
    addWidget(tables);
    addWidget(panel_);
    setStretchFactor(0, 1);
    setStretchFactor(1, 0);
    panel_->hide();
    add_action(action_, "mnuModule_why", Qt::CTRL | Qt::Key_I);
    connect(action_, &QAction::triggered, this, &why_side::toggle);
    auto* to_and_fro = new QAction(this);
    add_action(to_and_fro, "mnuModule_why_focus", Qt::Key_F6);
    connect(to_and_fro, &QAction::triggered, this, &why_side::switch_focus);
    connect(panel_, &why_panel::close_wanted, this, &why_side::close_panel);
    connect(this, &QSplitter::splitterMoved, this, &why_side::note_place);
    connect(qApp, &QApplication::focusChanged, this, &why_side::follow_focus);
    for (auto* grid : screen.findChildren<grid_view*>()) {
        grid->setContextMenuPolicy(Qt::ActionsContextMenu);
        grid->addAction(action_);
    }
    for (auto* tabs : screen.findChildren<QTabWidget*>())
        connect(tabs, &QTabWidget::currentChanged, panel_, &why_panel::refresh_soon);
}

// The focus still moves while the screen goes.
why_side::~why_side() {
    disconnect(qApp, nullptr, this, nullptr);
}

void why_side::add_action(QAction* action, const QString& name, const QKeySequence& key) {
    action->setObjectName(name);
    action->setShortcut(key);
    screen_.addAction(action);
}

void why_side::share(why_place& place) {
    place_ = &place;
    if (isVisible() && place_->open) open();
}

void why_side::follow_focus() {
    auto* grid = qobject_cast<grid_view*>(QApplication::focusWidget());
    if (grid && screen_.isAncestorOf(grid)) panel_->follow(grid);
}

// A result that has the focus is explained at once, also with the panel open.
void why_side::toggle() {
    const QWidget* focused = QApplication::focusWidget();
    const bool of_result = focused && panel_->choose_result(focused->objectName());
    if (panel_->isHidden())
        open();
    else if (!of_result)
        close_panel();
}

void why_side::open() {
    if (!panel_->isHidden()) return;
    place_->open = true;
    panel_->set_zoom(place_->zoom);
    keep_tables_narrow();
    panel_->show();
    const int wanted =
        place_->width_px > 0 ? place_->width_px : fontMetrics().averageCharWidth() * usual_characters;
    const int width_px = std::min(wanted, width() / 2);
    setSizes({width() - width_px, width_px});
    QTimer::singleShot(0, panel_, &why_panel::keep_cell_in_view);  // once the table has its new width
}

// Tables that claim more than what is left would widen the window beyond its screen.
void why_side::keep_tables_narrow() {
    const int room = width() - handleWidth() - panel_->minimumWidth();
    const int claimed = tables_->minimumSizeHint().width();
    tables_->setMinimumWidth(claimed > room ? std::max(1, room) : 0);
}

void why_side::close_panel() {
    if (panel_->isHidden()) return;
    const bool had_focus = panel_->has_focus();
    note_place();
    place_->open = false;
    panel_->hide();
    tables_->setMinimumWidth(0);
    if (had_focus) panel_->give_focus_back();
}

void why_side::switch_focus() {
    if (panel_->isHidden()) open();
    if (panel_->has_focus())
        panel_->give_focus_back();
    else
        panel_->take_focus();
}

void why_side::note_place() {
    if (panel_->isHidden()) return;
    place_->width_px = panel_->width();
    place_->zoom = panel_->zoom();
}

// As the panel was left on another screen.
void why_side::showEvent(QShowEvent* event) {
    QSplitter::showEvent(event);
    if (event->spontaneous()) return;
    if (place_->open)
        open();
    else
        close_panel();
}

void why_side::hideEvent(QHideEvent* event) {
    QSplitter::hideEvent(event);
    if (!event->spontaneous()) note_place();
}

}  // namespace kel
