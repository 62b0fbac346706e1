// What stands in an entry box between its instruction and its buttons. Boxes make theirs from the parts of an
// opening; a screen that needs a special one derives it from entry_form and gives it to its box.
#pragma once

#include <QKeyEvent>
#include <QWidget>
#include <vector>

#include "core/entry.h"

namespace kel {

class entry_editor;

class entry_form : public QWidget {
    Q_OBJECT

  public:
    using QWidget::QWidget;

    /// Shows what the parts of the opening hold.
    virtual void show_opening(const opening& shown) = 0;
    virtual void show_text(int part, const std::string& text) = 0;
    virtual box_entry entered() const = 0;
    /// Called before Enter; false: there is more to be answered first, and the box stays.
    virtual bool ready() { return true; }
    /// The key with which a person begins an entry in the grid, for this part.
    virtual void take_key(int part, QKeyEvent& key) = 0;
    /// The controls that Tab reaches, in its order.
    virtual std::vector<QWidget*> stops() const = 0;
    /// The control of a part that gets the focus.
    virtual QWidget* focus_stop(int part) const = 0;

  signals:
    /// A double click or the like, which stands for Enter.
    void confirmed();
};

/// One editor for each part, with the part's label above it where it has one.
class parts_form : public entry_form {
    Q_OBJECT

  public:
    /// The controls are named after the box.
    parts_form(const QString& box, const std::vector<entry_part>& parts, QWidget* parent);

    /// Whether it has the editors for these parts.
    bool suits(const std::vector<entry_part>& parts) const;

    void show_opening(const opening& shown) override;
    void show_text(int part, const std::string& text) override;
    box_entry entered() const override;
    bool ready() override;
    void take_key(int part, QKeyEvent& key) override;
    std::vector<QWidget*> stops() const override;
    QWidget* focus_stop(int part) const override;

  private:
    void add_editor(const entry_part& part, const QString& box);

    std::vector<entry_part> parts_;
    std::vector<entry_editor*> editors_;
};

}  // namespace kel
