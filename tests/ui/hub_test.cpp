// The assessments screen: what it refuses, what this version lacks, how it ends.
#include <QAbstractButton>
#include <QAction>
#include <QHelpEvent>
#include <QMap>
#include <QSignalSpy>
#include <QToolTip>

#include "shell/assessments_messages.h"
#include "tests/ui/screen_fixture.h"
#include "ui/widgets/page_view.h"

namespace kel::test {

namespace says = assessments_messages;

class Hub : public screen_test {};

TEST_F(Hub, OpensNothingWithoutAnAssessmentNorWhatThisVersionLacks) {
    start();
    for (const char* button : {"cmdFront_land", "cmdFront_reports"}) {
        person.expect(says::no_assessment_file);
        press("front", button);
    }
    person.expect(says::no_profile_to_edit);
    press("front", "cmdFront_edit");
    for (const char* tag : {"land", "viewer", "profile"})
        EXPECT_FALSE(in_view(tag)) << tag;
    const std::vector<std::pair<QString, screen_id>> needs{
        {"land", screen_id::land},           {"storage", screen_id::storage}, {"manure", screen_id::manure},
        {"inorganic", screen_id::inorganic}, {"crops", screen_id::crops},     {"grassland", screen_id::grass},
        {"composting", screen_id::straw},    {"record", screen_id::record}};
    for (const auto& [command, id] : needs) {
        const bool built = run->exists(id);
        EXPECT_EQ(drive::control(screen("front"), "cmdFront_" + command)->isEnabled(), built)
            << from_qt(command);
        EXPECT_EQ(screen("front")->findChild<QAction*>("mnuFront_" + command)->isEnabled(), built);
        if (built) continue;
        EXPECT_THROW(run->open(id), std::invalid_argument);
    }
    EXPECT_THROW(run->screen("viewr"), std::invalid_argument);
}

TEST_F(Hub, EveryCommandOpensItsOwnScreenAlsoFromTheMenu) {
    open_farm({{"Long Rig", "15"}});
    write_store(state);
    const message& land = says::land_first;
    const message& closed = says::closed_periods_first;
    struct command_case {
        QString command;
        const char* tag;
        const char* page;
        std::vector<std::pair<message, answer>> boxes;
    };
    const std::vector<command_case> cases{
        {"new", "profile", "", {}},
        {"open", "years", "", {}},
        {"edit", "profile", "", {}},
        {"land", "land", "", {}},
        {"storage", "storage", "", {{land, answer::yes}}},
        {"storage", "land", "", {{land, answer::no}}},
        {"storage", "front", "", {{land, answer::cancel}}},
        {"manure", "reduction", "", {{closed, answer::yes}}},
        {"manure", "storage", "", {{closed, answer::no}, {land, answer::yes}}},
        {"inorganic", "inorg", "", {{closed, answer::yes}}},
        {"inorganic", "front", "", {{closed, answer::cancel}}},
        {"crops", "crop", "", {}},
        {"grassland", "grass", "", {}},
        {"composting", "straw", "", {}},
        {"record", "record", "", {}},
        {"calendar", "calendar", "", {}},
        {"sheets", "sheets", "", {}},
        {"show_me", "viewer", "KEL_showme_contents.htm", {}},
        {"whats_this", "viewer", "kel_software_intro.htm", {}},
        {"guidelines", "viewer", "kel_cont.htm", {}},
        {"update", "front", "", {{says::update_question, answer::no}}},
        {"about", "splash", "", {}},
        {"standing", "viewer", "KEL_report_standing.htm", {}},
        {"reports", "viewer", "KEL_report_contents.htm", {}}};
    const auto expect_screen = [&](const command_case& c) {
        EXPECT_TRUE(in_view(c.tag)) << from_qt(c.command) << " should open " << c.tag;
        if (!*c.page || !in_view(c.tag)) return;
        const auto* page = drive::control<page_view>(screen(c.tag), "WebBrowser1");
        EXPECT_EQ(page->source().fileName(), c.page);
    };
    for (const command_case& c : cases) {
        for (const QString& from : {QString("cmdFront_"), QString("mnuFront_")}) {
            start();
            auto* there = screen("front")->findChild<QObject*>(from + c.command);
            if (!there) continue;
            for (const auto& [box, reply] : c.boxes)
                person.expect(box, reply);
            if (auto* entry = qobject_cast<QAction*>(there))
                entry->trigger();
            else
                press("front", (from + c.command).toLatin1());
            drive::settle();
            expect_screen(c);
        }
    }
}

TEST_F(Hub, SaveAsGoesOnInTheCopy) {
    start_with({{"Long Rig", "15"}});
    person.expect_file(std::string(says::save_as_title), path("copy.kel"));
    screen("front")->findChild<QAction*>("mnuFront_save_as")->trigger();
    drive::settle();
    EXPECT_EQ(column_of(path("copy.kel"), "Field Data", "Field Name"), texts{"Long Rig"});
    EXPECT_EQ(run->state().assess_file, path("copy.kel"));
    EXPECT_NE(shown_text("front", "lblFront_file").find("copy.kel"), std::string::npos);
}

TEST_F(Hub, ExitAsksAndTheCloseBoxDoesNot) {
    start_with({{"Long Rig", "15"}});
    const QSignalSpy ended(run.get(), &program::ended);
    std::filesystem::remove(state.places.settings_store());
    person.expect(says::exit_question, answer::no);
    press("front", "cmdFront_exit");
    EXPECT_EQ(ended.count(), 0);
    EXPECT_TRUE(in_view("front"));
    screen("front")->close();
    EXPECT_EQ(ended.count(), 1);
    EXPECT_FALSE(in_view("front"));
    EXPECT_EQ(file_text(state.places.settings_store()), "0\n0\n1\n" + state.assess_file + "\nnone\nnone\n");
}

// Alt and a letter must do one thing only on every view of a screen.
TEST_F(Hub, MnemonicsOfAViewAreUnique) {
    start_with({{"Long Rig", "15"}});
    const auto look = [this](const char* tag) {
        QMap<QString, QString> captions;
        const auto note = [&](const QString& caption) {
            const QString key = QKeySequence::mnemonic(caption).toString();
            if (key.isEmpty()) return;
            EXPECT_EQ(from_qt(captions.value(key)), "") << tag << ": also " << from_qt(caption);
            captions[key] = caption;
        };
        for (const auto* button : screen(tag)->findChildren<QAbstractButton*>())
            if (button->isVisible() && button->isEnabled()) note(button->text());
        for (const auto* label : screen(tag)->findChildren<QLabel*>())
            if (label->isVisible() && label->buddy() && label->buddy()->isEnabled()) note(label->text());
    };
    const auto look_with_box = [&](const char* tag, const char* name) {
        look(tag);
        drive::click_cell(grid(tag, name), 0, 1);
        look(tag);
        drive::key(focus(), Qt::Key_Escape);
    };
    look("front");
    press("front", "cmdFront_open");
    press("years", "cmdYear_new");
    look("years");
    press("years", "cmdYear_cancel");
    press("front", "cmdFront_reports");
    look("viewer");
    press("viewer", "Command1");
    press("front", "cmdFront_edit");
    look_with_box("profile", "MSFlexGridFields");
    press("profile", "cmdProfile_cancel");
    press("front", "cmdFront_land");
    look_with_box("land", "MSFlexGridLand");
}

// A name that looks like markup could have a file read that never ends.
TEST_F(Hub, NamesThatLookLikeMarkupAreShownAsTheyStand) {
    const std::string name = "<img src=/dev/zero> a field of a name so long that its cell cuts it off";
    start_with({{name, "15"}});
    for (const screen_id id : {screen_id::land, screen_id::storage, screen_id::manure, screen_id::inorganic,
                               screen_id::crops, screen_id::grass, screen_id::straw, screen_id::record,
                               screen_id::profile, screen_id::years, screen_id::about}) {
        run->open(id);
        drive::settle();
        for (const auto* label : run->screen(id)->findChildren<QLabel*>()) {
            if (!label->isVisible()) continue;
            EXPECT_EQ(label->textFormat(), Qt::PlainText) << from_qt(label->text());
        }
        for (auto* table : run->screen(id)->findChildren<grid_view*>()) {
            if (!table->isVisible() || cell(table, 0, 0) != name) continue;
            const QPoint place = table->visualRect(table->model()->index(0, 0)).center();
            QHelpEvent hover(QEvent::ToolTip, place, table->viewport()->mapToGlobal(place));
            QApplication::sendEvent(table->viewport(), &hover);
            EXPECT_EQ(QToolTip::text(), plain_tip(qt(name))) << from_qt(table->objectName());
            QToolTip::hideText();
        }
    }
}

}  // namespace kel::test
