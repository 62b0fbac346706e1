// The tables of a module with the panel "Why?" at their side, which takes its room from them. It stands in
// the place that the tables had in the layout of their screen.
#pragma once

#include <QSplitter>

#include "ui/widgets/why_panel.h"
#include "ui/widgets/why_place.h"

class QAction;

namespace kel {

class why_side : public QSplitter {
    Q_OBJECT

  public:
    why_side(QWidget& screen, QWidget* tables, why_source source);
    ~why_side() override;

    /// Opens and closes the panel by Ctrl+I; in the context menus of the tables, too.
    QAction* action() const { return action_; }
    /// Where the state of the panel is kept from now on.
    void share(why_place& place);
    void refresh_soon() { panel_->refresh_soon(); }

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void add_action(QAction* action, const QString& name, const QKeySequence& key);
    void follow_focus();
    void toggle();
    void open();
    void close_panel();
    void switch_focus();
    void keep_tables_narrow();
    void note_place();

    QWidget& screen_;
    QWidget* tables_;
    why_panel* panel_;
    QAction* action_;
    why_place own_;
    why_place* place_ = &own_;
};

}  // namespace kel
