// The profile screen: the farm, its place and its fields. What is entered stays in the module between uses.
#pragma once

#include "profile/profile_module.h"
#include "ui/widgets/module_screen.h"

class QComboBox;
class QGroupBox;
class QLayout;
class QLineEdit;

namespace kel {

class frmProfile : public module_screen {
    Q_OBJECT

  public:
    frmProfile(profile_module& module, report_desk& desk, application_state& state);

    /// Shows the working copy, which the opening of an assessment has already filled.
    void reload() override { refresh(); }
    bool unsaved() const override { return module_.unsaved(); }

  signals:
    void location_wanted();

  protected:
    bool may_close() override { return true; }
    void refresh() override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* farm_entries();
    QWidget* field_entries();
    QLayout* main_buttons();
    void add_entry_boxes();
    /// What is typed goes to the module at once.
    void take_text(QLineEdit* edit, void (profile_module::*set)(std::string));
    bool set_profile();
    void cancel();
    template <class Work>
    void and_refresh(Work work);

    profile_module& module_;
    report_desk& desk_;
    application_state& state_;
    QLineEdit* name_;
    QLineEdit* location_;
    QLineEdit* area_;
    QLineEdit* kel_area_;
    QLineEdit* count_;
    QComboBox* year_;
    QGroupBox* year_frame_;
    QPushButton* create_;
    grid_view* grid_;
};

}  // namespace kel
