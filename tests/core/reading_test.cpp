// Files that are opened only to be read: nothing in them or beside them changes, and what is read is of one
// state.
#include <sys/wait.h>
#include <unistd.h>

#include <SQLiteCpp/SQLiteCpp.h>

#include <filesystem>
#include <set>

#include "core/file_stamp.h"
#include "tests/support/farm_files.h"

namespace kel::test {
namespace {

namespace fs = std::filesystem;

class Reading : public farm_test {
  protected:
    void SetUp() override { open_farm({{"Mill Croft", "4"}}); }

    std::set<std::string> files() const {
        std::set<std::string> names;
        for (const auto& entry : fs::directory_iterator(fs::path(state.assess_file).parent_path()))
            names.insert(entry.path().filename().string());
        return names;
    }
    std::string trouble() const {
        try {
            database::for_reading(state.assess_file).open("Type");
        } catch (const file_error& failure) {
            return failure.trouble();
        }
        return {};
    }
    // A process that is killed in the middle of a save leaves its journal behind.
    void cut_off_a_save() {
        const pid_t child = fork();
        if (child == 0) {
            SQLite::Database db(state.assess_file, SQLite::OPEN_READWRITE);
            db.exec("PRAGMA cache_size = 1; BEGIN IMMEDIATE; PRAGMA cache_spill = 1");
            for (int i = 0; i < 2000; ++i)
                db.exec("INSERT INTO [Misc] ([Item], [Value]) VALUES ('spoilt', hex(randomblob(200)))");
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
    }
};

TEST_F(Reading, ASaveThatWasCutOffIsToldAndStaysAsItIs) {
    cut_off_a_save();
    const std::string journal = state.assess_file + "-journal";
    ASSERT_TRUE(fs::exists(journal));
    const std::string before = file_text(state.assess_file) + file_text(journal);
    EXPECT_EQ(trouble(), "its last save was cut off. Opening it in the program puts that right.");
    ASSERT_TRUE(fs::exists(journal));
    EXPECT_EQ(file_text(state.assess_file) + file_text(journal), before);
    EXPECT_TRUE(column_of(state.assess_file, "Misc", "Item").empty())
        << "the program's own opening undoes it";
    EXPECT_EQ(trouble(), "");
}

TEST_F(Reading, AFileInWriteAheadModeIsToldAndGetsNoCompanions) {
    SQLite::Database(state.assess_file, SQLite::OPEN_READWRITE).exec("PRAGMA journal_mode = WAL");
    const auto before = files();
    EXPECT_NE(trouble().find("write-ahead"), std::string::npos);
    EXPECT_EQ(files(), before);
}

TEST_F(Reading, EveryTableIsOfTheStateAtTheFirst) {
    const auto before = files();
    {
        const database reading = database::for_reading(state.assess_file);
        EXPECT_THROW(reading.delete_rows("Field Data"), file_error);
        EXPECT_EQ(reading.open("Field Data").record_count(), 1);
        const file_stamp opened = reading.stamp();
        fs::resize_file(state.assess_file, opened.size + 4096);
        EXPECT_NE(reading.stamp(), opened) << "written over by another program";
    }
    EXPECT_EQ(files(), before);
}

}  // namespace
}  // namespace kel::test
