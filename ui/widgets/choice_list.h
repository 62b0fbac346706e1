// A list in which nothing is chosen until the person chooses. The toolkit makes the first entry current as
// soon as the list has the focus, and Down would then pass it by. Letters typed into it spell one word, a new
// one each time that the list gets the focus: what was typed into it before would otherwise stand in front.
#pragma once

#include <QListWidget>
#include <QSignalBlocker>
#include <optional>
#include <string>

#include "ui/widgets/qt_text.h"

namespace kel {

class choice_list : public QListWidget {
  public:
    using QListWidget::QListWidget;

    /// The selected entry, which is not always the current one; nothing if none is.
    std::optional<std::string> chosen() const {
        const auto items = selectedItems();
        return items.isEmpty() ? std::nullopt : std::optional(from_qt(items.front()->text()));
    }

  protected:
    void focusInEvent(QFocusEvent* event) override {
        QListWidget::focusInEvent(event);
        const QSignalBlocker unchanged(this);
        const auto items = selectedItems();
        keyboardSearch({});  // ends the word, but also moves on by an entry
        setCurrentItem(items.isEmpty() ? nullptr : items.front());
    }
};

}  // namespace kel
