// The screen of in-field composting: the calculator, and in its place the panel of recorded calculations.
#pragma once

#include "composting/composting_module.h"
#include "ui/widgets/module_screen.h"

class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QStackedWidget;

namespace kel {

class frmStraw : public module_screen {
    Q_OBJECT

  public:
    frmStraw(application_state& state, prompts& person, report_desk& desk);

    void reload() override;

  protected:
    bool may_close() override { return module_.close(); }
    void refresh() override;

  private:
    QWidget* calculator();
    QWidget* questions();
    QWidget* results();
    QWidget* panel();
    composting_inputs answers() const;
    void show_answers();
    void show_result();
    void show_view();
    void calculate();
    void view_database();
    void edit_row();

    composting_module module_;
    application_state& state_;
    report_desk& desk_;
    QLabel* instruction_;
    QStackedWidget* views_;
    QComboBox* residue_;
    QLineEdit* soil_n_;
    QRadioButton* sludge_;
    QRadioButton* straw_;
    QLineEdit* waste_n_;
    QLabel* rate_;
    QLabel* release_;
    QLabel* note_;
    QPushButton* print_;
    QGroupBox* panel_;
    grid_view* grid_;
    box_set* boxes_;
};

}  // namespace kel
