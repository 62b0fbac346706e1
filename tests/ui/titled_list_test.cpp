// The list that a module shows to be read.
#include <QDialog>
#include <QListWidget>
#include <QTimer>

#include "tests/ui/screen_fixture.h"
#include "ui/qt_prompts.h"

namespace kel::test {

class TitledList : public screen_test {
  protected:
    // Looks at the dialog from within its own event loop, then presses the button.
    static QStringList shown(const titled_list& list, bool by_key = false) {
        QStringList seen;
        QTimer::singleShot(0, qApp, [&] {
            QWidget* box = QApplication::activeModalWidget();
            for (const char* label : {"Label1", "Label2"})
                seen << (drive::control<QLabel>(box, label)->isVisible()
                             ? drive::control<QLabel>(box, label)->text()
                             : "(hidden)");
            const auto* rows = drive::control<QListWidget>(box, "List1");
            for (int row = 0; row < rows->count(); ++row)
                seen << rows->item(row)->text();
            if (by_key)
                QTest::keyClick(focus(), Qt::Key_Return);
            else
                drive::press(box, "OKButton");
        });
        qt_prompts().show_list(list);
        return seen;
    }
};

TEST_F(TitledList, ShowsItsLinesAndRowsUntilOkOrEnter) {
    EXPECT_EQ(shown({"Other includes:", "<b>Note</b>", {"Kale", "Oats & peas"}}),
              (QStringList{"Other includes:", "<b>Note</b>", "Kale", "Oats & peas"}));
    EXPECT_EQ(shown({"Grass includes:", "", {}}, true), (QStringList{"Grass includes:", "(hidden)"}));
    EXPECT_FALSE(QApplication::overrideCursor());
}

}  // namespace kel::test
