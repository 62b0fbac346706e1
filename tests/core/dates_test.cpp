#include "core/dates.h"

#include <gtest/gtest.h>

#include <clocale>

namespace kel {
namespace {

TEST(Dates, TextIsDayFirstUnderAnyLocale) {
    std::setlocale(LC_ALL, "en_US.UTF-8");
    const date d = make_date(5, 12, 2005);
    EXPECT_EQ(short_date_text(d), "05/12/2005");
    EXPECT_EQ(long_date_text(d), "05 December 2005");
    EXPECT_EQ(iso_date_text(d), "2005-12-05");
    EXPECT_EQ(weekday_name(make_date(15, 11, 2026)), "Sunday");
    for (const char* text : {"05/12/2005", "5/12/2005", "5 December 2005", "2005-12-05", "05-12-2005",
                             "5.12.2005", "2005-12-05 00:00:00", "2005-12-05T00:00:00"})
        EXPECT_EQ(parse_date(text), d) << text;
}

TEST(Dates, WhatIsNoDateIsNone) {
    for (const char* text : {"", "none", "31/02/2005", "12/19/2005", "29/02/2005", "1/2", "1/2/05",
                             "0/1/2005", "1/2/2005/7", "-1/2/2005"})
        EXPECT_FALSE(parse_date(text)) << text;
}

TEST(Dates, TypedDatesMayBeShort) {
    for (const char* text : {"5/3", "5.3", "05/03/2025", "5/3/25", "5-Mar-25", "5 march", "2025-03-05"})
        EXPECT_EQ(typed_date(text, 2025), make_date(5, 3, 2025)) << text;
    EXPECT_EQ(typed_date("29/2", 2024), make_date(29, 2, 2024));
    for (const char* text :
         {"", "5", "5/", "29/2", "3/15", "5/3/025", "5/ma", "5/3/25/1", "x/3", "5/3/-5", "31/4"})
        EXPECT_FALSE(typed_date(text, 2025)) << text;
}

TEST(Dates, AYearFrom29FebruaryIs28February) {
    EXPECT_EQ(add_years(make_date(19, 12, 2004), 1), make_date(19, 12, 2005));
    EXPECT_EQ(add_years(make_date(29, 2, 2004), 4), make_date(29, 2, 2008));
    EXPECT_EQ(add_years(make_date(29, 2, 2004), 1), make_date(28, 2, 2005));
    EXPECT_EQ(add_years(make_date(29, 2, 2004), -1), make_date(28, 2, 2003));
}

TEST(Dates, YearLimitsUseOnlyTheCalendarYears) {
    for (const date start : {make_date(19, 12, 2003), make_date(1, 6, 2003), make_date(31, 12, 2003)}) {
        const year_limits limits = year_limits_of(start);
        EXPECT_EQ(limits.year_start, make_date(19, 12, 2003));
        EXPECT_EQ(limits.prev_year_end_text, "18 December 2003");
        EXPECT_EQ(limits.prev_year_start_text, "19 December 2002");
        EXPECT_EQ(limits.year_end_text, "18 December 2004") << short_date_text(start);
    }
    // 365 days on from 1 January of a leap year is still that year: the rule is day arithmetic.
    EXPECT_EQ(year_limits_of(make_date(1, 1, 2004)).year_end, make_date(18, 12, 2004));
}

}  // namespace
}  // namespace kel
