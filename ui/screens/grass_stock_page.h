// The first half of the stocking route: the farm's livestock and the stocking of its fields, each on its tab.
#pragma once

#include <QWidget>

class QTabWidget;

namespace kel {

class box_set;
class frmGrass_new;
class grass_module;
class grid_view;

class grass_stock_page : public QWidget {
    Q_OBJECT

  public:
    grass_stock_page(frmGrass_new& screen, grass_module& module);

    void refresh();
    void take_focus();

  private:
    QWidget* livestock_tab(frmGrass_new& screen);
    QWidget* stocking_tab(frmGrass_new& screen);
    void add_livestock_boxes(frmGrass_new& screen);
    void add_stocking_boxes(frmGrass_new& screen);
    grid_view* front_grid() const;

    grass_module& module_;
    QTabWidget* tabs_;
    grid_view* livestock_;
    grid_view* stocking_;
    box_set* stocking_boxes_ = nullptr;
};

}  // namespace kel
