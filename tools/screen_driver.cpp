#include "tools/screen_driver.h"

#include <QAbstractButton>
#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDeadlineTimer>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <stdexcept>

#include "ui/widgets/grid_view.h"

namespace kel::drive {

QWidget* control(QWidget* screen, const QString& name) {
    if (!screen) throw std::runtime_error("no screen for " + name.toStdString());
    auto* found = screen->findChild<QWidget*>(name);
    if (!found)
        throw std::runtime_error(screen->objectName().toStdString() + " has no " + name.toStdString());
    return found;
}

QWidget* focused() {
    QWidget* found = QApplication::focusWidget();
    if (!found) throw std::runtime_error("no control has the focus");
    return found;
}

void settle() {
    constexpr int longest_ms = 60'000;
    const QDeadlineTimer limit(longest_ms);
    bool busy = true;
    while (busy) {
        if (limit.hasExpired()) throw std::runtime_error("the event loop does not come to rest");
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        busy = QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents);
    }
}

void press(QWidget* screen, const QString& button) {
    auto* found = control<QAbstractButton>(screen, button);
    if (!found->isEnabled() || !found->isVisible())
        throw std::runtime_error(button.toStdString() + " cannot be pressed");
    found->click();
    settle();
}

void type(QWidget* screen, const QString& box, const QString& text) {
    auto* edit = control<QLineEdit>(screen, box);
    edit->setFocus();
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
}

void choose_in_list(QWidget* screen, const QString& list, const QString& entry) {
    auto* found = control<QListWidget>(screen, list);
    const auto items = found->findItems(entry, Qt::MatchExactly);
    if (items.isEmpty())
        throw std::runtime_error(list.toStdString() + " has no entry " + entry.toStdString());
    found->setCurrentItem(items.front());
    found->scrollToItem(items.front());
}

void key(QWidget* receiver, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(receiver, key, modifiers);
    settle();
}

void click_cell(grid_view* grid, int row, int column) {
    const auto index = grid->model()->index(row, column);
    grid->scrollTo(index);
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier, grid->visualRect(index).center());
    settle();
}

void draw_range(grid_view* grid, int first_row, int last_row, int column) {
    const auto place = [&](int row) { return grid->visualRect(grid->model()->index(row, column)).center(); };
    QTest::mousePress(grid->viewport(), Qt::LeftButton, Qt::NoModifier, place(first_row));
    QTest::mouseMove(grid->viewport(), place(last_row));
    // The move of a held button reaches the view as the pointer's real path would.
    QMouseEvent move(QEvent::MouseMove, place(last_row), grid->viewport()->mapToGlobal(place(last_row)),
                     Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(grid->viewport(), &move);
    QTest::mouseRelease(grid->viewport(), Qt::LeftButton, Qt::NoModifier, place(last_row));
    settle();
}

void enter_number(QWidget* screen, grid_view* grid, int row, int column, const QString& box,
                  const QString& text) {
    click_cell(grid, row, column);
    type(screen, "txt" + box, text);
    key(control(screen, "txt" + box), Qt::Key_Return);
}

void enter_choice(QWidget* screen, grid_view* grid, int row, int column, const QString& box,
                  const QString& entry) {
    click_cell(grid, row, column);
    choose_in_list(screen, "lst" + box, entry);
    key(control(screen, "lst" + box), Qt::Key_Return);
}

}  // namespace kel::drive
