// Errors of reading and of evaluating LISP.
#pragma once

#include <exception>
#include <string>
#include <utility>

namespace tavrin::lisp {

// An error in a LISP text or in its evaluation: one line without a full stop.
class CLispError : public std::exception {
public:
    explicit CLispError(std::wstring text) : m_text(std::move(text)) {}

    const std::wstring& Text() const { return m_text; }

    // Prefixes the text with the source location, once: the innermost location is the right one.
    void SetLocation(const std::wstring& location) {
        if (m_needsLocation && !location.empty()) {
            m_text = location + L": " + m_text;
        }
        m_needsLocation = false;
    }

    // Whether the user's own *error* function has been called with this error, which is then not shown.
    bool IsHandled() const { return m_handled; }
    void SetHandled() { m_handled = true; }
    // Whether the location is set and the *error* function has had its turn.
    bool IsSettled() const { return m_settled; }
    void SetSettled() { m_settled = true; }

protected:
    std::wstring m_text;
    bool m_needsLocation = true;

private:
    bool m_handled = false;
    bool m_settled = false;
};

// A syntax error. Line and column count from 1.
class CReadError : public CLispError {
public:
    // `isUnfinished`: the text ends within an expression, which more text could complete.
    CReadError(int line, int column, const std::wstring& what, bool isUnfinished = false)
        : CLispError(L"line " + std::to_wstring(line) + L", column " + std::to_wstring(column) + L": " +
                     what),
          m_line(line),
          m_column(column),
          m_what(what),
          m_isUnfinished(isUnfinished) {
        m_needsLocation = false;
    }

    int Line() const { return m_line; }
    int Column() const { return m_column; }
    const std::wstring& What() const { return m_what; }
    bool IsUnfinished() const { return m_isUnfinished; }
    // The same error with the name of its file.
    CReadError InFile(const std::wstring& file) const {
        CReadError error(*this);
        error.m_text =
            file + L':' + std::to_wstring(m_line) + L':' + std::to_wstring(m_column) + L": " + m_what;
        return error;
    }

private:
    int m_line;
    int m_column;
    std::wstring m_what;
    bool m_isUnfinished;
};

// The user pressed Escape, while LISP ran or in answer to a question. Its text is always "cancelled", without
// a location, so that an *error* function can distinguish it from other errors.
class CLispCancelled : public CLispError {
public:
    CLispCancelled() : CLispError(L"cancelled") { m_needsLocation = false; }
};

// (exit): ends everything that runs. Not an error, so no *error* function is called.
struct LispExit {
    int status;
};

}  // namespace tavrin::lisp
