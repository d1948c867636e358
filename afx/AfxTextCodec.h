// Text of the C runtime's locale as UTF-16 and back, without losing a byte.
#pragma once

#include <string>

// Keeps the locale's single bytes as they were when it was made; the locale must not change while it is
// used. See CStdioFile for the rule on bytes that the locale cannot convert.
class CAfxTextCodec {
public:
    CAfxTextCodec();

    // One for the locale that is set now: the last one made, which is quick to copy, as long as the locale
    // has kept its name. For the user-interface thread alone.
    static CAfxTextCodec OfLocale();

    std::wstring Decode(const std::string& bytes) const;
    // FALSE when the locale cannot express the text; bytes then holds what came before.
    bool Encode(const std::wstring& text, std::string& bytes) const;

private:
    static constexpr wchar_t firstEscape = 0xDC00;

    size_t DecodeOne(const char* bytes, size_t count, wchar_t& unit) const;

    wchar_t m_units[256];  // what a byte on its own stands for
    bool m_isSingle[256];  // there and back, without looking at the bytes behind it
};
