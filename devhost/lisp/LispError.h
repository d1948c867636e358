// A mistake in a LISP text or in its evaluation.
#pragma once

#include "devhost/error/UserError.h"

class CLispError : public CUserError {
public:
    using CUserError::CUserError;

    // Puts the place of the mistake in front of the text, once: the innermost place is the right one.
    void SetPlace(const std::wstring& place) {
        if (m_needsPlace && !place.empty()) {
            static_cast<CUserError&>(*this) = CUserError(place + L": " + Text());
        }
        m_needsPlace = false;
    }

    // Whether the user's own *error* has been called with this one; then nobody needs to show it.
    bool IsHandled() const { return m_handled; }
    void SetHandled() { m_handled = true; }
    // Whether it is clear already where it happened and who deals with it.
    bool IsSettled() const { return m_settled; }
    void SetSettled() { m_settled = true; }

protected:
    bool m_needsPlace = true;

private:
    bool m_handled = false;
    bool m_settled = false;
};

// A text that cannot be read as LISP. Line and column count from 1.
class CReadError : public CLispError {
public:
    CReadError(int line, int column, const std::wstring& what)
        : CLispError(L"line " + std::to_wstring(line) + L", column " + std::to_wstring(column) + L": " +
                     what),
          m_line(line),
          m_column(column),
          m_what(what) {
        m_needsPlace = false;
    }

    const std::wstring& What() const { return m_what; }
    // The same mistake in a file.
    CReadError InFile(const std::wstring& file) const {
        CReadError error(*this);
        static_cast<CUserError&>(error) = CUserError(file + L':' + std::to_wstring(m_line) + L':' +
                                                     std::to_wstring(m_column) + L": " + m_what);
        return error;
    }

private:
    int m_line;
    int m_column;
    std::wstring m_what;
};

// The user pressed Escape, while LISP ran or in answer to a question. Its text is "cancelled", whatever the
// place, so that an *error* function can tell it from a mistake.
class CLispCancelled : public CLispError {
public:
    CLispCancelled() : CLispError(L"cancelled") { m_needsPlace = false; }
};

// (exit): ends everything that runs. Not an error, and no *error* function hears of it.
struct SLispExit {
    int status;
};
