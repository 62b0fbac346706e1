#include "ui/screens/frmCrops_new.h"

#include <QLabel>
#include <QPushButton>
#include <QScopeGuard>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "crops/crop_messages.h"
#include "ui/widgets/box_set.h"
#include "ui/widgets/grid_view.h"
#include "ui/widgets/qt_text.h"
#include "ui/widgets/question_page.h"
#include "ui/widgets/why_panel.h"

namespace kel {

namespace text = crop_messages;

frmCrops_new::frmCrops_new(application_state& state, prompts& person, report_desk& desk, screens& others)
    : module_screen("frmCrops_new", qt(text::title)),
      module_(state, person, others),
      state_(state),
      desk_(desk) {
    module_.open();
    instruction_ = new_text("lblCrops_instruction", this);
    grid_ = new grid_view(module_.crops(), "MSFlexGridCrops", this);
    grid_->setAccessibleName(qt(text::title));
    views_ = new QStackedWidget(this);
    views_->addWidget(winter_page());
    views_->addWidget(grid_);
    views_->addWidget(results_page());
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(instruction_);
    layout->addWidget(views_, 1);
    add_commands(layout);
    add_entry_boxes();
    use_history(module_.history());
    use_explanations(views_, explained_by(module_, {{"Crops_winter_rain", "Winter rainfall"}}));
    show_phase();
}

QWidget* frmCrops_new::winter_page() {
    winter_ = new question_page("Crops_winter_rain", qt(text::winter_question), crop_module::winter_answers(),
                                this);
    add_command(winter_->command_row(), tr("&Enter"), "cmdCrops_winter_rain",
                [this] { enter_winter_rain(); });
    add_command(winter_->command_row(), tr("Cancel"), "cmdCrops_winter_rain_cancel", [this] { close(); });
    winter_->command_row()->addStretch();
    connect(winter_, &question_page::confirmed, this, &frmCrops_new::enter_winter_rain);
    return winter_;
}

QWidget* frmCrops_new::results_page() {
    auto* page = new QWidget(this);
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins({});
    results_ = new grid_view(module_.results(), "MSFlexGridCrops_result", page);
    results_->setAccessibleName(tr("Recommendations"));
    results_->wrap_column(crop_result_column::notes);
    layout->addWidget(results_, 1);
    auto* label = new_text("lblCrops_result", page);
    label->setText(qt(text::results_label));
    layout->addWidget(label);
    return page;
}

void frmCrops_new::add_commands(QBoxLayout* layout) {
    auto* row = new QHBoxLayout;
    table_commands_ = {
        add_command(row, tr("&Calculate"), "cmdCrops_continue", [this] { calculate(); }),
    };
    result_commands_ = {
        add_command(row, tr("&Generate Report"), "cmdCrops_print", [this] { module_.report(desk_); }),
        add_command(row, tr("&Back"), "cmdCrops_back", [this] { back(); }),
    };
    common_commands_ = {
        add_save(row, tr("&Save"), "cmdCrops_save", [this] { return module_.save(); }),
        add_command(row, tr("&Open Assessments"), "cmdCrops_open",
                    [this] {
                        state_.picker_caller = picker_module::crops;
                        emit years_wanted();
                    }),
    };
    row->addStretch();
    common_commands_.push_back(add_command(row, tr("Close &Module"), "cmdCrops_cancel", [this] { close(); }));
    layout->addLayout(row);
    setTabOrder(grid_, table_commands_.front());
}

void frmCrops_new::add_entry_boxes() {
    using module = crop_module;
    const auto run = [this](auto operation) { return runs(module_, operation); };
    const auto clear = [&](auto operation) { return clear_button(run(operation)); };
    const box_button erase{tr("Delete &Row"), "erase", run(&module::erase_row)};
    // clang-format off
    add_boxes(*grid_, [this](int row, int column) { return module_.click(row, column); }, {
        {crop_box::field, "Crops_field", run(&module::enter_field), {clear(&module::clear_field), erase}},
        {crop_box::planned_crop, "Crops_ccrop", run(&module::enter_planned_crop),
            {clear(&module::clear_planned_crop), erase}},
        {crop_box::previous_crop, "Crops_pcrop", run(&module::enter_previous_crop),
            {clear(&module::clear_previous_crop), erase}},
        {crop_box::manures, "Crops_manures", run(&module::enter_manures),
            {{tr("&Transfer data"), "transfer", run(&module::transfer)},
             {tr("&Manure record"), "applications", run(&module::open_manures)}}},
        {crop_box::question, "Crops_question", run(&module::enter_answer)},
    });
    // clang-format on
}

void frmCrops_new::show_phase() {
    const crop_phase phase = module_.phase();
    views_->setCurrentIndex(static_cast<int>(phase));
    instruction_->setText(qt(module_.instruction()));
    for (QPushButton* command : table_commands_)
        command->setVisible(phase == crop_phase::table);
    for (QPushButton* command : result_commands_)
        command->setVisible(phase == crop_phase::results);
    for (QPushButton* command : common_commands_)
        command->setVisible(phase != crop_phase::winter_question);
    refresh();
    if (phase == crop_phase::winter_question) {
        winter_->set_answer(module_.winter_answer());
        winter_->take_focus();
    } else {
        (phase == crop_phase::table ? grid_ : results_)->setFocus();
    }
}

// A file that cannot be written leaves the results, too. Where nothing changes the focus stays, too: it may
// be in an open box.
bool frmCrops_new::may_close() {
    const crop_phase before = module_.phase();
    const auto shown = qScopeGuard([this, before] {
        if (module_.phase() != before) show_phase();
    });
    return module_.close();
}

void frmCrops_new::refresh() {
    grid_->refresh();
    results_->refresh();
}

void frmCrops_new::reload() {
    module_.crop_load_stuff();
    show_phase();
}

void frmCrops_new::enter_winter_rain() {
    if (module_.enter_winter_rain(winter_->answer())) show_phase();
}

void frmCrops_new::calculate() {
    if (module_.calculate()) show_phase();
}

void frmCrops_new::back() {
    const auto shown = qScopeGuard([this] { show_phase(); });
    module_.back();
}

}  // namespace kel
