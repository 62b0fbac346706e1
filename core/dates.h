// Calendar dates. All date text is day first whatever the machine's locale is: 19/12/2005 in tables and
// boxes, 19 December 2005 in captions and reports. A KEL year runs from 19 December to 18 December.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace kel {

using date = std::chrono::year_month_day;

date make_date(int day, int month, int year);
int year_of(date d);
int month_of(date d);
int day_of(date d);

/// "19/12/2005".
std::string short_date_text(date d);
/// "19 December 2005".
std::string long_date_text(date d);
/// "2005-12-19", the form in which typed dates are stored.
std::string iso_date_text(date d);
/// Reads d/m/yyyy, d-m-yyyy, "d Month yyyy" and the stored form yyyy-mm-dd; nothing for any other text or for
/// a day that the calendar does not have.
std::optional<date> parse_date(std::string_view text);

/// A date as a person types it, day first: as parse_date reads it, with a month's first letters, with two
/// digits of a year of this century, or without a year, for which `year` then stands.
std::optional<date> typed_date(std::string_view text, int year);

/// "January" to "December" for 1 to 12.
std::string_view month_name(int month);
/// "Sunday" to "Saturday".
std::string_view weekday_name(date d);

date add_days(date d, int days);
/// Same day and month, n years on or back; 28 February for 29 February in a year without that day.
date add_years(date d, int n);

/// The limits of the KEL year assessed and of the one before it, with their texts for captions and reports.
struct year_limits {
    date year_start;
    date year_end;
    date prev_year_start;
    date prev_year_end;
    std::string year_start_text;
    std::string year_end_text;
    std::string prev_year_start_text;
    std::string prev_year_end_text;
    bool operator==(const year_limits&) const = default;
};

/// From the start date of the assessment; only calendar years count, day and month are always 19 and 18
/// December.
year_limits year_limits_of(date kel_year_start);

}  // namespace kel
