// Step 2's third page: the three tables, each on its tab, and beneath them, always in view, the chart of the
// stores with its warning.
#pragma once

#include <QWidget>
#include <array>

#include "core/application_state.h"
#include "storage/plan_page.h"

class QLabel;
class QTabWidget;

namespace kel {

class entry_box;
class field_use_form;
class frmStorage;
class grid_view;
class month_table;
class storage_chart;

class storage_plan_page : public QWidget {
    Q_OBJECT

  public:
    storage_plan_page(frmStorage& screen, const application_state& state, plan_page& page);

    /// Shows tables, chart and warning as they now are.
    void refresh();
    void take_focus();
    /// Writes the chart as a picture. Throws file_error.
    void save_chart(const std::string& path) const;

  private:
    QWidget* tabs(frmStorage& screen);
    QWidget* spreading_tab(frmStorage& screen);
    QWidget* warning_panel(frmStorage& screen);
    void add_production_boxes(frmStorage& screen);
    void add_field_boxes(frmStorage& screen);
    void turn_to(int tab);
    void show_tab(plan_tab tab);
    grid_view* front_grid() const;
    void open_box(const storage_opening& opening, grid_view& grid);
    entry_box* box_of(storage_box box) const;
    void open_field_use(const storage_opening& opening);
    bool enter_field_use();

    const application_state& state_;
    plan_page& page_;
    QTabWidget* tabs_;
    grid_view* production_;
    grid_view* land_;
    grid_view* spreading_;
    std::array<month_table*, 3> tables_;
    QWidget* warning_;
    QLabel* warning_text_;
    storage_chart* chart_;
    entry_box* stock_box_;
    entry_box* number_box_;
    entry_box* percent_box_;
    entry_box* month_box_;
    entry_box* land_month_box_;
    entry_box* slurry_applic_box_;
    entry_box* field_use_box_;
    field_use_form* field_use_;
    int harvest_year_ = 0;  // of the date that the field use form offers
};

}  // namespace kel
