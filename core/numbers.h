// Numbers as text. Tables and grids hold numbers as the text a person typed; these few functions read it,
// write it and round it. Every rounding works on the shortest decimal text of the value, so that a tie is
// what a person sees as a tie (2.675), not what its binary neighbour makes of it.
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

/// Text for a person, without exponent: at most the significant digits that the type holds, 7 of a single and
/// 15 of a double, behind which the noise of binary fractions begins.
std::string plain_text(float value);
std::string plain_text(double value);

/// Rounded to `places` decimals, ties to the even digit.
float round_half_even(float value, int places);
double round_half_even(double value, int places);

/// Text with exactly `places` decimals, ties away from zero.
std::string format_fixed(float value, int places);
std::string format_fixed(double value, int places);

}  // namespace kel
