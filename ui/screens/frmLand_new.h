// Step 1's screen: the land tab, the stock tab and the result panel.
#pragma once

#include "land/land_module.h"
#include "ui/widgets/module_screen.h"

class QLabel;
class QPushButton;
class QStackedWidget;
class QTabWidget;

namespace kel {

class frmLand_new : public module_screen {
    Q_OBJECT

  public:
    /// Loads the module. Throws file_error.
    frmLand_new(application_state& state, prompts& person, report_desk& desk);

    void reload() override;

  protected:
    bool may_close() override { return module_.close(); }
    void refresh() override;

  private:
    QWidget* tab_page(const QString& instruction, grid_view* grid, const char* suffix);
    QWidget* result_page();
    void add_entry_boxes();
    void calculate();
    void back();
    bool save();
    void print_result();

    land_module module_;
    application_state& state_;
    report_desk& desk_;
    QStackedWidget* views_;
    QTabWidget* tabs_;
    grid_view* land_;
    grid_view* animals_;
    QLabel* comment_;
    QLabel* note_;
    std::vector<QLabel*> values_;
    QPushButton* report_;
};

}  // namespace kel
