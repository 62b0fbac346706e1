#include "ui/screens/frmFarms.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "ui/widgets/grid_view.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace {
constexpr int turn_ms = 30;  // of work between two looks at the keyboard
}

frmFarms::frmFarms(application_state& state, prompts& person, std::function<date()> today)
    : module_(state, person, std::move(today)) {
    setObjectName("frmFarms");
    setWindowTitle(tr("Farms of a folder"));
    auto* layout = new QVBoxLayout(this);
    told_ = new QLabel(this);
    told_->setObjectName("lblFarms");
    told_->setTextFormat(Qt::PlainText);
    told_->setWordWrap(true);
    layout->addWidget(told_);
    progress_ = new QProgressBar(this);
    progress_->setObjectName("barFarms");
    progress_->setAccessibleName(tr("Files judged"));
    layout->addWidget(progress_);
    grid_ = new grid_view(module_.list(), "MSFlexGridFarms", this);
    grid_->setAccessibleName(tr("Farms of the folder, worst first"));
    layout->addWidget(grid_, 1);
    auto* row = new QHBoxLayout;
    layout->addLayout(row);
    add_command(row, tr("Check a &folder..."), "cmdFarms_choose", &frmFarms::begin);
    stop_ = add_command(row, tr("&Stop"), "cmdFarms_stop", &frmFarms::stop);
    row->addStretch();
    of_the_list_ = {add_command(row, tr("&Open this farm"), "cmdFarms_open", &frmFarms::open_farm),
                    add_command(row, tr("Save as &table..."), "cmdFarms_table", &frmFarms::save_table),
                    add_command(row, tr("Save as &page..."), "cmdFarms_page", &frmFarms::save_page)};
    auto* exit = new QPushButton(tr("E&xit"), this);
    exit->setObjectName("cmdFarms_exit");
    connect(exit, &QPushButton::clicked, this, &QWidget::close);
    row->addWidget(exit);
    connect(grid_, &QAbstractItemView::doubleClicked, this, &frmFarms::open_farm);
    pieces_ = new QTimer(this);
    connect(pieces_, &QTimer::timeout, this, &frmFarms::go_on);
    refresh();
}

QPushButton* frmFarms::add_command(QLayout* row, const QString& caption, const char* name,
                                   void (frmFarms::*action)()) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    connect(button, &QPushButton::clicked, this, action);
    row->addWidget(button);
    return button;
}

void frmFarms::begin() {
    if (!module_.choose_folder()) return;
    grid_->refresh();  // the list is empty now
    pieces_->start(0);
    refresh();
}

void frmFarms::go_on() {
    QElapsedTimer turn;
    turn.start();
    while (module_.work() && turn.elapsed() < turn_ms) {
    }
    if (!module_.working()) pieces_->stop();
    refresh();
}

void frmFarms::stop() {
    module_.stop();
    pieces_->stop();
    refresh();
}

void frmFarms::open_farm() {
    if (module_.working() || grid_->current_row() < 0) return;
    emit farm_wanted(module_.path_of(grid_->current_row()));
}

void frmFarms::save_table() {
    module_.save_table();
}

void frmFarms::save_page() {
    module_.save_page();
}

void frmFarms::refresh() {
    const bool working = module_.working();
    const QString folder = module_.folder().empty() ? QString() : qt(module_.folder()) + "\n";
    told_->setText(folder + (working ? tr("%1 of %2 files judged")
                                           .arg(static_cast<qulonglong>(module_.files_judged()))
                                           .arg(static_cast<qulonglong>(module_.files_found()))
                                     : qt(module_.told())));
    progress_->setVisible(working);
    progress_->setMaximum(static_cast<int>(module_.files_found()));
    progress_->setValue(static_cast<int>(module_.files_judged()));
    stop_->setEnabled(working);
    const bool has_rows = !working && module_.list().row_count() > 0;
    for (QPushButton* button : of_the_list_)
        button->setEnabled(has_rows);
    if (!working) grid_->refresh();
}

void frmFarms::closeEvent(QCloseEvent* event) {
    stop();
    QWidget::closeEvent(event);
    emit closed();
}

}  // namespace kel
