#include <gtest/gtest.h>

#include <chrono>
#include <set>

#include "profile/profile_messages.h"
#include "profile/profile_module.h"
#include "tests/support/scripted_prompts.h"

namespace kel::test {
namespace {

namespace messages = profile_messages;

class FieldEntry : public testing::Test {
  protected:
    FieldEntry() { profile.paste_names("A\nB\nC\n"); }
    std::string cell(int row, int column) const { return profile.fields().cell(row, column); }
    std::vector<std::string> names() const {
        std::vector<std::string> texts;
        texts.reserve(static_cast<std::size_t>(profile.fields().row_count()));
        for (int row = 0; row < profile.fields().row_count(); ++row)
            texts.push_back(cell(row, 0));
        return texts;
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
    EXPECT_EQ(names(), (std::vector<std::string>{"a", "B", "C", "D'"}));
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
    profile.clear_cell(1, 1);
    EXPECT_EQ(cell(1, 1) + "/" + cell(1, 2), "/4");
}

TEST_F(FieldEntry, ErasingCountsTheFieldsLeftAndSparesTheHeading) {
    person.expect({"Cannot Delete", "This row cannot be deleted!", message_kind::information});
    profile.erase_row(-1);
    profile.erase_row(1);
    EXPECT_EQ(names(), (std::vector<std::string>{"A", "C"}));
    EXPECT_EQ(profile.farm().field_count, "2");
    profile.erase_row(0);
    profile.erase_row(0);
    EXPECT_EQ(profile.farm().field_count, "0");
}

TEST_F(FieldEntry, CreatedNamesSkipThoseThatExist) {
    profile.enter_name(0, "Field 5");
    profile.enter_name(1, "Field 6");
    profile.enter_name(2, "Field 05");
    create("7");
    EXPECT_EQ(names(), (std::vector<std::string>{"Field 5", "Field 6", "Field 05", "Field 4", "Field 7",
                                                 "Field 8", "Field 9"}));
}

TEST_F(FieldEntry, FewerFieldsAreCutFromTheBottomAfterAQuestion) {
    person.expect(messages::fewer_fields, answer::no).expect(messages::fewer_fields, answer::yes);
    create("1");
    EXPECT_EQ(names().size(), 3U);
    create("1");
    EXPECT_EQ(names(), std::vector<std::string>{"A"});
    create("1");
}

TEST_F(FieldEntry, ACountThatIsNoneIsPassedOver) {
    for (const char* count : {"", "many", "12x", "-1", "99999999999", "2000000000"}) {
        create(count);
        EXPECT_EQ(names().size(), 3U) << count;
    }
    profile.set_field_count("007");
    EXPECT_EQ(profile.create_caption(), "Create 7 Fields");
    profile.set_field_count("0");
    EXPECT_EQ(profile.create_caption(), "Create Fields");
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
    const auto all = names();
    EXPECT_EQ(std::set<std::string>(all.begin(), all.end()).size(), 100'000U);
    EXPECT_EQ(all.back(), "Field 150000");
}

}  // namespace
}  // namespace kel::test
