// Two copies of the program on one file: the mark that shows it at the opening, and the question before a
// Save over rows that the other one has changed.
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <filesystem>

#include "core/module_save.h"
#include "core/open_mark.h"
#include "core/whole_file.h"
#include "tests/support/farm_files.h"
#include "tests/support/scripted_prompts.h"

namespace kel::test {
namespace {

using texts = std::vector<std::string>;

class ChangedRows : public farm_test {
  protected:
    void SetUp() override {
        file = make_farm("farm.kel", {{"Low", "4"}});
        add_row(file, "Land", {{"Field Area ID", "Low"}, {"Soil", "Sands"}, {"Crop", "Grass / Other"}});
        loaded.remember(database(file));
    }
    /// One Save; whether it was gone through with.
    bool save(const std::string& soil) {
        module_save saving(state, person, loaded, {file, {}});
        if (!saving) return false;
        saving.db().update_rows("Land", {{"Soil", soil}}, "Field Area ID", "Low");
        saving.commit();
        return true;
    }
    void other_program_writes(const char* table, const char* column, const char* text) {
        recordset row = database(file).open(table);
        row.edit();
        row.set(column, text);
        row.update();
    }
    texts stored() { return column_of(file, "Land", "Soil"); }

    std::string file;
    scripted_prompts person;
    loaded_rows loaded{{{"Land", {"Field Area ID", "Soil"}}, {"Misc"}}};
};

TEST_F(ChangedRows, AreAskedAboutOnceAndOwnSavesNever) {
    EXPECT_TRUE(save("first"));
    EXPECT_TRUE(save("second"));
    other_program_writes("Land", "Soil", "theirs");
    person.expect(rows_changed_meanwhile(file), answer::no).expect(rows_changed_meanwhile(file), answer::yes);
    EXPECT_FALSE(save("mine"));
    EXPECT_EQ(stored(), texts{"theirs"});
    EXPECT_TRUE(save("mine"));
    EXPECT_TRUE(save("mine again"));
    EXPECT_EQ(stored(), texts{"mine again"});
    add_row(file, "Misc", {{"Item", "an item"}});
    person.expect(rows_changed_meanwhile(file), answer::no);
    EXPECT_FALSE(save("mine"));
}

// As another process sees it: whether somebody holds SQLite's lock for writing.
bool is_locked_for_others(const std::string& file) {
    const pid_t child = fork();
    if (child == 0) {
        struct flock reserved {};
        reserved.l_type = F_WRLCK;
        reserved.l_whence = SEEK_SET;
        reserved.l_start = 0x40000001;
        reserved.l_len = 1;
        const int opened = open(file.c_str(), O_RDWR | O_CLOEXEC);
        _exit(fcntl(opened, F_GETLK, &reserved) == 0 && reserved.l_type != F_UNLCK ? 1 : 0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 1;
}

TEST_F(ChangedRows, CannotBeChangedByAnotherProgramWhileASaveIsUnderWay) {
    EXPECT_FALSE(is_locked_for_others(file));
    const module_save saving(state, person, loaded, {file, {}});
    EXPECT_TRUE(is_locked_for_others(file));
}

// Another table, another module's columns, another file: nothing that this Save would write over.
TEST_F(ChangedRows, OfOthersAreNoReasonToAsk) {
    other_program_writes("Land", "Crop", "Other / Other");
    other_program_writes("FarmProfile", "Name", "Renamed");
    EXPECT_TRUE(save("mine"));
    copy_whole_file(state.places.blank_assessment(), path("new.kel"));
    file = path("new.kel");
    EXPECT_TRUE(save("mine"));
}

TEST_F(ChangedRows, AreNotRememberedFromASaveThatFailed) {
    {
        module_save saving(state, person, loaded, {file, {}});
        saving.db().update_rows("Land", {{"Soil", "never reached"}}, "Field Area ID", "Low");
    }
    EXPECT_TRUE(save("mine"));
}

// What stood in the file when the person agreed is what the next Save compares with.
TEST_F(ChangedRows, AreAskedAboutAlsoBehindASaveThatHadNothingToWrite) {
    const auto save_nothing = [this] {
        module_save saving(state, person, loaded, {file, {}});
        if (saving) saving.commit();
    };
    save_nothing();
    other_program_writes("Land", "Soil", "theirs");
    person.expect(rows_changed_meanwhile(file), answer::no).expect(rows_changed_meanwhile(file), answer::yes);
    EXPECT_FALSE(save("mine"));
    save_nothing();
    other_program_writes("FarmProfile", "Name", "Renamed");
    EXPECT_TRUE(save("mine"));
}

class OpenMark : public farm_test {
  protected:
    const std::string farm = path("farm.kel");
    const std::string other = path("other.kel");
    open_mark here, there;
};

TEST_F(OpenMark, IsSeenByTheSecondCopyOnceAndGoesWithTheFirst) {
    EXPECT_FALSE(here.move_to(farm));
    EXPECT_FALSE(here.move_to(farm));
    EXPECT_TRUE(there.move_to(farm));
    EXPECT_FALSE(there.move_to(farm)) << "said already";
    EXPECT_FALSE(there.move_to(other));
    EXPECT_TRUE(there.move_to(farm)) << "opened anew";
    EXPECT_FALSE(here.move_to(""));
    EXPECT_FALSE(there.move_to(farm)) << "free now, and taken";
    EXPECT_TRUE(here.move_to(farm));
    there.move_to("");
    here.move_to("");
    EXPECT_FALSE(std::filesystem::exists(farm + ".lock"));
}

TEST_F(OpenMark, OfAKilledProgramIsNone) {
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    const pid_t child = fork();
    if (child == 0) {
        here.move_to(farm);
        if (write(ready[1], "x", 1) == 1) pause();
        _exit(0);
    }
    char told = 0;
    ASSERT_EQ(read(ready[0], &told, 1), 1);
    EXPECT_TRUE(there.move_to(farm));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    EXPECT_TRUE(std::filesystem::exists(farm + ".lock"));
    there.move_to("");
    EXPECT_FALSE(there.move_to(farm));
}

TEST_F(OpenMark, AFolderThatTakesNoneIsNoTrouble) {
    EXPECT_FALSE(here.move_to(path("no such folder/farm.kel")));
    EXPECT_FALSE(there.move_to(path("no such folder/farm.kel")));
}

}  // namespace
}  // namespace kel::test
