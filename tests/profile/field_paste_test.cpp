#include "profile/field_paste.h"

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

class PastedFields : public testing::Test {
  protected:
    std::string listed() const {
        std::string text;
        for (int row = 0; row < profile.fields().row_count(); ++row)
            text += profile.fields().cell(row, 0) + "," + profile.fields().cell(row, 1) + ";";
        return text;
    }

    application_state state;
    scripted_prompts person;
    profile_module profile{state, person};
};

TEST_F(PastedFields, AreAddedOrReplaceTheListOrNothingHappens) {
    profile.paste_names("A\n");
    person.expect(messages::add_or_overwrite, answer::cancel);
    profile.paste_names_and_sizes("D\t1\n");
    person.expect(messages::more_than_names);  // before any question
    profile.paste_names("B\nC\t1\n");
    profile.paste_names("");
    profile.paste_names_and_sizes("");
    EXPECT_EQ(listed(), "A,;");
    person.expect(messages::add_or_overwrite, answer::no);
    profile.paste_names_and_sizes("A\t1\nE");
    EXPECT_EQ(listed(), "A,1;E,;");
    EXPECT_EQ(profile.fields().cell(0, field_column::kel_area), "1");
    EXPECT_EQ(profile.farm().field_count, "2");
}

TEST_F(PastedFields, DuplicatesAreNamedInOneBoxAndLeftOut) {
    profile.paste_names("A\n");
    person.expect(messages::add_or_overwrite, answer::yes);
    person.expect({"Duplicate fields",
                   "The following fields were not entered in the grid as they had duplicate field names. "
                   "All field names must be unique.\r\n\r\nA\r\nB",
                   message_kind::information});
    profile.paste_names_and_sizes("A\t1\nB\t2\nB\t3\nO'Neil <b>\t4\n");
    EXPECT_EQ(listed(), "A,;B,2;O'Neil <b>,4;");
}

}  // namespace
}  // namespace kel::test
