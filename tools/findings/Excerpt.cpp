#include "Excerpt.h"

#include <algorithm>

namespace {

constexpr std::size_t kLongestExcerpt = 160;
constexpr std::size_t kContext = 60;  // in front of the offending text, when the line is cut
constexpr std::size_t kLongestQuote = 60;

// What a character is shown as: a single unit that takes one column.
char32_t Shown(wchar_t character) {
    const auto code = static_cast<char32_t>(character);
    if (code < 0x20) {
        return 0x2400 + code;
    }
    if (code == 0x7F) {
        return 0x2421;
    }
    // Control characters beyond ASCII, and surrogates, which UTF-8 does not know.
    if ((code >= 0x80 && code < 0xA0) || (code >= 0xD800 && code < 0xE000) || code > 0xFFFF) {
        return 0xFFFD;
    }
    return code;
}

// Appends a character below 0x10000 as UTF-8.
void Append(std::string& text, char32_t code) {
    if (code < 0x80) {
        text += static_cast<char>(code);
    } else if (code < 0x800) {
        text += static_cast<char>(0xC0 | code >> 6);
        text += static_cast<char>(0x80 | (code & 0x3F));
    } else {
        text += static_cast<char>(0xE0 | code >> 12);
        text += static_cast<char>(0x80 | (code >> 6 & 0x3F));
        text += static_cast<char>(0x80 | (code & 0x3F));
    }
}

}  // namespace

SExcerpt MakeExcerpt(std::wstring_view line, std::size_t start, std::size_t length) {
    start = std::min(start, line.size());
    length = std::min(length, line.size() - start);
    const bool isCut = line.size() > kLongestExcerpt;
    const std::size_t first = isCut ? start - std::min(start, kContext) : 0;
    SExcerpt excerpt;
    for (const wchar_t character : line.substr(first, kLongestExcerpt)) {
        Append(excerpt.text, Shown(character));
    }
    excerpt.start = start - first;
    excerpt.length = std::min(length, kLongestExcerpt - std::min(kLongestExcerpt, excerpt.start));
    return excerpt;
}

std::string Quoted(std::wstring_view text) {
    std::string quoted = "'";
    for (const wchar_t character : text.substr(0, kLongestQuote)) {
        Append(quoted, Shown(character));
    }
    if (text.size() > kLongestQuote) {
        Append(quoted, 0x2026);
    }
    return quoted + "'";
}
