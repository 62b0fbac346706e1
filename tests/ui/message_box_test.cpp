// The real message boxes.
#include <QAbstractButton>
#include <QMessageBox>
#include <QTimer>

#include "tests/ui/screen_fixture.h"
#include "ui/qt_prompts.h"

namespace kel::test {

// A screen that was left is deleted by the event loop, and that may be the one of a box over it.
TEST(MessageBox, OutlivesTheWindowThatItStandsOver) {
    auto window = std::make_unique<QWidget>();
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    bool belongs_to_window = true;
    QTimer::singleShot(0, qApp, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        belongs_to_window = box->parentWidget() != nullptr;
        if (!belongs_to_window) window.reset();
        box->button(QMessageBox::Yes)->click();
    });
    const message question{"Exit", "Are you sure?", message_kind::question, message_buttons::yes_no};
    EXPECT_EQ(qt_prompts().ask(question), answer::yes);
    EXPECT_FALSE(belongs_to_window);
    EXPECT_FALSE(QApplication::overrideCursor());
}

}  // namespace kel::test
