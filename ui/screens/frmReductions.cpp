#include "ui/screens/frmReductions.h"

#include <QPlainTextEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <QtMath>
#include <algorithm>

#include "manure/manure_messages.h"
#include "ui/widgets/box_set.h"
#include "ui/widgets/grid_view.h"
#include "ui/widgets/qt_text.h"
#include "ui/widgets/why_panel.h"

namespace kel {

namespace text = manure_messages;

namespace {
// Longer texts scroll.
constexpr int instruction_lines = 14;
constexpr int warning_lines = 8;
constexpr int slack_px = 6;  // or the scroll bar shows

// As high as its text is at this width, but no higher than so many lines.
void fit_to_text(QPlainTextEdit* passage, int width_px, int most_lines) {
    const int margin = 2 * (passage->frameWidth() + qCeil(passage->document()->documentMargin())) + slack_px;
    const QFontMetrics font = passage->fontMetrics();
    const QRect room(0, 0, width_px - margin, 0);
    const int text_px = font.boundingRect(room, Qt::TextWordWrap, passage->toPlainText()).height();
    passage->setFixedHeight(std::min(text_px, most_lines * font.lineSpacing()) + margin);
}
}  // namespace

frmReductions::frmReductions(application_state& state, prompts& person, report_desk& desk)
    : module_screen("frmReductions", qt(text::title)), module_(state, person), state_(state), desk_(desk) {
    module_.manure_load_stuff();
    instructions_ = new_passage("lblReductions_instruction", tr("Instructions"));
    instructions_->setFrameStyle(QFrame::NoFrame);
    instructions_->viewport()->setAutoFillBackground(false);
    views_ = new QStackedWidget(this);
    views_->addWidget(table_page());
    views_->addWidget(result_page());
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(instructions_);
    layout->addWidget(views_, 1);
    add_entry_boxes();
    use_history(module_.history());
    use_explanations(views_, explained_by(module_, {{"lblReductions_instruction", "250 kg field limit"},
                                                    {"txtReductions_warnings", "Closed periods"}}));
    show_view();
}

// Text of any length that can be read, selected and copied, but not changed.
QPlainTextEdit* frmReductions::new_passage(const char* name, const QString& accessible_name) {
    auto* passage = new QPlainTextEdit(this);
    passage->setObjectName(name);
    passage->setAccessibleName(accessible_name);
    passage->setReadOnly(true);
    passage->setTabChangesFocus(true);
    return passage;
}

QWidget* frmReductions::table_page() {
    auto* page = new QWidget(this);
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    table_ = new grid_view(module_.applications(), "MSFlexGridReductions", page);
    table_->setAccessibleName(tr("Slurry and manure applications"));
    layout->addWidget(table_, 1);
    auto* row = new QHBoxLayout;
    add_command(row, tr("&Calculate"), "cmdReductions_calculate", [this] {
        module_.calculate();
        show_view();
    });
    add_save(row, tr("&Save"), "cmdReductions_save", [this] {
        const bool done = module_.save();
        if (done) emit saved();
        return done;
    });
    add_command(row, tr("&Open Assessments"), "cmdReductions_open", [this] {
        state_.picker_caller = picker_module::manure;
        emit years_wanted();
    });
    add_import(row, *table_, "Reductions_import",
               [this](import_mode mode) { return module_.import_records(mode); });
    row->addStretch();
    add_command(row, tr("Close &Module"), "cmdReductions_cancel", [this] { close(); });
    layout->addLayout(row);
    return page;
}

QWidget* frmReductions::result_page() {
    auto* page = new QWidget(this);
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    results_ = new grid_view(module_.results(), "MSFlexGridReductions_result", page);
    results_->setAccessibleName(tr("Nitrogen available from manures and slurries"));
    layout->addWidget(results_, 1);
    warnings_ = new_passage("txtReductions_warnings", tr("Warnings"));
    layout->addWidget(warnings_);
    auto* row = new QHBoxLayout;
    add_command(row, tr("&Report"), "cmdReductions_report", [this] { module_.report(desk_); });
    row->addStretch();
    add_command(row, tr("&Back"), "cmdReductions_back", [this] {
        module_.back();
        show_view();
    });
    layout->addLayout(row);
    return page;
}

void frmReductions::add_entry_boxes() {
    using module = manure_module;
    const std::vector buttons{erase_button(runs(module_, &module::erase_row))};
    // clang-format off
    add_boxes(*table_, [this](int row, int column) { return module_.click(row, column); }, {
        {manure_box::field, "Reductions_fieldID", runs(module_, &module::enter_field), buttons},
        {manure_box::manure, "Reductions_manure", runs(module_, &module::enter_manure), buttons},
        {manure_box::incorporation, "Reductions_incorporation", runs(module_, &module::enter_incorporation), buttons},
        {manure_box::day, "Reductions_date", runs(module_, &module::enter_date), buttons},
        {manure_box::area, "Reductions_area", runs(module_, &module::enter_area), buttons},
        {manure_box::amount, "Reductions_amount", runs(module_, &module::enter_amount), buttons},
        {manure_box::n_content, "Reductions_N", runs(module_, &module::enter_n_content), buttons},
    });
    // clang-format on
}

void frmReductions::refresh() {
    table_->refresh();
    results_->refresh();
    // Manures that begin alike differ at their ends.
    table_->fit_column(manure_column::manure);
}

void frmReductions::reload() {
    module_.manure_load_stuff();
    show_view();
}

void frmReductions::resizeEvent(QResizeEvent* event) {
    module_screen::resizeEvent(event);
    fit_passages();
}

void frmReductions::fit_passages() {
    const int width_px = contentsRect().marginsRemoved(layout()->contentsMargins()).width();
    fit_to_text(instructions_, width_px, instruction_lines);
    fit_to_text(warnings_, width_px, warning_lines);
}

void frmReductions::show_view() {
    refresh();
    instructions_->setPlainText(qt(module_.instructions()));
    warnings_->setPlainText(qt(module_.warnings()));
    fit_passages();
    views_->setCurrentIndex(module_.results_shown() ? 1 : 0);
    (module_.results_shown() ? results_ : table_)->setFocus();
}

}  // namespace kel
