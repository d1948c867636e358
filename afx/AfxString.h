// CString: a text of UTF-16 code units that owns its memory.
//
// Lengths and positions are in code units. A text given with a length keeps the NULs inside it; a text
// given without one ends at its first NUL.
#pragma once

#include "afx/AfxBase.h"

#include <cstdarg>
#include <string>

class CString {
public:
    CString() = default;
    CString(LPCTSTR text) : m_text(text != nullptr ? text : L"") {}  // NULL is the empty text
    CString(LPCTSTR text, int length) : m_text(text, static_cast<size_t>(length)) {}
    explicit CString(TCHAR character, int count = 1) : m_text(static_cast<size_t>(count), character) {}

    CString& operator=(LPCTSTR text);
    CString& operator=(TCHAR character);

    int GetLength() const { return static_cast<int>(m_text.size()); }
    bool IsEmpty() const { return m_text.empty(); }
    void Empty() { std::wstring().swap(m_text); }
    LPCTSTR GetString() const { return m_text.c_str(); }
    operator LPCTSTR() const { return m_text.c_str(); }

    TCHAR operator[](int index) const { return m_text[static_cast<size_t>(index)]; }

    CString& operator+=(const CString& text);
    CString& operator+=(LPCTSTR text);
    CString& operator+=(TCHAR character);

    // Less than, equal to or greater than 0, by code units. The text compared with ends at its first NUL.
    int Compare(LPCTSTR text) const;

    // printf-like, where %s and %c are wide and %S and %C narrow. Numbers come out as the C standard
    // says (an exponent has at least two digits), whatever the C runtime beneath does.
    void AFX_CDECL Format(LPCTSTR format, ...);
    void FormatV(LPCTSTR format, va_list arguments);

    // A string resource of the module that AfxGetResourceHandle names. FALSE, and an empty text, when there
    // is none.
    BOOL LoadString(UINT id);

    friend CString operator+(const CString& left, const CString& right);
    friend CString operator+(const CString& left, LPCTSTR right);
    friend CString operator+(LPCTSTR left, const CString& right);
    friend CString operator+(const CString& left, TCHAR right);
    friend CString operator+(TCHAR left, const CString& right);

    friend bool operator==(const CString& a, const CString& b) { return a.m_text == b.m_text; }
    friend bool operator==(const CString& a, LPCTSTR b) { return a.Compare(b) == 0; }
    friend bool operator==(LPCTSTR a, const CString& b) { return b.Compare(a) == 0; }
    friend bool operator!=(const CString& a, const CString& b) { return a.m_text != b.m_text; }
    friend bool operator!=(const CString& a, LPCTSTR b) { return a.Compare(b) != 0; }
    friend bool operator!=(LPCTSTR a, const CString& b) { return b.Compare(a) != 0; }
    friend bool operator<(const CString& a, const CString& b) { return a.m_text < b.m_text; }
    friend bool operator>(const CString& a, const CString& b) { return b.m_text < a.m_text; }
    friend bool operator<=(const CString& a, const CString& b) { return !(b.m_text < a.m_text); }
    friend bool operator>=(const CString& a, const CString& b) { return !(a.m_text < b.m_text); }

private:
    std::wstring m_text;
};
