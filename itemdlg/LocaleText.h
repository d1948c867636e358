// Converts text between the C runtime's locale and UTF-16 without losing a byte.
#pragma once

#include <string>

namespace tavrin::itemdlg {

// In the "C" locale a byte is the character with the same code. In any other locale, a byte that does not
// survive the round trip becomes the character 0xDC00 + byte, which is written as that byte again.
//
// The locale's single bytes are looked up once, in the constructor: do not change the locale while an object
// is in use.
class CLocaleText {
public:
    CLocaleText();

    // A converter for the current locale. The last one is kept, and copied while the locale has the same
    // name, since making one is slow. For the user-interface thread alone.
    static CLocaleText OfLocale();

    std::wstring Decode(const std::string& bytes) const;
    // False when the locale cannot express the text; `bytes` then holds what was encoded before that.
    bool Encode(const std::wstring& text, std::string& bytes) const;

private:
    static constexpr wchar_t kFirstEscape = 0xDC00;

    size_t DecodeOne(const char* bytes, size_t count, wchar_t& unit) const;

    wchar_t m_units[256];  // the character of each single byte
    bool m_isSingle[256];  // whether this byte alone survives the round trip
};

}  // namespace tavrin::itemdlg
