// Step 1's screen: the land tab, the stock tab and the result panel.
#pragma once

#include <QWidget>

#include "land/land_module.h"

class QGroupBox;
class QLabel;
class QPushButton;
class QStackedWidget;
class QTabWidget;
class QVBoxLayout;

namespace kel {

class entry_box;
class grid_view;

class frmLand_new : public QWidget {
    Q_OBJECT

  public:
    /// Loads the module. Throws file_error.
    frmLand_new(application_state& state, prompts& person, report_desk& desk);

    /// Loads the assessment anew, as after the years dialog.
    void reload();

  signals:
    void left();
    void years_wanted();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    QWidget* tab_page(const QString& instruction, grid_view* grid, const char* suffix);
    QWidget* result_page();
    void add_land_boxes();
    void add_stock_boxes();
    entry_box* new_box(const char* name, grid_view& grid);
    void open_box(const land_opening& opening, grid_view& grid);
    entry_box* box_of(land_box box) const;
    void refresh();
    void calculate();
    void back();
    void save();
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
    entry_box* field_box_;
    entry_box* area_box_;
    entry_box* deduction_box_;
    entry_box* stock_box_;
    entry_box* number_box_;
    std::vector<QWidget*> main_buttons_;
};

}  // namespace kel
