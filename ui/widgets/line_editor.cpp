#include "ui/widgets/line_editor.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpressionValidator>

#include "ui/widgets/number_hint.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace {

QLineEdit* new_filtered_line(const QString& name, const char* pattern, QWidget* parent) {
    QLineEdit* line = new_text_box(name, parent);
    line->setValidator(new QRegularExpressionValidator(QRegularExpression(pattern), line));
    new number_hint(*line);
    return line;
}

QLineEdit* line_of_kind(part_kind kind, const QString& name, QWidget* parent) {
    if (kind == part_kind::number) return new_number_box(name, parent);
    return kind == part_kind::digits ? new_whole_number_box(name, parent) : new_text_box(name, parent);
}

}  // namespace

QLineEdit* new_text_box(const QString& name, QWidget* parent) {
    auto* line = new QLineEdit(parent);
    line->setObjectName(name);
    return line;
}

QLineEdit* new_number_box(const QString& name, QWidget* parent) {
    return new_filtered_line(name, "[0-9]*\\.?[0-9]*", parent);
}

QLineEdit* new_whole_number_box(const QString& name, QWidget* parent) {
    return new_filtered_line(name, "[0-9]*", parent);
}

line_editor::line_editor(const entry_part& part, const QString& name, QWidget* parent)
    : entry_editor(parent), line_(line_of_kind(part.kind, "txt" + name, this)), unit_(new QLabel(this)) {
    unit_->setObjectName("lbl" + name + "_unit");
    unit_->setBuddy(line_);
    line_->installEventFilter(this);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(line_, 1);
    layout->addWidget(unit_);
}

void line_editor::show_part(const entry_part& part) {
    unit_->setText(qt(part.unit));
    unit_->setVisible(!part.unit.empty());
    not_typed_ = part.not_typed;
    show_text(part.text);
}

void line_editor::show_text(const std::string& text) {
    line_->setText(qt(text));
    line_->selectAll();
}

part_entry line_editor::entered() const {
    return {.text = from_qt(line_->text())};
}

std::vector<QWidget*> line_editor::stops() const {
    return {line_};
}

bool line_editor::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return entry_editor::eventFilter(watched, event);
    const std::string typed = from_qt(static_cast<QKeyEvent*>(event)->text());
    return typed.size() == 1 && not_typed_.find(typed) != std::string::npos;
}

}  // namespace kel
