// The analysis of a field's year: its warnings with their figures, their order, and the twelve months of the
// limit.
#include "record/record_analysis.h"

#include <gtest/gtest.h>

#include "record/record_messages.h"

namespace kel {

namespace {

namespace text = record_messages;
using warnings = std::vector<record_warning>;
using texts = std::vector<std::string>;

const record_year year{make_date(19, 12, 2004), "Strathmore and Fife KEL"};

record_row manure_row(date day, const std::string& total_n, const std::string& manure = "Layer manure") {
    record_row row;
    row.day = day;
    row.manure = manure;
    row.manure_n = total_n;
    return row;
}

record_row inorganic_row(date day, const std::string& total_n) {
    record_row row;
    row.day = day;
    row.inorganic_n = total_n;
    return row;
}

land_use closed_in(int month, const std::string& pair) {
    land_use use{pair, {}};
    use.closed_months.at(static_cast<std::size_t>(month - 1)) = true;
    return use;
}

// A field for which nothing is to be said of requirement and closed periods.
field_history quiet_field() {
    field_history field;
    field.current.land = land_use{"Other / Other", {}};
    field.previous.land = field.current.land;
    field.n_required = "1000";
    return field;
}

texts told(const std::vector<record_row>& rows, const field_history& field) {
    texts found;
    for (const record_warning& warning : analysis({rows, false, {}}, field, year))
        found.push_back(warning.text);
    return found;
}

}  // namespace

TEST(RecordAnalysis, RequirementIsExceededByInorganicNitrogenAlone) {
    const date day = make_date(1, 4, 2005);
    std::vector<record_row> rows{inorganic_row(day, "100.5"), inorganic_row(day, "39.5"),
                                 manure_row(day, "90")};
    field_history field = quiet_field();
    field.n_required = "140 - 110";
    EXPECT_EQ(told(rows, field), texts{});
    rows.push_back(inorganic_row(day, "1"));
    EXPECT_EQ(
        told(rows, field),
        texts{"Nitrogen Requirement Exceeded: The amount of inorganic N applied is more than the crop "
              "requires. 141 kg/ha has been applied to the crop when it only requires 140 - 110 kg/ha.  You "
              "should review your applications of inorganic Nitrogen and or the requirement for the crop."});
    // A sum that is the requirement but for the noise of its fractions is not more than it.
    rows.assign(1000, inorganic_row(day, "0.1"));
    field.n_required = "100";
    EXPECT_EQ(told(rows, field), texts{});
    field.n_required = "none";
    EXPECT_EQ(told({inorganic_row(day, "0.1"), inorganic_row(day, "0.2")}, field),
              texts{text::requirement_exceeded("0.3", "none")});
    field.n_required.reset();
    EXPECT_EQ(analysis({}, field, year),
              (warnings{{warning_kind::information,
                         "No crop nitrogen requirement has been calculated for this field."}}));
}

TEST(RecordAnalysis, ClosedPeriodsAreThoseOfTheYearOfTheDay) {
    field_history field = quiet_field();
    field.current.land = closed_in(10, "Grass / Other");
    field.previous.land = closed_in(9, "Other / Grass");
    field.previous.land->closed_months.back() = true;
    const struct {
        record_row row;
        std::string told;
    } cases[] = {
        {manure_row(make_date(31, 10, 2005), "1"),
         "Closed Period Breach: An application of manure on 31/10/2005 is within a closed period. You should "
         "review "
         "your manure applications."},
        {manure_row(make_date(31, 10, 2005), "1", "Pig FYM stored uncovered, outside"), ""},
        {manure_row(make_date(18, 12, 2004), "1"), text::manure_breach("18/12/2004")},
        {manure_row(make_date(19, 12, 2004), "1"), ""},
        {manure_row(make_date(30, 9, 2005), "1"), ""},
        {manure_row(make_date(30, 9, 2004), "1"), text::manure_breach("30/09/2004")},
        {inorganic_row(make_date(15, 2, 2005), "1"),
         "Closed Period Breach: An application of inorganic nitrogen on 15/02/2005 is within a closed "
         "period. You "
         "should review your inorganic nitrogen applications."},
        {inorganic_row(make_date(16, 2, 2005), "1"), ""},
        {inorganic_row(make_date(1, 9, 2005), "1"), text::inorganic_breach("01/09/2005")},
        {inorganic_row(make_date(14, 9, 2004), "1"), ""},  // last year's second crop is grass
        {inorganic_row(make_date(15, 9, 2004), "1"), text::inorganic_breach("15/09/2004")},
        {inorganic_row(make_date(19, 12, 2004), "1"), text::inorganic_breach("19/12/2004")},
    };
    for (const auto& c : cases)
        EXPECT_EQ(told({c.row}, field), c.told.empty() ? texts{} : texts{c.told})
            << short_date_text(c.row.day);
    field.current.land.reset();
    EXPECT_EQ(
        told({manure_row(make_date(1, 3, 2005), "1"), inorganic_row(make_date(1, 4, 2005), "1"),
              manure_row(make_date(1, 5, 2005), "1", "Cattle FYM stored under cover")},
             field),
        (texts{
            "Closed Period Uncertain. The application of manure to on 01/03/2005 has been made to a field "
            "that has not been assessed for closed periods. You should review the closed period in the "
            "manure storage assessment section.",
            "Closed Period Uncertain. The application of inorganic nitrogen on 01/04/2005 has been made to "
            "a field that has not been assessed for closed periods. You should review the closed period "
            "in the manure storage assessment section."}));
}

TEST(RecordAnalysis, TheLimitLooksForwardFromEachApplication) {
    const auto breached = [](const std::vector<record_row>& rows) {
        return told(rows, quiet_field()) == texts{std::string(text::limit_breached)};
    };
    const auto on = [](int day, int month, int y, const std::string& total) {
        return manure_row(make_date(day, month, y), total, "Pig FYM stored under cover");
    };
    EXPECT_FALSE(breached({on(1, 3, 2005, "250")}));
    EXPECT_TRUE(breached({on(1, 3, 2005, "250.001")}));
    EXPECT_FALSE(breached({on(1, 3, 2005, "250.0004")}));
    EXPECT_TRUE(breached({on(1, 3, 2004, "130"), on(28, 2, 2005, "130")}));
    EXPECT_FALSE(breached({on(1, 3, 2004, "130"), on(1, 3, 2005, "130")})) << "the same date a year on";
    // The second application opens a window of its own.
    EXPECT_TRUE(breached({on(1, 3, 2004, "1"), on(1, 6, 2004, "200"), on(2, 3, 2005, "60")}));
    EXPECT_FALSE(breached({on(29, 2, 2004, "200"), on(28, 2, 2005, "200")})) << "a leap day plus a year";
    // Inorganic rows neither open a window nor count.
    EXPECT_EQ(twelve_month_totals({inorganic_row(make_date(1, 1, 2004), "500"), on(1, 3, 2004, "100"),
                                   inorganic_row(make_date(1, 4, 2004), "500"), on(1, 2, 2005, "20"),
                                   on(1, 3, 2005, "7")}),
              (std::vector<float>{120, 120, 27, 27, 7}));
}

TEST(RecordAnalysis, WarningsComeInTheirOrder) {
    field_history field;
    field.n_required = "10";
    const field_record record{
        {inorganic_row(make_date(1, 4, 2005), "11"), manure_row(make_date(2, 4, 2005), "251")},
        true,
        {"soon"}};
    EXPECT_EQ(analysis(record, field, year),
              (warnings{{warning_kind::closed_period,
                         "Closed Periods: This field has not been assessed for closed periods."},
                        {warning_kind::information, text::unreadable_day("soon")},
                        {warning_kind::alert, text::requirement_exceeded("11", "10")},
                        {warning_kind::closed_period, text::inorganic_uncertain("01/04/2005")},
                        {warning_kind::closed_period, text::manure_uncertain("02/04/2005")},
                        {warning_kind::alert, std::string(text::limit_breached)}}));
}

}  // namespace kel
