// The results of the site table, with the line that says where the figures come from.
#pragma once

#include <QWidget>

class QLabel;

namespace kel {

class frmGrass_new;
class grass_module;
class grid_view;

class grass_results_page : public QWidget {
    Q_OBJECT

  public:
    grass_results_page(frmGrass_new& screen, grass_module& module);

    void refresh();
    void take_focus();

  private:
    grass_module& module_;
    grid_view* table_;
    QLabel* source_;
};

}  // namespace kel
