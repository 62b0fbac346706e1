// Step 3's screen: the table of applications and the results in its place.
#pragma once

#include "manure/manure_module.h"
#include "ui/widgets/module_screen.h"

class QPlainTextEdit;
class QStackedWidget;

namespace kel {

class frmReductions : public module_screen {
    Q_OBJECT

  public:
    /// Loads the module. Throws file_error.
    frmReductions(application_state& state, prompts& person, report_desk& desk);

    void reload() override;
    screen_id closes_to() const override { return screen_of(state_.manure_caller); }

  protected:
    bool may_close() override { return module_.close(); }
    void refresh() override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    QWidget* table_page();
    QWidget* result_page();
    QPlainTextEdit* new_passage(const char* name, const QString& accessible_name);
    void add_entry_boxes();
    void show_view();
    void fit_passages();

    manure_module module_;
    application_state& state_;
    report_desk& desk_;
    QPlainTextEdit* instructions_;
    QStackedWidget* views_;
    grid_view* table_;
    grid_view* results_;
    QPlainTextEdit* warnings_;
};

}  // namespace kel
