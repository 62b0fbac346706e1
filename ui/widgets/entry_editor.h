// The editor of one part of an entry box. One that stands alone may confirm its box by itself, with a double
// click on a choice or on a day; among others it may not, since they are still to be answered.
#pragma once

#include <QKeyEvent>
#include <QVBoxLayout>
#include <QWidget>
#include <vector>

#include "core/entry.h"

namespace kel {

class entry_editor : public QWidget {
    Q_OBJECT

  public:
    using QWidget::QWidget;

    /// Shows what the part opens with.
    virtual void show_part(const entry_part& part) = 0;
    /// Shows this text, choice or day instead.
    virtual void show_text(const std::string& text) = 0;
    virtual part_entry entered() const = 0;
    /// The key with which a person begins an entry in the grid.
    virtual void take_key(QKeyEvent& key);
    /// False, with the focus where it is wanted: what was put in cannot be read.
    virtual bool ready() { return true; }
    /// The controls that Tab reaches, in its order.
    virtual std::vector<QWidget*> stops() const = 0;
    /// The one of them that gets the focus.
    virtual QWidget* focus_stop() const { return stops().front(); }
    /// The one that bears the editor's name for whoever cannot see its label.
    virtual QWidget* named_control() { return stops().front(); }

  signals:
    void confirmed();

  protected:
    /// For an editor that is one control.
    void fill_with(QWidget* control) {
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(control);
    }
};

/// The editor of a part in the box of this name, from which its controls take theirs.
entry_editor* new_entry_editor(const entry_part& part, const QString& box, QWidget* parent);

/// Takes a control out of its parent at once, and deletes it when no event can be under way in it any more.
inline void discard(QWidget* control) {
    if (!control) return;
    control->setParent(nullptr);
    control->deleteLater();
}

}  // namespace kel
