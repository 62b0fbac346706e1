// A Save into a file that is new, and what a process that ends in the middle of making one leaves.
#include "core/module_save.h"

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>

#include "core/left_behind.h"
#include "tests/support/farm_files.h"
#include "tests/support/scripted_prompts.h"

namespace kel::test {
namespace {

bool exists(const std::string& file) {
    return std::filesystem::exists(file);
}

class NewFile : public farm_test {
  protected:
    const std::string file = path("new.kel");
    const std::string beside = path("new.kel.unfinished");
    const std::string template_file = state.places.blank_assessment();
    scripted_prompts person;
    loaded_rows loaded{{{"Misc"}}};

    save_target chosen() {
        person.expect_file("Save the assessment", file);
        return file_to_save(state, person).value();
    }
};

TEST_F(NewFile, IsWorkedOnOnceItIsWritten) {
    const save_target target = chosen();
    {
        module_save unfinished(state, person, loaded, target);
        unfinished.db().update_rows("Type", {{"Year", "2030-12-19"}}, "Year", "");
        try {
            unfinished.db().delete_rows("No such table");
            ADD_FAILURE() << "deleted";
        } catch (const file_error& failure) {
            EXPECT_EQ(failure.file(), file);
        }
    }
    EXPECT_FALSE(exists(file) || exists(beside));
    EXPECT_EQ(state.assess_file, "");

    module_save save(state, person, loaded, target);
    recordset row = save.db().open("Misc");
    row.add_new();
    row.set("Item", "an item");
    row.update();
    EXPECT_EQ(state.assess_file, "");
    save.commit();
    EXPECT_EQ(state.assess_file, file);
    EXPECT_FALSE(exists(beside));
    EXPECT_EQ(column_of(file, "Misc", "Item").size(), 1U);
    EXPECT_TRUE(open_mark().move_to(file)) << "marked for other copies of the program";
    EXPECT_FALSE(loaded.changed(database(file)));
    EXPECT_EQ(file_to_save(state, person)->made_from, "");
}

TEST_F(NewFile, OfAKilledProcessIsTakenAwayAndOneInTheMakingIsNot) {
    const pid_t child = fork();
    if (child == 0) {
        const fresh_file killed(template_file, file);
        const database db = killed.open();
        const save_transaction save(db);
        db.delete_rows("Type");
        kill(getpid(), SIGKILL);
    }
    waitpid(child, nullptr, 0);
    ASSERT_TRUE(exists(beside));
    const std::string other = make_farm("other.kel", {});
    const fresh_file making(template_file, path("making.kel"));
    EXPECT_FALSE(exists(beside)) << "by the next one that is made in the folder";
    write_file(beside, "left again");
    write_file(path("FARM.KEL.unfinished"), "left");
    write_file(path("farm.pdf.unfinished"), "no assessment");
    clear_left_behind(other);
    EXPECT_FALSE(exists(beside)) << "by the next opening";
    EXPECT_FALSE(exists(path("FARM.KEL.unfinished")));
    EXPECT_TRUE(exists(path("farm.pdf.unfinished")));
    EXPECT_FALSE(exists(beside + "-journal"));
    EXPECT_TRUE(exists(path("making.kel.unfinished")));
    EXPECT_THROW(fresh_file(template_file, path("making.kel")), file_error);
    EXPECT_TRUE(exists(path("making.kel.unfinished")));
}

TEST_F(NewFile, ListsOfJournalsGoOnceNoneOfThemIsLeft) {
    const std::string farm = make_farm("farm.kel", {});
    const std::string list = farm + "-mj01234567", journal = path("linked.kel-journal");
    write_file(list, journal + '\0');
    write_file(journal, "still to be undone");
    clear_left_behind(farm);
    EXPECT_TRUE(exists(list));
    std::filesystem::remove(journal);
    clear_left_behind(farm);
    EXPECT_FALSE(exists(list));
}

}  // namespace
}  // namespace kel::test
