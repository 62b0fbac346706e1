// Blank sheets for the cab: how many lines each field gets, and the two sheets.
#pragma once

#include "reports/report_viewer.h"
#include "standing/blank_sheets.h"
#include "ui/widgets/module_screen.h"

class QSpinBox;

namespace kel {

class frmSheets : public module_screen {
    Q_OBJECT

  public:
    frmSheets(application_state& state, prompts& person, report_desk& desk);

    /// A sheet is made of the assessment as it then stands.
    void reload() override {}

  protected:
    bool may_close() override { return true; }
    void refresh() override {}

  private:
    void make(blank_sheet kind);

    application_state& state_;
    report_desk& desk_;
    QSpinBox* lines_;
};

}  // namespace kel
