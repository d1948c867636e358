#include "tools/rules/Excerpt.h"

#include <algorithm>

#include "encoding/Encoding.h"

namespace tavrin::tools {

namespace {

constexpr std::size_t kLongestExcerpt = 160;
constexpr std::size_t kContext = 60;  // before the offending text, when the line is truncated
constexpr std::size_t kLongestQuote = 60;

// The files' characters are bytes, which editors show in code page 1252.
wchar_t Shown(wchar_t character) {
    if (character < 0x20) {
        return static_cast<wchar_t>(0x2400 + character);
    }
    if (character == 0x7F) {
        return 0x2421;
    }
    if (character < 0x80 || character >= 0xA0) {
        return character;
    }
    const auto byte = static_cast<char>(character);
    const wchar_t decoded = encoding::DecodeWindows1252({&byte, 1}).front();
    return decoded != character ? decoded : 0xFFFD;
}

std::string ShownText(std::wstring_view text) {
    std::wstring shown;
    std::transform(text.begin(), text.end(), std::back_inserter(shown), Shown);
    return encoding::EncodeUtf8(shown);
}

}  // namespace

Excerpt MakeExcerpt(std::wstring_view line, std::size_t start, std::size_t length) {
    start = std::min(start, line.size());
    length = std::min(length, line.size() - start);
    const bool isCut = line.size() > kLongestExcerpt;
    const std::size_t first = isCut ? start - std::min(start, kContext) : 0;
    Excerpt excerpt;
    excerpt.text = ShownText(line.substr(first, kLongestExcerpt));
    excerpt.start = start - first;
    excerpt.length = std::min(length, kLongestExcerpt - std::min(kLongestExcerpt, excerpt.start));
    return excerpt;
}

std::string Quoted(std::wstring_view text) {
    const bool isCut = text.size() > kLongestQuote;
    return "'" + ShownText(text.substr(0, kLongestQuote)) + (isCut ? "\xE2\x80\xA6'" : "'");
}

}  // namespace tavrin::tools
