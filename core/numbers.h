// Numbers as text. Tables and grids hold numbers as the text a person typed; these few functions read it,
// write it and round it. Every rounding works on a decimal text of the value, the shortest where nothing else
// is said, so that a tie is what a person sees as a tie (2.675), not what its binary neighbour makes of it.
#pragma once

#include <string>
#include <string_view>

namespace kel {

/// The number a text begins with: leading blanks skipped, then the longest decimal number. Anything else, an
/// empty text and "Closed" count as 0.
double leading_number(std::string_view text);

/// Whether a number box holds a number: it takes digits and one point, so a lone point is as good as empty.
bool holds_number(std::string_view text);

/// As leading_number, in single precision.
float leading_single(std::string_view text);

/// The shortest decimal text, without exponent, that reads back to the same value.
std::string shortest_text(float value);
std::string shortest_text(double value);

/// The default text form, without exponent: at most the significant digits that the type holds, 7 of a single
/// and 15 of a double, behind which the noise of binary fractions begins.
std::string default_text(float value);
std::string default_text(double value);

/// Rounded to `places` decimals, ties to the even digit.
float round_half_even(float value, int places);
double round_half_even(double value, int places);

/// Text with exactly `places` decimals, ties away from zero.
std::string format_fixed(float value, int places);
std::string format_fixed(double value, int places);

// The same with the tie judged on the default text form: 61.25 that a sum has left at 61.250004 is a tie.
float round_shown_half_even(float value, int places);
double round_shown_half_even(double value, int places);
std::string format_shown(float value, int places);
std::string format_shown(double value, int places);

/// The number that format_shown tells.
float round_shown_half_away(float value, int places);
double round_shown_half_away(double value, int places);

/// As a legal limit is judged: on the figure rounded to 3 decimals. Exactly the limit keeps it.
float round_to_3(float value);
bool exceeds_limit(float value, float limit);

}  // namespace kel
