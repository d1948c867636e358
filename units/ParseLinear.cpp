// Text to lengths. Feet and inches are added as decimal digits and converted once, so that 1'-3.1" is the
// double nearest to 15.1 and not a sum of two rounded numbers.
#include <algorithm>
#include <charconv>
#include <cmath>

#include "units/LinearUnits.h"

namespace tavrin::units {

namespace {

bool IsBlank(wchar_t c) {
    return c == L' ' || c == L'\t';
}

bool IsDigit(wchar_t c) {
    return c >= L'0' && c <= L'9';
}

// Reads forward through a text.
class CCursor {
public:
    explicit CCursor(std::wstring_view text) : m_text(text) {}

    bool AtEnd() const { return m_text.empty(); }
    bool At(wchar_t wanted) const { return !m_text.empty() && m_text.front() == wanted; }
    bool AtDigit() const { return !m_text.empty() && IsDigit(m_text.front()); }

    bool Take(wchar_t wanted) {
        if (!At(wanted)) {
            return false;
        }
        m_text.remove_prefix(1);
        return true;
    }

    bool TakeBlanks() {
        const auto end = std::find_if_not(m_text.begin(), m_text.end(), IsBlank);
        const bool any = end != m_text.begin();
        m_text.remove_prefix(static_cast<std::size_t>(end - m_text.begin()));
        return any;
    }

    std::string TakeDigits() {
        const auto end = std::find_if_not(m_text.begin(), m_text.end(), IsDigit);
        std::string digits(m_text.begin(), end);
        m_text.remove_prefix(digits.size());
        return digits;
    }

private:
    std::wstring_view m_text;
};

// An unsigned number, as its digits before and after the point.
struct Decimal {
    std::string whole;
    std::string fraction;
    bool hasPoint = false;

    bool IsNumber() const { return !whole.empty() || !fraction.empty(); }
};

Decimal TakeDecimal(CCursor& cursor) {
    Decimal number;
    number.whole = cursor.TakeDigits();
    number.hasPoint = cursor.Take(L'.');
    if (number.hasPoint) {
        number.fraction = cursor.TakeDigits();
    }
    return number;
}

std::optional<double> ToDouble(const std::string& digits) {
    double value = 0.0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (read.ec != std::errc() || read.ptr != digits.data() + digits.size()) {
        return std::nullopt;
    }
    return value;
}

std::optional<double> ToDouble(const Decimal& number) {
    return ToDouble('0' + number.whole + '.' + number.fraction);
}

// 12 * feet + inches, digit by digit.
Decimal AddFeet(const Decimal& feet, const Decimal& inches) {
    const std::size_t fraction = std::max(feet.fraction.size(), inches.fraction.size());
    const std::size_t whole = std::max(feet.whole.size(), inches.whole.size());
    const auto aligned = [&](const Decimal& number) {
        return std::string(whole - number.whole.size(), '0') + number.whole + number.fraction +
               std::string(fraction - number.fraction.size(), '0');
    };
    const std::string feetDigits = aligned(feet);
    std::string digits = aligned(inches);
    int carry = 0;
    for (std::size_t i = digits.size(); i-- > 0;) {
        const int sum = 12 * (feetDigits[i] - '0') + (digits[i] - '0') + carry;
        digits[i] = static_cast<char>('0' + sum % 10);
        carry = sum / 10;
    }
    digits.insert(0, std::to_string(carry));
    return {digits.substr(0, digits.size() - fraction), digits.substr(digits.size() - fraction),
            feet.hasPoint || inches.hasPoint};
}

// The value of whole + numerator/…, with the cursor at the slash. The sum is exact for every fraction that
// FormatLinear writes.
std::optional<double> TakeFraction(CCursor& cursor, const Decimal& whole, const Decimal& numerator) {
    if (whole.hasPoint || numerator.hasPoint || !cursor.Take(L'/') || !cursor.AtDigit()) {
        return std::nullopt;
    }
    const auto w = ToDouble(whole);
    const auto n = ToDouble(numerator);
    const auto d = ToDouble(Decimal{cursor.TakeDigits(), ""});
    if (!w || !n || !d) {
        return std::nullopt;
    }
    // Not finite for a denominator of 0 either.
    const double value = (*w * *d + *n) / *d;
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

// Everything from the inches on: `first` is the number that was read last, `feet` the one before it.
std::optional<double> TakeInches(CCursor& cursor, const Decimal& feet, const Decimal& first) {
    if (!first.IsNumber()) {
        return std::nullopt;
    }
    std::optional<double> value;
    if (cursor.At(L'/')) {
        value = TakeFraction(cursor, AddFeet(feet, {}), first);
    } else if (cursor.Take(L'-') || cursor.TakeBlanks()) {
        value = cursor.AtDigit() ? TakeFraction(cursor, AddFeet(feet, first), {cursor.TakeDigits(), ""})
                                 : std::nullopt;
    } else {
        value = ToDouble(AddFeet(feet, first));
    }
    cursor.Take(L'"');
    return value;
}

std::optional<double> TakeExponent(CCursor& cursor, const Decimal& mantissa) {
    const bool negative = cursor.Take(L'-');
    if (!negative) {
        cursor.Take(L'+');
    }
    if (!cursor.AtDigit()) {
        return std::nullopt;
    }
    return ToDouble('0' + mantissa.whole + '.' + mantissa.fraction + (negative ? "e-" : "e") +
                    cursor.TakeDigits());
}

std::optional<double> TakeMagnitude(CCursor& cursor) {
    const Decimal first = TakeDecimal(cursor);
    if (!first.IsNumber()) {
        return std::nullopt;
    }
    if (cursor.Take(L'e') || cursor.Take(L'E')) {
        return TakeExponent(cursor, first);
    }
    if (!cursor.Take(L'\'')) {
        return TakeInches(cursor, {}, first);
    }
    if (cursor.AtEnd()) {
        return ToDouble(AddFeet(first, {}));
    }
    if (first.hasPoint) {
        return std::nullopt;
    }
    if (!cursor.Take(L'-')) {
        cursor.TakeBlanks();
    }
    const Decimal inches = TakeDecimal(cursor);
    return TakeInches(cursor, first, inches);
}

std::wstring_view TrimBlanks(std::wstring_view text) {
    while (!text.empty() && IsBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && IsBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

}  // namespace

std::optional<double> ParseLinear(std::wstring_view text) {
    CCursor cursor(TrimBlanks(text));
    const bool negative = cursor.Take(L'-');
    if (!negative) {
        cursor.Take(L'+');
    }
    const std::optional<double> magnitude = TakeMagnitude(cursor);
    if (!magnitude || !cursor.AtEnd()) {
        return std::nullopt;
    }
    // Adding zero turns a negative zero into a plain one.
    return (negative ? -*magnitude : *magnitude) + 0.0;
}

}  // namespace tavrin::units
