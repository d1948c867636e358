// Text of the C runtime's locale as UTF-16 and back, without losing a byte.
#pragma once

#include <string>

namespace tavrin::itemdlg {

// In the "C" locale a byte is the character of the same number. In any other one, bytes that the locale
// cannot convert there and back become characters 0xDC00 + byte, and such characters are written as that byte
// again: every byte survives being read and written.
//
// Keeps the locale's single bytes as they were when it was made; the locale must not change while it is used.
class CLocaleText {
public:
    CLocaleText();

    // One for the locale that is set now: the last one made, which is quick to copy, as long as the locale
    // has kept its name. For the user-interface thread alone.
    static CLocaleText OfLocale();

    std::wstring Decode(const std::string& bytes) const;
    // FALSE when the locale cannot express the text; bytes then holds what came before.
    bool Encode(const std::wstring& text, std::string& bytes) const;

private:
    static constexpr wchar_t kFirstEscape = 0xDC00;

    size_t DecodeOne(const char* bytes, size_t count, wchar_t& unit) const;

    wchar_t m_units[256];  // the character of each single byte
    bool m_isSingle[256];  // there and back, without looking at the bytes after it
};

}  // namespace tavrin::itemdlg
