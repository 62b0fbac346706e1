#include "ui/widgets/warning_table.h"

#include <QHeaderView>
#include <QIcon>
#include <QLabel>

namespace kel {

namespace {

constexpr int least_row_height = 47;  // 700 twips
constexpr int icon_size = 32;
constexpr int icon_column = 0;
constexpr int text_column = 1;

}  // namespace

warning_table::warning_table(const QString& name, const QString& heading, QWidget* parent)
    : QTableWidget(0, 2, parent) {
    setObjectName(name);
    setAccessibleName(heading);
    setHorizontalHeaderLabels({{}, heading});
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(least_row_height);
    horizontalHeader()->setSectionResizeMode(text_column, QHeaderView::Stretch);
    horizontalHeader()->resizeSection(icon_column, 60);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setTabKeyNavigation(false);
    setWordWrap(true);
    // Rows are as high as their texts need at the width that the column ends up with, which it takes after
    // the table.
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, &QTableWidget::resizeRowsToContents,
            Qt::QueuedConnection);
}

void warning_table::add_warning(const QString& icon, const QString& kind, const QString& text) {
    const int row = rowCount();
    insertRow(row);
    auto* picture = new QLabel(this);
    picture->setPixmap(QIcon(icon).pixmap(icon_size));
    picture->setAlignment(Qt::AlignCenter);
    picture->setAccessibleName(kind);
    picture->setToolTip(kind);
    setCellWidget(row, icon_column, picture);
    setItem(row, text_column, new QTableWidgetItem(text));
    resizeRowToContents(row);
}

}  // namespace kel
