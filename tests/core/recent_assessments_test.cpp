#include "core/recent_assessments.h"

#include "tests/support/farm_files.h"

namespace kel::test {
namespace {

class RecentAssessments : public farm_test {
  protected:
    std::vector<std::string> paths() const {
        const std::vector<recent_assessment> recent = read_recent(list);
        std::vector<std::string> found;
        found.reserve(recent.size());
        for (const recent_assessment& one : recent)
            found.push_back(one.path);
        return found;
    }
    std::string list = path("recent.txt");
};

TEST_F(RecentAssessments, TheLastTenStandOnceEachTheNewestFirst) {
    for (int i = 1; i <= 12; ++i)
        note_recent(list, {"/farms/" + std::to_string(i) + ".kel", "Farm", make_date(19, 12, 2024)});
    note_recent(list, {"/farms/5.kel", "Den\tof\nFarm\\n", {}});
    ASSERT_EQ(paths().size(), 10U);
    EXPECT_EQ(paths()[1], "/farms/12.kel");
    EXPECT_EQ(paths().back(), "/farms/3.kel");
    EXPECT_EQ(read_recent(list).front(), (recent_assessment{"/farms/5.kel", "Den\tof\nFarm\\n", {}}));
    forget_recent(list, "/farms/12.kel");
    EXPECT_EQ(paths()[1], "/farms/11.kel");
}

TEST_F(RecentAssessments, AListThatIsNoneIsEmptyAndOneThatCannotBeWrittenIsNoTrouble) {
    EXPECT_TRUE(read_recent(list).empty());
    write_file(list, "\n\t\t\n/no tabs\n/one.kel\tOne\tno date\n");
    EXPECT_EQ(read_recent(list), (std::vector<recent_assessment>{{"/one.kel", "One", {}}}));
    EXPECT_NO_THROW(note_recent(path("gone/recent.txt"), {"/farms/1.kel", "Farm", {}}));
}

}  // namespace
}  // namespace kel::test
