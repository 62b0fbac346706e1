// The assessments screen: the program's hub. It forwards its buttons and menu entries and shows which
// assessment is open.
#pragma once

#include <QMainWindow>

#include "core/application_state.h"
#include "core/screens.h"
#include "shell/assessments_module.h"

class QLabel;
class QPushButton;

namespace kel {

class frmKEL_front : public QMainWindow {
    Q_OBJECT

  public:
    frmKEL_front(assessments_module& module, const application_state& state, const screens& built);

    /// Shows the title and the open assessment as they now are.
    void refresh();

  signals:
    /// The close box was pressed; the program decides.
    void close_pressed();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    QWidget* header();
    QWidget* buttons();
    QPushButton* button(const char* name);
    void add_menus();

    assessments_module& module_;
    const application_state& state_;
    const screens& built_;
    QLabel* farm_ = nullptr;
    QLabel* file_ = nullptr;
};

}  // namespace kel
