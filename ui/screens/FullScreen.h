// The report viewer: one page and three buttons, over the calling screen. The third button's caption says
// what it does. Beside them stand a PDF, all reports in one print, and the zoom.
#pragma once

#include <QWidget>
#include <functional>

#include "core/application_state.h"
#include "core/prompts.h"
#include "reports/report_viewer.h"
#include "ui/widgets/print_job.h"

class QLayout;
class QPushButton;

namespace kel {

class page_view;

class FullScreen : public QWidget {
    Q_OBJECT

  public:
    /// `report_folder` is where the last report was saved; it outlives the screen.
    FullScreen(application_state& state, prompts& person, std::string& report_folder,
               std::function<date()> today);

    void show_page(const viewer_request& request);

  signals:
    void closed();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    QPushButton* new_button(const QString& caption, const QString& name, const QString& tip);
    QLayout* button_row();
    void add_keys();
    void refresh();
    /// Whether the list of the reports is shown.
    bool shows_list() const;
    printed_page shown_page() const;
    void print_page();
    void print_all();
    void save_pdf();
    void third_button();
    application_state& state_;
    prompts& person_;
    std::string& report_folder_;
    std::function<date()> today_;
    page_view* page_;
    QPushButton* third_ = nullptr;
    QPushButton* pdf_ = nullptr;
    QPushButton* all_ = nullptr;
    QString kind_;  // of the pages, in the title
    std::string caption_;
    int mode_ = 0;
};

}  // namespace kel
