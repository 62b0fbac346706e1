// A folder of farms: which files it finds, which years it takes together, in which order it tells them.
#include "standing/folder_check.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <filesystem>
#include <map>

#include "core/assessment_store.h"
#include "standing/check_tables.h"
#include "tests/support/sample_chain.h"

namespace kel::test {
namespace {

namespace fs = std::filesystem;

class folder_check_test : public sample_chain_test {
  protected:
    folder_check_test() { fs::create_directories(below("")); }

    std::string below(const std::string& name) const { return path("farms/" + name); }

    std::string put(const std::string& file, const std::string& name) const {
        fs::create_directories(fs::path(below(name)).parent_path());
        fs::copy_file(file, below(name));
        return below(name);
    }

    std::vector<checked_file> checked() {
        folder_check check(below(""), state.places.climate_tables());
        while (check.step()) {
        }
        return check.files();
    }

    checked_file checked_alone(const farm_paths& paths) {
        town_rain rain(state.places.climate_tables());
        const farm_standing standing = standing_of(paths, rain);
        checked_file told{.path = paths.current, .worst = standing.worst()};
        for (const step_standing& step : standing.steps)
            told.steps.push_back(std::string(word_of(step.worst)) + ": " + step.verdict);
        return told;
    }

    static const checked_file& row_of(const std::vector<checked_file>& files, const std::string& path) {
        return *std::find_if(files.begin(), files.end(), [&](const auto& file) { return file.path == path; });
    }
};

std::map<std::string, std::string> contents(const std::string& folder) {
    std::map<std::string, std::string> all;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        if (entry.is_regular_file()) all[entry.path().string()] = file_text(entry.path().string());
    return all;
}

TEST_F(folder_check_test, AFarmsYearsFindEachOtherByNameAndDateInWhateverFolders) {
    const std::string oldest = put(files[0], "a/b/first.kel");
    const std::string middle = put(files[1], "c/second.KEL");
    const std::string newest = put(files[2], "third.kel");
    write_file(below("c/notes.txt"), "no farm");
    fs::create_directory_symlink(below(""), below("c/round"));
    const auto before = contents(below(""));

    const auto rows = checked();
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(row_of(rows, newest).steps, checked_alone({newest, middle, oldest}).steps);
    EXPECT_EQ(row_of(rows, middle).steps, checked_alone({middle, oldest, {}}).steps);
    EXPECT_NE(row_of(rows, middle).steps, checked_alone({middle, {}, {}}).steps);
    EXPECT_EQ(contents(below("")), before);
}

TEST_F(folder_check_test, OfTwoYearsBeforeTheNearestIsTakenAndADoubtIsTold) {
    const std::string newest = put(files[2], "x/third.kel");
    put(files[1], "other/second.kel");
    put(files[1], "x/second.kel");
    EXPECT_EQ(row_of(checked(), newest).missing.find("Two files"), std::string::npos);
    put(files[1], "x/copy of second.kel");
    EXPECT_NE(row_of(checked(), newest)
                  .missing.find("Two files may be the year before; copy of second.kel was taken."),
              std::string::npos);
}

TEST_F(folder_check_test, TroubleComesFirstAndNeverStopsTheOthers) {
    const std::string good = put(files[2], "good.kel");
    write_file(below("damaged.kel"), "SQLite format 3, but not really");
    fs::create_symlink(below("nowhere"), below("gone.kel"));
    fs::create_directory(below("folder.kel"));
    const std::string locked = put(files[0], "locked.kel");
    SQLite::Database holder(locked, SQLite::OPEN_READWRITE);
    holder.exec("BEGIN EXCLUSIVE");

    const auto rows = checked();
    ASSERT_EQ(rows.size(), 4U);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_FALSE(rows[i].trouble.empty()) << rows[i].path;
        EXPECT_EQ(state_of(rows[i]), "Cannot be read");
    }
    EXPECT_EQ(rows[3].path, good);
    EXPECT_TRUE(rows[3].trouble.empty());
    EXPECT_EQ(exit_status(rows), 2);
    EXPECT_EQ(exit_status({rows[3]}), rows[3].worst == severity::wrong ? 1 : 0);
}

TEST_F(folder_check_test, AFolderThatIsNoneIsTold) {
    folder_check check(path("not there"), state.places.climate_tables());
    while (check.step()) {
    }
    ASSERT_EQ(check.files().size(), 1U);
    EXPECT_FALSE(check.files().front().trouble.empty());
}

TEST_F(folder_check_test, TheTableAndThePageKeepWhatAFarmIsCalled) {
    checked_file file{.path = below("a \"b\".kel"), .farm = "<b>Low, & \"High\"</b>"};
    file.worst = severity::wrong;
    const std::string csv = check_csv({file}, below(""));
    EXPECT_NE(csv.find("\"Wrong\",\"<b>Low, & \"\"High\"\"</b>\",\"\""), std::string::npos) << csv;
    EXPECT_NE(csv.find("\"a \"\"b\"\".kel\"\r\n"), std::string::npos) << csv;
    const std::string page = check_html({file}, below(""), make_date(13, 4, 2026));
    EXPECT_EQ(page.find("<b>Low"), std::string::npos);
    EXPECT_NE(page.find("&lt;b&gt;Low, &amp;"), std::string::npos);
    EXPECT_NE(page.find("Checked on 13 April 2026"), std::string::npos);
    file.farm = "Bell\a\x1b[31m";
    EXPECT_EQ(check_text({file}, below("")).find('\x1b'), std::string::npos);
}

}  // namespace
}  // namespace kel::test
