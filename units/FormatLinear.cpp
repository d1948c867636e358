// Lengths to text. The whole length is rounded once; feet and inches are then split off in integer
// arithmetic, so that a carry into the next inch or foot needs no special case.
#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numeric>

#include "units/LinearUnits.h"

namespace tavrin::units {

namespace {

constexpr std::int64_t kInchesPerFoot = 12;
// Below this, a length in 256ths and its integer digits fit 64 bits.
constexpr double kFeetAndFractionsLimit = 1e16;
constexpr double kDecimalLimit = 1e100;
constexpr double kSmallestLength = 1e-300;

std::string NumberText(double magnitude, std::chars_format format, int precision) {
    char buffer[128];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, magnitude, format, precision).ptr;
    return std::string(buffer, end);
}

std::string Scientific(double magnitude, int precision) {
    std::string text = NumberText(magnitude, std::chars_format::scientific, precision);
    double readBack = 0.0;
    if (std::from_chars(text.data(), text.data() + text.size(), readBack).ec != std::errc()) {
        // Rounded up past the largest double, which cannot be read back: truncate instead.
        const std::string exact = NumberText(magnitude, std::chars_format::scientific,
                                             std::numeric_limits<double>::max_digits10 - 1);
        const std::size_t mantissa = precision > 0 ? static_cast<std::size_t>(2 + precision) : 1;
        text = exact.substr(0, mantissa) + exact.substr(exact.find('e'));
    }
    std::replace(text.begin(), text.end(), 'e', 'E');
    return text;
}

std::string Decimal(double magnitude, int precision) {
    return NumberText(magnitude, std::chars_format::fixed, precision);
}

std::string FeetPrefix(std::int64_t feet) {
    return std::to_string(feet) + "'-";
}

std::string Engineering(double magnitude, int precision) {
    const std::string inches = Decimal(magnitude, precision);
    const std::size_t point = std::min(inches.find('.'), inches.size());
    std::int64_t whole = 0;
    std::from_chars(inches.data(), inches.data() + point, whole);
    return FeetPrefix(whole / kInchesPerFoot) + std::to_string(whole % kInchesPerFoot) +
           inches.substr(point) + '"';
}

// A length rounded to a fraction: whole + numerator / denominator, reduced.
struct Fraction {
    std::int64_t whole;
    std::int64_t numerator;
    std::int64_t denominator;
};

Fraction RoundToFraction(double magnitude, int precision) {
    const std::int64_t denominator = std::int64_t{1} << precision;
    // Scaling by a power of two is exact, so that this rounds once, halves to even.
    const auto parts = static_cast<std::int64_t>(std::nearbyint(std::ldexp(magnitude, precision)));
    const std::int64_t rest = parts % denominator;
    const std::int64_t common = std::gcd(rest, denominator);
    return {parts / denominator, rest / common, denominator / common};
}

std::string FractionText(const Fraction& fraction) {
    return std::to_string(fraction.numerator) + '/' + std::to_string(fraction.denominator);
}

std::string Architectural(double magnitude, int precision) {
    const Fraction inches = RoundToFraction(magnitude, precision);
    std::string text =
        FeetPrefix(inches.whole / kInchesPerFoot) + std::to_string(inches.whole % kInchesPerFoot);
    if (inches.numerator != 0) {
        text += ' ' + FractionText(inches);
    }
    return text + '"';
}

std::string Fractional(double magnitude, int precision) {
    const Fraction length = RoundToFraction(magnitude, precision);
    if (length.numerator == 0) {
        return std::to_string(length.whole);
    }
    return (length.whole != 0 ? std::to_string(length.whole) + ' ' : "") + FractionText(length);
}

std::string Magnitude(double magnitude, int units, int precision) {
    const bool fits = magnitude < kFeetAndFractionsLimit;
    switch (units) {
        case LU_SCIENTIFIC:
            return Scientific(magnitude, precision);
        case LU_ENGINEERING:
            return fits ? Engineering(magnitude, precision) : Scientific(magnitude, precision);
        case LU_ARCHITECTURAL:
            return fits ? Architectural(magnitude, precision) : Scientific(magnitude, precision);
        case LU_FRACTIONAL:
            return fits ? Fractional(magnitude, precision) : Scientific(magnitude, precision);
        default:
            return magnitude < kDecimalLimit ? Decimal(magnitude, precision)
                                             : Scientific(magnitude, precision);
    }
}

// Whether the text shows a digit other than zero. A scientific text of a number other than zero starts
// with one, so that its exponent does not matter.
bool ShowsMoreThanZero(const std::string& text, int units) {
    if (units == LU_SCIENTIFIC) {
        return text[0] != '0';
    }
    return text.find_first_of("123456789") != std::string::npos;
}

}  // namespace

std::optional<std::wstring> FormatLinear(double value, int units, int precision) {
    if (!std::isfinite(value)) {
        return std::nullopt;
    }
    const double magnitude = std::fabs(value) < kSmallestLength ? 0 : std::fabs(value);
    const std::string text = Magnitude(magnitude, units, std::clamp(precision, 0, kMaxLinearPrecision));
    std::wstring result(text.begin(), text.end());
    if (value < 0 && ShowsMoreThanZero(text, units)) {
        result.insert(result.begin(), L'-');
    }
    return result;
}

}  // namespace tavrin::units
