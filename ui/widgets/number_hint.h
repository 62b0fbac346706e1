// Tells one who types a decimal comma, below the box, what it is read as. Nothing of what stands in the box
// changes.
#pragma once

#include <QLabel>

class QLineEdit;

namespace kel {

class number_hint : public QLabel {
    Q_OBJECT

  public:
    /// For this box from now on; it goes with it.
    explicit number_hint(QLineEdit& box);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void follow();
    void tell(const QString& text);

    QLineEdit& box_;
    bool left_out_ = false;  // a comma that the box does not take
};

}  // namespace kel
