// The one exception of the LISP folder: a text for the user, on one line, without a full stop.
#pragma once

#include <exception>
#include <string>

class CLispError : public std::exception {
public:
    explicit CLispError(std::wstring message) : m_message(std::move(message)) {}

    const std::wstring& Text() const { return m_message; }
    const char* what() const noexcept override;

private:
    std::wstring m_message;
};
