#include "ui/screens/grass_site_page.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "ui/screens/frmGrass_new.h"
#include "ui/widgets/box_set.h"
#include "ui/widgets/grid_view.h"

namespace kel {

grass_site_page::grass_site_page(frmGrass_new& screen, grass_module& module) : QWidget(&screen) {
    setObjectName("fraSite");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    table_ = new grid_view(module.site().table(), "MSFlexGridSite", this);
    table_->setAccessibleName(tr("Grass fields"));
    layout->addWidget(table_, 1);
    add_commands(screen, module);
    add_site_boxes(screen, module);
}

void grass_site_page::add_commands(frmGrass_new& screen, grass_module& module) {
    auto* row = new QHBoxLayout;
    screen.add_step(row, tr("&Calculate"), "cmdSite_continue", [&module] { module.calculate(); });
    screen.add_save_step(row, "cmdSite_save", [&module] { return module.cmdSite_save(); });
    screen.add_step(row, tr("&Livestock and Stocking"), "cmdSite_stocking", [&module] { module.to_stock(); })
        ->setToolTip(tr("The other route: the nitrogen that the fields need to carry the farm's livestock"));
    screen.add_step(row, tr("&Rainfall and Altitude"), "cmdSite_back", [&module] { module.back(); });
    screen.add_command(row, tr("&Open Assessments"), "cmdSite_open",
                       [&screen] { screen.open_assessments(); });
    row->addStretch();
    screen.add_close(row, "cmdSite_cancel");
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
}

void grass_site_page::add_site_boxes(frmGrass_new& screen, grass_module& module) {
    using page = site_page;
    site_page& site = module.site();
    const auto clear = [&site](auto run) { return clear_button(runs(site, run)); };
    const box_button remove{tr("Delete &Row"), "delete", runs(site, &page::erase_row)};
    const box_button transfer{tr("&Transfer"), "transfer", runs(site, &page::transfer_manure)};
    const box_button manures{tr("&Manures"), "manures", runs(site, &page::open_manures)};
    // clang-format off
    screen.add_boxes(*table_, [&site](int row, int column) { return site.click(row, column); }, {
        {site_box::field, "Site_fieldID", runs(site, &page::enter_field), {clear(&page::clear_field), remove}},
        {site_box::previous, "Site_pcrop", runs(site, &page::enter_previous), {clear(&page::clear_previous), remove}},
        {site_box::clover, "Site_clover", runs(site, &page::enter_clover), {clear(&page::clear_clover), remove}},
        {site_box::use, "Site_use", runs(site, &page::enter_use)},
        {site_box::cuts, "Site_cuts_low", runs(site, &page::enter_cuts)},
        {site_box::after_low, "Site_after_low", runs(site, &page::enter_applications)},
        {site_box::after_high, "Site_after_high", runs(site, &page::enter_applications)},
        {site_box::manure_current, "Site_manure", runs(site, &page::enter_manure),
            {clear(&page::clear_manure), transfer, manures}},
        {site_box::manure_previous, "Site_pmanure", runs(site, &page::enter_manure),
            {clear(&page::clear_manure), transfer, manures}},
    });
    // clang-format on
}

void grass_site_page::refresh() {
    table_->refresh();
}

void grass_site_page::take_focus() {
    table_->setFocus();
}

}  // namespace kel
