#include "ui/screens/frmStorage.h"

#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "storage/storage_account.h"
#include "storage/storage_messages.h"
#include "storage/storage_report.h"
#include "ui/screens/storage_plan_page.h"
#include "ui/screens/storage_stores_page.h"
#include "ui/screens/storage_water_page.h"
#include "ui/widgets/giving_area.h"
#include "ui/widgets/qt_text.h"
#include "ui/widgets/why_panel.h"

namespace kel {

namespace text = storage_messages;

frmStorage::frmStorage(application_state& state, prompts& person, report_desk& desk)
    : module_screen("frmStorage", qt(text::title)), module_(state, person), state_(state), desk_(desk) {
    module_.storage_load_stuff();
    auto* layout = new QVBoxLayout(this);
    instruction_ = new_text("lblStorage_instruction", this);
    layout->addWidget(instruction_);
    water_ = new storage_water_page(*this, module_.water());
    stores_ = new storage_stores_page(*this, module_.stores());
    plan_ = new storage_plan_page(*this, state_, module_.plan());
    pages_ = new QStackedWidget(this);
    for (QWidget* page :
         {static_cast<QWidget*>(water_), static_cast<QWidget*>(stores_), static_cast<QWidget*>(plan_)})
        pages_->addWidget(new giving_area(page, page->objectName() + "_area", this));
    layout->addWidget(pages_, 1);
    layout->addLayout(commands());
    use_history(module_.plan().history());
    use_explanations(pages_, explained_by(module_, storage_results()));
    connect(water_, &storage_water_page::confirmed, water_continue_, &QPushButton::click);
    show_page();
}

QLayout* frmStorage::commands() {
    auto* row = new QHBoxLayout;
    report_ = add_command(row, tr("&Generate Report"), "cmdReport", [this] { report(); });
    save_ = add_save(row, tr("&Save"), "cmdStorage_save", [this] {
        bool saved = false;
        and_refresh([&] { saved = module_.save_storage(); });
        return saved;
    });
    add_command(row, tr("&Open Assessments"), "cmdStorage_open", [this] {
        state_.picker_caller = picker_module::storage;
        emit years_wanted();
    });
    row->addStretch();
    back_ =
        add_command(row, tr("&Back"), "cmdStorage_back", [this] { and_refresh([this] { module_.back(); }); });
    water_continue_ = add_command(row, tr("Con&tinue"), "cmdStorage_continue",
                                  [this] { and_refresh([this] { module_.storage_cont1(); }); });
    stores_continue_ = add_command(row, tr("Con&tinue"), "cmdStores_continue",
                                   [this] { and_refresh([this] { module_.storage_cont2(); }); });
    add_command(row, tr("Close &Module"), "cmdStorage_cancel", [this] { close(); });
    return row;
}

void frmStorage::and_refresh(const std::function<void()>& work) {
    const storage_page shown = module_.page();
    work();
    if (module_.page() == shown)
        refresh();
    else
        show_page();
}

// The stores are written as they are entered, but for imported ones; one that is being edited stands in the
// boxes alone.
bool frmStorage::unsaved() const {
    return module_.plan().unsaved() || module_.stores().imported() || stores_->in_the_boxes();
}

void frmStorage::refresh() {
    instruction_->setText(qt(module_.instruction()));
    switch (module_.page()) {
        case storage_page::water:
            return water_->refresh();
        case storage_page::stores:
            return stores_->refresh();
        case storage_page::plan:
            return plan_->refresh();
    }
}

void frmStorage::show_page() {
    const storage_page page = module_.page();
    switch_history(page == storage_page::stores ? module_.stores().history() : module_.plan().history());
    for (QPushButton* button : {report_, save_})
        button->setVisible(page == storage_page::plan);
    back_->setVisible(page != storage_page::water);
    water_continue_->setVisible(page == storage_page::water);
    stores_continue_->setVisible(page == storage_page::stores);
    refresh();
    pages_->setCurrentIndex(static_cast<int>(page));
    focus_page();
}

void frmStorage::focus_page() {
    switch (module_.page()) {
        case storage_page::water:
            return water_->take_focus();
        case storage_page::stores:
            return stores_->take_focus();
        case storage_page::plan:
            return plan_->take_focus();
    }
}

void frmStorage::reload() {
    module_.reload();
    stores_->clear();
    show_page();
}

// The page of the report refers to the picture, so it is drawn first.
void frmStorage::report() {
    if (module_.plan().balance()) plan_->save_chart(desk_.state.places.report(storage_chart_file));
    module_.storage_report(desk_);
}

}  // namespace kel
