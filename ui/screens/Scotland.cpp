#include "ui/screens/Scotland.h"

#include <QAction>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "profile/profile_messages.h"
#include "ui/screens/map_view.h"
#include "ui/widgets/choice_list.h"
#include "ui/widgets/giving_area.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace {

// In characters.
constexpr int side_width = 55;
constexpr int value_width = 26;

QLabel* value_label(const char* name, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    label->setMinimumWidth(characters_px(*label, value_width));
    return label;
}

QString place_text(const map_place& place) {
    QString text = qt(place.location);
    if (place.grid_number) text += QString("  (%1)").arg(*place.grid_number);
    return text;
}

}  // namespace

Scotland::Scotland(application_state& state, prompts& person, profile_module& profile)
    : module_(state, person, profile) {
    setObjectName("Scotland");
    setWindowTitle(tr("Scotland: Soil, Environmental Risk Potentials and Climate Database"));
    map_ = new map_view(module_.zone_squares(), this);
    auto* centre = new QWidget(this);
    auto* layout = new QHBoxLayout(centre);
    layout->setSpacing(16);
    layout->addWidget(map_, 1);
    layout->addWidget(side_panel());
    setCentralWidget(centre);
    add_menu();
    connect(map_, &map_view::pointer_moved, this, [this](int x, int y) {
        module_.pointer_move(static_cast<float>(x), static_cast<float>(y));
        refresh_pointer();
    });
    connect(map_, &map_view::map_clicked, this, &Scotland::click_map);
    connect(map_, &map_view::square_confirmed, this, &Scotland::click_map);
    connect(map_, &map_view::square_stepped, this, [this](int dx, int dy) {
        module_.arrow_move(dx, dy);
        map_->mark_square(module_.square());
        refresh_pointer();
    });
    refresh_pointer();
    refresh_place();
    map_->setFocus();
}

QWidget* Scotland::side_panel() {
    auto* side = new QWidget(this);
    auto* panel = new QWidget;
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(0, 0, 0, 0);
    auto* hint =
        new QLabel(tr("Click on the map where the farm lies, or move the square with the arrow keys and "
                      "press Enter. Then choose the nearest town."),
                   panel);
    hint->setWordWrap(true);
    column->addWidget(hint);

    column->addWidget(legend_panel(panel));

    auto* under = new QGroupBox(tr("Under the pointer"), panel);
    auto* under_form = new QFormLayout(under);
    pointer_ = value_label("lblScotland_pointer", under);
    under_form->addRow(tr("Location:"), pointer_);
    column->addWidget(under);

    auto* chosen = new QGroupBox(tr("Chosen"), panel);
    auto* form = new QFormLayout(chosen);
    location_ = value_label("lblScotland_location", chosen);
    number_ = value_label("lblScotland_gridnumber", chosen);
    zone_ = value_label("lblScotland_kel", chosen);
    form->addRow(tr("Location:"), location_);
    form->addRow(tr("Grid number:"), number_);
    form->addRow(tr("KEL:"), zone_);
    column->addWidget(chosen);

    town_prompt_ = new QLabel("\u2192 " + qt(profile_messages::town_prompt), panel);
    town_prompt_->setObjectName("lblScotland_town");
    town_prompt_->setWordWrap(true);
    towns_ = new choice_list(panel);
    towns_->setObjectName("lstScotland_town");
    towns_->setAccessibleName(tr("Towns"));
    connect(towns_, &QListWidget::itemSelectionChanged, this,
            [this] { module_.select_town(towns_->chosen().value_or("")); });
    connect(towns_, &QListWidget::itemActivated, this, &Scotland::enter);
    column->addWidget(town_prompt_);
    column->addWidget(towns_, 1);
    column->addStretch();

    auto* whole = new QVBoxLayout(side);
    whole->setContentsMargins(0, 0, 0, 0);
    auto* area = new giving_area(panel, "fraScotland_side", side);
    side->setFixedWidth(std::max(characters_px(*side, side_width), area->minimumSizeHint().width()));
    whole->addWidget(area, 1);
    whole->addLayout(button_row());
    return side;
}

QWidget* Scotland::legend_panel(QWidget* parent) const {
    auto* zones = new QGroupBox(tr("Zones"), parent);
    auto* legend = new QFormLayout(zones);
    legend->setVerticalSpacing(3);
    for (const auto& entry : map_->legend()) {
        QPixmap swatch(14, 14);
        swatch.fill(entry.colour);
        auto* mark = new QLabel(zones);
        mark->setPixmap(swatch);
        legend->addRow(mark, new QLabel(qt(entry.zone), zones));
    }
    return zones;
}

QLayout* Scotland::button_row() {
    auto* buttons = new QHBoxLayout;
    auto* enter_button = new QPushButton(tr("E&nter"), this);
    enter_button->setObjectName("cmdScotland_enter");
    auto* cancel_button = new QPushButton(tr("&Cancel"), this);
    cancel_button->setObjectName("cmdScotland_cancel");
    buttons->addStretch();
    buttons->addWidget(enter_button);
    buttons->addWidget(cancel_button);
    connect(enter_button, &QPushButton::clicked, this, &Scotland::enter);
    connect(cancel_button, &QPushButton::clicked, this, &QWidget::close);
    return buttons;
}

void Scotland::add_menu() {
    QAction* grid = menuBar()->addMenu(tr("&Map"))->addAction(tr("&Grid On/Off"));
    grid->setObjectName("mnuScotland_grid");
    grid->setCheckable(true);
    grid->setChecked(true);
    connect(grid, &QAction::toggled, map_, &map_view::show_grid);
}

void Scotland::click_map() {
    module_.click();
    map_->mark_square(module_.marker_visible() ? std::optional(module_.marker()) : std::nullopt);
    refresh_place();
}

void Scotland::refresh_pointer() {
    const map_square square = module_.square();
    pointer_->setText(tr("%1\nx %2, y %3; square %4, %5")
                          .arg(place_text(module_.pointer_place()))
                          .arg(std::lround(module_.pointer_x()))
                          .arg(std::lround(module_.pointer_y()))
                          .arg(square.x)
                          .arg(square.y));
    map_->setCursor(module_.custom_pointer() ? Qt::CrossCursor : Qt::ArrowCursor);
}

void Scotland::refresh_place() {
    location_->setText(qt(module_.place().location));
    const auto number = module_.place().grid_number;
    number_->setText(number ? QString::number(*number) : QString());
    zone_->setText(qt(module_.zone()));
    town_prompt_->setVisible(module_.towns_visible());
    towns_->setVisible(module_.towns_visible());
    towns_->clear();
    for (const std::string& town : module_.towns())
        towns_->addItem(qt(town));
    towns_->setCurrentItem(nullptr);
}

void Scotland::enter() {
    if (module_.enter()) close();
}

void Scotland::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    QMainWindow::keyPressEvent(event);
}

void Scotland::closeEvent(QCloseEvent* event) {
    QMainWindow::closeEvent(event);
    emit closed();
}

}  // namespace kel
