#include "ui/screens/grass_stock_page.h"

#include <QPushButton>
#include <QSignalBlocker>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include "grass/grass_messages.h"
#include "ui/screens/frmGrass_new.h"
#include "ui/widgets/box_set.h"
#include "ui/widgets/grid_view.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace text = grass_messages;

grass_stock_page::grass_stock_page(frmGrass_new& screen, grass_module& module)
    : QWidget(&screen), module_(module) {
    setObjectName("fraGrass_stock");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    tabs_ = new QTabWidget(this);
    tabs_->setObjectName("SSTabGrass");
    tabs_->addTab(livestock_tab(screen), qt(text::livestock_tab));
    tabs_->addTab(stocking_tab(screen), qt(text::stocking_tab));
    layout->addWidget(tabs_);
    screen.disable_meanwhile(tabs_->tabBar());
    add_livestock_boxes(screen);
    add_stocking_boxes(screen);
    connect(tabs_, &QTabWidget::currentChanged, &screen, [this, &screen](int tab) {
        module_.turn_to(static_cast<stock_tab>(tab));
        screen.show_page();
    });
}

QWidget* grass_stock_page::livestock_tab(frmGrass_new& screen) {
    auto* tab = new QWidget(tabs_);
    auto* layout = new QVBoxLayout(tab);
    livestock_ = new grid_view(module_.livestock().table(), "MSFlexGridGrass_LU", tab);
    livestock_->setAccessibleName(qt(text::livestock_tab));
    layout->addWidget(livestock_, 1);
    auto* row = new QHBoxLayout;
    screen.add_saving_step(row, "cmdLU_continue", [this] { return module_.cmdLU_continue(); });
    screen.add_save_step(row, "cmdLU_save", [this] { return module_.cmdLU_save(); });
    screen.add_step(row, tr("&Back to the Site Table"), "cmdLU_back", [this] { module_.back(); });
    row->addStretch();
    screen.add_close(row, "cmdLU_cancel");
    layout->addLayout(row);
    return tab;
}

QWidget* grass_stock_page::stocking_tab(frmGrass_new& screen) {
    auto* tab = new QWidget(tabs_);
    auto* layout = new QVBoxLayout(tab);
    stocking_ = new grid_view(module_.stocking().table(), "MSFlexGridSU", tab);
    stocking_->setAccessibleName(qt(text::stocking_tab));
    layout->addWidget(stocking_, 1);
    auto* row = new QHBoxLayout;
    screen.add_saving_step(row, "cmdSU_continue", [this] { return module_.cmdSU_continue(); });
    screen.add_save_step(row, "cmdGrass_SU_save", [this] { return module_.cmdGrass_SU_save(); });
    screen.add_command(row, tr("C&hange Database"), "cmdSU_database",
                       [this] { stocking_boxes_->open(module_.change_database()); });
    screen.add_step(row, tr("&Back to the Site Table"), "cmdSU_back", [this] { module_.back(); });
    row->addStretch();
    screen.add_close(row, "cmdSU_cancel");
    layout->addLayout(row);
    return tab;
}

void grass_stock_page::add_livestock_boxes(frmGrass_new& screen) {
    using page = livestock_page;
    livestock_page& livestock = module_.livestock();
    const std::vector<box_button> buttons{clear_button(runs(livestock, &page::clear_cell)),
                                          erase_button(runs(livestock, &page::erase_row))};
    // clang-format off
    screen.add_boxes(*livestock_, [&livestock](int row, int column) { return livestock.click(row, column); }, {
        {livestock_box::type, "LU_type", runs(livestock, &page::enter_type), buttons},
        {livestock_box::number, "LU_number", runs(livestock, &page::enter_number), buttons},
        {livestock_box::time, "LU_time", runs(livestock, &page::enter_time), buttons},
    });
    // clang-format on
}

void grass_stock_page::add_stocking_boxes(frmGrass_new& screen) {
    using page = stocking_page;
    stocking_page& stocking = module_.stocking();
    const std::vector<box_button> clear{clear_button(runs(stocking, &page::clear_cell))};
    const auto change = [this](grid_cell, const box_entry& entered) {
        return module_.enter_change_database(entered.text());
    };
    // clang-format off
    stocking_boxes_ = screen.add_boxes(*stocking_, [&stocking](int row, int column) { return stocking.click(row, column); }, {
        {stocking_box::use, "SU_use", runs(stocking, &page::enter_use)},
        {stocking_box::type, "SU_type", runs(stocking, &page::enter_type), clear},
        {stocking_box::number, "SU_number", runs(stocking, &page::enter_number), clear},
        {stocking_box::time, "SU_time", runs(stocking, &page::enter_time), clear},
        {stocking_box::change_database, "SU_database", change},
    });
    // clang-format on
}

grid_view* grass_stock_page::front_grid() const {
    return module_.tab() == stock_tab::livestock ? livestock_ : stocking_;
}

void grass_stock_page::refresh() {
    livestock_->refresh();
    stocking_->refresh();
    for (int c = stocking_column::first_group; c < stocking_column::grazing_lus; c += columns_per_group)
        stocking_->fit_column(c);
    const QSignalBlocker quiet(tabs_);
    tabs_->setCurrentIndex(static_cast<int>(module_.tab()));
}

void grass_stock_page::take_focus() {
    front_grid()->setFocus();
}

}  // namespace kel
