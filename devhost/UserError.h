// What the user did wrong or must know, thrown to where it can be shown: one line without a full stop that
// names the thing and, where it is not plain, says what to do.
#pragma once

#include <exception>
#include <string>

class CUserError : public std::exception {
public:
    explicit CUserError(std::wstring text) : m_text(std::move(text)) {}

    const std::wstring& Text() const { return m_text; }

private:
    std::wstring m_text;
};
