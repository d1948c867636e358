// A null-terminated text in a block of exactly its size: the address sanitizer sees a read one character
// after it, which the spare capacity of a std::wstring would hide.
#pragma once

#include <algorithm>
#include <memory>
#include <string>

class CExactText {
public:
    explicit CExactText(const std::wstring& text)
        : m_characters(std::make_unique<wchar_t[]>(text.size() + 1)) {
        std::copy(text.begin(), text.end(), m_characters.get());
    }
    const wchar_t* Get() const { return m_characters.get(); }

private:
    std::unique_ptr<wchar_t[]> m_characters;
};
