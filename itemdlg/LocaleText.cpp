#include "itemdlg/LocaleText.h"

#include <climits>
#include <clocale>
#include <cstring>
#include <cwchar>

namespace tavrin::itemdlg {

namespace {

// How many of the bytes make the next character, provided that it turns back into just these bytes; else 0.
size_t ConvertThereAndBack(const char* bytes, size_t count, wchar_t& unit) {
    if (*bytes == '\0') {
        unit = L'\0';
        return 1;
    }
    std::mbstate_t reading{};
    const size_t used = std::mbrtowc(&unit, bytes, count, &reading);
    if (used == 0 || used > count) {
        return 0;
    }
    char back[MB_LEN_MAX];
    std::mbstate_t writing{};
    const size_t written = std::wcrtomb(back, unit, &writing);
    return written == used && std::memcmp(back, bytes, used) == 0 ? used : 0;
}

bool IsHighSurrogate(wchar_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}

bool IsLowSurrogate(wchar_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

}  // namespace

CLocaleText::CLocaleText() {
    for (int number = 0; number < 256; ++number) {
        const char byte = static_cast<char>(number);
        m_isSingle[number] = ConvertThereAndBack(&byte, 1, m_units[number]) == 1;
        if (!m_isSingle[number]) {
            m_units[number] = static_cast<wchar_t>(kFirstEscape + number);
        }
    }
}

CLocaleText CLocaleText::OfLocale() {
    // To ask the runtime for every byte takes longer than to read a file.
    static char name[64] = "";
    static CLocaleText codec;
    const char* const locale = std::setlocale(LC_CTYPE, nullptr);
    if (locale == nullptr || std::strcmp(locale, name) != 0) {
        codec = CLocaleText();
        name[0] = '\0';
        if (locale != nullptr && std::strlen(locale) < sizeof name) {
            std::strcpy(name, locale);
        }
    }
    return codec;
}

size_t CLocaleText::DecodeOne(const char* bytes, size_t count, wchar_t& unit) const {
    const auto first = static_cast<unsigned char>(*bytes);
    if (!m_isSingle[first]) {
        if (const size_t used = ConvertThereAndBack(bytes, count, unit)) {
            return used;
        }
    }
    unit = m_units[first];
    return 1;
}

std::wstring CLocaleText::Decode(const std::string& bytes) const {
    std::wstring text;
    text.reserve(bytes.size());
    for (size_t at = 0; at < bytes.size();) {
        wchar_t unit = 0;
        at += DecodeOne(bytes.data() + at, bytes.size() - at, unit);
        text += unit;
    }
    return text;
}

bool CLocaleText::Encode(const std::wstring& text, std::string& bytes) const {
    bytes.clear();
    bytes.reserve(text.size());
    for (size_t at = 0; at < text.size(); ++at) {
        const wchar_t unit = text[at];
        const bool isPair = IsHighSurrogate(unit) && at + 1 < text.size() && IsLowSurrogate(text[at + 1]);
        char encoded[MB_LEN_MAX];
        std::mbstate_t state{};
        if (unit < 0x80 && m_isSingle[unit] && m_units[unit] == unit) {
            bytes += static_cast<char>(unit);
        } else if (unit >= kFirstEscape && unit < kFirstEscape + 256 && !m_isSingle[unit - kFirstEscape]) {
            bytes += static_cast<char>(unit - kFirstEscape);
        } else if (const size_t count = isPair ? 0 : std::wcrtomb(encoded, unit, &state);
                   count > 0 && count <= MB_LEN_MAX) {
            bytes.append(encoded, count);
        } else {
            return false;
        }
    }
    return true;
}

}  // namespace tavrin::itemdlg
