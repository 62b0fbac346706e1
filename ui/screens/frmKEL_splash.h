// The About box: version, licence and the bodies whose figures the program carries.
#pragma once

#include <QWidget>

namespace kel {

class frmKEL_splash : public QWidget {
    Q_OBJECT

  public:
    explicit frmKEL_splash(QWidget* parent = nullptr);

  signals:
    /// A logo was pressed: its web page is to be shown.
    void page_wanted(const QString& address);
    void closed();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
};

}  // namespace kel
