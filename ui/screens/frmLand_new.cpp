#include "ui/screens/frmLand_new.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include "land/land_account.h"
#include "land/land_messages.h"
#include "land/land_report.h"
#include "ui/widgets/box_set.h"
#include "ui/widgets/grid_view.h"
#include "ui/widgets/print_job.h"
#include "ui/widgets/qt_text.h"
#include "ui/widgets/why_panel.h"

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
    add_entry_boxes();
    use_history(module_.history());
    use_explanations(views_, explained_by(module_, land_results()));
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
    add_save(row, tr("&Save"), QString("cmdLand_save") + suffix, [this] { return save(); });
    add_command(row, tr("&Open Assessments"), QString("cmdLand_open") + suffix, [this] {
        state_.picker_caller = picker_module::land;
        emit years_wanted();
    });
    add_import(row, *grid, QString("Import_land") + suffix, [this, grid](import_mode mode) {
        return grid == land_ ? module_.import_land(mode) : module_.import_animals(mode);
    });
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

void frmLand_new::add_entry_boxes() {
    using module = land_module;
    const auto clear = [this](auto run) { return clear_button(runs(module_, run)); };
    const box_button erase_land = erase_button(runs(module_, &module::erase_land_row));
    const box_button erase_stock = erase_button(runs(module_, &module::erase_stock_row));
    // clang-format off
    add_boxes(*land_, [this](int row, int column) { return module_.click_land(row, column); }, {
        {land_box::field, "Land_fieldID", runs(module_, &module::enter_field),
            {clear(&module::clear_field), erase_land}},
        {land_box::area, "Land_area", runs(module_, &module::enter_area),
            {clear(&module::clear_area), erase_land}},
        {land_box::deduction, "Land_deduct", runs(module_, &module::enter_deduction),
            {clear(&module::clear_deduction), erase_land}},
    });
    add_boxes(*animals_, [this](int row, int column) { return module_.click_animals(row, column); }, {
        {land_box::stock, "Land_animal", runs(module_, &module::enter_stock),
            {clear(&module::clear_stock), erase_stock}},
        {land_box::number, "Land_animal_no", runs(module_, &module::enter_number),
            {clear(&module::clear_number), erase_stock}},
    });
    // clang-format on
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

bool frmLand_new::save() {
    const bool saved = module_.save();
    refresh();
    return saved;
}

void frmLand_new::print_result() {
    const date today = desk_.today();
    const page_lines body = land_report(*module_.result(), module_.land(), module_.animals());
    print_with_dialog({page_of_lines(framed_page(body, today, desk_.developer, origin_of(state_, today)),
                                     state_.places.written_folder)},
                      today, this);
}

}  // namespace kel
