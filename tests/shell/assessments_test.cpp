// The commands of the assessments screen: step entries with their prompts, files, help and the end.
#include <filesystem>

#include "core/file_choice.h"
#include "shell/assessments_messages.h"
#include "shell/assessments_module.h"
#include "tests/shell/shell_fixture.h"

namespace kel::test {

namespace text = assessments_messages;
namespace fs = std::filesystem;
using front_screen = assessments_module;
using command = void (front_screen::*)();

class AssessmentsScreen : public shell_test {
  protected:
    texts run(command c) {
        shown.events.clear();
        (front.*c)();
        person.verify_done();
        return shown.events;
    }
    void save_as(const std::string& chosen) { person.expect_file("Save Farm Assessment As...", chosen); }

    assessments_module front{state, person, profile, shown, desk};
};

TEST_F(AssessmentsScreen, NothingOpensWithoutAnAssessment) {
    for (command c : {&front_screen::step1, &front_screen::step2, &front_screen::step3, &front_screen::step4,
                      &front_screen::crops, &front_screen::grassland, &front_screen::composting,
                      &front_screen::field_record, &front_screen::view_reports}) {
        person.expect(text::no_assessment_file);
        EXPECT_EQ(run(c), texts{});
    }
    person.expect(text::no_profile_to_edit);
    EXPECT_EQ(run(&front_screen::edit_profile), texts{});
}

TEST_F(AssessmentsScreen, StepsAskInOrderAndNoFallsBackToTheStepBefore) {
    open_farm({});
    constexpr auto yes = answer::yes, no = answer::no, cancel = answer::cancel;
    const auto &land = text::land_first, &closed = text::closed_periods_first;
    struct {
        command entry;
        std::vector<std::pair<message, answer>> asked;
        std::string opened;
    } const cases[] = {
        {&front_screen::step1, {}, "land"},
        {&front_screen::crops, {}, "crop"},
        {&front_screen::grassland, {}, "grass"},
        {&front_screen::composting, {}, "straw"},
        {&front_screen::field_record, {}, "record"},
        {&front_screen::step2, {{land, yes}}, "storage"},
        {&front_screen::step2, {{land, no}}, "land"},
        {&front_screen::step2, {{land, cancel}}, ""},
        {&front_screen::step3, {{closed, yes}}, "reduction"},
        {&front_screen::step3, {{closed, cancel}}, ""},
        {&front_screen::step3, {{closed, no}, {land, yes}}, "storage"},
        {&front_screen::step3, {{closed, no}, {land, no}}, "land"},
        {&front_screen::step3, {{closed, no}, {land, cancel}}, ""},
        {&front_screen::step4, {{closed, yes}}, "inorg"},
        {&front_screen::step4, {{closed, cancel}}, ""},
        {&front_screen::step4, {{closed, no}, {land, no}}, "land"},
    };
    for (const auto& c : cases) {
        for (const auto& [box, reply] : c.asked)
            person.expect(box, reply);
        EXPECT_EQ(run(c.entry), c.opened.empty() ? texts{} : texts({"open " + c.opened, "hide front"}));
        EXPECT_EQ(state.manure_caller, c.opened == "reduction" ? "front" : "");
        state.manure_caller.clear();
    }
    state.no_related_prompt = 1;
    EXPECT_EQ(run(&front_screen::step2).at(0), "open storage");
    EXPECT_EQ(run(&front_screen::step3).at(0), "open reduction");
    EXPECT_EQ(run(&front_screen::step4).at(0), "open inorg");
}

TEST_F(AssessmentsScreen, NewFarmEmptiesTheChainButNotTheStore) {
    open_farm({{"Long", "4"}});
    profile.load_profile();
    EXPECT_EQ(run(&front_screen::edit_profile), (texts{"open profile", "hide front"}));
    EXPECT_FALSE(profile.year_list_enabled());
    state.prev1_file = state.slot_prev1 = path("y2.kel");
    EXPECT_EQ(run(&front_screen::new_farm), (texts{"open profile", "hide front"}));
    EXPECT_TRUE(profile.year_list_enabled());
    EXPECT_EQ(working(), texts(3));
    EXPECT_EQ(slots(), texts(3));
    EXPECT_EQ(state.slot_selected, 0);
    EXPECT_EQ(profile.fields().row_count(), 0);
    EXPECT_EQ(settings(), "");
}

TEST_F(AssessmentsScreen, SaveAsGoesOnInTheCopyAndTheSlotKeepsTheOldFile) {
    open_farm({{"Long", "4"}});
    const std::string old_file = state.assess_file;
    save_as("");
    front.save_as();
    EXPECT_EQ(settings(), "");
    save_as(path("User_files/copy"));
    front.save_as();
    EXPECT_EQ(person.last_folder(), state.places.user_files());
    EXPECT_EQ(state.assess_file, path("User_files/copy.kel"));
    EXPECT_EQ(state.last_dir, path("User_files"));
    EXPECT_EQ(column_of(state.assess_file, "Field Data", "Field Name"), texts{"Long"});
    EXPECT_EQ(settings(), "0\n0\n1\n" + old_file + "\nnone\nnone\n");
    save_as(state.assess_file);
    front.save_as();
    EXPECT_EQ(column_of(state.assess_file, "Field Data", "Field Name"), texts{"Long"});
}

TEST_F(AssessmentsScreen, SaveAsThatFailsOrWouldReplaceAFileUnaskedKeepsTheOpenFile) {
    open_farm({});
    write_file(path("other.kel"), "precious");
    save_as(path("other"));
    person.expect(replace_file(text::save_as_title, "other.kel"), answer::no);
    front.save_as();
    EXPECT_EQ(file_text(path("other.kel")), "precious");
    save_as(path("no_such_folder/copy.kel"));
    person.expect(text::save_error);
    front.save_as();
    EXPECT_EQ(state.assess_file, path("farm.kel"));
}

TEST_F(AssessmentsScreen, ViewReportsListsWhatExistsAndHidesStepOne) {
    open_farm({});
    write_file(state.places.report("KEL_report_landspread.htm"), "<html>");
    EXPECT_EQ(run(&front_screen::view_reports), (texts{"wait", "hide land", "show", "ready"}));
    const std::string page = state.places.report("KEL_report_contents.htm");
    EXPECT_EQ(shown.shown, (viewer_request{page, "Contents", 0}));
    EXPECT_EQ(state.viewer_back, "front");
    EXPECT_NE(file_text(page).find("href=KEL_report_landspread.htm"), std::string::npos);
    EXPECT_EQ(file_text(page).find("href=KEL_report_storage.htm"), std::string::npos);
}

TEST_F(AssessmentsScreen, GuidesAndHelpTopicsShowInTheViewerOrAreNamedAsMissing) {
    const std::string root = state.places.install_root = path("root");
    struct {
        command show;
        const char* missing_title;
        viewer_request expected;
    } const cases[] = {
        {&front_screen::show_me,
         "Show Me",
         {root + "/Viewer/html/scot_kel/KEL_showme_contents.htm", "Contents", 1}},
        {&front_screen::guidelines, "Help", {root + "/KEL/kel_cont.htm", "Back", 0}},
        {&front_screen::whats_this, "Help", {root + "/kel_software_help/kel_software_intro.htm", "Back", 0}},
    };
    for (const auto& [show, missing_title, expected] : cases) {
        const std::string folder = folder_of(expected.page);
        person.expect(text::page_missing(missing_title, file_name_of(expected.page), folder));
        EXPECT_EQ(run(show), texts{});
        fs::create_directories(folder);
        write_file(expected.page, "<html>");
        EXPECT_EQ(run(show), texts{"show"});
        EXPECT_EQ(shown.shown, expected);
        EXPECT_EQ(state.viewer_back, "front");
    }
}

TEST_F(AssessmentsScreen, UpdateEndsWithoutWritingTheStoreUnlessTheUpdaterIsMissing) {
    const std::string updater = path("updater1.exe");
    state.places.program_folder = path("");
    state.places.program_folder.pop_back();
    person.expect(text::update_question, answer::no);
    EXPECT_EQ(run(&front_screen::update), texts{});
    person.expect(text::update_question, answer::yes).expect(text::updater_missing(updater));
    EXPECT_EQ(run(&front_screen::update), texts{});
    write_file(updater, "");
    person.expect(text::update_question, answer::yes);
    EXPECT_EQ(run(&front_screen::update), (texts{"start", "end"}));
    shown.updater_starts = false;
    person.expect(text::update_question, answer::yes).expect(text::updater_missing(updater));
    EXPECT_EQ(run(&front_screen::update), texts{"start"});
    EXPECT_EQ(settings(), "");
}

TEST_F(AssessmentsScreen, ExitAsksTheCloseBoxDoesNotAndAFailedStoreKeepsNothingOpen) {
    person.expect(text::exit_question, answer::no);
    EXPECT_EQ(run(&front_screen::exit), texts{});
    EXPECT_EQ(settings(), "");
    person.expect(text::exit_question, answer::yes);
    EXPECT_EQ(run(&front_screen::exit), texts{"end"});
    EXPECT_EQ(settings(), "0\n0\n0\nnone\nnone\nnone\n");
    state.places.written_folder = path("gone");
    person.expect(text::settings_not_saved(
        {state.places.settings_store(),
         "the settings could not be written. The folder may be read-only or the disc full."}));
    EXPECT_EQ(run(&front_screen::close_window), texts{"end"});
}

}  // namespace kel::test
