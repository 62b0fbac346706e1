#include "ui/screens/storage_stores_page.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/screens/frmStorage.h"
#include "ui/widgets/choice_list.h"
#include "ui/widgets/giving_area.h"
#include "ui/widgets/grid_view.h"
#include "ui/widgets/line_editor.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace {

constexpr int form_width = 58;  // characters

}  // namespace

storage_stores_page::storage_stores_page(frmStorage& screen, stores_page& page)
    : QWidget(&screen), page_(page) {
    setObjectName("fraStores");
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 8, 0, 0);
    layout->setSpacing(12);
    layout->addWidget(form(screen));
    layout->addWidget(table(screen), 1);
    show_store({});
}

QWidget* storage_stores_page::form(frmStorage& screen) {
    auto* frame = new QGroupBox(tr("Slurry store"));
    frame->setObjectName("fraStorage3_store");
    auto* layout = new QVBoxLayout(frame);
    lines_ = new QFormLayout;
    name_ = add_box(tr("Store &name:"), "txtStorage3_name", &store_form::name, false);
    shape_ = new choice_list(frame);
    shape_->setObjectName("lstStorage3_shape");
    for (const std::string_view shape : store_shapes())
        shape_->addItem(qt(shape));
    shape_->setFixedHeight(3 * shape_->sizeHintForRow(0) + 2 * shape_->frameWidth());
    shape_->setMinimumWidth(shape_->sizeHintForColumn(0) + 4 * shape_->frameWidth());
    shape_->setAccessibleName(tr("Shape"));
    lines_->addRow(tr("S&hape:"), shape_);
    depth_ = add_box(tr("&Depth (m):"), "txtStorage3_depth", &store_form::depth);
    length_ = add_box(tr("&Length (m):"), "txtStorage3_length", &store_form::length);
    width_ = add_box(tr("&Width (m):"), "txtStorage3_width", &store_form::width);
    diameter_ = add_box(tr("D&iameter (m):"), "txtStorage3_diameter", &store_form::diameter);
    angle_ = add_box(tr("Ban&k angle (degrees):"), "txtStorage3_angle", &store_form::angle);
    percent_ = add_box(tr("% &full at year start:"), "txtStorage3_percent", &store_form::percent);
    area_ = add_box(tr("Drainage area (s&q m):"), "txtStorage3_area", &store_form::area);
    layout->addLayout(lines_);
    auto* row = new QHBoxLayout;
    row->addStretch();
    auto* add = screen.add_command(row, tr("&Add To List"), "cmdStores_add", [this] { add_store(); });
    for (const store_box& box : boxes_)
        connect(box.edit, &QLineEdit::returnPressed, add, &QPushButton::click);
    layout->addLayout(row);
    layout->addStretch(1);
    connect(shape_, &QListWidget::itemSelectionChanged, this, &storage_stores_page::shape_chosen);
    for (QLineEdit* box : {length_, width_, diameter_})
        connect(box, &QLineEdit::textEdited, this, [this] { area_->setText(qt(auto_area(entered()))); });
    auto* area = new giving_area(frame, "fraStorage3_form", this);
    area->setFixedWidth(std::max(characters_px(*frame, form_width), area->minimumSizeHint().width()));
    return area;
}

QLineEdit* storage_stores_page::add_box(const QString& caption, const char* name,
                                        std::string store_form::*text, bool number) {
    auto* box = number ? new_number_box(name, this) : new QLineEdit(this);
    box->setObjectName(name);
    box->setAccessibleName(QString(caption).remove('&').remove(':'));
    lines_->addRow(caption, box);
    boxes_.push_back({box, text});
    return box;
}

QWidget* storage_stores_page::table(frmStorage& screen) {
    auto* panel = new QWidget(this);
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    table_ = new grid_view(page_.stores(), "MSFlexGridStores", panel);
    table_->setAccessibleName(tr("Slurry stores"));
    layout->addWidget(table_, 1);
    screen.undo_with(*table_);
    auto* row = new QHBoxLayout;
    screen.add_command(row, tr("&Edit Row"), "cmdStores_edit", [this] { edit_store(); })
        ->setToolTip(tr("Takes the selected store out of the table and puts it into the boxes"));
    screen.add_command(row, tr("Delete &Row"), "cmdStores_delete", [this] { delete_store(); });
    screen.add_import(row, *table_, "Storage3_import",
                      [this](import_mode mode) { return page_.import_records(mode); });
    row->addStretch();
    layout->addLayout(row);
    return panel;
}

std::string storage_stores_page::shape() const {
    return shape_->chosen().value_or("");
}

store_form storage_stores_page::entered() const {
    store_form store;
    for (const store_box& box : boxes_)
        store.*box.text = from_qt(box.edit->text());
    store.shape = shape();
    return store;
}

void storage_stores_page::show_store(const store_form& store) {
    const QSignalBlocker quiet(shape_);
    const auto found = shape_->findItems(qt(store.shape), Qt::MatchExactly);
    shape_->clearSelection();
    if (!found.isEmpty()) shape_->setCurrentItem(found.front());
    for (const store_box& box : boxes_)
        box.edit->setText(qt(store.*box.text));
    const offered_boxes offered = boxes_of_shape(store.shape);
    lines_->setRowVisible(depth_, offered.depth);
    lines_->setRowVisible(length_, offered.length_and_width);
    lines_->setRowVisible(width_, offered.length_and_width);
    lines_->setRowVisible(diameter_, offered.diameter);
    lines_->setRowVisible(angle_, offered.angle);
}

void storage_stores_page::shape_chosen() {
    show_store(choose_shape(entered(), shape()));
}

void storage_stores_page::add_store() {
    const bool name_taken =
        !name_->text().isEmpty() && page_.stores().find(store_column::name, from_qt(name_->text())) >= 0;
    if (page_.add_store(entered())) {
        show_store({});
        refresh();
        name_->setFocus();
    } else if (name_taken) {
        name_->setFocus();
    }
}

// With no cell chosen the empty row at the bottom stands for it.
int storage_stores_page::row() const {
    return table_->current_row() >= 0 ? table_->current_row() : page_.stores().data_row_count();
}

void storage_stores_page::edit_store() {
    const auto store = page_.edit_store(row());
    if (!store) return;
    show_store(*store);
    refresh();
    name_->setFocus();
}

void storage_stores_page::delete_store() {
    if (page_.delete_store(row())) refresh();
}

void storage_stores_page::take_focus() {
    name_->setFocus();
}

void storage_stores_page::refresh() {
    table_->refresh();
}

}  // namespace kel
