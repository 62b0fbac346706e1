#include "ui/screens/frmInorganic.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "inorganic/inorganic_messages.h"
#include "ui/screens/application_box.h"
#include "ui/widgets/entry_box.h"
#include "ui/widgets/grid_view.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace text = inorganic_messages;

namespace {

// The dialog opens with the focus where the table was clicked.
application_part part_of(int column) {
    switch (column) {
        case inorganic_column::type:
            return application_part::type;
        case inorganic_column::amount:
            return application_part::amount;
        case inorganic_column::content:
            return application_part::content;
        case inorganic_column::comments:
            return application_part::comments;
        default:
            return application_part::day;
    }
}

}  // namespace

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
    add_field_box();
    add_application_box();
    connect(grid_, &grid_view::cell_chosen, this, &frmInorganic::open_box);
    grid_->setFocus();
}

void frmInorganic::add_commands(QBoxLayout* layout) {
    auto* row = new QHBoxLayout;
    add_command(row, tr("&Save the data below"), "cmdInorganic_save", [this] { module_.save(); });
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

void frmInorganic::add_field_box() {
    field_box_ = new_box("Inorganic_field", *grid_);
    field_box_->use_list({});
    field_box_->on_enter(
        [this] { return module_.enter_field(grid_->current_row(), field_box_->chosen().value_or("")); });
}

void frmInorganic::add_application_box() {
    application_box_ = new application_box("Inorganic_applic", *grid_, this);
    adopt_box(application_box_);
    application_box_->on_pick([this](date day) { return module_.pick_date(grid_->current_row(), day); });
    application_box_->on_application([this](const fertiliser_application& entered) {
        return module_.enter_application(grid_->current_row(), entered);
    });
    set_calendar_year();
}

void frmInorganic::set_calendar_year() {
    application_box_->set_year(module_.calendar_year().value_or(year_of(desk_.today())));
}

void frmInorganic::open_box(int row, int column) {
    switch (module_.click(row, column)) {
        case inorganic_box::field: {
            QStringList names;
            for (const std::string& name : module_.field_names())
                names << qt(name);
            field_box_->use_list(names);
            field_box_->open(qt(text::field_caption), {}, grid_->currentIndex().data().toString());
            break;
        }
        case inorganic_box::application:
            application_box_->open_application(module_.application_of(row), part_of(column));
            break;
        case inorganic_box::none:
            break;
    }
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
