// The boxes and file dialogs that a person really sees, looked at from within their own event loops.
#include <QDialog>
#include <QFileDialog>
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

TEST_F(Prompts, EachKindOfBoxHasItsIconItsButtonsAndTheAnswerOfTheOnePressed) {
    using button = QMessageBox::StandardButton;
    struct box_row {
        message_kind kind;
        QMessageBox::Icon icon;
        message_buttons buttons;
        std::vector<std::pair<button, answer>> answers;
    };
    const std::vector<box_row> rows{
        {message_kind::warning, QMessageBox::Warning, message_buttons::ok, {{button::Ok, answer::ok}}},
        {message_kind::information,
         QMessageBox::Information,
         message_buttons::ok,
         {{button::Ok, answer::ok}}},
        {message_kind::question,
         QMessageBox::Question,
         message_buttons::yes_no,
         {{button::Yes, answer::yes}, {button::No, answer::no}}},
        {message_kind::stop,
         QMessageBox::Critical,
         message_buttons::yes_no_cancel,
         {{button::Yes, answer::yes}, {button::No, answer::no}, {button::Cancel, answer::cancel}}}};
    for (const box_row& row : rows)
        for (const auto& [pressed, reply] : row.answers) {
            QTimer::singleShot(0, qApp, [&row, button = pressed] {
                auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                EXPECT_EQ(box->icon(), row.icon);
                EXPECT_EQ(box->windowTitle(), "A title");
                EXPECT_EQ(box->text(), "<b>A text");
                EXPECT_EQ(box->textFormat(), Qt::PlainText);
                EXPECT_EQ(box->buttons().size(), static_cast<qsizetype>(row.answers.size()));
                box->button(button)->click();
            });
            EXPECT_EQ(boxes.ask({"A title", "<b>A text", row.kind, row.buttons}), reply);
        }
}

TEST_F(Prompts, FileDialogsGiveTheFileThatWasChosenAndSaveAddsTheExtension) {
    write_file(path("farm.kel"), "a file");
    const auto choose = [](const QString& name, QFileDialog::AcceptMode mode) {
        QTimer::singleShot(0, qApp, [name, mode] {
            QWidget* shown = QApplication::activeModalWidget();
            EXPECT_EQ(shown->windowTitle(), "A title");
            auto* dialog = qobject_cast<QDialog*>(shown);
            const bool as_asked = qobject_cast<QFileDialog*>(shown)->acceptMode() == mode;
            if (!as_asked) return dialog->reject();
            dialog->findChild<QLineEdit*>("fileNameEdit")->setText(name);
            dialog->accept();
        });
    };
    const file_request request{"A title", "KEL database (*.kel)|*.kel", path("")};
    choose("farm.kel", QFileDialog::AcceptOpen);
    EXPECT_EQ(boxes.file_to_open(request), path("farm.kel"));
    choose("new farm", QFileDialog::AcceptSave);
    EXPECT_EQ(boxes.file_to_save(request), path("new farm.kel"));
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
