#include "ui/widgets/question_page.h"

#include <QGroupBox>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "ui/widgets/choice_editors.h"

namespace kel {

question_page::question_page(const QString& name, const QString& question,
                             const std::vector<std::string>& choices, QWidget* parent)
    : QWidget(parent), choices_(choices), commands_(new QHBoxLayout) {
    setObjectName("fra" + name);
    auto* frame = new QGroupBox(question, this);
    auto* inside = new QVBoxLayout(frame);
    options_ = new options_editor(name, false, frame);
    options_->setAccessibleName(question);
    inside->addWidget(options_);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(frame);
    layout->addLayout(commands_);
    layout->addStretch();
    set_answer(std::nullopt);
}

void question_page::set_answer(std::optional<int> place) {
    options_->show_part({part_kind::options,
                         place ? choices_.at(static_cast<std::size_t>(*place)) : std::string{}, choices_});
}

std::optional<int> question_page::answer() const {
    return options_->entered().choice;
}

void question_page::take_focus() {
    options_->focus_stop()->setFocus();
}

void question_page::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        emit confirmed();
    else
        QWidget::keyPressEvent(event);
}

}  // namespace kel
