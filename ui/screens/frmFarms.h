// Where every farm of a folder stands, as a list. The folder is read in pieces between the turns of the event
// loop, so the window answers meanwhile and can stop it.
#pragma once

#include <QWidget>

#include "standing/folder_module.h"

class QLabel;
class QProgressBar;
class QPushButton;
class QTimer;

namespace kel {

class grid_view;

class frmFarms : public QWidget {
    Q_OBJECT

  public:
    frmFarms(application_state& state, prompts& person, std::function<date()> today);

  signals:
    void closed();
    /// The farm of this file is to be worked on.
    void farm_wanted(const std::string& path);

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    QPushButton* add_command(QLayout* row, const QString& caption, const char* name,
                             void (frmFarms::*action)());
    void begin();
    void go_on();
    void stop();
    void open_farm();
    void save_table();
    void save_page();
    void refresh();

    folder_module module_;
    QLabel* told_ = nullptr;
    QProgressBar* progress_ = nullptr;
    grid_view* grid_ = nullptr;
    QTimer* pieces_ = nullptr;
    QPushButton* stop_ = nullptr;
    std::vector<QPushButton*> of_the_list_;  // enabled while there are rows
};

}  // namespace kel
