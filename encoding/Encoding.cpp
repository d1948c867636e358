#include "encoding/Encoding.h"

#include <utf8.h>

#include <algorithm>
#include <iterator>

namespace tavrin::encoding {

namespace {

// The characters of the bytes 0x80 to 0x9F. All other bytes are the characters of the same number.
constexpr char16_t kWindows1252[] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
constexpr unsigned char kFirst = 0x80;
constexpr unsigned char kLast = 0x9F;
constexpr char32_t kReplacement = 0xFFFD;

bool IsLeadSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}

bool IsTrailSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

}  // namespace

std::optional<std::wstring> DecodeUtf8(std::string_view bytes) {
    if (!utf8::is_valid(bytes.begin(), bytes.end())) {
        return std::nullopt;
    }
    std::wstring text;
    utf8::utf8to16(bytes.begin(), bytes.end(), std::back_inserter(text));
    return text;
}

std::string EncodeUtf8(std::wstring_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    while (!text.empty()) {
        AppendUtf8(bytes, TakeCodePoint(text));
    }
    return bytes;
}

void AppendUtf8(std::string& bytes, char32_t codePoint) {
    utf8::append(codePoint, bytes);
}

char32_t TakeCodePoint(std::wstring_view& text) {
    const auto first = static_cast<char32_t>(text.front());
    const char32_t second = text.size() > 1 ? static_cast<char32_t>(text[1]) : 0;
    const bool isPair = IsLeadSurrogate(first) && IsTrailSurrogate(second);
    text.remove_prefix(isPair ? 2 : 1);
    if (isPair) {
        return 0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00);
    }
    return IsLeadSurrogate(first) || IsTrailSurrogate(first) || first > 0x10FFFF ? kReplacement : first;
}

std::wstring DecodeWindows1252(std::string_view bytes) {
    std::wstring text(bytes.size(), L'\0');
    std::transform(bytes.begin(), bytes.end(), text.begin(), [](char character) {
        const auto byte = static_cast<unsigned char>(character);
        return static_cast<wchar_t>(byte >= kFirst && byte <= kLast ? kWindows1252[byte - kFirst] : byte);
    });
    return text;
}

std::optional<char> EncodeWindows1252(char32_t character) {
    const auto* const found = std::find(std::begin(kWindows1252), std::end(kWindows1252), character);
    if (found != std::end(kWindows1252)) {
        return static_cast<char>(kFirst + (found - kWindows1252));
    }
    if (character > 0xFF || (character >= kFirst && character <= kLast)) {
        return std::nullopt;
    }
    return static_cast<char>(character);
}

std::wstring DecodeUtf8OrWindows1252(std::string_view bytes) {
    if (std::optional<std::wstring> text = DecodeUtf8(bytes)) {
        return *std::move(text);
    }
    return DecodeWindows1252(bytes);
}

}  // namespace tavrin::encoding
