#include "ui/screens/frmReductions.h"

#include <QCalendarWidget>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <QtMath>
#include <algorithm>

#include "manure/manure_messages.h"
#include "ui/widgets/choice_list.h"
#include "ui/widgets/entry_box.h"
#include "ui/widgets/grid_view.h"
#include "ui/widgets/qt_text.h"

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
    add_list_boxes();
    add_number_boxes();
    connect(table_, &grid_view::cell_chosen, this,
            [this](int row, int column) { open_box(module_.click(row, column)); });
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
    add_command(row, tr("&Save"), "cmdReductions_save", [this] { module_.save(); });
    add_command(row, tr("&Open Assessments"), "cmdReductions_open", [this] {
        state_.picker_caller = picker_module::manure;
        emit years_wanted();
    });
    add_missing_command(row, tr("Add records from another file"), "cmdReductions_import");
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

entry_box* frmReductions::new_entry_box(const char* name) {
    entry_box* box = new_box(name, *table_);
    box->add_erase([this] { return module_.erase_row(table_->current_row()); });
    return box;
}

void frmReductions::add_list_boxes() {
    const auto row = [this] { return table_->current_row(); };
    field_box_ = new_entry_box("Reductions_fieldID");
    field_box_->use_list({});
    field_box_->on_enter(
        [this, row] { return module_.enter_field(row(), field_box_->chosen().value_or("")); });
    manure_box_ = new_entry_box("Reductions_manure");
    QStringList types;
    for (const manure_type& type : manure_catalogue())
        types << qt(type.name);
    manure_box_->use_list(types);
    manure_box_->on_enter([this] { return enter_manure(); });
    incorporation_box_ = new_entry_box("Reductions_incorporation");
    incorporation_box_->use_choices({});
    incorporation_box_->on_enter(
        [this, row] { return module_.enter_incorporation(row(), incorporation_box_->chosen()); });
    date_box_ = new_entry_box("Reductions_date");
    date_box_->use_calendar();
    date_box_->on_enter([this, row] { return module_.enter_date(row(), date_box_->chosen_date()); });
}

void frmReductions::add_number_boxes() {
    area_box_ = new_number_entry_box("Reductions_area", &manure_module::enter_area);
    amount_box_ = new_number_entry_box("Reductions_amount", &manure_module::enter_amount);
    n_content_box_ = new_number_entry_box("Reductions_N", &manure_module::enter_n_content);
}

entry_box* frmReductions::new_number_entry_box(const char* name,
                                               bool (manure_module::*enter)(int, const std::string&)) {
    entry_box* box = new_entry_box(name);
    box->use_number_box();
    box->on_enter(
        [this, box, enter] { return (module_.*enter)(table_->current_row(), box->entered_text()); });
    return box;
}

entry_box* frmReductions::box_of(manure_box box) const {
    switch (box) {
        case manure_box::field:
            return field_box_;
        case manure_box::manure:
            return manure_box_;
        case manure_box::incorporation:
            return incorporation_box_;
        case manure_box::day:
            return date_box_;
        case manure_box::area:
            return area_box_;
        case manure_box::amount:
            return amount_box_;
        case manure_box::n_content:
            return n_content_box_;
        case manure_box::none:
            break;
    }
    return nullptr;
}

void frmReductions::open_box(const manure_opening& opening) {
    entry_box* box = box_of(opening.box);
    if (!box) return;
    if (box == field_box_) {
        QStringList names;
        for (const std::string& name : module_.field_names())
            names << qt(name);
        field_box_->use_list(names);
    }
    if (box == manure_box_)
        table_->setCurrentIndex(table_->model()->index(table_->current_row(), manure_column::manure));
    if (box == incorporation_box_)
        box->use_choices({qt(module_.choices().early), qt(module_.choices().late)});
    if (!opening.unit.empty()) box->show_unit(qt(opening.unit));
    box->open(qt(opening.caption), qt(opening.instruction), qt(opening.text));
}

// The second step opens over the same cell once the first has closed.
bool frmReductions::enter_manure() {
    const int row = table_->current_row();
    const manure_choice choice = module_.enter_manure(row, manure_box_->chosen().value_or(""));
    if (choice == manure_choice::ask_incorporation) {
        manure_box_->close_box();
        open_box(module_.opening(manure_box::incorporation, row));
    }
    return choice != manure_choice::stay;
}

void frmReductions::refresh() {
    table_->refresh();
    results_->refresh();
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
