// The site table of the grassland screen with its boxes.
#pragma once

#include <QWidget>

namespace kel {

class frmGrass_new;
class grass_module;
class grid_view;

class grass_site_page : public QWidget {
    Q_OBJECT

  public:
    grass_site_page(frmGrass_new& screen, grass_module& module);

    void refresh();
    void take_focus();

  private:
    void add_site_boxes(frmGrass_new& screen, grass_module& module);
    void add_commands(frmGrass_new& screen, grass_module& module);

    grid_view* table_;
};

}  // namespace kel
