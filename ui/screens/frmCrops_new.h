// The screen of the nitrogen requirement of crops: the winter rainfall question, the table with its steps and
// the results.
#pragma once

#include "crops/crop_module.h"
#include "ui/widgets/module_screen.h"

class QLabel;
class QPushButton;
class QStackedWidget;

namespace kel {

class question_page;

class frmCrops_new : public module_screen {
    Q_OBJECT

  public:
    /// Loads the module. Throws file_error.
    frmCrops_new(application_state& state, prompts& person, report_desk& desk, screens& others);

    void reload() override;

  protected:
    bool may_close() override;
    void refresh() override;

  private:
    QWidget* winter_page();
    QWidget* results_page();
    void add_commands(QBoxLayout* layout);
    void add_entry_boxes();
    void show_phase();
    void enter_winter_rain();
    void calculate();
    void back();

    crop_module module_;
    application_state& state_;
    report_desk& desk_;
    QLabel* instruction_;
    QStackedWidget* views_;
    question_page* winter_;
    grid_view* grid_;
    grid_view* results_;
    std::vector<QPushButton*> table_commands_;
    std::vector<QPushButton*> result_commands_;
    std::vector<QPushButton*> common_commands_;
};

}  // namespace kel
