#include <gtest/gtest.h>

#include <chrono>
#include <set>

#include "profile/profile_messages.h"
#include "profile/profile_module.h"
#include "tests/support/scripted_prompts.h"

namespace kel::test {
namespace {

namespace messages = profile_messages;
using texts = std::vector<std::string>;

class FieldEntry : public testing::Test {
  protected:
    FieldEntry() { profile.paste_names("A\nB\nC\n"); }
    std::string cell(int row, int column) const { return profile.fields().cell(row, column); }
    texts names() const {
        texts found;
        for (int row = 0; row < profile.fields().row_count(); ++row)
            found.push_back(cell(row, 0));
        return found;
    }
    void create(const std::string& count) {
        profile.set_field_count(count);
        profile.create_fields();
    }

    application_state state;
    scripted_prompts person;
    profile_module profile{state, person};
};

TEST_F(FieldEntry, NameIsTestedForApostropheAndThenForItsLike) {
    person.expect(messages::add_or_overwrite, answer::yes);
    profile.paste_names("D'\n");
    person.expect(messages::invalid_character);
    EXPECT_FALSE(profile.enter_name(0, "D'"));  // also a name that exists
    person.expect(messages::name_exists).expect(messages::name_exists);
    EXPECT_FALSE(profile.enter_name(0, "B"));
    EXPECT_FALSE(profile.enter_name(0, "A"));
    EXPECT_TRUE(profile.enter_name(0, "a"));
    EXPECT_EQ(names(), (texts{"a", "B", "C", "D'"}));
}

TEST_F(FieldEntry, AreaFillsTheRangeAndStartsTheZoneArea) {
    profile.enter_area(2, 1, field_column::area, "4.5");
    EXPECT_EQ(cell(0, 1) + cell(1, 1) + cell(2, 1), "4.54.5");
    EXPECT_EQ(cell(2, 2), "4.5");
    profile.enter_area(2, 2, field_column::area, "3");
    profile.enter_area(1, 2, field_column::kel_area, "4");
    EXPECT_EQ(cell(1, 2), "4");
    EXPECT_EQ(cell(2, 2), "3");  // cut to the field's area without a word
    EXPECT_EQ(cell(1, 1), "4.5");
    profile.enter_soil(1, 0, "Sands");
    EXPECT_EQ(cell(0, 3) + "," + cell(1, 3) + "," + cell(2, 3), "Sands,Sands,");
}

TEST_F(FieldEntry, ErasingCountsTheFieldsLeftAndSparesTheHeading) {
    person.expect(messages::heading_row);
    profile.erase_row(-1);
    profile.erase_row(1);
    EXPECT_EQ(names(), (texts{"A", "C"}));
    EXPECT_EQ(profile.farm().field_count, "2");
}

TEST_F(FieldEntry, CreatedNamesSkipThoseThatExistAndFewerAreCutAfterAQuestion) {
    profile.enter_name(0, "Field 5");
    profile.enter_name(2, "Field 05");
    create("6");
    EXPECT_EQ(names(), (texts{"Field 5", "B", "Field 05", "Field 4", "Field 6", "Field 7"}));
    person.expect(messages::fewer_fields, answer::no).expect(messages::fewer_fields, answer::yes);
    create("1");
    EXPECT_EQ(names().size(), 6U);
    create("1");
    EXPECT_EQ(names(), texts{"Field 5"});
    create("1");
}

TEST_F(FieldEntry, ACountThatIsNoneIsPassedOver) {
    for (const char* count : {"", "many", "12x", "-1", "99999999999", "2000000000"}) {
        create(count);
        EXPECT_EQ(names().size(), 3U) << count;
    }
    profile.set_field_count("007");
    EXPECT_EQ(profile.create_caption(), "Create 7 Fields");
}

// The worst case: every number a nameless row tries first is taken.
TEST_F(FieldEntry, AHundredThousandFieldsAreNamedAtOnce) {
    std::string taken;
    for (int i = 50'001; i <= 100'000; ++i)
        taken += "Field " + std::to_string(i) + "\n";
    person.expect(messages::add_or_overwrite, answer::no);
    profile.paste_names(taken);
    const auto start = std::chrono::steady_clock::now();
    create("100000");
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
    const texts all = names();
    EXPECT_EQ(std::set(all.begin(), all.end()).size(), 100'000U);
}

}  // namespace
}  // namespace kel::test
