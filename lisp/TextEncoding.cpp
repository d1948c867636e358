#include "lisp/TextEncoding.h"

#include <algorithm>
#include <iterator>

namespace {

// The characters of the bytes 0x80 to 0x9F; all others are those of Latin-1.
constexpr wchar_t kWindows1252[] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
constexpr wchar_t kFirst = 0x80;
constexpr wchar_t kLast = 0x9F;

// The code point at the beginning of `bytes`, which it is taken off; nothing when it is not valid UTF-8:
// cut, longer than it needs to be, half of a surrogate pair or beyond Unicode.
std::optional<char32_t> TakeCodePoint(std::string_view& bytes) {
    constexpr char32_t kLeast[] = {0, 0x80, 0x800, 0x10000};
    // cppcheck-suppress containerOutOfBounds; who calls makes sure that there is a byte
    const auto lead = static_cast<unsigned char>(bytes[0]);
    const std::size_t more = lead < 0x80 ? 0 : lead < 0xC0 ? 4 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
    if (more == 4 || lead > 0xF7 || bytes.size() <= more) {
        return std::nullopt;
    }
    char32_t code = more == 0 ? lead : char32_t(lead & (0x3F >> more));
    for (std::size_t i = 1; i <= more; ++i) {
        const auto next = static_cast<unsigned char>(bytes[i]);
        if ((next & 0xC0) != 0x80) {
            return std::nullopt;
        }
        code = code << 6 | (next & 0x3F);
    }
    if (code < kLeast[more] || code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF)) {
        return std::nullopt;
    }
    bytes.remove_prefix(more + 1);
    return code;
}

void Append(std::wstring& text, char32_t code) {
    if (sizeof(wchar_t) == 2 && code >= 0x10000) {
        text += wchar_t(0xD800 + ((code - 0x10000) >> 10));
        text += wchar_t(0xDC00 + ((code - 0x10000) & 0x3FF));
    } else {
        text += wchar_t(code);
    }
}

}  // namespace

std::wstring DecodeSource(std::string_view bytes) {
    std::wstring text;
    for (std::string_view rest = bytes; !rest.empty();) {
        const auto code = TakeCodePoint(rest);
        if (!code) {
            return FromWindows1252(bytes);
        }
        Append(text, *code);
    }
    return text;
}

std::wstring FromWindows1252(std::string_view bytes) {
    std::wstring text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        text += byte >= kFirst && byte <= kLast ? kWindows1252[byte - kFirst] : wchar_t(byte);
    }
    return text;
}

std::optional<char> ToWindows1252(wchar_t character) {
    const auto* found = std::find(std::begin(kWindows1252), std::end(kWindows1252), character);
    if (found != std::end(kWindows1252)) {
        return char(kFirst + (found - kWindows1252));
    }
    if (character > 0xFF || (character >= kFirst && character <= kLast)) {
        return std::nullopt;
    }
    return char(character);
}
