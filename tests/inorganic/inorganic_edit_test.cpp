// The edits of the table: the two dialogs, the pick in the calendar, the order of the tests at Enter.
#include "inorganic/application_rules.h"
#include "tests/inorganic/inorganic_fixture.h"

namespace kel::test {

class InorganicEdit : public inorganic_test {};
class CalendarPick : public inorganic_test {};

const application spring_nitrogen{make_date(20, 3, 2005), "Ammonium nitrate", "100", "34.5", "dry"};

TEST(ApplicationRules, TotalNitrogenIsRoundedToOneDecimal) {
    struct {
        float amount, content, total;
    } const cases[] = {{100, 34.5F, 34.5F}, {33, 27, 8.9F}, {50, 34.5F, 17.2F},  // ties to the even digit
                       {150, 34.5F, 51.8F}, {0, 34.5F, 0},  {33.3F, 34.5F, 11.5F}};
    for (const auto& c : cases)
        EXPECT_EQ(total_n_kg_per_ha(c.amount, c.content), c.total) << c.amount << " at " << c.content;
}

TEST(ApplicationRules, ContentStaysWithinOneHundredAndANegativeQuantityEmptiesIt) {
    EXPECT_EQ(content_after_content("101"), "100");
    EXPECT_EQ(content_after_content("100.01"), "100");
    EXPECT_EQ(content_after_content("-1"), "0");
    for (const char* kept : {"", ".", "0", "27", "100", "100."})
        EXPECT_EQ(content_after_content(kept), std::nullopt) << kept;
    EXPECT_EQ(content_after_amount("-0.5"), "0");
    EXPECT_EQ(content_after_amount("5000"), std::nullopt);
}

TEST_F(InorganicEdit, DetailsNeedAFieldAndEveryOtherCellOpensTheApplication) {
    open();
    person.expect(says::no_field_selected).expect(says::no_field_id);
    EXPECT_TRUE(module.click(0, col::comments).box.none());
    EXPECT_EQ(module.click(0, col::field).box, inorganic_box::field);
    EXPECT_FALSE(module.enter_field(0, "").closes);
    EXPECT_TRUE(module.enter_field(0, "East Muir").closes);
    EXPECT_TRUE(module.enter_field(0, "Long Rig").closes);  // no longer the last row
    EXPECT_EQ(module.applications().row_count(), 2);
    EXPECT_EQ(module.click(0, col::total_n).box, inorganic_box::application);
    EXPECT_EQ(module.click(0, col::amount).focus, application_part::amount);
    for (const int row : {1, -1, 0, 0})  // the entry row stays
        module.delete_row(row);
    EXPECT_EQ(module.applications().row_count(), 1);
    EXPECT_EQ(row(0).front(), "");
}

TEST_F(InorganicEdit, EnterTestsInOrderAndWritesNothingBeforeTheLast) {
    open();
    module.enter_field(0, "Long Rig");
    application entered;
    entered.comments = "kept";
    const auto refused = [&](const message& reason, int focus) {
        person.expect(reason);
        EXPECT_EQ(module.enter_application(0, entered), box_stays(focus)) << reason.text;
        EXPECT_EQ(row(0), (texts{"Long Rig", "", "", "", "", "", ""}));
    };
    refused(says::no_date, application_part::day);
    for (const date outside : {make_date(18, 12, 2004), make_date(19, 12, 2005)}) {
        entered.day = outside;
        refused(says::date_outside_year, outcome::focus_stays);
    }
    entered.day = make_date(18, 12, 2005);
    refused(says::no_type, application_part::type);
    entered.type = "Urea";
    refused(says::no_amount, application_part::amount);
    entered.amount = ".";
    refused(says::no_amount, application_part::amount);
    entered.amount = "33";
    refused(says::no_content, application_part::content);
    entered.content = "27";
    EXPECT_EQ(module.enter_application(0, entered), box_closes());
    EXPECT_EQ(row(0), (texts{"Long Rig", "18/12/2005", "Urea", "33", "27", "8.9", "kept"}));
    EXPECT_EQ(shown(0), (texts{"18/12/2005", "Urea", "33", "27", "kept"}));
    entered.day = make_date(19, 12, 2004);
    EXPECT_TRUE(module.enter_application(0, entered).closes);
}

// Zone and pair decide; the day picked stays in the calendar whether closed or open.
TEST_F(CalendarPick, ClosedDaysOverwriteTheCommentByZoneAndSecondCrop) {
    open();
    assess("Long Rig", "Grass / Other");
    assess("East Muir", "Other / Grass");
    module.enter_field(0, "Long Rig");
    module.enter_field(1, "East Muir");
    module.enter_field(2, "Sold Field");
    const auto comment_of = [&](int row, date day, bool closed) {
        if (closed) person.expect(says::closed_period);
        const auto changes = module.pick_date(row, day).changes;
        EXPECT_EQ(changes.at(0), (outcome::new_text{application_part::day, short_date_text(day)}));
        return changes.size() == 1 ? "kept" : changes.at(1).text;
    };
    const std::string reason = "Reason for application during closed period: ";
    EXPECT_EQ(comment_of(0, make_date(19, 12, 2004), true), reason);
    EXPECT_EQ(comment_of(0, make_date(19, 12, 2005), true), reason) << "the last day of the calendar";
    EXPECT_EQ(comment_of(0, make_date(16, 2, 2005), false), "kept");
    EXPECT_EQ(comment_of(0, make_date(14, 9, 2005), true), reason);
    EXPECT_EQ(comment_of(1, make_date(14, 9, 2005), false), "kept");
    state.farm_zone = "Moray/Aberdeenshire/Banff and Buchan KEL";
    EXPECT_EQ(comment_of(1, make_date(16, 2, 2005), true), reason);
    for (int pick = 1; pick <= 2; ++pick) {
        person.expect(says::field_not_assessed);  // each time, and it can still be entered
        EXPECT_EQ(comment_of(2, make_date(10, 1, 2005), false), "kept");
    }
    EXPECT_TRUE(module.enter_application(2, spring_nitrogen).closes);
}

TEST_F(CalendarPick, DaysOutsideTheYearOfTheAssessmentSetItsEnds) {
    open();
    assess("Long Rig", "Grass / Other");
    module.enter_field(0, "Long Rig");
    state.kel_year_start = make_date(1, 3, 2005);  // set by hand: the calendar follows it, Enter does not
    module.inorganic_load_stuff();
    module.enter_field(0, "Long Rig");
    person.expect(says::date_outside_calendar).expect(says::date_outside_calendar);
    EXPECT_EQ(picked(make_date(28, 2, 2005)), "01/03/2005");
    EXPECT_EQ(picked(make_date(2, 3, 2006)), "01/03/2006");
    person.expect(says::closed_period).expect(says::date_outside_year);
    EXPECT_EQ(picked(make_date(1, 3, 2005)), "01/03/2005");             // before 15 Feb 2006
    EXPECT_FALSE(module.enter_application(0, spring_nitrogen).closes);  // before 19 Dec 2005
}

TEST_F(CalendarPick, AYearThatStartsOnALeapDayOrNotAtAllHarmsNothing) {
    open();
    state.kel_year_start = make_date(29, 2, 2004);
    person.expect(says::date_outside_calendar).expect(says::date_outside_calendar);
    EXPECT_EQ(picked(make_date(1, 3, 2005)), "28/02/2005");
    state.kel_year_start.reset();
    EXPECT_EQ(picked(make_date(20, 3, 2005)), "");
    person.expect(says::date_outside_year);
    EXPECT_FALSE(module.enter_application(0, spring_nitrogen).closes);
}

}  // namespace kel::test
