// What the entry box of a field's use holds: two crop lists and the date of harvest.
#pragma once

#include <QWidget>

#include "rules/closed_periods.h"

class QDateEdit;

namespace kel {

class choice_list;
class entry_box;

/// What was chosen, crops as shown in the lists; an empty text for a list without a choice.
struct field_use_entry {
    crop_pair shown;
    date harvest;
};

class field_use_form : public QWidget {
    Q_OBJECT

  public:
    /// Takes its place in the box, which must not have an editor yet; `name` is the box's. The date is shown
    /// in this format.
    field_use_form(const QString& name, entry_box& box, const std::string& date_format);

    /// The date that stands in the form until the person sets another one, which then stays.
    void set_harvest(date day);
    /// Opens the box with these crops selected.
    void open(const QString& caption, const QString& instruction, const crop_pair& shown);
    field_use_entry entered() const;

  private:
    void take_cell_of_list();
    void add_editors();

    entry_box& box_;
    choice_list* first_;
    choice_list* second_;
    QDateEdit* harvest_;
};

}  // namespace kel
