// Parts that are typed in one line: a number, digits, a text; and the filters that such boxes have
// everywhere.
#pragma once

#include "ui/widgets/entry_editor.h"

class QLabel;
class QLineEdit;

namespace kel {

QLineEdit* new_text_box(const QString& name, QWidget* parent);
/// A line edit that takes digits, backspace and one decimal point.
QLineEdit* new_number_box(const QString& name, QWidget* parent);
/// A line edit that takes digits and backspace only.
QLineEdit* new_whole_number_box(const QString& name, QWidget* parent);

class line_editor : public entry_editor {
    Q_OBJECT

  public:
    line_editor(const entry_part& part, const QString& name, QWidget* parent);

    void show_part(const entry_part& part) override;
    void show_text(const std::string& text) override;
    part_entry entered() const override;
    std::vector<QWidget*> stops() const override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QLineEdit* line_;
    QLabel* unit_;
    std::string not_typed_;
};

}  // namespace kel
