// Step 2's first page: the dirty water answers in one of two forms.
#pragma once

#include <QWidget>

#include "storage/dirty_water_page.h"

class QFormLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace kel {

class frmStorage;

class storage_water_page : public QWidget {
    Q_OBJECT

  public:
    storage_water_page(frmStorage& screen, dirty_water_page& page);

    /// Shows the answers and the form as they now are.
    void refresh();
    void take_focus();

  signals:
    /// Enter in one of the boxes.
    void confirmed();

  private:
    QLayout* form_choice(frmStorage& screen);
    QWidget* form();
    QLineEdit* add_box(const QString& caption, const char* name,
                       void (dirty_water_page::*set)(const std::string&));
    void show_form(dirty_water_form form);

    dirty_water_page& page_;
    QPushButton* estimate_;
    QPushButton* actual_;
    QGroupBox* frame_;
    QLabel* told_;
    QFormLayout* lines_;
    QLineEdit* cows_box_;
    QLineEdit* pens_box_;
    QLineEdit* actual_box_;
};

}  // namespace kel
