// The program kel-check as a shell or a job at night calls it.
#include "check/check_command.h"

#include <filesystem>
#include <sstream>

#include "tests/support/sample_chain.h"

namespace kel::test {
namespace {

namespace fs = std::filesystem;

class check_command_test : public sample_chain_test {
  protected:
    int run(const std::vector<std::string>& arguments) {
        out.str({});
        trouble.str({});
        const check_surroundings here{.climate_tables = state.places.climate_tables(),
                                      .version = "1.2.3",
                                      .today = make_date(11, 2, 2026),
                                      .stopped = stopped};
        return run_check(arguments, here, out, trouble);
    }

    std::string folder() const { return fs::path(files.front()).parent_path().string(); }

    volatile std::sig_atomic_t stopped = 0;
    std::ostringstream out;
    std::ostringstream trouble;
};

TEST_F(check_command_test, TheStatusTellsHowItWent) {
    const std::string empty = path("empty");
    fs::create_directory(empty);
    EXPECT_EQ(run({empty}), all_well);
    EXPECT_NE(out.str().find("0 files"), std::string::npos);
    EXPECT_EQ(run({folder()}), wrong_on_a_farm) << out.str();
    EXPECT_NE(out.str().find("3 files of 1 farm"), std::string::npos) << out.str();
    write_file(folder() + "/bad.kel", "x");
    EXPECT_EQ(run({folder()}), could_not_read);
    EXPECT_EQ(out.str().find("Cannot be read: bad.kel\n"), 0U) << out.str();
    EXPECT_EQ(run({path("nowhere")}), could_not_read);
}

TEST_F(check_command_test, OnlyTheFilesAskedForAreWrittenAndNeverOverAFarm) {
    EXPECT_EQ(run({folder(), "--csv", path("list.csv"), "--html", path("list.htm")}), wrong_on_a_farm);
    EXPECT_EQ(file_text(path("list.csv")).find("\"Verdict\",\"Farm\""), 0U);
    EXPECT_NE(file_text(path("list.htm")).find("Checked on 11 February 2026"), std::string::npos);
    const std::string farm = file_text(files[0]);
    EXPECT_EQ(run({folder(), "--csv", files[0]}), could_not_read);
    EXPECT_EQ(file_text(files[0]), farm);
    EXPECT_EQ(run({folder(), "--csv", path("no folder/list.csv")}), could_not_read);
    EXPECT_NE(trouble.str().find("list.csv"), std::string::npos);
    stopped = 1;
    EXPECT_EQ(run({folder(), "--csv", path("stopped.csv")}), was_stopped);
    EXPECT_FALSE(fs::exists(path("stopped.csv")));
}

TEST_F(check_command_test, ACallItCannotTakeIsToldAndDoesNothing) {
    const std::vector<std::vector<std::string>> calls{
        {}, {"a", "b"}, {"--cvs", "x"}, {"a", "--csv"}, {"a", "--html", ""}};
    for (const auto& call : calls) {
        EXPECT_EQ(run(call), could_not_read);
        EXPECT_FALSE(trouble.str().empty());
        EXPECT_TRUE(out.str().empty());
    }
    EXPECT_EQ(run({"--help"}), all_well);
    EXPECT_EQ(out.str().find("Usage: kel-check"), 0U);
    EXPECT_EQ(run({"--version"}), all_well);
    EXPECT_EQ(out.str(), "kel-check 1.2.3\n");
    const auto call = read_call({"--html", "p", "--", "-farms"}, trouble);
    ASSERT_TRUE(call);
    EXPECT_EQ(*call, (check_call{.folder = "-farms", .csv_file = {}, .html_file = "p"}));
}

}  // namespace
}  // namespace kel::test
