// The profile screen: the farm, its place and its fields. It stays alive between uses.
#pragma once

#include <QWidget>

#include "profile/profile_module.h"

class QComboBox;
class QGroupBox;
class QLineEdit;
class QPushButton;

namespace kel {

class entry_box;
class grid_view;

class frmProfile : public QWidget {
    Q_OBJECT

  public:
    frmProfile(profile_module& module, report_desk& desk, application_state& state);

    /// Shows the working copy as it now is.
    void refresh();

  signals:
    /// Saved or cancelled: the assessments screen comes back.
    void left();
    void location_wanted();
    void years_wanted();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* farm_entries();
    QWidget* field_entries();
    QWidget* main_buttons();
    void add_entry_boxes();
    void set_profile();
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
    std::vector<entry_box*> boxes_;
    std::vector<QWidget*> main_buttons_;
};

}  // namespace kel
