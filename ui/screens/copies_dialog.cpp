#include "ui/screens/copies_dialog.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "shell/farm_files_messages.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace {

QString size_text(std::uintmax_t bytes) {
    constexpr std::uintmax_t kilobyte = 1024;
    return QString::number((bytes + kilobyte - 1) / kilobyte) + " KB";
}

QStringList row_of(const earlier_copy& copy) {
    return {qt(farm_files_messages::moment_text(copy.kept)), qt(copy.farm).simplified(),
            copy.year_start ? qt(short_date_text(*copy.year_start)) : QString(), size_text(copy.size),
            copy.came_from.empty() ? copies_dialog::tr("not known") : qt(copy.came_from)};
}

}  // namespace

copies_dialog::copies_dialog(const std::vector<earlier_copy>& copies) {
    setObjectName("frmCopies");
    setWindowTitle(qt(farm_files_messages::restore_title));
    auto* layout = new QVBoxLayout(this);
    auto* told =
        new QLabel(tr("Each copy is an assessment as it was before the first save of that day, or "
                      "before it was replaced. Choose the one to put back."));
    told->setWordWrap(true);
    layout->addWidget(told);
    list_ = new QTableWidget(this);
    list_->setObjectName("lstCopies");
    list_->setAccessibleName(tr("Earlier copies"));
    fill(copies);
    layout->addWidget(list_, 1);
    auto* row = new QHBoxLayout;
    row->addStretch();
    auto* restore = new QPushButton(tr("&Restore"));
    restore->setObjectName("cmdCopies_restore");
    restore->setDefault(true);
    auto* cancel = new QPushButton(tr("Cancel"));
    cancel->setObjectName("cmdCopies_cancel");
    row->addWidget(restore);
    row->addWidget(cancel);
    layout->addLayout(row);
    connect(restore, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(list_, &QTableWidget::cellDoubleClicked, this, &QDialog::accept);
    resize(fontMetrics().averageCharWidth() * 125, fontMetrics().height() * 26);
    list_->setFocus();
}

void copies_dialog::fill(const std::vector<earlier_copy>& copies) {
    const QStringList headings{tr("Kept on"), tr("Farm"), tr("KEL year from"), tr("Size"),
                               tr("Goes back to")};
    list_->setColumnCount(static_cast<int>(headings.size()));
    list_->setHorizontalHeaderLabels(headings);
    list_->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    list_->verticalHeader()->hide();
    list_->setSelectionBehavior(QAbstractItemView::SelectRows);
    list_->setSelectionMode(QAbstractItemView::SingleSelection);
    list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list_->setTabKeyNavigation(false);
    list_->setRowCount(static_cast<int>(copies.size()));
    int row = 0;
    for (const earlier_copy& copy : copies) {
        int column = 0;
        for (const QString& text : row_of(copy)) {
            auto* cell = new QTableWidgetItem(text);
            cell->setToolTip(plain_tip(text));
            list_->setItem(row, column++, cell);
        }
        ++row;
    }
    list_->resizeColumnsToContents();
    for (int column = 0; column + 1 < list_->columnCount(); ++column)
        list_->setColumnWidth(column,
                              std::min(list_->columnWidth(column), fontMetrics().averageCharWidth() * 34));
    // The path takes what is left; its tool tip has the whole of it.
    list_->setColumnWidth(list_->columnCount() - 1, 1);
    list_->horizontalHeader()->setStretchLastSection(true);
    list_->setTextElideMode(Qt::ElideMiddle);
    if (!copies.empty()) list_->selectRow(0);
}

std::optional<std::size_t> copies_dialog::chosen() const {
    const int row = list_->currentRow();
    return row < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(row));
}

}  // namespace kel
