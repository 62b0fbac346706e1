#include "ui/screens/grass_silage_page.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "grass/grass_messages.h"
#include "ui/screens/frmGrass_new.h"
#include "ui/widgets/choice_list.h"
#include "ui/widgets/grid_view.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace text = grass_messages;

namespace {
constexpr int vary_list_height_px = 130;
}

grass_silage_page::grass_silage_page(frmGrass_new& screen, grass_module& module)
    : QWidget(&screen), module_(module) {
    setObjectName("fraGrass_silage");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    table_ = new grid_view(module.silage().table(), "MSFlexGridSilage", this);
    table_->setAccessibleName(qt(text::silage_section));
    layout->addWidget(table_, 1);
    summary_ = screen.new_text("lblGrass_summary", this);
    layout->addWidget(summary_);
    layout->addWidget(vary_ = vary_panel(screen));
    layout->addWidget(commands_ = command_panel(screen));
}

QWidget* grass_silage_page::command_panel(frmGrass_new& screen) {
    auto* panel = new QWidget(this);
    auto* row = new QHBoxLayout(panel);
    row->setContentsMargins(0, 0, 0, 0);
    screen.add_step(row, tr("&Vary Silage Production Rates"), "cmdGrass_vary",
                    [this] { module_.silage().vary(); });
    screen.add_save_step(row, "cmdGrass_rec_save", [this] { return module_.cmdGrass_rec_save(); });
    screen.add_command(row, tr("&Generate Report"), "cmdGrass_rec_report", [&screen] { screen.report(); });
    screen.add_step(row, tr("&Back"), "cmdGrass_rec_back", [this] { module_.back(); });
    row->addStretch();
    screen.add_close(row, "cmdGrass_rec_cancel");
    return panel;
}

QWidget* grass_silage_page::vary_panel(frmGrass_new& screen) {
    auto* panel = new QFrame(this);
    panel->setObjectName("fraGrass_vary");
    panel->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    auto* layout = new QVBoxLayout(panel);
    auto* lists = new QHBoxLayout;
    decrease_ = add_list(lists, "lstGrass_decrease", text::decrease_label, panel);
    increase_ = add_list(lists, "lstGrass_increase", text::increase_label, panel);
    layout->addLayout(lists);
    auto* row = new QHBoxLayout;
    screen.add_command(row, tr("Make &Alteration"), "cmdGrass_alter", [this] {
        module_.silage().make_alteration(decrease_->chosen().value_or(""), increase_->chosen().value_or(""));
        table_->refresh();
    });
    screen.add_step(row, tr("&Finish Alterations"), "cmdGrass_finish",
                    [this] { module_.silage().finish_alterations(); });
    row->addStretch();
    layout->addLayout(row);
    return panel;
}

choice_list* grass_silage_page::add_list(QBoxLayout* row, const char* name, std::string_view label,
                                         QWidget* panel) {
    auto* column = new QVBoxLayout;
    column->addWidget(new QLabel(qt(label), panel));
    auto* list = new choice_list(panel);
    list->setObjectName(name);
    list->setAccessibleName(qt(label));
    list->setFixedHeight(vary_list_height_px);
    column->addWidget(list);
    row->addLayout(column);
    return list;
}

void grass_silage_page::refresh() {
    table_->refresh();
    summary_->setText(qt(module_.silage().summary()));
    const bool varying = module_.silage().varying();
    if (varying && vary_->isHidden())
        for (choice_list* list : {decrease_, increase_}) {
            list->clear();
            for (const std::string& field : module_.silage().silage_fields())
                list->addItem(qt(field));
        }
    vary_->setVisible(varying);
    commands_->setVisible(!varying);
}

void grass_silage_page::take_focus() {
    if (module_.silage().varying())
        decrease_->setFocus();
    else
        table_->setFocus();
}

}  // namespace kel
