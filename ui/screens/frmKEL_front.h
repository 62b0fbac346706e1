// The assessments screen: the program's hub. It forwards its buttons and menu entries and shows which
// assessment is open.
#pragma once

#include <QMainWindow>
#include <functional>
#include <map>

#include "core/application_state.h"
#include "core/screens.h"
#include "shell/assessments_module.h"
#include "shell/farm_files_module.h"
#include "standing/standing_module.h"

class QGridLayout;
class QLabel;
class QMenu;
class QPushButton;

namespace kel {

class verdict_label;

class frmKEL_front : public QMainWindow {
    Q_OBJECT

  public:
    frmKEL_front(assessments_module& module, farm_files_module& files, const application_state& state,
                 const screens& built, standing_module& overview);

    /// Shows the title and the open assessment as they now are; the verdicts beside the steps follow once the
    /// window is painted.
    void refresh();
    /// At the foot, as after the save of a module that was left.
    void say(const QString& text);

  signals:
    /// The close box was pressed; the program decides.
    void close_pressed();
    /// Another assessment, or another content, may have come to stand behind the screens.
    void files_changed();
    /// The links of the assessment now open are to be chosen.
    void years_wanted();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    QWidget* header();
    QWidget* buttons();
    QPushButton* button(const char* name);
    void add_command(QGridLayout& rows, const char* name);
    void add_menus();
    void add_farm_files(QMenu& menu);
    void list_recent();
    void go_elsewhere(const std::function<void()>& action);
    void bring_verdicts_up_to_date();
    void show_verdicts();

    assessments_module& module_;
    farm_files_module& files_;
    const application_state& state_;
    const screens& built_;
    standing_module& overview_;
    std::map<farm_step, verdict_label*> verdicts_;
    bool verdicts_due_ = false;
    QLabel* farm_ = nullptr;
    QLabel* file_ = nullptr;
    QMenu* recent_ = nullptr;
    QLabel* saved_ = nullptr;
};

}  // namespace kel
