#include "propgrid/model/TypedNumber.h"

#include <algorithm>
#include <climits>
#include <clocale>
#include <cwchar>
#include <cwctype>

namespace tavrin::propgrid {

namespace {

bool IsDigit(wchar_t character) {
    return character >= L'0' && character <= L'9';
}

std::size_t SkipDigits(const std::wstring& text, std::size_t position) {
    while (position < text.size() && IsDigit(text[position])) {
        ++position;
    }
    return position;
}

std::size_t SkipSign(const std::wstring& text, std::size_t position) {
    const bool isSign = position < text.size() && (text[position] == L'+' || text[position] == L'-');
    return position + (isSign ? 1 : 0);
}

// Where the characters of a decimal number end that begins at `start`: the conversion function of the library
// would also read hexadecimal numbers, infinity and NaN. It ignores an incomplete exponent at the end.
std::size_t FindRealEnd(const std::wstring& text, std::size_t start, wchar_t point) {
    std::size_t end = SkipDigits(text, SkipSign(text, start));
    if (end < text.size() && text[end] == point) {
        end = SkipDigits(text, end + 1);
    }
    if (end < text.size() && (text[end] == L'e' || text[end] == L'E')) {
        end = SkipDigits(text, SkipSign(text, end + 1));
    }
    return end;
}

}  // namespace

int ReadTypedInteger(const std::wstring& text) {
    const long long number = std::wcstoll(text.c_str(), nullptr, 10);
    return static_cast<int>(std::clamp<long long>(number, INT_MIN, INT_MAX));
}

double ReadTypedReal(const std::wstring& text) {
    const auto point = static_cast<wchar_t>(static_cast<unsigned char>(*std::localeconv()->decimal_point));
    std::wstring number = text;
    std::replace(number.begin(), number.end(), L'.', point);
    std::size_t start = 0;
    while (start < number.size() && std::iswspace(static_cast<std::wint_t>(number[start])) != 0) {
        ++start;
    }
    const std::size_t end = FindRealEnd(number, start, point);
    return std::wcstod(number.substr(start, end - start).c_str(), nullptr);
}

}  // namespace tavrin::propgrid
