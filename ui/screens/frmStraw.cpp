#include "ui/screens/frmStraw.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "composting/composting_messages.h"
#include "ui/widgets/box_set.h"
#include "ui/widgets/giving_area.h"
#include "ui/widgets/grid_view.h"
#include "ui/widgets/line_editor.h"
#include "ui/widgets/qt_text.h"
#include "ui/widgets/why_panel.h"

namespace kel {

namespace text = composting_messages;

frmStraw::frmStraw(application_state& state, prompts& person, report_desk& desk)
    : module_screen("frmStraw", qt(text::title)), module_(state, person), state_(state), desk_(desk) {
    auto* layout = new QVBoxLayout(this);
    instruction_ = new_text("lblStraw_instruction", this);
    layout->addWidget(instruction_);
    views_ = new QStackedWidget(this);
    views_->addWidget(new giving_area(calculator(), "fraStraw_calculator", this));
    views_->addWidget(new giving_area(panel(), "fraStraw_recorded", this));
    layout->addWidget(views_, 1);
    use_history(module_.history());
    use_explanations(views_, explained_by(module_, composting_results()));
    show_answers();
    show_result();
    show_view();
}

QWidget* frmStraw::calculator() {
    auto* page = new QWidget(this);
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(questions());
    layout->addWidget(results());
    layout->addStretch();
    auto* row = new QHBoxLayout;
    add_command(row, tr("&Calculate"), "cmdStraw_calculate", [this] { calculate(); });
    print_ = add_command(row, tr("&Print Result"), "cmdStraw_print", [this] { module_.print_result(desk_); });
    add_command(row, tr("&View/Add to Database"), "cmdStraw_viewDB", [this] { view_database(); });
    add_command(row, tr("&Information"), "cmdStraw_help", [this] { emit help_wanted("kel_1_6.htm"); });
    add_command(row, tr("&Open Assessments"), "cmdStraw_open", [this] {
        state_.picker_caller = picker_module::straw;
        emit years_wanted();
    });
    row->addStretch();
    add_command(row, tr("Close &Module"), "cmdStraw_exit", [this] { close(); });
    layout->addLayout(row);
    return page;
}

QWidget* frmStraw::questions() {
    auto* box = new QGroupBox(this);
    box->setObjectName("fraStraw_questions");
    residue_ = new QComboBox(box);
    residue_->setObjectName("cboStraw_residue_type");
    residue_->setEditable(true);
    residue_->setInsertPolicy(QComboBox::NoInsert);
    residue_->setMaximumWidth(280);
    for (const crop_residue& residue : crop_residues())
        residue_->addItem(qt(residue.name));
    soil_n_ = new_number_box("txtStraw_soilN", box);
    sludge_ = new QRadioButton(qt(text::sludge_option), box);
    sludge_->setObjectName("optStraw_type1");
    straw_ = new QRadioButton(qt(text::straw_option), box);
    straw_->setObjectName("optStraw_type2");
    waste_n_ = new_number_box("txtStraw_waste_N", box);
    for (QLineEdit* line : {soil_n_, waste_n_}) {
        line->setMaximumWidth(140);
        connect(line, &QLineEdit::returnPressed, this, [this] { calculate(); });
    }
    auto* wastes = new QHBoxLayout;
    wastes->addWidget(sludge_);
    wastes->addWidget(straw_);
    wastes->addStretch();
    auto* form = new QFormLayout(box);
    form->setVerticalSpacing(12);
    form->addRow(qt(text::residue_question), residue_);
    form->addRow(qt(text::soil_question), soil_n_);
    form->addRow(qt(text::waste_question), wastes);
    form->addRow(qt(text::content_question), waste_n_);
    return box;
}

QWidget* frmStraw::results() {
    auto* box = new QGroupBox(this);
    box->setObjectName("fraStraw_results");
    auto* form = new QFormLayout(box);
    rate_ = new_text("lblStraw_rate", box);
    release_ = new_text("lblStraw_release", box);
    note_ = new_text("lblStraw_note", box);
    form->addRow(qt(text::rate_label), rate_);
    form->addRow(qt(text::release_label), release_);
    form->addRow(note_);
    return box;
}

QWidget* frmStraw::panel() {
    panel_ = new QGroupBox(this);
    panel_->setObjectName("fraStraw_DB");
    grid_ = new grid_view(module_.calculations(), "MSFlexGridStraw", this);
    grid_->setAccessibleName(qt(text::panel_caption_alone));
    boxes_ = add_boxes(*grid_, [](int, int) { return opening{}; },
                       {{composting_box::field, "Straw_fieldID", [this](grid_cell, const box_entry& chosen) {
                             return module_.enter_field(chosen.text());
                         }}});
    auto* layout = new QVBoxLayout(panel_);
    layout->addWidget(grid_, 1);
    auto* row = new QHBoxLayout;
    add_command(row, tr("&Add Result to Database"), "cmdStraw_DB_add", [this] {
        grid_->setCurrentIndex(grid_->model()->index(module_.calculations().data_row_count(), 0));
        boxes_->open(module_.add_result());
    });
    add_command(row, tr("&Edit Selected Row"), "cmdStraw_DB_edit", [this] { edit_row(); });
    add_command(row, tr("&Delete Selected Row"), "cmdStraw_DB_erase", [this] {
        module_.delete_row(grid_->current_row());
        refresh();
    });
    add_save(row, tr("&Save Database"), "cmdStraw_DB_save", [this] { return module_.save(); });
    add_import(row, *grid_, "Straw_DB_import",
               [this](import_mode mode) { return module_.import_records(mode); });
    add_command(row, tr("&Generate Report"), "cmdReport", [this] { module_.report(desk_); });
    row->addStretch();
    add_command(row, tr("&Close"), "cmdStraw_DB_close", [this] {
        run_save([this] { return module_.close_panel(); });
        show_view();
    });
    layout->addLayout(row);
    return panel_;
}

composting_inputs frmStraw::answers() const {
    return {.residue = from_qt(residue_->currentText()),
            .soil_n = from_qt(soil_n_->text()),
            .waste = std::string(straw_->isChecked() ? straw_waste : pms_waste),
            .waste_n = from_qt(waste_n_->text())};
}

void frmStraw::show_answers() {
    const composting_inputs& inputs = module_.inputs();
    residue_->setCurrentIndex(residue_->findText(qt(inputs.residue)));
    residue_->setEditText(qt(inputs.residue));
    soil_n_->setText(qt(inputs.soil_n));
    (inputs.waste == straw_waste ? straw_ : sludge_)->setChecked(true);
    waste_n_->setText(qt(inputs.waste_n));
}

void frmStraw::show_result() {
    const composting_shown shown = module_.shown();
    rate_->setText(qt(shown.rate));
    release_->setText(qt(shown.release));
    note_->setText(qt(shown.note));
    refresh();
}

void frmStraw::show_view() {
    instruction_->setText(qt(module_.instruction()));
    panel_->setTitle(qt(module_.panel_caption()));
    views_->setCurrentIndex(module_.panel_open() ? 1 : 0);
    refresh();
    if (module_.panel_open())
        grid_->setFocus();
    else
        residue_->setFocus();
}

void frmStraw::calculate() {
    module_.calculate(answers());
    show_result();
}

void frmStraw::view_database() {
    module_.view_database();
    show_view();
}

void frmStraw::edit_row() {
    if (!module_.edit_row(grid_->current_row())) return;
    show_answers();
    show_result();
    show_view();
}

void frmStraw::refresh() {
    grid_->refresh();
    print_->setEnabled(module_.has_result());
}

void frmStraw::reload() {
    module_.get_straw_data();
    show_view();
}

}  // namespace kel
