// The File menu's way to other files: recent assessments, and an earlier copy put back.
#include "shell/farm_files_module.h"

#include <filesystem>

#include "shell/farm_files_messages.h"
#include "shell/years_messages.h"
#include "tests/shell/shell_fixture.h"

namespace kel::test {

namespace fs = std::filesystem;
namespace text = farm_files_messages;

class FarmFiles : public shell_test {
  protected:
    FarmFiles() {
        state.copies->keep_in(path("Earlier copies"), [this] { return now; });
        open_farm({{"Long Rig", "15"}});
        write_store(state);
        profile.load_profile();
    }
    /// Saves as Set Profile does.
    void save_area(const std::string& file, const std::string& hectares) {
        const database db(file);
        save_transaction save(db, *state.copies);
        recordset row = db.open("FarmProfile");
        row.edit();
        row.set("Area", hectares);
        row.update();
        save.commit();
    }
    texts area(const std::string& file) const { return column_of(file, "FarmProfile", "Area"); }
    earlier_copy newest() const { return state.copies->list().front(); }
    void next_day() { now.day = add_days(now.day, 1); }
    void restore(std::size_t chosen) {
        shown.chosen_copy = chosen;
        files.restore();
        person.verify_done();
    }
    /// A copy of the file with 15 ha; the file itself has 20 by now.
    earlier_copy copy_of_before() {
        save_area(state.assess_file, "15");
        next_day();
        save_area(state.assess_file, "20");
        next_day();
        return newest();
    }

    moment now{make_date(22, 11, 2026), 9, 5, 0};
    years_module years{state, person, profile, [](picker_module) {}};
    farm_files_module files{state, person, years, shown};
};

TEST_F(FarmFiles, ACopyIsPutBackOverTheOpenAssessmentAndWhatWasThereIsACopyThen) {
    const earlier_copy copy = copy_of_before();
    const int before = state.assessment;
    person.expect(text::put_back_question(copy, state.assess_file), answer::yes)
        .expect(text::put_back(state.assess_file));
    restore(0);
    EXPECT_EQ(area(state.assess_file), texts{"15"});
    EXPECT_EQ(profile.farm().total_area, "15") << "the profile shows what is in the file";
    EXPECT_NE(state.assessment, before) << "the screens follow";
    EXPECT_EQ(area(newest().file), texts{"20"});
    EXPECT_EQ(newest().kept.day, now.day);
    EXPECT_NE(text::put_back(state.assess_file).text.find(state.assess_file), std::string::npos);
    EXPECT_NE(text::put_back_question(copy, "x").text.find("of 23/11/2026 09:05 will"), std::string::npos);
}

TEST_F(FarmFiles, CopiesOfTheOpenFarmStandFirstAndEachGroupNewestFirst) {
    save_area(state.assess_file, "15");
    next_day();
    save_area(state.assess_file, "16");
    next_day();
    const std::string other = make_farm("other.kel", {});
    change(other, "FarmProfile", "Name", "Other Farm");
    save_area(other, "3");
    shown.chosen_copy.reset();
    files.restore();
    texts offered;
    offered.reserve(shown.offered.size());
    for (const earlier_copy& copy : shown.offered)
        offered.push_back(copy.farm + " " + short_date_text(copy.kept.day));
    EXPECT_EQ(offered, (texts{"Test Farm 23/11/2026", "Test Farm 22/11/2026", "Other Farm 24/11/2026"}));
}

TEST_F(FarmFiles, NothingIsLostWhenTheCopyIsDamagedOrTheAnswerIsNo) {
    const earlier_copy copy = copy_of_before();
    const auto nothing_happened = [&] {
        EXPECT_EQ(area(state.assess_file), texts{"20"});
        EXPECT_EQ(state.copies->list().size(), 2U);
        EXPECT_FALSE(fs::exists(state.assess_file + ".unfinished"));
    };
    person.expect(text::put_back_question(copy, state.assess_file), answer::no);
    restore(0);
    nothing_happened();
    shown.unsaved = true;
    person.expect(text::put_back_question(copy, state.assess_file), answer::yes)
        .expect(text::unsaved_rows_go, answer::no);
    restore(0);
    nothing_happened();
    shown.unsaved = false;
    {
        const database busy(state.assess_file);
        const save_transaction another_program(busy);
        person.expect(text::put_back_question(copy, state.assess_file), answer::yes);
        EXPECT_THROW(restore(0), file_error);
    }
    person.verify_done();
    nothing_happened();
    write_file(copy.file, "no database, but long enough to be taken for one");
    person.expect(text::copy_damaged(copy, "it is not an assessment file, or it is damaged."));
    restore(0);
    nothing_happened();
}

TEST_F(FarmFiles, WhatCannotBeKeptIsReplacedOnlyIfThePersonSaysSo) {
    const earlier_copy copy = copy_of_before();
    write_file(state.assess_file, "damaged, which is why the copy is wanted");
    const message not_kept =
        text::present_not_kept("No copy of the file as it was before could be kept in " +
                               path("Earlier copies") + ": it is not an assessment file, or it is damaged.");
    person.expect(text::put_back_question(copy, state.assess_file), answer::yes).expect(not_kept, answer::no);
    restore(0);
    EXPECT_EQ(file_text(state.assess_file), "damaged, which is why the copy is wanted");
    person.expect(text::put_back_question(copy, state.assess_file), answer::yes)
        .expect(not_kept, answer::yes)
        .expect(text::put_back(state.assess_file));
    restore(0);
    EXPECT_EQ(area(state.assess_file), texts{"15"});
}

TEST_F(FarmFiles, ACopyOfUnknownPlaceIsAskedAboutAndMayBeOpened) {
    const earlier_copy copy = copy_of_before();
    fs::remove(copy.file + ".note");
    person.expect_file(std::string(text::restore_title), path("back"))
        .expect(text::open_what_was_put_back(path("back.kel")), answer::yes);
    restore(0);
    EXPECT_EQ(state.assess_file, path("back.kel"));
    EXPECT_EQ(area(path("back.kel")), texts{"15"});
    EXPECT_EQ(area(path("farm.kel")), texts{"20"});
}

TEST_F(FarmFiles, AnotherCopyOfTheProgramIsNoticed) {
    const std::string other = make_farm("other.kel", {});
    save_area(other, "3");
    open_mark elsewhere;
    elsewhere.move_to(other);
    const auto computer = state.mark->held_elsewhere(other);
    ASSERT_TRUE(computer);
    person.expect(text::put_back_question(newest(), other), answer::yes)
        .expect(text::in_use_elsewhere(other, *computer), answer::no);
    restore(0);
    EXPECT_EQ(area(other), texts{"3"});
    mark_open_file(state, person);
    EXPECT_FALSE(state.mark->held_elsewhere(state.assess_file)) << "that is this one";
}

TEST_F(FarmFiles, RecentAssessmentsOpenAsByDoubleClickAndVanishedOnesGo) {
    const std::string first = state.assess_file;
    const std::string other = make_farm("other.kel", {}, 2023);
    files.note_open();
    shown.unsaved = true;
    person.expect(text::unsaved_rows_go, answer::no);
    files.open_recent(other);
    EXPECT_EQ(state.assess_file, first);
    shown.unsaved = false;
    person.expect(years_messages::nothing_linked, answer::no);
    EXPECT_FALSE(files.open_recent(other)) << "its links are to be chosen";
    EXPECT_EQ(state.assess_file, other);
    EXPECT_EQ(state.slot_current, other);
    EXPECT_NE(settings().find(other), std::string::npos);
    files.note_open();
    ASSERT_EQ(files.recent().size(), 2U);
    EXPECT_EQ(files.recent().front(), (recent_assessment{other, "Test Farm", make_date(19, 12, 2023)}));
    fs::remove(first);
    person.expect(text::recent_gone(first));
    files.open_recent(first);
    EXPECT_EQ(state.assess_file, other);
    EXPECT_EQ(files.recent().size(), 1U);
    const std::string damaged = make_damaged("damaged.kel");
    EXPECT_THROW(files.open_recent(damaged), file_error);
    EXPECT_EQ(state.assess_file, other);
}

TEST_F(FarmFiles, TheFoldersAreOpened) {
    files.open_folder();
    files.open_copies_folder();
    EXPECT_TRUE(fs::is_directory(path("Earlier copies")));
    EXPECT_EQ(shown.told, (events{{"folder " + path("").substr(0, path("").size() - 1)},
                                  {"folder " + path("Earlier copies")}}));
    person.expect(text::no_copies(path("Earlier copies")));
    files.restore();
}

}  // namespace kel::test
