#include "ui/widgets/paste_list.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/widgets/grid_view.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace {
constexpr std::size_t most_shown = 1000;
}

paste_list::paste_list(grid_view& grid, std::vector<pasted_note> notes, QWidget* parent)
    : QDialog(parent), grid_(grid), notes_(std::move(notes)) {
    setObjectName("dlgPaste");
    setWindowTitle(tr("Paste"));
    setAttribute(Qt::WA_DeleteOnClose);
    const auto taken = std::stable_partition(notes_.begin(), notes_.end(),
                                             [](const pasted_note& note) { return !note.entered; });
    const auto refused = static_cast<qsizetype>(taken - notes_.begin());
    auto* layout = new QVBoxLayout(this);
    auto* told =
        new QLabel(refused == 0 ? tr("Everything was entered. Please check:")
                                : tr("Not entered: %1. Choose a line to go to its cell.").arg(refused));
    told->setObjectName("lblPaste");
    layout->addWidget(told);
    auto* list = new QListWidget;
    list->setObjectName("lstPaste");
    list->setAccessibleName(told->text());
    list->setWordWrap(true);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (std::size_t i = 0; i < std::min(notes_.size(), most_shown); ++i)
        list->addItem(line_of(notes_[i]));
    if (notes_.size() > most_shown)
        list->addItem(tr("... and %1 more").arg(static_cast<qsizetype>(notes_.size() - most_shown)));
    layout->addWidget(list);
    auto* close_button = new QPushButton(tr("&Close"));
    close_button->setObjectName("cmdPaste_close");
    layout->addWidget(close_button, 0, Qt::AlignRight);
    connect(list, &QListWidget::currentRowChanged, this, &paste_list::lead_to);
    connect(list, &QListWidget::itemActivated, this, [this] {
        grid_.window()->activateWindow();
        grid_.setFocus();
    });
    connect(close_button, &QPushButton::clicked, this, &QDialog::close);
    resize(fontMetrics().averageCharWidth() * 90, fontMetrics().height() * 16);
}

QString paste_list::line_of(const pasted_note& note) const {
    const auto column = grid_.shown().columns()[static_cast<std::size_t>(note.cell.column)];
    QString where = tr("Line %1").arg(note.line);
    if (note.cell.row >= 0) where += tr(", row %1").arg(grid_.shown_row(note.cell.row) + 1);
    return where + ", " + qt(column.heading) + (note.entered ? tr(" (entered)") : QString()) + ": " +
           qt(note.text);
}

void paste_list::lead_to(int entry) {
    if (entry < 0 || static_cast<std::size_t>(entry) >= notes_.size() || grid_.locked()) return;
    const grid_cell cell = notes_[static_cast<std::size_t>(entry)].cell;
    if (grid_.model()->hasIndex(cell.row, cell.column)) grid_.go_to(cell.row, cell.column);
}

}  // namespace kel
