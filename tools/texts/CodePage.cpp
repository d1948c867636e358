#include "tools/texts/CodePage.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace {

// What the bytes 0x80 to 0x9F stand for in code page 1252; 0 for the five without meaning. All other bytes
// are the characters of the same number.
constexpr std::array<wchar_t, 32> kWestern = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178,
};

constexpr char32_t kReplacement = 0xFFFD;

bool IsSurrogate(char32_t character) {
    return character >= 0xD800 && character < 0xE000;
}

void AppendUnits(std::wstring& text, char32_t character) {
    if (character < 0x10000) {
        text += static_cast<wchar_t>(character);
        return;
    }
    text += static_cast<wchar_t>(0xD800 + ((character - 0x10000) >> 10));
    text += static_cast<wchar_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
}

// The character at the start of UTF-8 text, which is taken off; nothing when it is ill-formed.
std::optional<char32_t> TakeCharacter(std::string_view& bytes) {
    const auto first = static_cast<unsigned char>(bytes.front());
    std::size_t length = 1;
    char32_t character = first;
    char32_t lowest = 0;
    if (first >= 0xC0) {
        length = first < 0xE0 ? 2U : first < 0xF0 ? 3U : 4U;
        constexpr std::array<char32_t, 5> kLowest = {0, 0, 0x80, 0x800, 0x10000};
        lowest = kLowest[length];
        character = first & (0x7FU >> length);
    } else if (first >= 0x80) {
        return std::nullopt;
    }
    if (first >= 0xF8 || length > bytes.size()) {
        return std::nullopt;
    }
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(bytes[i]);
        if ((next & 0xC0U) != 0x80) {
            return std::nullopt;
        }
        character = character << 6 | (next & 0x3FU);
    }
    if (character < lowest || character > 0x10FFFF || IsSurrogate(character)) {
        return std::nullopt;
    }
    bytes.remove_prefix(length);
    return character;
}

std::string Utf8Bytes(char32_t character) {
    const auto tail = [&](unsigned shift) { return static_cast<char>(0x80 | (character >> shift & 0x3F)); };
    if (character < 0x80) {
        return {static_cast<char>(character)};
    }
    if (character < 0x800) {
        return {static_cast<char>(0xC0 | character >> 6), tail(0)};
    }
    if (character < 0x10000) {
        return {static_cast<char>(0xE0 | character >> 12), tail(6), tail(0)};
    }
    return {static_cast<char>(0xF0 | character >> 18), tail(12), tail(6), tail(0)};
}

}  // namespace

std::optional<std::wstring> DecodeText(std::string_view bytes, unsigned codePage) {
    std::wstring text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        const auto byte = static_cast<unsigned char>(bytes.front());
        if (byte >= 0x80 && codePage == kUtf8) {
            const std::optional<char32_t> character = TakeCharacter(bytes);
            if (!character) {
                return std::nullopt;
            }
            AppendUnits(text, *character);
            continue;
        }
        wchar_t unit = byte;
        if (byte >= 0x80) {
            unit = codePage != kWesternEuropean ? L'\0' : byte < 0xA0 ? kWestern[byte - 0x80U] : byte;
            if (unit == L'\0') {
                return std::nullopt;
            }
        }
        text += unit;
        bytes.remove_prefix(1);
    }
    return text;
}

std::optional<std::string> EncodeCharacter(char32_t character, unsigned codePage) {
    if (character < 0x80) {
        return std::string(1, static_cast<char>(character));
    }
    if (codePage == kUtf8) {
        return IsSurrogate(character) ? std::nullopt : std::optional(Utf8Bytes(character));
    }
    if (codePage != kWesternEuropean) {
        return std::nullopt;
    }
    if (character >= 0xA0 && character <= 0xFF) {
        return std::string(1, static_cast<char>(character));
    }
    const auto* const found = std::find_if(kWestern.begin(), kWestern.end(), [character](wchar_t western) {
        return western != L'\0' && static_cast<char32_t>(western) == character;
    });
    if (found == kWestern.end()) {
        return std::nullopt;
    }
    return std::string(1, static_cast<char>(0x80 + (found - kWestern.begin())));
}

std::string Utf8Text(std::wstring_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        auto character = static_cast<char32_t>(text[i]);
        if (IsSurrogate(character)) {
            const bool isPair =
                character < 0xDC00 && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] < 0xE000;
            character =
                isPair ? 0x10000 + ((character - 0xD800) << 10) + (static_cast<char32_t>(text[++i]) - 0xDC00)
                       : kReplacement;
        }
        bytes += Utf8Bytes(character);
    }
    return bytes;
}
