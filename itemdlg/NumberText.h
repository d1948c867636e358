// Numbers as the item files write them. All of it is independent of the locale: the decimal sign is the
// point.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tavrin::itemdlg {

// The number that a text begins with: leading white space (blank, tab, line feed, vertical tab, form feed,
// carriage return) is skipped and the longest prefix of the form [sign] digits [point digits] [e [sign]
// digits] is converted; digits may be missing on one side of the point. What follows the number is ignored.
//
//   " 900 mm" -> 900    "-2.5e3x" -> -2500    ".5" -> 0.5    "1e+" -> 1    "wide" -> 0    "" -> 0
//
// Too large a number gives an infinity and too small a one zero, each with its sign. "inf", "nan" and
// hexadecimal digits are no numbers here: a drawing has no use for them, so that "0x1F" is 0.
double DecimalValue(std::wstring_view text);

// The same number with its end: the number of characters that belong to it and to the white space
// before it. 0 when the text begins with no number.
struct LeadingNumber {
    double value = 0.0;
    std::size_t end = 0;
};
LeadingNumber ReadLeadingNumber(std::wstring_view text);

// The largest whole number not above the value: 2.9 gives 2, -2.1 gives -3. Beyond the range of int it is the
// nearest int; what is not a number gives 0.
int FloorToInt(double value);

// The whole number that a text begins with: leading white space as above, then [sign] digits. Beyond the
// range of int it is the nearest int; a text without a number gives 0.
int LeadingInt(std::wstring_view text);

// The value as printf's "%g": six significant digits, no trailing zeros, an exponent of at least two digits
// below 1e-04 and from 1e+06 on (900, 0.08, 1.23457e+06, 1e-07). Zero keeps its sign: "-0". What is not a
// number is "nan": the sign that it may have means nothing and differs between machines.
std::wstring GeneralText(double value);

// The value as printf's "%d".
std::wstring IntText(int value);

}  // namespace tavrin::itemdlg
