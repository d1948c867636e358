// Reading and writing numbers.
#include "itemdlg/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <system_error>

namespace tavrin::itemdlg {

namespace {

// Parses a number from left to right, beginning after leading white space.
class CScanner {
public:
    explicit CScanner(std::wstring_view text) : m_text(text) {
        while (Peek() == L' ' || (Peek() >= L'\t' && Peek() <= L'\r')) {
            ++m_position;
        }
    }

    bool Take(wchar_t character) {
        const bool found = m_position < m_text.size() && m_text[m_position] == character;
        m_position += found ? 1 : 0;
        return found;
    }

    // Takes a sign if there is one; true for a minus.
    bool TakeSign() {
        const bool negative = Take(L'-');
        if (!negative) {
            Take(L'+');
        }
        return negative;
    }

    // The digits from here on, as single bytes.
    std::string TakeDigits() {
        std::string digits;
        for (; Peek() >= L'0' && Peek() <= L'9'; ++m_position) {
            digits.push_back(static_cast<char>(Peek()));
        }
        return digits;
    }

    std::size_t Position() const { return m_position; }
    void GoBackTo(std::size_t position) { m_position = position; }

private:
    wchar_t Peek() const { return m_position < m_text.size() ? m_text[m_position] : L'\0'; }

    std::wstring_view m_text;
    std::size_t m_position = 0;
};

// A whole number from digits alone; beyond a limit far above all that matters here it is that limit, which
// leaves a margin for sums.
std::int64_t WholeValue(const std::string& digits) {
    constexpr std::int64_t kLimit = 1'000'000'000'000'000;
    std::int64_t value = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return result.ec == std::errc::result_out_of_range ? kLimit : std::min(value, kLimit);
}

// The exponent after a number's digits; 0 when there is none. An "e" without digits after it is left alone.
std::int64_t TakeExponent(CScanner& scanner) {
    const std::size_t start = scanner.Position();
    if (!scanner.Take(L'e') && !scanner.Take(L'E')) {
        return 0;
    }
    const bool negative = scanner.TakeSign();
    const std::string digits = scanner.TakeDigits();
    if (digits.empty()) {
        scanner.GoBackTo(start);
    }
    const std::int64_t value = WholeValue(digits);
    return negative ? -value : value;
}

// The value of "whole.fraction" times ten to the power of the exponent.
double ScaledValue(const std::string& whole, const std::string& fraction, std::int64_t exponent) {
    std::string text = whole + '.' + fraction;
    if (exponent != 0) {
        text += 'e' + std::to_string(exponent);
    }
    double value = 0.0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec != std::errc::result_out_of_range) {
        return value;
    }
    // The conversion does not distinguish too large from too small; the position of the first digit other
    // than 0 does.
    const std::size_t leading = std::min((whole + fraction).find_first_not_of('0'), text.size());
    const auto magnitude = static_cast<std::int64_t>(whole.size()) - static_cast<std::int64_t>(leading);
    return magnitude + exponent > 0 ? std::numeric_limits<double>::infinity() : 0.0;
}

}  // namespace

double DecimalValue(std::wstring_view text) {
    return ReadLeadingNumber(text).value;
}

LeadingNumber ReadLeadingNumber(std::wstring_view text) {
    CScanner scanner(text);
    const bool negative = scanner.TakeSign();
    const std::string whole = scanner.TakeDigits();
    const std::string fraction = scanner.Take(L'.') ? scanner.TakeDigits() : std::string();
    if (whole.empty() && fraction.empty()) {
        return {};
    }
    const double value = ScaledValue(whole, fraction, TakeExponent(scanner));
    return {negative ? -value : value, scanner.Position()};
}

int FloorToInt(double value) {
    if (std::isnan(value)) {
        return 0;
    }
    constexpr double kLowest = std::numeric_limits<int>::min();
    constexpr double kHighest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(std::floor(value), kLowest, kHighest));
}

int LeadingInt(std::wstring_view text) {
    CScanner scanner(text);
    const bool negative = scanner.TakeSign();
    const std::int64_t value = WholeValue(scanner.TakeDigits());
    constexpr std::int64_t kLowest = std::numeric_limits<int>::min();
    constexpr std::int64_t kHighest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(negative ? -value : value, kLowest, kHighest));
}

std::wstring GeneralText(double value) {
    if (std::isnan(value)) {
        return L"nan";
    }
    constexpr int kSignificantDigits = 6;
    // Small whole numbers, the most frequent values, need no decimal arithmetic.
    constexpr double kMostDigits = 1e6;
    if (std::abs(value) < kMostDigits && value == std::trunc(value) &&
        !(value == 0.0 && std::signbit(value))) {
        return IntText(static_cast<int>(value));
    }
    std::array<char, 32> text{};
    const auto result = std::to_chars(text.data(), text.data() + text.size(), value,
                                      std::chars_format::general, kSignificantDigits);
    return {text.data(), result.ptr};
}

std::wstring IntText(int value) {
    std::array<char, 16> text{};
    const auto result = std::to_chars(text.data(), text.data() + text.size(), value);
    return {text.data(), result.ptr};
}

}  // namespace tavrin::itemdlg
