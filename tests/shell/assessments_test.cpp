// The assessments screen: start-up, step entries with their prompts, files, help and the end.
#include <SQLiteCpp/SQLiteCpp.h>

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
    events run(command c) {
        shown.told.clear();
        (front.*c)();
        person.verify_done();
        return shown.told;
    }
    static events opens(screen_id id) { return {{"open", id}, {"hide", screen_id::front}}; }
    void save_as(const std::string& chosen) {
        person.expect_file("Save Farm Assessment As...", chosen);
        front.save_as();
    }

    assessments_module front{state, person, profile, shown, desk};
};

TEST_F(AssessmentsScreen, NothingOpensWithoutAnAssessment) {
    for (command c : {&front_screen::step1, &front_screen::step2, &front_screen::step3, &front_screen::step4,
                      &front_screen::crops, &front_screen::grassland, &front_screen::composting,
                      &front_screen::field_record, &front_screen::view_reports}) {
        person.expect(text::no_assessment_file);
        EXPECT_EQ(run(c), events{});
    }
    person.expect(text::no_profile_to_edit);
    EXPECT_EQ(run(&front_screen::edit_profile), events{});
}

TEST_F(AssessmentsScreen, StepsAskInOrderAndNoFallsBackToTheStepBefore) {
    open_farm({});
    constexpr auto yes = answer::yes, no = answer::no, cancel = answer::cancel;
    const auto &land = text::land_first, &closed = text::closed_periods_first;
    struct {
        command entry;
        std::vector<std::pair<message, answer>> asked;
        std::optional<screen_id> opened;
    } const cases[] = {
        {&front_screen::step1, {}, screen_id::land},
        {&front_screen::step2, {{land, yes}}, screen_id::storage},
        {&front_screen::step2, {{land, no}}, screen_id::land},
        {&front_screen::step2, {{land, cancel}}, {}},
        {&front_screen::step3, {{closed, yes}}, screen_id::manure},
        {&front_screen::step3, {{closed, cancel}}, {}},
        {&front_screen::step3, {{closed, no}, {land, yes}}, screen_id::storage},
        {&front_screen::step3, {{closed, no}, {land, no}}, screen_id::land},
        {&front_screen::step3, {{closed, no}, {land, cancel}}, {}},
        {&front_screen::step4, {{closed, yes}}, screen_id::inorganic},
        {&front_screen::step4, {{closed, cancel}}, {}},
        {&front_screen::step4, {{closed, no}, {land, no}}, screen_id::land},
    };
    for (const auto& c : cases) {
        for (const auto& [box, reply] : c.asked)
            person.expect(box, reply);
        state.manure_caller = manure_opener::old_crop;
        EXPECT_EQ(run(c.entry), c.opened ? opens(*c.opened) : events{});
        EXPECT_EQ(state.manure_caller == manure_opener::front, c.opened == screen_id::manure);
    }
    state.no_related_prompt = 1;
    for (const auto& [unasked, opened] : {std::pair(&front_screen::step2, screen_id::storage),
                                          {&front_screen::step3, screen_id::manure},
                                          {&front_screen::step4, screen_id::inorganic},
                                          {&front_screen::crops, screen_id::crops},
                                          {&front_screen::grassland, screen_id::grass},
                                          {&front_screen::composting, screen_id::straw},
                                          {&front_screen::field_record, screen_id::record}})
        EXPECT_EQ(run(unasked), opens(opened));
}

TEST_F(AssessmentsScreen, NewFarmEmptiesTheChainButNotTheStore) {
    open_farm({{"Long", "4"}});
    profile.load_profile();
    state.prev1_file = state.slot_prev1 = path("y2.kel");
    EXPECT_EQ(run(&front_screen::new_farm), opens(screen_id::profile));
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
    for (const std::string& chosen : {std::string(), path("User_files/copy"), path("User_files/copy.kel")}) {
        save_as(chosen);
        EXPECT_EQ(settings(), chosen.empty() ? "" : "0\n0\n1\n" + old_file + "\nnone\nnone\n");
        EXPECT_EQ(state.assess_file, chosen.empty() ? old_file : path("User_files/copy.kel"));
        EXPECT_EQ(column_of(state.assess_file, "Field Data", "Field Name"), texts{"Long"});
    }
    EXPECT_EQ(state.last_dir, path("User_files"));
}

TEST_F(AssessmentsScreen, OtherCopiesAreToldOfTheFileThatIsWorkedOnAndNoOther) {
    open_farm({{"Long", "4"}});
    profile.load_profile();
    const std::string first = state.assess_file, copy = path("copy.kel");
    const auto marked = [](const std::string& file) { return open_mark().move_to(file).has_value(); };
    EXPECT_TRUE(marked(first));
    save_as(copy);
    EXPECT_TRUE(marked(copy));
    EXPECT_FALSE(marked(first));
    run(&front_screen::new_farm);
    EXPECT_FALSE(marked(copy));
    open_mark there;
    there.move_to(first);
    person.expect(open_elsewhere(first, ""));
    profile.reopen();
    person.verify_done();
}

TEST_F(AssessmentsScreen, SaveAsThatFailsOrWouldReplaceAFileUnaskedKeepsTheOpenFile) {
    open_farm({});
    write_file(path("other.kel"), "precious");
    person.expect_file("Save Farm Assessment As...", path("other"))
        .expect(replace_file(text::save_as_title, "other.kel"), answer::no);
    front.save_as();
    EXPECT_EQ(file_text(path("other.kel")), "precious");
    person.expect_file("Save Farm Assessment As...", path("no_such_folder/copy.kel"))
        .expect(text::save_error);
    front.save_as();
    EXPECT_EQ(state.assess_file, path("farm.kel"));
}

TEST_F(AssessmentsScreen, GuidesAndHelpTopicsShowInTheViewerOrAreNamedAsMissing) {
    const std::string root = state.places.install_root = path("root");
    const std::tuple<command, const char*, viewer_request> cases[] = {
        {&front_screen::show_me,
         "Show Me",
         {root + "/Viewer/html/scot_kel/KEL_showme_contents.htm", "Contents", 1}},
        {&front_screen::guidelines, "Help", {root + "/KEL/kel_cont.htm", "Back", 0}},
        {&front_screen::whats_this, "Help", {root + "/kel_software_help/kel_software_intro.htm", "Back", 0}},
    };
    for (const auto& [show, missing_title, expected] : cases) {
        const std::string folder = folder_of(expected.page);
        person.expect(text::page_missing(missing_title, file_name_of(expected.page), folder));
        EXPECT_EQ(run(show), events{});
        fs::create_directories(folder);
        write_file(expected.page, "<html>");
        EXPECT_EQ(run(show), events{{"show"}});
        EXPECT_EQ(shown.shown, expected);
    }
    EXPECT_EQ(state.viewer_back, screen_id::front);
}

TEST_F(AssessmentsScreen, UpdateEndsWithoutWritingTheStoreUnlessTheUpdaterIsMissing) {
    const std::string updater = path("updater1.exe");
    state.places.program_folder = folder_of(updater);
    person.expect(text::update_question, answer::no);
    EXPECT_EQ(run(&front_screen::update), events{});
    person.expect(text::update_question, answer::yes).expect(text::updater_missing(updater));
    EXPECT_EQ(run(&front_screen::update), events{});
    write_file(updater, "");
    person.expect(text::update_question, answer::yes);
    EXPECT_EQ(run(&front_screen::update), (events{{"start"}, {"end"}}));
    EXPECT_EQ(settings(), "");
}

TEST_F(AssessmentsScreen, ExitAsksTheCloseBoxDoesNotAndAFailedStoreKeepsNothingOpen) {
    person.expect(text::exit_question, answer::yes);
    EXPECT_EQ(run(&front_screen::exit), events{{"end"}});
    EXPECT_EQ(settings(), "0\n0\n0\nnone\nnone\nnone\n");
    state.places.written_folder = path("gone");
    person.expect(text::settings_not_saved(
        {state.places.settings_store(),
         "the settings could not be written. The folder may be read-only or the disc full."}));
    EXPECT_EQ(run(&front_screen::close_window), events{{"end"}});
}

class StartUp : public AssessmentsScreen {
  protected:
    void start(const std::string& store) {
        write_file(state.places.settings_store(), store);
        front.start_up();
    }
    const std::string y3 = make_farm("y3.kel", {{"Long", "4"}}, 2024);
    const std::string y1 = make_farm("y1.kel", {}, 2022);
};

TEST_F(StartUp, WithoutAUsableStoreNothingOpensAndNothingIsSaid) {
    start("1\n1\n1\n" + path("gone.kel") + "\n" + y3 + "\nnone\n");
    EXPECT_EQ(front.title(), "KEL Calculator (Version " + program_version() + ")");
    EXPECT_EQ(shown.told, (events{{"wait"}, {"ready"}}));
    EXPECT_EQ(working(), texts(3));
    EXPECT_EQ(slots(), texts(3));
}

TEST_F(StartUp, SelectedSlotReopensWithTheYearsBeforeIt) {
    const std::string y2 = make_farm("y2.kel", {{"Long", "4"}, {"Haugh", "2"}}, 2023);
    const texts chains[] = {{y3, y2, y1}, {y2, y1, ""}, {y1, "", ""}};
    for (int selected = 1; selected <= 3; ++selected) {
        start("0\n1\n" + std::to_string(selected) + "\n" + y3 + "\n" + y2 + "\n" + y1 + "\n");
        EXPECT_EQ(working(), chains[selected - 1]);
        EXPECT_EQ(state.kel_year_start, make_date(19, 12, 2025 - selected));
        EXPECT_EQ(state.no_related_prompt, 1);
    }
    EXPECT_EQ(profile.fields().row_count(), 0);
}

// Another program's lock is no reason to forget the farm: it is named, and the next start finds it.
TEST_F(StartUp, LockedFileIsNamedAndItsChainSurvivesTheRun) {
    SQLite::Database other_program(y3, SQLite::OPEN_READWRITE);
    other_program.exec("BEGIN EXCLUSIVE");
    const std::string store = "0\n0\n1\n" + y3 + "\n" + y1 + "\nnone\n";
    person.expect(assessments_messages::cannot_open({y3, "it is in use by another program."}));
    start(store);
    EXPECT_EQ(working(), texts(3));
    front.close_window();
    EXPECT_EQ(settings(), store);
}

// A file can pass the check of its [Type] table and still be damaged further on.
TEST_F(StartUp, FileThatCannotBeLoadedIsNamedAndTheSlotsSurviveTheRun) {
    change(y3, "Type", "Year", "next year");
    const std::string store = "0\n0\n1\n" + y3 + "\n" + y1 + "\nnone\n";
    person.expect(
        assessments_messages::cannot_open({y3, "the text \"next year\" in [Type].[Year] is not a date."}));
    start(store);
    EXPECT_EQ(working(), texts(3));
    EXPECT_EQ(shown.told, (events{{"wait"}, {"ready"}}));
    front.close_window();
    EXPECT_EQ(settings(), store);
}

}  // namespace kel::test
