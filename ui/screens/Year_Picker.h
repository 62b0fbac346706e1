// The years dialog: the chain of up to three assessments of a farm, which of them is worked on, and the
// creation of the next year's file.
#pragma once

#include <QWidget>
#include <array>

#include "shell/years_module.h"

class QCheckBox;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QRadioButton;

namespace kel {

class giving_area;

class Year_Picker : public QWidget {
    Q_OBJECT

  public:
    explicit Year_Picker(years_module& module);

    /// Shows the dialog as it opens.
    void open();

  signals:
    void closed();
    /// Another assessment was opened while the dialog stays.
    void changed();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct row_widgets {
        QRadioButton* option;
        QLabel* farm;
        QLabel* file;
        QLabel* year;
        QLabel* path;
    };
    QWidget* rows_panel();
    QWidget* create_panel();
    void add_row(QGridLayout* layout, int row);
    void browse(int row);
    void refresh();
    void refresh_create();
    void follow_content();
    void ok();
    void cancel();
    void leave();

    years_module& module_;
    giving_area* area_;
    std::array<row_widgets, 3> rows_{};
    QCheckBox* no_link_;
    QCheckBox* no_related_;
    QGroupBox* create_frame_;
    QLabel* new_date_;
    QComboBox* new_year_;
    QLabel* new_path_;
    bool leaving_ = false;
};

}  // namespace kel
