#include "ui/widgets/module_screen.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QLabel>
#include <QPushButton>

#include "core/record_import.h"
#include "ui/widgets/box_set.h"
#include "ui/widgets/entry_box.h"
#include "ui/widgets/grid_view.h"
#include "ui/widgets/qt_text.h"

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

void module_screen::adopt_box(entry_box* box) {
    boxes_.push_back(box);
    box->set_disabled_meanwhile(&main_controls_);
    connect(box, &entry_box::closed, this, [this] { refresh(); });
}

entry_box* module_screen::add_import_box(QBoxLayout* row, grid_view& grid, const QString& name) {
    auto* box = new entry_box(name, grid, this);
    adopt_box(box);
    add_command(row, qt(import_messages::command), "cmd" + name, [box] {
        box->open({{}, import_messages::command, import_messages::question, {}});
    });
    return box;
}

void module_screen::add_import(QBoxLayout* row, grid_view& grid, const QString& name,
                               const import_operation& take) {
    entry_box* box = add_import_box(row, grid, name);
    const auto run = [take](import_mode mode) {
        return [take, mode](grid_cell, const box_entry&) {
            return take(mode) ? box_closes() : box_stays(outcome::focus_stays);
        };
    };
    box->on_enter(run(import_mode::add));
    box->enter_button()->setText("&" + qt(import_messages::add));
    box->enter_button()->setObjectName("cmd" + name + "_add");
    box->add_button("O&" + qt(import_messages::over_write).mid(1), "over", run(import_mode::over_write));
    box->put_cancel_last();
}

void module_screen::add_table_import(QBoxLayout* row, grid_view& grid, const QString& name,
                                     const QString& enter_name, const std::function<bool()>& take) {
    entry_box* box = add_import_box(row, grid, name);
    box->on_enter([take](grid_cell, const box_entry&) {
        return take() ? box_closes() : box_stays(outcome::focus_stays);
    });
    box->enter_button()->setText("&" + qt(import_messages::table));
    box->enter_button()->setObjectName(enter_name);
}

box_set* module_screen::add_boxes(grid_view& grid, const click_operation& click,
                                  const std::vector<box_row>& rows) {
    auto* boxes = new box_set(grid, this);
    for (const box_row& row : rows) {
        adopt_box(boxes->add(row));
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
