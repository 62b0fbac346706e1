// The report viewer: one page and three buttons, over the calling screen. The third button's caption says
// what it does.
#pragma once

#include <QWidget>

#include "core/application_state.h"
#include "core/prompts.h"
#include "reports/report_viewer.h"

class QPushButton;

namespace kel {

class page_view;

class FullScreen : public QWidget {
    Q_OBJECT

  public:
    /// `report_folder` is where the last report was saved; it outlives the screen.
    FullScreen(application_state& state, prompts& person, std::string& report_folder);

    void show_page(const viewer_request& request);

  signals:
    void closed();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void print_page();
    void third_button();
    application_state& state_;
    prompts& person_;
    std::string& report_folder_;
    page_view* page_;
    QPushButton* third_;
    std::string caption_;
    int mode_ = 0;
};

}  // namespace kel
