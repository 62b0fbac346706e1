#include "core/dates.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>

namespace kel {

namespace {

constexpr std::array<std::string_view, 12> month_names{"January",   "February", "March",    "April",
                                                       "May",       "June",     "July",     "August",
                                                       "September", "October",  "November", "December"};
constexpr std::array<std::string_view, 7> weekday_names{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                        "Thursday", "Friday", "Saturday"};

std::string padded(int number, std::size_t digits) {
    std::string text = std::to_string(number);
    if (text.size() < digits) text.insert(0, digits - text.size(), '0');
    return text;
}

// The first four parts of a text; `count` is that of all.
struct date_parts {
    std::array<std::string_view, 4> part;
    std::size_t count = 0;
};

bool is_separator(char c) {
    return c == '/' || c == '-' || c == '.' || c == ' ';
}

// In one pass: the load of a large farm reads thousands of dates.
date_parts split_date(std::string_view text) {
    date_parts parts;
    std::size_t start = 0;
    for (std::size_t at = 0; at <= text.size(); ++at) {
        if (at < text.size() && !is_separator(text[at])) continue;
        if (at > start && parts.count < parts.part.size())
            parts.part[parts.count] = text.substr(start, at - start);
        if (at > start) ++parts.count;
        start = at + 1;
    }
    return parts;
}

std::optional<int> whole_number(std::string_view text) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size() || value < 0) return std::nullopt;
    return value;
}

std::optional<int> month_number(std::string_view text) {
    if (const auto number = whole_number(text)) return number;
    for (int m = 1; m <= 12; ++m)
        if (text == month_name(m)) return m;
    return std::nullopt;
}

// Three letters of its name are enough.
std::optional<int> typed_month(std::string_view text) {
    const auto same = [](unsigned char one, unsigned char other) {
        return std::tolower(one) == std::tolower(other);
    };
    for (int m = 1; m <= 12 && text.size() >= 3; ++m)
        if (std::ranges::equal(text, month_name(m).substr(0, text.size()), same)) return m;
    return whole_number(text);
}

std::optional<int> full_year(std::string_view text) {
    const auto year = whole_number(text);
    if (!year || (text.size() != 2 && text.size() != 4)) return std::nullopt;
    return text.size() == 2 ? 2000 + *year : *year;
}

std::string fixed_day(int day, int year) {
    return std::to_string(day) + " December " + std::to_string(year);
}

}  // namespace

date make_date(int day, int month, int year) {
    return date{std::chrono::year{year}, std::chrono::month{static_cast<unsigned>(month)},
                std::chrono::day{static_cast<unsigned>(day)}};
}

int year_of(date d) {
    return static_cast<int>(d.year());
}
int month_of(date d) {
    return static_cast<int>(static_cast<unsigned>(d.month()));
}
int day_of(date d) {
    return static_cast<int>(static_cast<unsigned>(d.day()));
}

std::string short_date_text(date d) {
    return padded(day_of(d), 2) + "/" + padded(month_of(d), 2) + "/" + padded(year_of(d), 4);
}

std::string long_date_text(date d) {
    return padded(day_of(d), 2) + " " + std::string(month_name(month_of(d))) + " " + padded(year_of(d), 4);
}

std::string iso_date_text(date d) {
    return padded(year_of(d), 4) + "-" + padded(month_of(d), 2) + "-" + padded(day_of(d), 2);
}

std::optional<date> parse_date(std::string_view text) {
    if (text.empty() || text.front() < '0' || text.front() > '9') return std::nullopt;
    // A time behind the day, as other tools write it, is no part of the date.
    auto [parts, count] = split_date(text.substr(0, text.find('T')));
    const bool has_time = count > 3 && parts[3].find(':') != std::string_view::npos;
    if (count != 3 && !has_time) return std::nullopt;
    if (parts[0].size() == 4) std::swap(parts[0], parts[2]);
    const auto day = whole_number(parts[0]);
    const auto month = month_number(parts[1]);
    const auto year = whole_number(parts[2]);
    if (!day || !month || !year || parts[2].size() != 4) return std::nullopt;
    const date d = make_date(*day, *month, *year);
    return d.ok() ? std::optional(d) : std::nullopt;
}

std::optional<date> typed_date(std::string_view text, int year) {
    if (auto whole = parse_date(text)) return whole;
    const auto [parts, count] = split_date(text);
    if (count < 2 || count > 3) return std::nullopt;
    const auto day = whole_number(parts[0]);
    const auto month = typed_month(parts[1]);
    const auto typed_year = count == 2 ? std::optional(year) : full_year(parts[2]);
    if (!day || !month || !typed_year) return std::nullopt;
    const date d = make_date(*day, *month, *typed_year);
    return d.ok() ? std::optional(d) : std::nullopt;
}

std::string_view month_name(int month) {
    return month_names.at(static_cast<std::size_t>(month - 1));
}

std::string_view weekday_name(date d) {
    return weekday_names[std::chrono::weekday{std::chrono::sys_days{d}}.c_encoding()];
}

date add_days(date d, int days) {
    return std::chrono::sys_days{d} + std::chrono::days{days};
}

date add_years(date d, int n) {
    const date moved = d + std::chrono::years{n};
    return moved.ok() ? moved : date{moved.year() / moved.month() / std::chrono::last};
}

year_limits year_limits_of(date kel_year_start) {
    const int year = year_of(kel_year_start);
    const int next = year_of(add_days(kel_year_start, 365));
    const int prev = year_of(add_days(kel_year_start, -365));
    return {make_date(19, 12, year), make_date(18, 12, next), make_date(19, 12, prev),
            make_date(18, 12, year), fixed_day(19, year),     fixed_day(18, next),
            fixed_day(19, prev),     fixed_day(18, year)};
}

}  // namespace kel
