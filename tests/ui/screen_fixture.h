// The whole program in a test's own folder, with the person scripted. Keys go to whatever has the focus, as
// they do from a keyboard, so that a focus which is lost or trapped fails the test.
#pragma once

#include <QApplication>
#include <QCalendarWidget>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QTest>
#include <memory>
#include <stdexcept>

#include "core/settings_store.h"
#include "tests/support/farm_files.h"
#include "tests/support/scripted_prompts.h"
#include "tools/screen_driver.h"
#include "ui/kel_application.h"
#include "ui/program.h"
#include "ui/widgets/grid_view.h"
#include "ui/widgets/qt_text.h"

namespace kel::test {

using texts = std::vector<std::string>;

/// Waits for what must come about however slow the machine is.
template <class Condition>
void wait_for(Condition condition, const char* what) {
    constexpr int longest_ms = 30'000;
    if (!QTest::qWaitFor(condition, longest_ms)) throw std::runtime_error(what);
}
/// The control that the next key goes to, in the window in front.
inline QWidget* focus() {
    drive::settle();
    wait_for([] { return QApplication::activeWindow() && QApplication::focusWidget(); },
             "nothing has the focus");
    return QApplication::focusWidget();
}
inline std::string focus_name() {
    return from_qt(focus()->objectName());
}
inline void press_key(Qt::Key key, int times = 1, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    for (int i = 0; i < times; ++i)
        drive::key(focus(), key, modifiers);
}
inline void type_text(const QString& text) {
    QTest::keyClicks(focus(), text);
    drive::settle();
}
/// Opens the box of the grid's current cell, types or picks by typing, confirms.
inline void enter_text(const QString& text) {
    press_key(Qt::Key_Return);
    type_text(text);
    press_key(Qt::Key_Return);
}
/// Walks on with Tab until the control of that name has the focus.
inline void tab_to(const std::string& name) {
    for (int steps = 0; steps < 60; ++steps) {
        if (focus_name() == name) return;
        press_key(Qt::Key_Tab);
    }
    throw std::runtime_error("Tab does not reach " + name);
}
/// A click that passes through the event loop, where failures are caught.
inline void click(QWidget* screen, const QString& name) {
    QTest::mouseClick(drive::control(screen, name), Qt::LeftButton);
    drive::settle();
}

// A cell, the box that opens on it, what is put in, and what the cell then shows.
struct box_case {
    int row;
    int column;
    const char* box;
    QString put;
    const char* shown;
};
/// Types it, or chooses it from the list, the options or the calendar of that name.
inline void put_in(QWidget* box, const QString& name, const QString& text) {
    for (auto* option : box->findChildren<QRadioButton*>())
        if (option->text() == text) return option->click();
    if (auto* calendar = box->findChild<QCalendarWidget*>("cal" + name))
        calendar->setSelectedDate(QDate::fromString(text, "dd/MM/yyyy"));
    else if (box->findChild<QListWidget*>("lst" + name))
        drive::choose_in_list(box, "lst" + name, text);
    else
        drive::type(box, "txt" + name, text);
}
using column_texts = std::vector<std::pair<const char*, texts>>;

class screen_test : public farm_test {
  public:
    screen_test() { application().set_prompts(&person); }
    ~screen_test() override { application().set_prompts(nullptr); }

  protected:
    static kel_application& application() { return *static_cast<kel_application*>(qApp); }

    /// Starts the program, or ends it and starts it again, in the same folder; the path is one that the
    /// desktop hands over.
    void start(const std::string& assessment = {}) {
        run.reset();
        run = std::make_unique<program>(state.places, person, [] { return make_date(15, 11, 2026); });
        run->start(assessment);
        drive::settle();
    }
    /// Starts with this farm open.
    void start_with(const std::vector<test_field>& fields) {
        open_farm(fields);
        write_store(state);
        start();
    }
    QWidget* screen(std::string_view tag) const { return run->screen(tag); }
    bool in_view(std::string_view tag) const { return screen(tag) && screen(tag)->isVisible(); }
    /// Presses a button and lets the screen that was left go away.
    void press(std::string_view tag, const char* button) const {
        drive::press(screen(tag), button);
        drive::settle();
    }
    grid_view* grid(std::string_view tag, const char* name) const {
        return drive::control<grid_view>(screen(tag), name);
    }
    std::string shown_text(std::string_view tag, const char* label) const {
        return from_qt(drive::control<QLabel>(screen(tag), label)->text());
    }
    static std::string cell(const grid_view* grid, int row, int column) {
        return from_qt(grid->model()->index(row, column).data().toString());
    }
    static texts current_cell(const grid_view* grid) {
        return {std::to_string(grid->current_row()), std::to_string(grid->current_column())};
    }

    /// The box of that name, which must be open; without a row the one that is.
    QWidget* open_box(std::string_view tag, const QString& name, grid_view* grid = nullptr, int row = 0,
                      int column = 0) const {
        if (grid) drive::click_cell(grid, row, column);
        QWidget* box = drive::control(screen(tag), "fra" + name);
        if (!box->isVisible()) throw std::runtime_error(from_qt(name) + " is not open");
        return box;
    }
    /// Fills the open box and presses its Enter.
    void fill_box(std::string_view tag, const QString& name, const QString& text) const {
        QWidget* box = open_box(tag, name);
        put_in(box, name, text);
        const bool usual = box->findChild<QWidget*>("cmd" + name + "_enter");
        drive::press(box, "cmd" + name + (usual ? "_enter" : ""));
    }
    void fill_boxes(std::string_view tag, grid_view* grid, const std::vector<box_case>& cases) const {
        for (const box_case& c : cases) {
            open_box(tag, c.box, grid, c.row, c.column);
            fill_box(tag, c.box, c.put);
            EXPECT_EQ(cell(grid, c.row, c.column), c.shown) << c.box << ' ' << c.row << ", " << c.column;
        }
    }
    /// Opens the box and presses the button of that ending in it.
    void press_in_box(std::string_view tag, grid_view* grid, int row, int column, const QString& name,
                      const char* button) const {
        drive::press(open_box(tag, name, grid, row, column), "cmd" + name + '_' + button);
    }
    static void expect_stored(const std::string& file, const std::string& table, const column_texts& rows) {
        for (const auto& [column, stored] : rows)
            EXPECT_EQ(column_of(file, table, column), stored) << column;
    }
    /// Close is asked about; No keeps the screen, Yes brings the assessments screen back.
    void close_screen(std::string_view tag, const char* button, const message& question) {
        person.expect(question, answer::no).expect(question, answer::yes);
        press(tag, button);
        EXPECT_TRUE(in_view(tag));
        press(tag, button);
        EXPECT_FALSE(screen(tag));
        EXPECT_TRUE(in_view("front"));
    }

    scripted_prompts person;
    std::unique_ptr<program> run;
};

}  // namespace kel::test
