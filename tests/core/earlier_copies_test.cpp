// Earlier copies: when one is kept and of what, how many stay, and what becomes of a folder that takes none.
#include "core/earlier_copies.h"

#include <filesystem>

#include "core/copy_notes.h"
#include "core/fresh_file.h"
#include "core/module_save.h"
#include "tests/support/farm_files.h"
#include "tests/support/scripted_prompts.h"

namespace kel::test {
namespace {

namespace fs = std::filesystem;
using texts = std::vector<std::string>;

class EarlierCopies : public farm_test {
  protected:
    EarlierCopies() {
        state.copies->keep_in(path("Earlier copies"), [this] { return now; });
        open_farm({{"Long Rig", "15"}});
    }
    void set_name(const std::string& file, const std::string& farm) {
        const database db(file);
        save_transaction save(db, *state.copies);
        db.delete_rows("FarmProfile");
        recordset row = db.open("FarmProfile");
        row.add_new();
        row.set("Name", farm);
        row.update();
        save.commit();
    }
    void save_land(const std::string& field) {
        loaded_rows rows{{{"Land"}}};
        module_save save(state, person, rows, {state.assess_file, {}});
        save.db().delete_rows("Land");
        recordset row = save.db().open("Land");
        row.add_new();
        row.set("Field Area ID", field);
        row.update();
        save.commit();
    }
    /// The stored fields of each copy, the newest copy first.
    std::vector<texts> kept_fields() const {
        const std::vector<earlier_copy> copies = state.copies->list();
        std::vector<texts> fields;
        fields.reserve(copies.size());
        for (const earlier_copy& copy : copies)
            fields.push_back(column_of(copy.file, "Land", "Field Area ID"));
        return fields;
    }
    std::size_t files_below(const std::string& folder) const {
        std::size_t count = 0;
        for (const auto& entry : fs::recursive_directory_iterator(folder))
            count += entry.is_regular_file() ? 1 : 0;
        return count;
    }

    moment now{make_date(22, 11, 2026), 14, 32, 5};
    scripted_prompts person;
};

TEST_F(EarlierCopies, TheFirstSaveOfADayKeepsTheFileAsItWas) {
    save_land("Monday");
    now.hour = 15;
    save_land("Monday later");
    EXPECT_EQ(kept_fields(), std::vector<texts>{{}});
    now.day = make_date(23, 11, 2026);
    save_land("Tuesday");
    EXPECT_EQ(kept_fields(), (std::vector<texts>{{"Monday later"}, {}}));
    // A clock that goes back begins a day of its own.
    now.day = make_date(20, 11, 2026);
    save_land("The clock is wrong");
    EXPECT_EQ(kept_fields(), (std::vector<texts>{{"Monday later"}, {}, {"Tuesday"}}));

    const earlier_copy copy = state.copies->list().front();
    EXPECT_EQ(copy.kept, (moment{make_date(23, 11, 2026), 15, 32, 5}));
    EXPECT_EQ(copy.farm, "Test Farm");
    EXPECT_EQ(copy.year_start, make_date(19, 12, 2024));
    EXPECT_EQ(copy.came_from, state.assess_file);
    EXPECT_EQ(copy.size, fs::file_size(copy.file));
    EXPECT_EQ(copy.file, path("Earlier copies/Test Farm/Test Farm 2024-25 2026-11-23 15.32.05.kelcopy"));
    EXPECT_EQ(state.copies->take_trouble(), "");
}

TEST_F(EarlierCopies, EveryFileOfASaveIsKeptAndARenamedOneAnew) {
    const std::string last_year = make_farm("last.kel", {{"Long Rig", "15"}}, 2023);
    {
        const database db(state.assess_file);
        const database linked = db.attach(last_year);
        save_transaction save(db, *state.copies);
        linked.delete_rows("Field Data");
        save.commit();
    }
    ASSERT_EQ(state.copies->list().size(), 2U);
    for (const earlier_copy& copy : state.copies->list()) {
        EXPECT_EQ(column_of(copy.file, "Field Data", "Field Name"), texts{"Long Rig"});
        EXPECT_EQ(copy.year_start, make_date(19, 12, copy.came_from == last_year ? 2023 : 2024));
    }
    fs::rename(last_year, path("renamed.kel"));
    set_name(path("renamed.kel"), "Test Farm");
    EXPECT_EQ(state.copies->list().size(), 3U);
}

TEST_F(EarlierCopies, WhatAnotherFileReplacesIsKeptWheneverThatIs) {
    save_land("before");  // today's first
    now.second = 6;
    fresh_file(state.places.blank_assessment(), state.assess_file).put_in_place(*state.copies);
    EXPECT_EQ(kept_fields().front(), texts{"before"});
    // A file that is still being made is nobody's work, and a new place holds none.
    fresh_file fresh(state.places.blank_assessment(), path("new.kel"));
    {
        const database db = fresh.open();
        save_transaction save(db, *state.copies);
        db.delete_rows("Land");
        save.commit();
    }
    fresh.put_in_place(*state.copies);
    EXPECT_EQ(state.copies->list().size(), 2U);
    EXPECT_EQ(state.copies->take_trouble(), "");
}

TEST_F(EarlierCopies, ThirtyOfAFarmStayAndNothingElseIsTakenAway) {
    const std::string other = make_farm("other.kel", {{"Haugh", "2"}});
    set_name(other, "Other Farm");  // kept as Test Farm's, whose name it had
    save_land("x");
    const std::string folder = path("Earlier copies/Test Farm");
    write_file(folder + "/Test Farm 2024-25 2001-01-01 10.00.00.kelcopy", "a person's own, without a note");
    write_file(folder + "/list.txt", "a person's own");
    for (int day = 1; day <= 40; ++day) {
        now.day = add_days(make_date(1, 1, 2027), day);
        save_land(std::to_string(day));
    }
    // A copy of a clock set back is the oldest, and stays all the same.
    now.day = make_date(1, 1, 2020);
    save_land("back");
    EXPECT_EQ(files_below(folder), 2 * earlier_copies::most_of_a_farm + 2);
    const auto copies = state.copies->list();
    EXPECT_EQ(copies.front().kept.day, make_date(10, 2, 2027));
    EXPECT_EQ(copies[copies.size() - 2].kept.day, make_date(1, 1, 2020));
    EXPECT_EQ(copies[copies.size() - 3].kept.day, make_date(13, 1, 2027));
    EXPECT_EQ(copies.back().came_from, "");
    EXPECT_TRUE(fs::exists(folder + "/list.txt"));
}

TEST_F(EarlierCopies, AFolderThatTakesNoneStopsNoSaveAndIsSaid) {
    write_file(path("Earlier copies"), "a file where the folder should be");
    save_land("saved");
    EXPECT_EQ(column_of(state.assess_file, "Land", "Field Area ID"), texts{"saved"});
    const std::string trouble = state.copies->take_trouble();
    EXPECT_NE(trouble.find("could be kept in " + path("Earlier copies")), std::string::npos) << trouble;
    EXPECT_EQ(state.copies->take_trouble(), "") << "once";
    fs::remove(path("Earlier copies"));
    save_land("saved again");
    EXPECT_EQ(kept_fields(), std::vector<texts>{{"saved"}});
    EXPECT_EQ(state.copies->take_trouble(), "");
}

TEST_F(EarlierCopies, AJournalLeftHotIsPartOfWhatTheFileWas) {
    save_land("before the crash");
    fs::remove_all(path("Earlier copies"));
    {
        // Another program that was killed in the middle of its save: file and journal as they lay there.
        const database db(state.assess_file);
        const save_transaction killed(db);
        db.delete_rows("Land");
        for (int i = 0; i < 1200; ++i) {  // more than stays in memory
            recordset row = db.open("Land");
            row.add_new();
            row.set("Field Area ID", std::string(2000, 'x'));
            row.update();
        }
        fs::copy_file(state.assess_file, path("killed.kel"));
        fs::copy_file(state.assess_file + "-journal", path("killed.kel-journal"));
    }
    EXPECT_TRUE(state.copies->keep(path("killed.kel"))) << state.copies->take_trouble();
    EXPECT_EQ(kept_fields(), std::vector<texts>{{"before the crash"}});
}

TEST_F(EarlierCopies, NamesOfAnyCharactersGetFoldersOfTheirOwn) {
    texts names;
    names.reserve(10);
    for (const char* farm : {"", "..", "A/B", "A_B", "A\nB", "CON:", "Srath Ghàidhealach", "a\\..\\b"})
        names.push_back(name_for_files(farm));
    names.push_back(name_for_files(std::string(59, 'x') + "à"));
    names.push_back(name_for_files(std::string(500, 'x')));
    for (const std::string& name : names) {
        EXPECT_EQ(name.find_first_of("/\\:\n"), std::string::npos) << name;
        EXPECT_LT(name.size(), 75U);
        EXPECT_EQ(std::count(names.begin(), names.end(), name), 1) << name;
        EXPECT_NE(name.front(), '.');
    }
    EXPECT_EQ(names[6], "Srath Ghàidhealach");
    EXPECT_EQ(names[8].substr(0, 60), std::string(59, 'x') + " ") << "no half letter";
    set_name(state.assess_file, "Müller & \"Söhne\"\nvon A/B");
    fs::remove_all(path("Earlier copies"));
    save_land("x");
    ASSERT_EQ(state.copies->list().size(), 1U);
    EXPECT_EQ(state.copies->list().front().farm, "Müller & \"Söhne\"\nvon A/B");
}

TEST_F(EarlierCopies, ADamagedCopyIsNoticed) {
    save_land("x");
    const std::string copy = state.copies->list().front().file;
    EXPECT_NO_THROW(check_copy(copy));
    const std::string whole = file_text(copy);
    write_file(copy, whole.substr(0, whole.size() / 2));
    EXPECT_THROW(check_copy(copy), file_error);
    write_file(copy, "no database, but long enough to be taken for one");
    EXPECT_THROW(check_copy(copy), file_error);
}

}  // namespace
}  // namespace kel::test
