#include "core/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace kel {

namespace {

bool is_digit(char c) {
    return c >= '0' && c <= '9';
}

// Length of the decimal number that the text begins with; 0 when it begins otherwise.
std::size_t decimal_length(std::string_view text) {
    std::size_t i = 0;
    if (i < text.size() && (text[i] == '-' || text[i] == '+')) ++i;
    std::size_t digits = 0;
    for (; i < text.size() && is_digit(text[i]); ++i)
        ++digits;
    if (i < text.size() && text[i] == '.') {
        ++i;
        for (; i < text.size() && is_digit(text[i]); ++i)
            ++digits;
    }
    return digits == 0 ? 0 : i;
}

template <class T>
std::string shortest(T value) {
    if (!std::isfinite(value)) return "0";
    if (value == T{0}) return "0";
    char buffer[512];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed).ptr;
    return {buffer, end};
}

enum class ties { to_even, away_from_zero };

// Adds one unit in the last place of a text of digits with at most one point.
void raise_last_digit(std::string& digits) {
    for (auto i = digits.size(); i-- > 0;) {
        if (digits[i] == '.') continue;
        if (digits[i] != '9') {
            ++digits[i];
            return;
        }
        digits[i] = '0';
    }
    digits.insert(digits.begin(), '1');
}

bool rounds_up(char last_kept, std::string_view dropped, ties rule) {
    if (dropped.front() != '5') return dropped.front() > '5';
    const bool tie = std::all_of(dropped.begin() + 1, dropped.end(), [](char c) { return c == '0'; });
    return !tie || rule == ties::away_from_zero || (last_kept - '0') % 2 == 1;
}

// The shortest text of a number, brought to exactly `places` decimals; a zero carries no sign.
std::string rounded_text(std::string text, int places, ties rule) {
    const bool negative = text.front() == '-';
    if (negative) text.erase(0, 1);
    if (text.find('.') == std::string::npos) text += '.';
    const auto point = text.find('.');
    const auto kept = point + 1 + static_cast<std::size_t>(places);
    if (text.size() <= kept) {
        text.append(kept - text.size(), '0');
    } else {
        const std::string dropped = text.substr(kept);
        text.resize(kept);
        const char last = text.back() == '.' ? text[point - 1] : text.back();
        if (rounds_up(last, dropped, rule)) raise_last_digit(text);
    }
    if (text.back() == '.') text.pop_back();
    const bool zero = text.find_first_not_of("0.") == std::string::npos;
    return negative && !zero ? "-" + text : text;
}

template <class T>
std::string cut_to_digits(T value, int significant_digits) {
    if (!std::isfinite(value)) return "0";
    char buffer[64];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::scientific,
                                   significant_digits - 1)
                         .ptr;
    // As a double, which holds the digits of a large single that its own type would fill up with noise.
    double cut{};
    std::from_chars(buffer, end, cut);
    return shortest(cut);
}

template <class T>
T read_number(std::string_view text) {
    T value{};
    std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
    return value;
}

}  // namespace

double leading_number(std::string_view text) {
    const auto start = text.find_first_not_of(" \t");
    if (start == std::string_view::npos) return 0;
    text.remove_prefix(start);
    text = text.substr(0, decimal_length(text));
    if (!text.empty() && text.front() == '+') text.remove_prefix(1);
    return read_number<double>(text);
}

bool holds_number(std::string_view text) {
    return text.find_first_of("0123456789") != std::string_view::npos;
}

float leading_single(std::string_view text) {
    const double value = leading_number(text);
    return std::abs(value) > 3.4e38 ? 0.0F : static_cast<float>(value);
}

std::string shortest_text(float value) {
    return shortest(value);
}
std::string shortest_text(double value) {
    return shortest(value);
}

std::string default_text(float value) {
    return cut_to_digits(value, std::numeric_limits<float>::digits10 + 1);
}
std::string default_text(double value) {
    return cut_to_digits(value, std::numeric_limits<double>::digits10);
}

float round_half_even(float value, int places) {
    return read_number<float>(rounded_text(shortest(value), places, ties::to_even));
}
double round_half_even(double value, int places) {
    return read_number<double>(rounded_text(shortest(value), places, ties::to_even));
}

std::string format_fixed(float value, int places) {
    return rounded_text(shortest(value), places, ties::away_from_zero);
}
std::string format_fixed(double value, int places) {
    return rounded_text(shortest(value), places, ties::away_from_zero);
}

float round_shown_half_even(float value, int places) {
    return read_number<float>(rounded_text(default_text(value), places, ties::to_even));
}
double round_shown_half_even(double value, int places) {
    return read_number<double>(rounded_text(default_text(value), places, ties::to_even));
}

std::string format_shown(float value, int places) {
    return rounded_text(default_text(value), places, ties::away_from_zero);
}
std::string format_shown(double value, int places) {
    return rounded_text(default_text(value), places, ties::away_from_zero);
}

float round_shown_half_away(float value, int places) {
    return read_number<float>(format_shown(value, places));
}
double round_shown_half_away(double value, int places) {
    return read_number<double>(format_shown(value, places));
}

float round_to_3(float value) {
    return round_half_even(value, 3);
}
bool exceeds_limit(float value, float limit) {
    return round_to_3(value) > limit;
}

}  // namespace kel
