// The boxes and file dialogs that a person really sees, looked at from within their own event loops.
#include <QDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

#include "profile/profile_messages.h"
#include "tests/ui/screen_fixture.h"
#include "ui/qt_prompts.h"

namespace kel::test {

class Prompts : public screen_test {
  protected:
    template <class Look>
    static void when_shown(Look look) {
        QTimer::singleShot(0, qApp, [look] {
            auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            look(box);
            box->reject();
        });
    }
    qt_prompts boxes;
};

TEST_F(Prompts, FileDialogsOpenWithoutANameAlsoWhenTheirFolderIsGone) {
    for (const std::string& folder : {path(""), path("gone"), path("gone too/farms"), std::string()}) {
        std::string name = "no dialog";
        const auto read_name = [&name](QDialog* dialog) {
            name = from_qt(dialog->findChild<QLineEdit*>("fileNameEdit")->text());
        };
        const file_request request{"Save", "KEL database (*.kel)|*.kel", folder};
        when_shown(read_name);
        EXPECT_EQ(boxes.file_to_save(request), "");
        EXPECT_EQ(name, "") << folder;
        when_shown(read_name);
        EXPECT_EQ(boxes.file_to_open(request), "");
        EXPECT_EQ(name, "") << folder;
    }
}

TEST_F(Prompts, ABoxThatNamesAThousandFieldsStaysOnTheScreen) {
    std::vector<std::string> names;
    for (int i = 1; i <= 1000; ++i)
        names.push_back("Field " + std::to_string(i));
    when_shown([](QDialog* box) {
        EXPECT_LT(box->height(), box->screen()->availableGeometry().height());
        const QString text = qobject_cast<QMessageBox*>(box)->text();
        EXPECT_TRUE(text.contains("\nField 1\n"));
        EXPECT_TRUE(text.endsWith("\n... and 979 more")) << from_qt(text);
    });
    boxes.tell(profile_messages::duplicate_fields(names));
}

}  // namespace kel::test
