// The season calendar: the drawing or the same as a table, and below it what is true of the day under the
// pointer or of the current day. Nothing is entered here.
#pragma once

#include "core/text_grid.h"
#include "reports/report_viewer.h"
#include "standing/season_calendar.h"
#include "ui/widgets/module_screen.h"

class QStackedWidget;

namespace kel {

class season_view;
struct season_place;

class frmCalendar : public module_screen {
    Q_OBJECT

  public:
    /// Reads the assessment. Throws file_error.
    frmCalendar(application_state& state, prompts& person, report_desk& desk);

    void reload() override;

  protected:
    bool may_close() override { return true; }  // there is nothing to lose
    void refresh() override;

  private:
    QLayout* commands();
    void add_zoom_keys();
    void zoom(int steps);
    void show_table(bool wanted);
    void tell(const season_place& place);

    application_state& state_;
    report_desk& desk_;
    season_calendar season_;
    text_grid table_;
    QStackedWidget* pages_;
    season_view* view_;
    grid_view* grid_ = nullptr;  // made when it is first wanted
    QLabel* notes_;
    QLabel* day_;
};

}  // namespace kel
