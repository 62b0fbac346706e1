// Step 2's second page: the boxes that describe a store and the table of the farm's stores.
#pragma once

#include <QWidget>
#include <vector>

#include "storage/stores_page.h"

class QFormLayout;
class QLineEdit;

namespace kel {

class choice_list;
class frmStorage;
class grid_view;

class storage_stores_page : public QWidget {
    Q_OBJECT

  public:
    storage_stores_page(frmStorage& screen, stores_page& page);

    /// Shows the table as it now is; the boxes stay.
    void refresh();
    void take_focus();
    /// Empties the boxes, as for another assessment.
    void clear() { show_store({}); }
    /// Whether a store stands in the boxes that is not in the list.
    bool in_the_boxes() const { return entered() != store_form{}; }

  private:
    struct store_box {
        QLineEdit* edit;
        std::string store_form::*text;
    };
    QWidget* form(frmStorage& screen);
    QWidget* table(frmStorage& screen);
    QLineEdit* add_box(const QString& caption, const char* name, std::string store_form::*text,
                       bool number = true);
    std::string shape() const;
    /// What stands in the boxes.
    store_form entered() const;
    void show_store(const store_form& store);
    void shape_chosen();
    void add_store();
    void edit_store();
    void delete_store();
    int row() const;

    stores_page& page_;
    QFormLayout* lines_;
    std::vector<store_box> boxes_;
    QLineEdit* name_;
    choice_list* shape_;
    QLineEdit* depth_;
    QLineEdit* length_;
    QLineEdit* width_;
    QLineEdit* diameter_;
    QLineEdit* angle_;
    QLineEdit* percent_;
    QLineEdit* area_;
    grid_view* table_;
};

}  // namespace kel
