// Step 2's screen: dirty water, stores and plan, three pages walked with Continue and Back. What stands above
// the pages and the commands beneath them are shared.
#pragma once

#include "storage/storage_module.h"
#include "ui/widgets/module_screen.h"

class QLabel;
class QPushButton;
class QStackedWidget;

namespace kel {

class storage_plan_page;
class storage_stores_page;
class storage_water_page;

class frmStorage : public module_screen {
    Q_OBJECT

  public:
    /// Loads the module. Throws file_error.
    frmStorage(application_state& state, prompts& person, report_desk& desk);

    void reload() override;
    bool unsaved() const override;

    // The pages build their controls with these.
    using module_screen::add_boxes;
    using module_screen::add_command;
    using module_screen::add_import;
    using module_screen::add_table_import;
    using module_screen::disable_meanwhile;
    using module_screen::new_text;
    using module_screen::undo_with;

  protected:
    bool may_close() override { return module_.close(); }
    void refresh() override;

  private:
    QLayout* commands();
    /// Works, then shows the module as it now is.
    void and_refresh(const std::function<void()>& work);
    void show_page();
    void focus_page();
    void report();

    storage_module module_;
    application_state& state_;
    report_desk& desk_;
    QLabel* instruction_;
    QStackedWidget* pages_;
    storage_water_page* water_;
    storage_stores_page* stores_;
    storage_plan_page* plan_;
    QPushButton* report_;
    QPushButton* save_;
    QPushButton* back_;
    QPushButton* water_continue_;
    QPushButton* stores_continue_;
};

}  // namespace kel
