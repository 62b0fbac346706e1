#include "ui/widgets/entry_form.h"

#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/widgets/choice_editors.h"
#include "ui/widgets/date_editors.h"
#include "ui/widgets/line_editor.h"
#include "ui/widgets/qt_text.h"

namespace kel {

void entry_editor::take_key(QKeyEvent& key) {
    QApplication::sendEvent(focus_stop(), &key);
}

entry_editor* new_entry_editor(const entry_part& part, const QString& box, QWidget* parent) {
    const QString name = part.name.empty() ? box : box + '_' + qt(part.name);
    const bool alone = part.label.empty();
    switch (part.kind) {
        case part_kind::number:
        case part_kind::digits:
        case part_kind::text:
            break;
        case part_kind::list:
            return new list_editor(name, alone, parent);
        case part_kind::drop_down:
            return new drop_down_editor(name, parent);
        case part_kind::options:
        case part_kind::options_with_number:
            return new options_editor(name, part.kind == part_kind::options_with_number, parent);
        case part_kind::calendar:
            return new calendar_editor(name, alone, parent);
        case part_kind::day:
            return new day_editor(name, parent);
    }
    return new line_editor(part, name, parent);
}

parts_form::parts_form(const QString& box, const std::vector<entry_part>& parts, QWidget* parent)
    : entry_form(parent), parts_(parts) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (const entry_part& part : parts_)
        add_editor(part, box);
}

void parts_form::add_editor(const entry_part& part, const QString& box) {
    entry_editor* editor = new_entry_editor(part, box, this);
    if (!part.label.empty()) {
        auto* label = new QLabel(qt(part.label), this);
        label->setWordWrap(true);
        layout()->addWidget(label);
    }
    layout()->addWidget(editor);
    connect(editor, &entry_editor::confirmed, this, &entry_form::confirmed);
    editors_.push_back(editor);
}

bool parts_form::suits(const std::vector<entry_part>& parts) const {
    return std::equal(parts.begin(), parts.end(), parts_.begin(), parts_.end(),
                      [](const entry_part& one, const entry_part& other) {
                          return one.kind == other.kind && one.name == other.name && one.label == other.label;
                      });
}

// Whoever cannot see the box hears the label of each part, or the caption where there is only one.
void parts_form::show_opening(const opening& shown) {
    for (std::size_t i = 0; i < editors_.size(); ++i) {
        const entry_part& part = shown.parts[i];
        editors_[i]->show_part(part);
        editors_[i]->named_control()->setAccessibleName(qt(part.label.empty() ? shown.caption : part.label));
    }
}

void parts_form::show_text(int part, const std::string& text) {
    editors_.at(static_cast<std::size_t>(part))->show_text(text);
}

box_entry parts_form::entered() const {
    box_entry entry;
    for (const entry_editor* editor : editors_)
        entry.parts.push_back(editor->entered());
    return entry;
}

bool parts_form::ready() {
    return std::all_of(editors_.begin(), editors_.end(),
                       [](entry_editor* editor) { return editor->ready(); });
}

void parts_form::take_key(int part, QKeyEvent& key) {
    editors_.at(static_cast<std::size_t>(part))->take_key(key);
}

std::vector<QWidget*> parts_form::stops() const {
    std::vector<QWidget*> controls;
    for (const entry_editor* editor : editors_)
        for (QWidget* control : editor->stops())
            controls.push_back(control);
    return controls;
}

QWidget* parts_form::focus_stop(int part) const {
    return editors_.at(static_cast<std::size_t>(part))->focus_stop();
}

}  // namespace kel
