// The recommendation of the stocking route, with the two lists between which feed is moved.
#pragma once

#include <QWidget>
#include <vector>

class QBoxLayout;
class QLabel;

namespace kel {

class choice_list;
class frmGrass_new;
class grass_module;
class grid_view;

class grass_silage_page : public QWidget {
    Q_OBJECT

  public:
    grass_silage_page(frmGrass_new& screen, grass_module& module);

    void refresh();
    void take_focus();

  private:
    QWidget* vary_panel(frmGrass_new& screen);
    QWidget* command_panel(frmGrass_new& screen);
    choice_list* add_list(QBoxLayout* row, const char* name, std::string_view label, QWidget* panel);

    grass_module& module_;
    grid_view* table_;
    QLabel* summary_;
    QWidget* commands_;
    QWidget* vary_;
    choice_list* decrease_;
    choice_list* increase_;
};

}  // namespace kel
