#include <gtest/gtest.h>

#include "profile/profile_messages.h"
#include "profile/profile_module.h"
#include "tests/support/scripted_prompts.h"

namespace kel::test {
namespace {

namespace messages = profile_messages;

TEST(FieldPaste, LinesAreCutAtEveryKindOfLineEnd) {
    const struct {
        std::string_view clipboard;
        std::vector<pasted_field> with_sizes;
    } cases[] = {
        {"A\t1.5\r\nB", {{"A", "1.5"}, {"B", ""}}},
        {"A\t1.5\rB\t2\r", {{"A", "1.5"}, {"B", "2"}}},
        {"A\t1.5\r\nB\t2.5", {{"A", "1.5"}, {"B", ""}}},  // no line end: a name alone
        {"A\r\n\r\nB\t\r\n", {{"A", ""}, {"", ""}, {"B", ""}}},
        {"A\t1.5\tSands\r\n", {{"A", "1.5\tSands"}}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(parse_names_and_sizes(c.clipboard), c.with_sizes) << c.clipboard;
    EXPECT_EQ(parse_names("A\r\nB B\nC"), (std::vector<pasted_field>{{"A", ""}, {"B B", ""}, {"C", ""}}));
}

class FieldEntry : public testing::Test {
  protected:
    /// The first columns of all rows.
    std::string listed(int columns = 1) const {
        std::string text;
        for (int row = 0; row < profile.fields().row_count(); ++row)
            for (int column = 0; column < columns; ++column)
                text += profile.fields().cell(row, column) + (column + 1 == columns ? ";" : ",");
        return text;
    }
    void create(const std::string& count) {
        profile.set_field_count(count);
        profile.create_fields();
    }

    application_state state;
    scripted_prompts person;
    profile_module profile{state, person};
};

TEST_F(FieldEntry, PastedFieldsAreAddedOrReplaceTheListOrNothingHappens) {
    profile.paste_names("A\n");
    person.expect(messages::add_or_overwrite, answer::cancel);
    profile.paste_names_and_sizes("D\t1\n");
    person.expect(messages::more_than_names);  // before any question
    profile.paste_names("B\nC\t1\n");
    profile.paste_names("");
    profile.paste_names_and_sizes("");
    EXPECT_EQ(listed(), "A;");
    person.expect(messages::add_or_overwrite, answer::no);
    profile.paste_names_and_sizes("A\t1\nE");
    EXPECT_EQ(listed(4), "A,1,1,;E,,,;");
    EXPECT_EQ(profile.farm().field_count, "2");
}

TEST_F(FieldEntry, PastedDuplicatesAreNamedInOneBoxAndLeftOut) {
    profile.paste_names("A\n");
    person.expect(messages::add_or_overwrite, answer::yes);
    person.expect({"Duplicate fields",
                   "The following fields were not entered in the grid as they had duplicate field names. "
                   "All field names must be unique.\r\n\r\nA\r\nB",
                   message_kind::information});
    profile.paste_names_and_sizes("A\t1\nB\t2\nB\t3\nO'Neil <b>\t4\n");
    EXPECT_EQ(listed(2), "A,;B,2;O'Neil <b>,4;");
}

TEST_F(FieldEntry, NameIsTestedForApostropheAndThenForItsLike) {
    profile.paste_names("A\nB\nD'\n");
    person.expect(messages::invalid_character);
    EXPECT_FALSE(profile.enter_name(0, "D'").closes);  // also a name that exists
    person.expect(messages::name_exists).expect(messages::name_exists);
    EXPECT_FALSE(profile.enter_name(0, "B").closes);
    EXPECT_FALSE(profile.enter_name(0, "A").closes);
    EXPECT_TRUE(profile.enter_name(0, "a").closes);
    EXPECT_EQ(listed(), "a;B;D';");
}

TEST_F(FieldEntry, AreaFillsTheRangeAndStartsTheZoneArea) {
    profile.paste_names("A\nB\nC\n");
    profile.enter_area(2, 1, field_column::area, "4.5");
    profile.enter_area(2, 2, field_column::area, "3");
    profile.enter_area(1, 2, field_column::kel_area, "4");  // cut to the field's area without a word
    profile.enter_soil(1, 0, "Sands");
    EXPECT_EQ(listed(4), "A,,,Sands;B,4.5,4,Sands;C,3,3,;");
}

TEST_F(FieldEntry, ErasingCountsTheFieldsLeftAndSparesTheHeading) {
    profile.paste_names("A\nB\nC\n");
    person.expect(messages::heading_row);
    profile.erase_row(-1);
    profile.erase_row(1);
    EXPECT_EQ(listed(), "A;C;");
    EXPECT_EQ(profile.farm().field_count, "2");
}

TEST_F(FieldEntry, CreatedNamesSkipThoseThatExistAndFewerAreCutAfterAQuestion) {
    profile.paste_names("Field 5\nB\nField 05\n");
    create("6");
    const std::string six = "Field 5;B;Field 05;Field 4;Field 6;Field 7;";
    EXPECT_EQ(listed(), six);
    for (const char* none : {"", "many", "12x", "-1", "99999999999", "2000000000"})
        create(none);
    person.expect(messages::fewer_fields, answer::no).expect(messages::fewer_fields, answer::yes);
    create("1");
    EXPECT_EQ(listed(), six);
    create("1");
    EXPECT_EQ(listed(), "Field 5;");
    profile.set_field_count("007");
    EXPECT_EQ(profile.create_caption(), "Create 7 Fields");
}

}  // namespace
}  // namespace kel::test
