#include "ui/widgets/why_panel.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScopeGuard>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include "core/file_error.h"
#include "ui/widgets/grid_view.h"
#include "ui/widgets/qt_text.h"
#include "ui/widgets/why_page.h"
#include "ui/widgets/why_text.h"

namespace kel {

namespace {

constexpr int fewest_characters = 26;

// Nothing for a control that shows no text, as a bar of a chart.
std::optional<std::string> text_of(const QWidget* control) {
    if (const auto* label = qobject_cast<const QLabel*>(control)) return from_qt(label->text());
    if (const auto* line = qobject_cast<const QLineEdit*>(control)) return from_qt(line->text());
    if (const auto* passage = qobject_cast<const QPlainTextEdit*>(control))
        return from_qt(passage->toPlainText());
    return std::nullopt;
}

std::string name_of_cell(const text_grid& grid, int row, int column) {
    const std::string heading(grid.columns()[static_cast<std::size_t>(column)].heading);
    const std::string& name = grid.cell(row, 0);
    return column == 0 || name.empty() ? heading : heading + ", " + name;
}

}  // namespace

why_panel::why_panel(why_source source, QWidget& screen)
    : source_(std::move(source)), screen_(screen), choice_(new QComboBox(this)), text_(new why_text(this)) {
    setObjectName("fraWhy");
    setFrameStyle(QFrame::StyledPanel);
    setMinimumWidth(fontMetrics().averageCharWidth() * fewest_characters);
    setLayout(new QVBoxLayout);
    add_head();
    choice_->setObjectName("cboWhy");
    choice_->setAccessibleName(tr("What is explained"));
    choice_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    choice_->setVisible(!source_.results.empty());
    choice_->addItem(tr("The current cell"));
    for (const named_result& result : source_.results)
        choice_->addItem(qt(result.caption), qt(result.name));
    connect(choice_, &QComboBox::currentIndexChanged, this, &why_panel::refresh_soon);
    layout()->addWidget(choice_);
    text_->setObjectName("txtWhy");
    text_->setAccessibleName(tr("Why?"));
    layout()->addWidget(text_);
}

void why_panel::add_head() {
    auto* head = new QHBoxLayout;
    auto* title = new QLabel(tr("Why?"), this);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    head->addWidget(title, 1);
    auto* close_button = new QToolButton(this);
    close_button->setObjectName("cmdWhy_close");
    close_button->setText(tr("Close"));
    close_button->setToolTip(tr("Close the explanation (Ctrl+I)"));
    close_button->setAutoRaise(true);
    close_button->setFocusPolicy(Qt::StrongFocus);
    connect(close_button, &QToolButton::clicked, this, &why_panel::close_wanted);
    head->addWidget(close_button);
    static_cast<QVBoxLayout*>(layout())->addLayout(head);
}

int why_panel::zoom() const {
    return text_->zoom();
}

void why_panel::set_zoom(int steps) {
    text_->set_zoom(steps);
}

void why_panel::follow(grid_view* grid) {
    if (followed_ == grid) return;
    if (followed_) {
        disconnect(followed_->model(), nullptr, this, nullptr);
        disconnect(followed_->selectionModel(), nullptr, this, nullptr);
    }
    followed_ = grid;
    if (!grid) return;
    const auto* rows = grid->model();
    connect(rows, &QAbstractItemModel::dataChanged, this, &why_panel::refresh_soon);
    connect(rows, &QAbstractItemModel::rowsInserted, this, &why_panel::refresh_soon);
    connect(rows, &QAbstractItemModel::rowsRemoved, this, &why_panel::refresh_soon);
    connect(rows, &QAbstractItemModel::modelReset, this, &why_panel::refresh_soon);
    connect(grid->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] {
        choice_->setCurrentIndex(0);
        refresh_soon();
    });
    refresh_soon();
}

bool why_panel::choose_result(const QString& name) {
    const int at = name.isEmpty() ? -1 : choice_->findData(name);
    if (at >= 0) choice_->setCurrentIndex(at);
    return at >= 0;
}

void why_panel::refresh_soon() {
    if (pending_ || !isVisible()) return;
    pending_ = true;
    QTimer::singleShot(0, this, &why_panel::refresh);
}

void why_panel::showEvent(QShowEvent* event) {
    QFrame::showEvent(event);
    refresh_soon();
}

void why_panel::refresh() {
    pending_ = false;
    if (!isVisible()) return;
    try {
        text_->show_page(page());
    } catch (const file_error& failure) {
        text_->show_page(why_page({}, tr("This cannot be explained now. There is a problem with the file %1: "
                                         "%2")
                                          .arg(qt(failure.file()), qt(failure.trouble()))));
    }
}

QString why_panel::page() const {
    const QString result = choice_->currentData().toString();
    return result.isEmpty() ? page_of_cell() : page_of_result(result);
}

// The one that a person was in last, unless another one has come into its place since.
grid_view* why_panel::table_in_use() const {
    if (followed_ && followed_->isVisible()) return followed_;
    for (auto* grid : screen_.findChildren<grid_view*>())
        if (grid->isVisible()) return grid;
    return nullptr;
}

void why_panel::keep_cell_in_view() const {
    grid_view* table = table_in_use();
    if (table && !table->locked() && table->currentIndex().isValid()) table->scrollTo(table->currentIndex());
}

QString why_panel::page_of_cell() const {
    const grid_view* view = table_in_use();
    const int row = view ? view->current_row() : -1;
    const int column = view ? view->current_column() : -1;
    if (row < 0 || column < 0 || row >= view->shown().row_count())
        return why_page({}, tr("Choose a cell of the table to see why its figure is what it is."));
    const text_grid& grid = view->shown();
    const std::string& shown = grid.cell(row, column);
    const std::string name = name_of_cell(grid, row, column);
    if (source_.cell && !(shown.empty() && view->is_white(column))) {
        const auto why = source_.cell(grid, static_cast<std::size_t>(row), static_cast<std::size_t>(column));
        if (why) return why_page(*why, shown);
    }
    if (!view->is_white(column)) return why_page(name, tr("Nothing has been worked out here yet."));
    if (shown.empty())
        return why_page(name, tr("Nothing is entered here yet. Press Enter on the cell, or click it, to "
                                 "enter it."));
    return why_page(name + ": " + shown,
                    tr("Entered here. Press Enter on the cell, or click it, to change it."));
}

QString why_panel::page_of_result(const QString& name) const {
    const auto why = source_.result ? source_.result(from_qt(name)) : std::nullopt;
    if (why) return why_page(*why, text_of(screen_.findChild<QWidget*>(name)).value_or(why->result()));
    return why_page(from_qt(choice_->currentText()), tr("Nothing has been worked out here yet."));
}

bool why_panel::has_focus() const {
    const QWidget* focused = QApplication::focusWidget();
    return focused && (focused == this || isAncestorOf(focused));
}

void why_panel::take_focus() {
    came_from_ = QApplication::focusWidget();
    text_->setFocus(Qt::OtherFocusReason);
}

void why_panel::give_focus_back() {
    if (came_from_ && came_from_->isVisible() && came_from_->isEnabled())
        came_from_->setFocus(Qt::OtherFocusReason);
    else if (grid_view* table = table_in_use())
        table->setFocus(Qt::OtherFocusReason);
}

void why_panel::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        emit close_wanted();
    else
        QFrame::keyPressEvent(event);
}

}  // namespace kel
