// A table of warnings: an icon and a text in each row, the text wrapped. Arrow keys move, Tab leaves.
#pragma once

#include <QTableWidget>

namespace kel {

class warning_table : public QTableWidget {
    Q_OBJECT

  public:
    warning_table(const QString& name, const QString& heading, QWidget* parent);

    /// The icon is a picture file; `kind` is what it says in a word.
    void add_warning(const QString& icon, const QString& kind, const QString& text);
    void clear_warnings() { setRowCount(0); }
};

}  // namespace kel
