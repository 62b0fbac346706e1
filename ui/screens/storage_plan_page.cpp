#include "ui/screens/storage_plan_page.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <array>

#include "storage/slurry_production.h"
#include "storage/storage_messages.h"
#include "ui/screens/field_use_form.h"
#include "ui/screens/frmStorage.h"
#include "ui/screens/storage_chart.h"
#include "ui/widgets/entry_box.h"
#include "ui/widgets/grid_view.h"
#include "ui/widgets/month_table.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace text = storage_messages;

namespace {

// The month in which most crops of the zones are off the field: what the harvest date starts from.
constexpr int usual_harvest_day = 31;
constexpr int usual_harvest_month = 8;

void name_enter_button(entry_box* box, const char* name) {
    const QString given = box->objectName().replace(0, 3, "cmd") + "_enter";
    box->findChild<QPushButton*>(given)->setObjectName(name);
}

}  // namespace

storage_plan_page::storage_plan_page(frmStorage& screen, const application_state& state, plan_page& page)
    : QWidget(&screen), state_(state), page_(page) {
    setObjectName("fraStorage_plan");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(tabs(screen), 5);
    chart_ = new storage_chart(this);
    layout->addWidget(chart_, 3);
    layout->addWidget(warning_panel(screen));
    add_production_boxes(screen);
    add_field_boxes(screen);
    connect(tabs_, &QTabWidget::currentChanged, this, &storage_plan_page::turn_to);
    connect(production_, &grid_view::cell_chosen, this,
            [this](int row, int column) { open_box(page_.click_production(row, column), *production_); });
    connect(land_, &grid_view::cell_chosen, this,
            [this](int row, int column) { open_box(page_.click_land(row, column), *land_); });
    connect(spreading_, &grid_view::cell_chosen, this,
            [this](int row, int column) { open_box(page_.click_spreading(row, column), *spreading_); });
}

QWidget* storage_plan_page::tabs(frmStorage& screen) {
    tabs_ = new QTabWidget(this);
    tabs_->setObjectName("SSTabStorage");
    production_ = new grid_view(page_.production(), "MSFlexGridStorage_animals", tabs_);
    production_->setAccessibleName(qt(text::production_tab));
    land_ = new grid_view(page_.land(), "MSFlexGridStorage_land", tabs_);
    land_->setAccessibleName(qt(text::land_tab));
    spreading_ = new grid_view(page_.spreading(), "MSFlexGridStorage_spreading", tabs_);
    spreading_->setAccessibleName(qt(text::spreading_tab));
    const QString closed = qt(closed_month);
    tables_ = {new month_table(*production_, {production_column::january, 1, 1, qt(not_on_slurry_system)}),
               new month_table(*land_, {plan_column::january, 0, 2, closed}),
               new month_table(*spreading_, {spreading_column::january, 0, 2, closed})};
    tabs_->addTab(production_, qt(text::production_tab));
    tabs_->addTab(land_, qt(text::land_tab));
    tabs_->addTab(spreading_tab(screen), qt(text::spreading_tab));
    screen.disable_meanwhile(tabs_->tabBar());
    return tabs_;
}

QWidget* storage_plan_page::spreading_tab(frmStorage& screen) {
    auto* tab = new QWidget(tabs_);
    auto* layout = new QVBoxLayout(tab);
    layout->setContentsMargins(0, 4, 0, 0);
    auto* row = new QHBoxLayout;
    row->setContentsMargins(4, 0, 4, 0);
    auto* transfer = screen.add_command(row, tr("Get Slurry &Data"), "Command10", [this] {
        page_.get_slurry_data();
        refresh();
    });
    transfer->setToolTip(tr("Takes the rates from the slurry and manure applications of Step 3"));
    setTabOrder(transfer, spreading_);
    row->addStretch();
    layout->addLayout(row);
    layout->addWidget(spreading_, 1);
    return tab;
}

// It keeps its room while it is hidden, so that the chart does not jump.
QWidget* storage_plan_page::warning_panel(frmStorage& screen) {
    auto* panel = new QFrame(this);
    panel->setObjectName("fraStorage_warning");
    panel->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    QSizePolicy keeps_room(QSizePolicy::Preferred, QSizePolicy::Fixed);
    keeps_room.setRetainSizeWhenHidden(true);
    panel->setSizePolicy(keeps_room);
    auto* row = new QHBoxLayout(panel);
    row->setContentsMargins(8, 4, 8, 4);
    auto* icon = new QLabel(panel);
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(side));
    row->addWidget(icon);
    warning_text_ = screen.new_text("lblStorage_warning", panel);
    QFont bold = warning_text_->font();
    bold.setBold(true);
    warning_text_->setFont(bold);
    row->addWidget(warning_text_, 1);
    warning_ = panel;
    return panel;
}

void storage_plan_page::add_production_boxes(frmStorage& screen) {
    const auto row = [this] { return production_->current_row(); };
    const auto erase = [this, row] { return page_.erase_line(row()); };
    stock_box_ = screen.new_box("Storage_stock", *production_);
    QStringList units;
    for (const slurry_unit& unit : slurry_units())
        units << qt(unit.name);
    stock_box_->use_list(units);
    stock_box_->on_enter([this, row] { return page_.enter_stock(row(), stock_box_->chosen().value_or("")); });
    stock_box_->add_erase(erase);
    number_box_ = screen.new_box("Storage_number", *production_);
    number_box_->use_number_box();
    number_box_->on_enter([this, row] { return page_.enter_number(row(), number_box_->entered_text()); });
    number_box_->add_erase(erase);
    percent_box_ = screen.new_box("Storage_percent", *production_);
    percent_box_->use_number_box();
    percent_box_->show_unit("%");
    percent_box_->on_enter([this, row] { return page_.enter_percent(row(), percent_box_->entered_text()); });
    percent_box_->add_erase(erase);
    month_box_ = screen.new_box("Storage_month", *production_);
    month_box_->use_choices({qt(on_slurry_system), qt(not_on_slurry_system)});
    month_box_->on_enter([this, row] {
        return page_.enter_month(row(), production_->current_column(), month_box_->chosen().value_or(""));
    });
}

void storage_plan_page::add_field_boxes(frmStorage& screen) {
    field_use_box_ = screen.new_box("Storage_crop", *land_);
    field_use_ = new field_use_form("Storage_crop", *field_use_box_, state_.short_date_format);
    field_use_box_->on_enter([this] { return enter_field_use(); });
    name_enter_button(field_use_box_, "cmdStorage_crop");
    land_month_box_ = screen.new_box("Storage_land_month", *land_);
    land_month_box_->use_number_box();
    land_month_box_->show_unit(tr("ha"));
    land_month_box_->on_enter([this] {
        return page_.enter_land_month(land_->current_row(), land_->current_column(),
                                      land_month_box_->entered_text());
    });
    name_enter_button(land_month_box_, "cmdStorage_land_month");
    slurry_applic_box_ = screen.new_box("Storage_slurry_applic", *spreading_);
    slurry_applic_box_->use_number_box();
    slurry_applic_box_->show_unit(tr("cubic m/ha"));
    slurry_applic_box_->on_enter([this] {
        return page_.enter_slurry_applic(spreading_->current_row(), spreading_->current_column(),
                                         slurry_applic_box_->entered_text());
    });
    name_enter_button(slurry_applic_box_, "cmdStorage_slurry_applic");
}

// The tab turned to comes to the front only once the page agrees.
void storage_plan_page::turn_to(int tab) {
    if (tab == static_cast<int>(page_.tab())) return;
    show_tab(page_.tab());
    show_tab(page_.turn_to(static_cast<plan_tab>(tab)));
}

void storage_plan_page::show_tab(plan_tab tab) {
    const QSignalBlocker quiet(tabs_);
    tabs_->setCurrentIndex(static_cast<int>(tab));
}

grid_view* storage_plan_page::front_grid() const {
    return std::array{production_, land_, spreading_}[static_cast<std::size_t>(page_.tab())];
}

void storage_plan_page::take_focus() {
    front_grid()->setFocus();
}

entry_box* storage_plan_page::box_of(storage_box box) const {
    switch (box) {
        case storage_box::stock:
            return stock_box_;
        case storage_box::number:
            return number_box_;
        case storage_box::percent:
            return percent_box_;
        case storage_box::month:
            return month_box_;
        case storage_box::land_month:
            return land_month_box_;
        case storage_box::slurry_applic:
            return slurry_applic_box_;
        case storage_box::field_use:
        case storage_box::none:
            break;
    }
    return nullptr;
}

void storage_plan_page::open_box(const storage_opening& opening, grid_view& grid) {
    if (opening.box == storage_box::field_use) return open_field_use(opening);
    if (entry_box* box = box_of(opening.box))
        box->open(qt(opening.caption), qt(opening.instruction), grid.currentIndex().data().toString());
}

void storage_plan_page::open_field_use(const storage_opening& opening) {
    const date year_end = state_.limits.year_end;
    if (year_of(year_end) != harvest_year_) {
        harvest_year_ = year_of(year_end);
        field_use_->set_harvest(make_date(usual_harvest_day, usual_harvest_month, harvest_year_));
    }
    field_use_->open(qt(opening.caption), qt(opening.instruction),
                     page_.shown_field_use(land_->current_row()));
}

bool storage_plan_page::enter_field_use() {
    const field_use_entry use = field_use_->entered();
    return page_.enter_field_use(land_->current_row(), use.shown.first, use.shown.second, use.harvest);
}

void storage_plan_page::refresh() {
    for (grid_view* grid : {production_, land_, spreading_})
        grid->refresh();
    for (month_table* table : tables_)
        table->refresh();
    show_tab(page_.tab());
    const auto& balance = page_.balance();
    chart_->setVisible(balance.has_value());
    if (balance) chart_->show_percents(balance->percent, balance->axis);
    const std::string_view told = balance ? balance->warning : std::string_view();
    warning_text_->setText(qt(told));
    warning_->setVisible(!told.empty());
}

void storage_plan_page::save_chart(const std::string& path) const {
    chart_->save_picture(path);
}

}  // namespace kel
