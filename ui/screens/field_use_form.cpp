#include "ui/screens/field_use_form.h"

#include <QCalendarWidget>
#include <QDateEdit>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "storage/storage_messages.h"
#include "ui/widgets/choice_list.h"
#include "ui/widgets/entry_box.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace text = storage_messages;

namespace {

QStringList crops() {
    QStringList shown;
    for (const field_use& use : field_uses())
        shown << qt(use.shown);
    return shown;
}

void select(choice_list* list, const std::string& text) {
    const auto found = list->findItems(qt(text), Qt::MatchExactly);
    list->clearSelection();
    if (!found.isEmpty()) list->setCurrentItem(found.front());
}

void fit_rows(choice_list* list) {
    list->setFixedHeight(list->count() * list->sizeHintForRow(0) + 2 * list->frameWidth());
}

}  // namespace

// The box's own list becomes the first of the two; the form takes its cell of the box.
field_use_form::field_use_form(const QString& name, entry_box& box, const std::string& date_format)
    : QWidget(&box),
      box_(box),
      first_(box.use_list(crops())),
      second_(new choice_list),
      harvest_(new QDateEdit) {
    // A double click in one list does not confirm: the other one and the date are still to be answered.
    disconnect(first_, &QListWidget::itemDoubleClicked, nullptr, nullptr);
    take_cell_of_list();
    second_->addItems(crops());
    harvest_->setDisplayFormat(qt(date_format));
    harvest_->setCalendarPopup(true);
    harvest_->setCalendarWidget(new_calendar("cal" + name, harvest_));
    first_->setObjectName("lst" + name + "_first");
    second_->setObjectName("lst" + name + "_second");
    harvest_->setObjectName("dtp" + name + "_harvest");
    add_editors();
    for (choice_list* list : {first_, second_})
        fit_rows(list);
    setTabOrder(first_, second_);
    setTabOrder(second_, harvest_);
    setTabOrder(harvest_, box.findChild<QWidget*>("cmd" + name + "_enter"));
}

void field_use_form::take_cell_of_list() {
    auto* frame = qobject_cast<QGridLayout*>(box_.layout());
    int row = 0, column = 0, rows = 0, columns = 0;
    frame->getItemPosition(frame->indexOf(first_), &row, &column, &rows, &columns);
    frame->removeWidget(first_);
    frame->addWidget(this, row, column, rows, columns);
}

void field_use_form::add_editors() {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    const auto add = [&](std::string_view caption, QWidget* editor) {
        auto* label = new QLabel(qt(caption), this);
        label->setWordWrap(true);
        label->setBuddy(editor);
        editor->setAccessibleName(label->text());
        layout->addWidget(label);
        layout->addWidget(editor);
    };
    add(text::first_crop_label, first_);
    add(text::second_crop_label, second_);
    add(text::harvest_label, harvest_);
}

void field_use_form::set_harvest(date day) {
    harvest_->setDate({year_of(day), month_of(day), day_of(day)});
}

void field_use_form::open(const QString& caption, const QString& instruction, const crop_pair& shown) {
    select(second_, shown.second);
    box_.open(caption, instruction, qt(shown.first));
    select(first_, shown.first);
    first_->setAccessibleName(qt(text::first_crop_label));
}

field_use_entry field_use_form::entered() const {
    const QDate day = harvest_->date();
    return {{first_->chosen().value_or(""), second_->chosen().value_or("")},
            make_date(day.day(), day.month(), day.year())};
}

}  // namespace kel
