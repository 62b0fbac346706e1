// The years dialog: which Browse links which year, which row is opened, what is remembered, the new year.
#include <QCheckBox>
#include <QComboBox>
#include <QTabWidget>

#include "shell/assessments_messages.h"
#include "shell/years_messages.h"
#include "tests/ui/screen_fixture.h"

namespace kel::test {

namespace says = years_messages;

class Years : public screen_test {
  protected:
    void SetUp() override {
        for (int year = 2024; year > 2021; --year)
            make_farm(name(year), {{"Long Rig", "15"}}, year);
    }
    static std::string name(int year) { return "y" + std::to_string(year) + ".kel"; }
    std::string file(int year) const { return path(name(year)); }
    /// The dialog with the three years linked by its Browse buttons.
    void link_three() {
        start();
        press("front", "cmdFront_open");
        person.expect_file(std::string(says::open_title), file(2024))
            .expect_file(std::string(says::link_title), file(2023))
            .expect_file(std::string(says::link_title), file(2022));
        for (const char* browse : {"cmdYear_browse1", "cmdYear_browse2", "cmdYear_browse3"})
            press("years", browse);
    }
    texts shown(const QString& label) const {
        texts found;
        for (const char* row : {"1", "2", "3"})
            found.push_back(shown_text("years", ("lblYear_" + label + row).toLatin1()));
        return found;
    }
    std::string settings() const { return file_text(state.places.settings_store()); }
    std::string slots_text() const { return file(2024) + "\n" + file(2023) + "\n" + file(2022) + "\n"; }
    bool creating() const { return drive::control(screen("years"), "fraYear_create")->isVisible(); }
};

TEST_F(Years, EachBrowseLinksItsOwnYearAndTheOptionSaysWhichIsOpened) {
    link_three();
    EXPECT_EQ(shown("file"), (texts{name(2024), name(2023), name(2022)}));
    EXPECT_EQ(shown("year"), (texts{"19/12/2024", "19/12/2023", "19/12/2022"}));
    press("years", "optYear_2");
    press("years", "cmdYear_ok");
    EXPECT_FALSE(screen("years"));
    EXPECT_EQ((texts{run->state().assess_file, run->state().prev1_file, run->state().prev2_file}),
              (texts{file(2023), file(2022), ""}));
    EXPECT_EQ(settings(), "0\n0\n2\n" + slots_text());

    press("front", "cmdFront_open");
    press("years", "chkYear_nolink");
    QTest::mouseDClick(drive::control(screen("years"), "optYear_3"), Qt::LeftButton);
    drive::settle();
    EXPECT_FALSE(screen("years"));
    EXPECT_EQ(settings(), "1\n0\n3\n" + slots_text());
    EXPECT_EQ(run->state().assess_file, file(2022));
    press("front", "cmdFront_open");
    EXPECT_TRUE(drive::control<QCheckBox>(screen("years"), "chkYear_nolink")->isChecked());
    press("years", "chkYear_nolink");
    press("years", "chkYear_norelated");
    press("years", "optYear_1");
    press("years", "cmdYear_ok");
    EXPECT_EQ(settings(), "0\n1\n1\n" + slots_text());
}

TEST_F(Years, NoKeepsTheDialogAndCancelForgetsWhatWasLinked) {
    link_three();
    press("years", "cmdYear_cancel");
    EXPECT_FALSE(screen("years"));
    press("front", "cmdFront_open");
    EXPECT_EQ(shown("file"), (texts{name(2024), "", ""}));
    person.expect(says::nothing_linked, answer::no);
    press("years", "cmdYear_ok");
    ASSERT_TRUE(in_view("years"));
    person.expect(says::nothing_linked, answer::yes);
    press("years", "cmdYear_ok");
    EXPECT_FALSE(screen("years"));
}

TEST_F(Years, ANewYearIsMadeWithTheDateAndTheFileThatWereChosen) {
    link_three();
    press("years", "cmdYear_new");
    press("years", "cmdYear_create_cancel");
    EXPECT_FALSE(creating());
    press("years", "cmdYear_new");
    EXPECT_EQ(shown_text("years", "lblYear_newdate"), "19/12/2025");
    for (const auto& [key, date] : {std::pair{Qt::Key_Down, "19/12/2026"}, {Qt::Key_Up, "19/12/2025"}}) {
        press("years", "cmdYear_change");
        auto* list = drive::control<QComboBox>(screen("years"), "cboYear_new");
        ASSERT_TRUE(list->isVisible());
        list->hidePopup();
        drive::key(list, key);
        EXPECT_EQ(shown_text("years", "lblYear_newdate"), date);
    }
    person.expect(says::no_new_file);
    press("years", "cmdYear_create");
    person.expect_file(std::string(assessments_messages::save_as_title), path("new.kel"));
    press("years", "cmdYear_browse_new");
    press("years", "cmdYear_create");
    EXPECT_FALSE(creating());
    EXPECT_EQ(column_of(path("new.kel"), "Type", "Year"), texts{"2025-12-19"});
    EXPECT_EQ(shown("file"), (texts{"new.kel", name(2024), name(2023)}));
    press("years", "cmdYear_ok");
    EXPECT_EQ(run->state().assess_file, path("new.kel"));
}

TEST_F(Years, EveryScreenOpensTheDialogAsItself) {
    open_farm({{"Long Rig", "15"}});
    write_store(state);
    start();
    const std::vector<std::tuple<screen_id, const char*, const char*, picker_module>> callers{
        {screen_id::profile, "profile", "cmdProfile_open", picker_module::profile},
        {screen_id::land, "land", "cmdLand_open", picker_module::land},
        {screen_id::storage, "storage", "cmdStorage_open", picker_module::storage},
        {screen_id::manure, "reduction", "cmdReductions_open", picker_module::manure},
        {screen_id::inorganic, "inorg", "cmdInorganic_open", picker_module::inorganic},
        {screen_id::land, "land", "cmdLand_open2", picker_module::land}};
    for (const auto& [id, tag, button, caller] : callers) {
        run->open(id);
        if (std::string_view(button).ends_with('2'))
            drive::control<QTabWidget>(screen(tag), "SSTabLand")->setCurrentIndex(1);
        press(tag, button);
        ASSERT_TRUE(in_view("years")) << button;
        EXPECT_EQ(run->state().picker_caller, caller) << button;
        press("years", "cmdYear_cancel");
    }
}

}  // namespace kel::test
