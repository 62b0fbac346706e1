#include "ui/widgets/choice_editors.h"

#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

#include "core/numbers.h"
#include "ui/widgets/choice_list.h"
#include "ui/widgets/line_editor.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace {

constexpr int list_height_px = 220;
constexpr int slack_px = 4;  // or the scroll bar shows
constexpr int widest_list_px = 720;

QStringList shown(const std::vector<std::string>& choices) {
    QStringList texts;
    for (const std::string& choice : choices)
        texts << qt(choice);
    return texts;
}

part_entry chosen(int place, const QString& text) {
    if (place < 0) return {};
    return {.text = from_qt(text), .choice = place};
}

}  // namespace

list_editor::list_editor(const QString& name, bool alone, QWidget* parent)
    : entry_editor(parent), list_(new choice_list(this)), alone_(alone) {
    list_->setObjectName("lst" + name);
    list_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    fill_with(list_);
    if (alone_) connect(list_, &QListWidget::itemDoubleClicked, this, &entry_editor::confirmed);
}

// Among others the list takes no more room than its rows need. Its box widens to its longest entry.
void list_editor::show_part(const entry_part& part) {
    list_->clear();
    list_->addItems(shown(part.choices));
    list_->ensurePolished();
    const int rows_px = list_->count() * list_->sizeHintForRow(0) + 2 * list_->frameWidth() + slack_px;
    list_->setFixedHeight(alone_ ? list_height_px : std::min(rows_px, list_height_px));
    const bool all_in_view = !alone_ && rows_px <= list_height_px;
    list_->setVerticalScrollBarPolicy(all_in_view ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    const int bar_px = all_in_view ? 0 : list_->verticalScrollBar()->sizeHint().width();
    const int row_px = list_->sizeHintForColumn(0) + 2 * list_->frameWidth() + slack_px;
    list_->setMinimumWidth(std::min(row_px + bar_px, widest_list_px));
    show_text(part.text);
}

void list_editor::show_text(const std::string& text) {
    const auto found = list_->findItems(qt(text), Qt::MatchExactly);
    list_->clearSelection();
    list_->setCurrentItem(found.isEmpty() ? nullptr : found.front());
    if (!found.isEmpty()) list_->scrollToItem(found.front());
}

part_entry list_editor::entered() const {
    const auto items = list_->selectedItems();
    return items.isEmpty() ? part_entry{} : chosen(list_->row(items.front()), items.front()->text());
}

std::vector<QWidget*> list_editor::stops() const {
    return {list_};
}

drop_down_editor::drop_down_editor(const QString& name, QWidget* parent)
    : entry_editor(parent), combo_(new QComboBox(this)) {
    combo_->setObjectName("cbo" + name);
    fill_with(combo_);
}

void drop_down_editor::show_part(const entry_part& part) {
    combo_->clear();
    combo_->addItems(shown(part.choices));
    show_text(part.text);
}

void drop_down_editor::show_text(const std::string& text) {
    combo_->setCurrentIndex(combo_->findText(qt(text)));
}

part_entry drop_down_editor::entered() const {
    return chosen(combo_->currentIndex(), combo_->currentText());
}

std::vector<QWidget*> drop_down_editor::stops() const {
    return {combo_};
}

options_editor::options_editor(const QString& name, bool with_number, QWidget* parent)
    : entry_editor(parent), name_(name), with_number_(with_number), layout_(new QVBoxLayout(this)) {
    layout_->setContentsMargins(0, 0, 0, 0);
}

void options_editor::show_part(const entry_part& part) {
    build(part);
    show_text(part.text);
}

void options_editor::build(const entry_part& part) {
    discard(options_);
    options_ = new QWidget(this);
    group_ = new QButtonGroup(options_);
    auto* lines = new QVBoxLayout(options_);
    lines->setContentsMargins(0, 0, 0, 0);
    for (const std::string& choice : part.choices) {
        auto* option = new QRadioButton(qt(choice), options_);
        const auto place = static_cast<std::size_t>(lines->count());
        const QString ending =
            place < part.choice_names.size() ? qt(part.choice_names[place]) : QString::number(place + 1);
        option->setObjectName("opt" + name_ + "_" + ending);
        option->installEventFilter(this);
        group_->addButton(option, lines->count());
        lines->addWidget(option);
    }
    if (with_number_) add_number(qt(part.unit));
    layout_->addWidget(options_);
}

// A length that is typed chooses its option by itself.
void options_editor::add_number(const QString& unit) {
    number_ = new_number_box("txt" + name_, options_);
    auto* row = new QHBoxLayout;
    auto* last = group_->buttons().back();
    row->addWidget(last);
    row->addWidget(number_, 1);
    auto* unit_label = new QLabel(unit, options_);
    unit_label->setObjectName("lbl" + name_ + "_unit");
    row->addWidget(unit_label);
    static_cast<QVBoxLayout*>(options_->layout())->addLayout(row);
    number_->setAccessibleName(last->text() + ' ' + unit);
    connect(number_, &QLineEdit::textChanged, last, [last](const QString& typed) {
        if (leading_number(from_qt(typed)) > 0) last->setChecked(true);
    });
}

void options_editor::show_text(const std::string& text) {
    for (QAbstractButton* option : group_->buttons())
        if (option->text() == qt(text)) option->setChecked(true);
}

part_entry options_editor::entered() const {
    const QAbstractButton* option = group_->checkedButton();
    part_entry entry = option ? chosen(group_->checkedId(), option->text()) : part_entry{};
    if (number_) entry.number = from_qt(number_->text());
    return entry;
}

std::vector<QWidget*> options_editor::stops() const {
    std::vector<QWidget*> controls;
    for (QAbstractButton* option : group_->buttons())
        controls.push_back(option);
    if (number_) controls.push_back(number_);
    return controls;
}

void options_editor::take_key(QKeyEvent& key) {
    for (QAbstractButton* option : group_->buttons())
        if (option->text().startsWith(key.text(), Qt::CaseInsensitive)) {
            option->setChecked(true);
            return option->setFocus();
        }
    if (!number_ || !key.text().front().isDigit()) return;
    number_->setFocus();
    number_->selectAll();
    QApplication::sendEvent(number_, &key);
}

QWidget* options_editor::focus_stop() const {
    QAbstractButton* option = group_->checkedButton();
    return option ? option : stops().front();
}

// The toolkit lets the arrows move the focus past options of which none is checked; here they choose, as the
// person sees it.
bool options_editor::eventFilter(QObject* watched, QEvent* event) {
    auto* option = qobject_cast<QRadioButton*>(watched);
    if (!option || event->type() != QEvent::KeyPress || group_->checkedButton())
        return entry_editor::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool on = key == Qt::Key_Down || key == Qt::Key_Right;
    if (!on && key != Qt::Key_Up && key != Qt::Key_Left) return entry_editor::eventFilter(watched, event);
    const auto options = group_->buttons();
    const auto next = std::clamp<qsizetype>(options.indexOf(option) + (on ? 1 : -1), 0, options.size() - 1);
    options[next]->setChecked(true);
    options[next]->setFocus();
    return true;
}

}  // namespace kel
