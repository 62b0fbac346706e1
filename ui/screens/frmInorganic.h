// Step 4's screen: the table of applications, the list of fields and the application dialog over it.
#pragma once

#include "inorganic/inorganic_module.h"
#include "ui/widgets/module_screen.h"

namespace kel {

class application_form;

class frmInorganic : public module_screen {
    Q_OBJECT

  public:
    /// Loads the module. Throws file_error.
    frmInorganic(application_state& state, prompts& person, report_desk& desk);

    void reload() override;

  protected:
    bool may_close() override { return module_.close(); }
    void refresh() override;

  private:
    void add_commands(QBoxLayout* layout);
    void add_entry_boxes();
    int calendar_year() const;
    void set_calendar_year();

    inorganic_module module_;
    application_state& state_;
    report_desk& desk_;
    grid_view* grid_;
    application_form* application_;
};

}  // namespace kel
