#include "ui/widgets/module_screen.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QLabel>
#include <QPushButton>

#include "ui/widgets/box_set.h"
#include "ui/widgets/entry_box.h"
#include "ui/widgets/grid_view.h"

namespace kel {

module_screen::module_screen(const QString& name, const QString& title) {
    setObjectName(name);
    setWindowTitle(title);
}

void module_screen::closeEvent(QCloseEvent* event) {
    event->ignore();  // also when the question fails: what cannot be stored must not go out of view
    if (!may_close()) return;
    event->accept();
    emit left();
}

QLabel* module_screen::new_text(const QString& name, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

QPushButton* module_screen::add_command(QBoxLayout* row, const QString& caption, const QString& name,
                                        std::function<void()> action) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    connect(button, &QPushButton::clicked, this, [run = std::move(action)] { run(); });
    row->addWidget(button);
    main_controls_.push_back(button);
    return button;
}

void module_screen::add_missing_command(QBoxLayout* row, const QString& caption, const QString& name) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    button->setEnabled(false);
    button->setToolTip(tr("Not part of this version"));
    row->addWidget(button);
}

box_set* module_screen::add_boxes(grid_view& grid, const click_operation& click,
                                  const std::vector<box_row>& rows) {
    auto* boxes = new box_set(grid, this);
    for (const box_row& row : rows) {
        boxes_.push_back(boxes->add(row));
        boxes_.back()->set_disabled_meanwhile(&main_controls_);
        connect(boxes_.back(), &entry_box::closed, this, [this] { refresh(); });
    }
    connect(&grid, &grid_view::cell_chosen, boxes,
            [boxes, click](int row, int column) { boxes->open(click(row, column)); });
    return boxes;
}

void module_screen::reload_all() {
    for (entry_box* box : boxes_)
        box->close_box();
    reload();
}

}  // namespace kel
