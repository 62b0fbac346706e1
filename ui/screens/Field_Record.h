// The screen of the field record: the field, its year, and what is wrong with it.
#pragma once

#include "record/record_module.h"
#include "ui/widgets/module_screen.h"

class QComboBox;
class QSplitter;

namespace kel {

class warning_table;
class why_panel;

class Field_Record : public module_screen {
    Q_OBJECT

  public:
    /// Loads the module. Throws file_error.
    Field_Record(application_state& state, prompts& person, report_desk& desk);

    void reload() override;

  protected:
    bool may_close() override { return true; }  // there is nothing to lose
    void refresh() override;

  private:
    QLayout* head();
    QLayout* commands();
    void choose_field(const QString& field);
    void show_fields();
    void show_warnings();
    void add_explanations(QWidget* tables);

    record_module module_;
    application_state& state_;
    report_desk& desk_;
    QComboBox* fields_;
    grid_view* record_;
    warning_table* warnings_;
    why_panel* why_ = nullptr;
};

}  // namespace kel
