#include "ui/screens/frmInorganic.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "inorganic/inorganic_messages.h"
#include "ui/screens/application_form.h"
#include "ui/widgets/box_set.h"
#include "ui/widgets/grid_view.h"
#include "ui/widgets/qt_text.h"
#include "ui/widgets/why_panel.h"

namespace kel {

namespace text = inorganic_messages;

namespace {
constexpr int dialog_width_px = 740;
}

frmInorganic::frmInorganic(application_state& state, prompts& person, report_desk& desk)
    : module_screen("frmInorganic", qt(text::title)), module_(state, person), state_(state), desk_(desk) {
    module_.inorganic_load_stuff();
    auto* layout = new QVBoxLayout(this);
    auto* told = new_text("lblInorganic_instruction", this);
    told->setText(qt(text::instruction));
    layout->addWidget(told);
    grid_ = new grid_view(module_.applications(), "MSFlexGridInorganic", this);
    grid_->setAccessibleName(qt(text::title));
    layout->addWidget(grid_, 1);
    add_commands(layout);
    add_entry_boxes();
    use_history(module_.history());
    use_explanations(grid_, explained_by(module_));
    grid_->setFocus();
}

void frmInorganic::add_commands(QBoxLayout* layout) {
    auto* row = new QHBoxLayout;
    add_save(row, tr("&Save the data below"), "cmdInorganic_save", [this] { return module_.save(); });
    add_command(row, tr("&Generate Report"), "cmdInorganic_report", [this] { module_.report(desk_); });
    add_command(row, tr("&Open Assessments"), "cmdInorganic_open", [this] {
        state_.picker_caller = picker_module::inorganic;
        emit years_wanted();
    });
    add_command(row, tr("&Delete Row"), "cmdInorganic_delete", [this] {
        module_.delete_row(grid_->current_row());
        refresh();
    });
    row->addStretch();
    add_command(row, tr("Close &Module"), "cmdInorganic_cancel", [this] { close(); });
    layout->addLayout(row);
}

void frmInorganic::add_entry_boxes() {
    using module = inorganic_module;
    // clang-format off
    box_set* boxes = add_boxes(*grid_, [this](int row, int column) { return module_.click(row, column); }, {
        {inorganic_box::field, "Inorganic_field", runs(module_, &module::enter_field)},
        {inorganic_box::application, "Inorganic_applic", runs(module_, &module::enter_application), {}, nullptr,
            runs(module_, &module::enter_pasted)},
    });
    // clang-format on
    boxes->set_paste_year([this] { return calendar_year(); });
    entry_box* dialog = boxes->box(inorganic_box::application);
    dialog->setFixedWidth(dialog_width_px);
    application_ = new application_form("Inorganic_applic", dialog);
    application_->on_pick([this](date day) { return module_.pick_date(grid_->current_row(), day); });
    dialog->use_form(application_);
    set_calendar_year();
}

int frmInorganic::calendar_year() const {
    return module_.calendar_year().value_or(year_of(desk_.today()));
}

void frmInorganic::set_calendar_year() {
    application_->set_year(calendar_year());
}

void frmInorganic::refresh() {
    grid_->refresh();
}

void frmInorganic::reload() {
    module_.inorganic_load_stuff();
    set_calendar_year();
    refresh();
}

}  // namespace kel
