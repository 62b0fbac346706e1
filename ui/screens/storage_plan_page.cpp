#include "ui/screens/storage_plan_page.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <array>

#include "storage/slurry_production.h"
#include "storage/storage_messages.h"
#include "ui/screens/frmStorage.h"
#include "ui/screens/storage_chart.h"
#include "ui/widgets/box_set.h"
#include "ui/widgets/grid_view.h"
#include "ui/widgets/month_table.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace text = storage_messages;

namespace {
constexpr int least_rows = 4;          // in view, where the page is scrolled
constexpr int rows_without_field = 2;  // the last ones of the tables of land
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
    add_entry_boxes(screen);
    connect(tabs_, &QTabWidget::currentChanged, this, &storage_plan_page::turn_to);
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
    auto* stock_commands = new QHBoxLayout;
    screen.add_import(stock_commands, *production_, "Storage2_import",
                      [this](import_mode mode) { return page_.import_production(mode); });
    auto* land_commands = new QHBoxLayout;
    screen.add_table_import(land_commands, *land_, "Storage_import", "cmdStorage_add_import",
                            [this] { return page_.import_land(); });
    tabs_->addTab(tab(stock_commands, production_), qt(text::production_tab));
    no_land_ = screen.new_text("lblStorage_no_land", tabs_);
    no_land_->setText(
        tr("There are no fields here yet. Step 1, Land available for spreading, comes first: "
           "its fields and areas are those of this table."));
    tabs_->addTab(tab(land_commands, land_, no_land_), qt(text::land_tab));
    tabs_->addTab(spreading_tab(screen), qt(text::spreading_tab));
    screen.disable_meanwhile(tabs_->tabBar());
    return tabs_;
}

// The commands of a table stand above it.
QWidget* storage_plan_page::tab(QHBoxLayout* commands, grid_view* grid, QLabel* told) {
    auto* page = new QWidget(tabs_);
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 4, 0, 0);
    commands->setContentsMargins(4, 0, 4, 0);
    commands->addStretch();
    layout->addLayout(commands);
    if (told) layout->addWidget(told);
    grid->setMinimumHeight(grid->horizontalHeader()->height() +
                           least_rows * grid->verticalHeader()->defaultSectionSize());
    layout->addWidget(grid, 1);
    return page;
}

QWidget* storage_plan_page::spreading_tab(frmStorage& screen) {
    auto* row = new QHBoxLayout;
    auto* transfer = screen.add_command(row, tr("Get Slurry &Data"), "Command10", [this] {
        page_.get_slurry_data();
        refresh();
    });
    transfer->setToolTip(tr("Takes the rates from the slurry and manure applications of Step 3"));
    setTabOrder(transfer, spreading_);
    return tab(row, spreading_);
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

void storage_plan_page::add_entry_boxes(frmStorage& screen) {
    using page = plan_page;
    const std::vector erase{erase_button(runs(page_, &page::erase_line))};
    const auto enter_field_use = [this](grid_cell at, const box_entry& typed) {
        return page_.enter_field_use(at.row, typed.text(0), typed.text(1), typed.day(2).value());
    };
    // clang-format off
    screen.add_boxes(*production_, [this](int row, int column) { return page_.click_production(row, column); }, {
        {storage_box::stock, "Storage_stock", runs(page_, &page::enter_stock), erase},
        {storage_box::number, "Storage_number", runs(page_, &page::enter_number), erase},
        {storage_box::percent, "Storage_percent", runs(page_, &page::enter_percent), erase},
        {storage_box::month, "Storage_month", runs(page_, &page::enter_month)},
    });
    screen.add_boxes(*land_, [this](int row, int column) { return page_.click_land(row, column); }, {
        {storage_box::field_use, "Storage_crop", enter_field_use, {}, "cmdStorage_crop"},
        {storage_box::land_month, "Storage_land_month", runs(page_, &page::enter_land_month), {},
            "cmdStorage_land_month"},
    });
    screen.add_boxes(*spreading_, [this](int row, int column) { return page_.click_spreading(row, column); }, {
        {storage_box::slurry_applic, "Storage_slurry_applic", runs(page_, &page::enter_slurry_applic), {},
            "cmdStorage_slurry_applic"},
    });
    // clang-format on
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

void storage_plan_page::refresh() {
    for (grid_view* grid : {production_, land_, spreading_})
        grid->refresh();
    for (month_table* table : tables_)
        table->refresh();
    no_land_->setVisible(page_.land().row_count() <= rows_without_field);
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
