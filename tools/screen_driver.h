// Drives the real screens as a person would, by the names of their controls: clicks, keys, cells of grids.
// Used by the walkthrough and by the tests of the screens.
#pragma once

#include <QPoint>
#include <QString>
#include <QWidget>

class QListWidget;

namespace kel {

class grid_view;

namespace drive {

/// The control of that name on a screen; throws std::runtime_error naming both if there is none.
QWidget* control(QWidget* screen, const QString& name);
template <class T>
T* control(QWidget* screen, const QString& name) {
    return qobject_cast<T*>(control(screen, name));
}

/// The control that has the keyboard's focus; throws if none has.
QWidget* focused();

/// Lets the event loop deliver everything that is due, and what comes of it, until nothing is left to do.
void settle();
/// Presses a button; throws if it is disabled or not shown.
void press(QWidget* screen, const QString& button);
/// Types over what a text box holds.
void type(QWidget* screen, const QString& box, const QString& text);
void choose_in_list(QWidget* screen, const QString& list, const QString& entry);
void key(QWidget* receiver, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/// Clicks a cell with the pointer, or draws a range down a column.
void click_cell(grid_view* grid, int row, int column);
void draw_range(grid_view* grid, int first_row, int last_row, int column);

/// Chooses a cell, types into the box that opens and confirms with Enter.
void enter_number(QWidget* screen, grid_view* grid, int row, int column, const QString& box,
                  const QString& text);
/// Chooses a cell, picks from the list that opens and confirms with Enter.
void enter_choice(QWidget* screen, grid_view* grid, int row, int column, const QString& box,
                  const QString& entry);

}  // namespace drive
}  // namespace kel
