#include "propgrid/TypedNumber.h"

#include <algorithm>
#include <clocale>
#include <cwchar>

int ReadTypedInteger(const std::wstring& text) {
    static_assert(sizeof(long) == sizeof(int), "wcstol stops at the limits of int");
    return static_cast<int>(std::wcstol(text.c_str(), nullptr, 10));
}

double ReadTypedReal(const std::wstring& text) {
    const auto point = static_cast<wchar_t>(static_cast<unsigned char>(*std::localeconv()->decimal_point));
    std::wstring number = text;
    std::replace(number.begin(), number.end(), L'.', point);
    return _wtof(number.c_str());
}
