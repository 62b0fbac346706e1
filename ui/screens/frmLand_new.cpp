#include "ui/screens/frmLand_new.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include "land/land_messages.h"
#include "land/land_report.h"
#include "land/stock_nitrogen.h"
#include "ui/widgets/choice_list.h"
#include "ui/widgets/entry_box.h"
#include "ui/widgets/grid_view.h"
#include "ui/widgets/print_page.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace text = land_messages;

frmLand_new::frmLand_new(application_state& state, prompts& person, report_desk& desk)
    : module_screen("frmLand_new", qt(text::title)), module_(state, person), state_(state), desk_(desk) {
    module_.load_land_stuff();
    land_ = new grid_view(module_.land(), "MSFlexGridLand", this);
    land_->setAccessibleName(qt(text::land_tab));
    animals_ = new grid_view(module_.animals(), "MSFlexGridLand_animals", this);
    animals_->setAccessibleName(qt(text::stock_tab));
    tabs_ = new QTabWidget(this);
    tabs_->setObjectName("SSTabLand");
    tabs_->addTab(tab_page(qt(text::land_instruction()), land_, ""), qt(text::land_tab));
    tabs_->addTab(tab_page(qt(text::stock_instruction()), animals_, "2"), qt(text::stock_tab));
    views_ = new QStackedWidget(this);
    views_->addWidget(tabs_);
    views_->addWidget(result_page());
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(views_);
    disable_meanwhile(tabs_->tabBar());
    add_land_boxes();
    add_stock_boxes();
    connect(land_, &grid_view::cell_chosen, this,
            [this](int row, int column) { open_box(module_.click_land(row, column), *land_); });
    connect(animals_, &grid_view::cell_chosen, this,
            [this](int row, int column) { open_box(module_.click_animals(row, column), *animals_); });
    land_->setFocus();
}

// Both tabs carry the same commands; the second ones bear a 2 in their names.
QWidget* frmLand_new::tab_page(const QString& instruction, grid_view* grid, const char* suffix) {
    auto* page = new QWidget(this);
    auto* layout = new QVBoxLayout(page);
    auto* told = new_text(QString("lblLand_instruction") + suffix, page);
    told->setText(instruction);
    layout->addWidget(told);
    layout->addWidget(grid, 1);
    auto* row = new QHBoxLayout;
    auto* first =
        add_command(row, tr("&Calculate"), QString("cmdLand_continue") + suffix, [this] { calculate(); });
    add_command(row, tr("&Save"), QString("cmdLand_save") + suffix, [this] { save(); });
    add_command(row, tr("&Open Assessments"), QString("cmdLand_open") + suffix, [this] {
        state_.picker_caller = picker_module::land;
        emit years_wanted();
    });
    add_missing_command(row, tr("Add records from another file"), QString("cmdImport_land") + suffix);
    row->addStretch();
    add_command(row, tr("Close &Module"), QString("cmdLand_cancel") + suffix, [this] { close(); });
    layout->addLayout(row);
    setTabOrder(grid, first);
    return page;
}

QWidget* frmLand_new::result_page() {
    auto* page = new QGroupBox(qt(text::result_panel), this);
    page->setObjectName("fraLand_result");
    auto* layout = new QVBoxLayout(page);
    layout->setSpacing(14);
    auto* lines = new QFormLayout;
    lines->setHorizontalSpacing(24);
    int number = 0;
    for (const auto& line : text::panel_lines({})) {
        auto* value = new QLabel(page);
        value->setObjectName(QString("lblLand_result%1").arg(++number));
        value->setTextInteractionFlags(Qt::TextSelectableByMouse);
        lines->addRow(qt(line.label), value);
        values_.push_back(value);
    }
    layout->addLayout(lines);
    comment_ = new_text("lblLand_comment", page);
    note_ = new_text("lblLand_note", page);
    layout->addWidget(comment_);
    layout->addWidget(note_);
    layout->addStretch();
    auto* row = new QHBoxLayout;
    report_ = add_command(row, tr("&Generate Report"), "cmdReport", [this] { module_.report(desk_); });
    add_command(row, tr("&Print Result"), "cmdLand_print", [this] { print_result(); });
    row->addStretch();
    add_command(row, tr("&Back"), "cmdLand_back", [this] { back(); });
    layout->addLayout(row);
    return page;
}

void frmLand_new::add_land_boxes() {
    const auto row = [this] { return land_->current_row(); };
    const auto column = [this] { return land_->current_column(); };
    const auto erase = [this, row] { return module_.erase_land_row(row()); };
    field_box_ = new_box("Land_fieldID", *land_);
    field_box_->use_list({});
    field_box_->on_enter(
        [this, row] { return module_.enter_field(row(), field_box_->chosen().value_or("")); });
    field_box_->add_clear([this, row] { return module_.clear_field(row()), true; });
    field_box_->add_erase(erase);
    area_box_ = new_box("Land_area", *land_);
    area_box_->use_number_box();
    area_box_->on_enter([=, this] { return module_.enter_area(row(), column(), area_box_->entered_text()); });
    area_box_->add_clear([=, this] { return module_.clear_area(row(), column()), true; });
    area_box_->add_erase(erase);
    deduction_box_ = new_box("Land_deduct", *land_);
    deduction_box_->use_number_box();
    deduction_box_->on_enter(
        [=, this] { return module_.enter_deduction(row(), column(), deduction_box_->entered_text()); });
    deduction_box_->add_clear([=, this] { return module_.clear_deduction(row(), column()), true; });
    deduction_box_->add_erase(erase);
}

void frmLand_new::add_stock_boxes() {
    const auto row = [this] { return animals_->current_row(); };
    const auto erase = [this, row] { return module_.erase_stock_row(row()); };
    stock_box_ = new_box("Land_animal", *animals_);
    QStringList types;
    for (const auto& type : stock_types())
        types << qt(type.name);
    stock_box_->use_list(types);
    stock_box_->on_enter(
        [this, row] { return module_.enter_stock(row(), stock_box_->chosen().value_or("")); });
    stock_box_->add_clear([this, row] { return module_.clear_stock(row()), true; });
    stock_box_->add_erase(erase);
    number_box_ = new_box("Land_animal_no", *animals_);
    number_box_->use_number_box();
    number_box_->on_enter([this, row] { return module_.enter_number(row(), number_box_->entered_text()); });
    number_box_->add_clear([this, row] { return module_.clear_number(row()), true; });
    number_box_->add_erase(erase);
}

entry_box* frmLand_new::box_of(land_box box) const {
    switch (box) {
        case land_box::field:
            return field_box_;
        case land_box::area:
            return area_box_;
        case land_box::deduction:
            return deduction_box_;
        case land_box::stock:
            return stock_box_;
        case land_box::number:
            return number_box_;
        case land_box::none:
            break;
    }
    return nullptr;
}

void frmLand_new::open_box(const land_opening& opening, grid_view& grid) {
    entry_box* box = box_of(opening.box);
    if (!box) return;
    if (box == field_box_) {
        QStringList names;
        for (const std::string& name : module_.field_names())
            names << qt(name);
        field_box_->use_list(names);
    }
    box->open(qt(opening.caption), qt(opening.instruction), grid.currentIndex().data().toString());
}

void frmLand_new::refresh() {
    land_->refresh();
    animals_->refresh();
}

void frmLand_new::reload() {
    module_.load_land_stuff();
    back();
    tabs_->setCurrentIndex(0);
    refresh();
}

void frmLand_new::calculate() {
    module_.calculate();
    const auto lines = text::panel_lines(*module_.result());
    for (std::size_t i = 0; i < values_.size(); ++i)
        values_[i]->setText(qt(lines[i].value));
    comment_->setText(qt(text::comment(*module_.result())));
    note_->setText(qt(text::note(*module_.result())));
    note_->setVisible(!note_->text().isEmpty());
    views_->setCurrentIndex(1);
    report_->setFocus();
}

void frmLand_new::back() {
    module_.back();
    views_->setCurrentIndex(0);
    (tabs_->currentIndex() == 0 ? land_ : animals_)->setFocus();
}

void frmLand_new::save() {
    module_.save();
    refresh();
}

void frmLand_new::print_result() {
    print_page(framed_page(land_report(*module_.result(), module_.land(), module_.animals()), desk_.today(),
                           desk_.developer),
               desk_.state.places.written_folder, this);
}

}  // namespace kel
