#include "ui/screens/grass_results_page.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/screens/frmGrass_new.h"
#include "ui/widgets/grid_view.h"
#include "ui/widgets/qt_text.h"

namespace kel {

grass_results_page::grass_results_page(frmGrass_new& screen, grass_module& module)
    : QWidget(&screen), module_(module) {
    setObjectName("fraSite_result");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    table_ = new grid_view(module.site().results(), "MSFlexGridSite_result", this);
    table_->setAccessibleName(tr("Nitrogen recommendations, kg/ha"));
    layout->addWidget(table_, 1);
    source_ = screen.new_text("lblGrass_source", this);
    layout->addWidget(source_);
    auto* row = new QHBoxLayout;
    screen.add_command(row, tr("&Generate Report"), "cmdGrass_report", [&screen] { screen.report(); });
    screen.add_step(row, tr("&Back"), "cmdGrass_back", [&module] { module.back(); });
    row->addStretch();
    screen.add_close(row, "cmdGrass_cancel");
    layout->addLayout(row);
}

void grass_results_page::refresh() {
    table_->refresh();
    source_->setText(qt(module_.site().figures_source()));
}

void grass_results_page::take_focus() {
    table_->setFocus();
}

}  // namespace kel
