// The location screen: the map of Scotland, the labels of what is under the pointer and what was clicked, and
// the towns of the zone.
#pragma once

#include <QMainWindow>

#include "profile/location_module.h"

class QLabel;
class QLayout;

namespace kel {

class choice_list;
class map_view;

class Scotland : public QMainWindow {
    Q_OBJECT

  public:
    Scotland(application_state& state, prompts& person, profile_module& profile);

  signals:
    void closed();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QWidget* side_panel();
    QWidget* legend_panel(QWidget* parent) const;
    QLayout* button_row();
    void add_menu();
    void click_map();
    void refresh_pointer();
    void refresh_place();
    void enter();

    location_module module_;
    map_view* map_;
    QLabel* pointer_;
    QLabel* location_;
    QLabel* number_;
    QLabel* zone_;
    QLabel* town_prompt_;
    choice_list* towns_;
};

}  // namespace kel
