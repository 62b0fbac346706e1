#include "ui/screens/frmSheets.h"

#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace kel {

frmSheets::frmSheets(application_state& state, prompts& /*person*/, report_desk& desk)
    : module_screen("frmSheets", tr("Blank sheets")), state_(state), desk_(desk) {
    auto* layout = new QVBoxLayout(this);
    QLabel* intro = new_text("lblSheets_intro", this);
    intro->setText(tr(
        "Sheets to print and fill in by hand: the farm's fields with their area, the months in which they "
        "are "
        "closed in grey, and empty columns for what is applied. Type the records in afterwards, in Steps 3 "
        "and 4."));
    layout->addWidget(intro);
    auto* choice = new QHBoxLayout;
    lines_ = new QSpinBox(this);
    lines_->setObjectName("spnSheets_lines");
    lines_->setRange(1, most_lines_of_a_field);
    auto* label = new QLabel(tr("&Lines for each field (1 to %1):").arg(most_lines_of_a_field), this);
    label->setBuddy(lines_);
    choice->addWidget(label);
    choice->addWidget(lines_);
    choice->addStretch();
    layout->addLayout(choice);
    layout->addStretch();
    auto* row = new QHBoxLayout;
    add_command(row, tr("&Slurry and manure sheet"), "cmdSheets_manure",
                [this] { make(blank_sheet::manure); });
    add_command(row, tr("&Fertiliser sheet"), "cmdSheets_fertiliser",
                [this] { make(blank_sheet::fertiliser); });
    row->addStretch();
    add_command(row, tr("Close &Module"), "cmdSheets_close", [this] { close(); });
    layout->addLayout(row);
    lines_->setFocus();
}

void frmSheets::make(blank_sheet kind) {
    generate_report(desk_, file_of(kind), blank_sheet_page(season_of(state_), kind, lines_->value()),
                    screen_id::sheets, screen_id::sheets);
}

}  // namespace kel
