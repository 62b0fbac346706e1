// Step 2's third page: the three tables, each on its tab, and beneath them, always in view, the chart of the
// stores with its warning.
#pragma once

#include <QWidget>
#include <array>

#include "core/application_state.h"
#include "storage/plan_page.h"

class QHBoxLayout;
class QLabel;
class QTabWidget;

namespace kel {

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
    QWidget* tab(QHBoxLayout* commands, grid_view* grid, QLabel* told = nullptr);
    QWidget* spreading_tab(frmStorage& screen);
    QWidget* warning_panel(frmStorage& screen);
    void add_entry_boxes(frmStorage& screen);
    void turn_to(int tab);
    void show_tab(plan_tab tab);
    grid_view* front_grid() const;

    const application_state& state_;
    plan_page& page_;
    QTabWidget* tabs_;
    grid_view* production_;
    grid_view* land_;
    QLabel* no_land_;
    grid_view* spreading_;
    std::array<month_table*, 3> tables_;
    QWidget* warning_;
    QLabel* warning_text_;
    storage_chart* chart_;
};

}  // namespace kel
