// Parts that are chosen: from a list in view, from one that drops down, or with option buttons.
#pragma once

#include "ui/widgets/entry_editor.h"

class QButtonGroup;
class QComboBox;
class QLineEdit;
class QVBoxLayout;

namespace kel {

class choice_list;

class list_editor : public entry_editor {
    Q_OBJECT

  public:
    list_editor(const QString& name, bool alone, QWidget* parent);

    void show_part(const entry_part& part) override;
    void show_text(const std::string& text) override;
    part_entry entered() const override;
    std::vector<QWidget*> stops() const override;

  private:
    choice_list* list_;
    bool alone_;
};

class drop_down_editor : public entry_editor {
    Q_OBJECT

  public:
    drop_down_editor(const QString& name, QWidget* parent);

    void show_part(const entry_part& part) override;
    void show_text(const std::string& text) override;
    part_entry entered() const override;
    std::vector<QWidget*> stops() const override;

  private:
    QComboBox* combo_;
};

/// Option buttons; none is chosen unless the part says so. With a number the last one has a box behind it.
class options_editor : public entry_editor {
    Q_OBJECT

  public:
    options_editor(const QString& name, bool with_number, QWidget* parent);

    void show_part(const entry_part& part) override;
    void show_text(const std::string& text) override;
    part_entry entered() const override;
    std::vector<QWidget*> stops() const override;
    /// Chooses the first option that begins with the character; a digit may be the number.
    void take_key(QKeyEvent& key) override;
    QWidget* focus_stop() const override;
    QWidget* named_control() override { return this; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void build(const entry_part& part);
    void add_number(const QString& unit);

    QString name_;
    bool with_number_;
    QVBoxLayout* layout_;
    QWidget* options_ = nullptr;  // made anew with each set of choices
    QButtonGroup* group_ = nullptr;
    QLineEdit* number_ = nullptr;
};

}  // namespace kel
