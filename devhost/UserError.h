// An error for the user: one line without a full stop that names the cause and, where it is not obvious, the
// remedy.
#pragma once

#include <exception>
#include <string>

namespace devhost {

class CUserError : public std::exception {
public:
    explicit CUserError(std::wstring text) : m_text(std::move(text)) {}

    const std::wstring& Text() const { return m_text; }

private:
    std::wstring m_text;
};

}  // namespace devhost
