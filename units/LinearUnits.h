// Lengths as text in the five linear formats of a drawing, and back.
//
// A length is a number of drawing units. In the two formats with feet and inches one drawing unit is an inch.
// Nothing here depends on the locale or has state.
//
// ParseLinear reads the output of FormatLinear as the double nearest to it, and formatting that number again
// with the same units and precision gives the same text.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tavrin::units {

// The values of LUNITS. Any other value means decimal.
enum ELinearUnits {
    LU_SCIENTIFIC = 1,     // 1.5500E+01
    LU_DECIMAL = 2,        // 15.5000
    LU_ENGINEERING = 3,    // 1'-3.5000"
    LU_ARCHITECTURAL = 4,  // 1'-3 1/2"
    LU_FRACTIONAL = 5,     // 15 1/2
};

inline constexpr int kMaxLinearPrecision = 8;

// The text of `value`; nothing for an infinity or a NaN.
//
// `precision` is the number of decimal places, or for the formats with fractions it is the exponent of
// the largest denominator (4: sixteenths); it is clamped to 0..8. Ties round to even.
// Trailing zeros stay, and the formats with feet show zero feet and zero inches too (0'-0 1/2"). Fractions
// are reduced, and zero fractions omitted. A value that rounds to zero has no sign.
//
// Lengths too large for a format become scientific, which keeps the text below 256 characters: from
// 1e16 on in the formats with feet or fractions, from 1e100 on in decimal. Lengths below 1e-300 are
// zero: doubles lose precision there, and a text would not be read as the number that it was made from.
std::optional<std::wstring> FormatLinear(double value, int units, int precision);

// The length that `text` describes, in drawing units; nothing when it describes none. Every format is
// accepted:
//   15.5   .5   5.   1.55e1   3/4   2-3/4   2 3/4   5'   5.5'   1'3   1'3.5"   1'-3 1/2"   1'-3-1/2"
// with an optional sign before it and blanks (spaces, tabs) around it. An inch mark is
// optional. Only the last of feet, inches and fraction may have a point, and a fraction has none; an
// exponent goes with neither feet nor inch marks.
//
// Text after the length makes the whole invalid; so do a zero denominator and a number out of the range of a
// double.
std::optional<double> ParseLinear(std::wstring_view text);

}  // namespace tavrin::units
