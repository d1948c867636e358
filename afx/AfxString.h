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
    BOOL IsEmpty() const { return m_text.empty(); }
    void Empty() { std::wstring().swap(m_text); }
    LPCTSTR GetString() const { return m_text.c_str(); }
    operator LPCTSTR() const { return m_text.c_str(); }

    TCHAR GetAt(int index) const { return m_text[static_cast<size_t>(index)]; }
    TCHAR operator[](int index) const { return GetAt(index); }

    void SetString(LPCTSTR text) { *this = text; }
    void SetString(LPCTSTR text, int length) { m_text.assign(text, static_cast<size_t>(length)); }
    void Append(LPCTSTR text) { m_text += text; }
    void Append(LPCTSTR text, int length) { m_text.append(text, static_cast<size_t>(length)); }
    CString& operator+=(const CString& text);
    CString& operator+=(LPCTSTR text);
    CString& operator+=(TCHAR character);

    // Parts of the text; positions and counts outside it are cut to it.
    CString Left(int count) const;
    CString Right(int count) const;
    CString Mid(int first) const;
    CString Mid(int first, int count) const;

    // The position of the first (ReverseFind: last) occurrence, or -1.
    int Find(LPCTSTR text, int start = 0) const;
    int Find(TCHAR character, int start = 0) const;
    int ReverseFind(TCHAR character) const;
    int FindOneOf(LPCTSTR characters) const;

    // Replace every occurrence; the result is the number of replacements.
    int Replace(LPCTSTR oldText, LPCTSTR newText);
    int Replace(TCHAR oldCharacter, TCHAR newCharacter);
    // Insert and Delete give the new length.
    int Insert(int index, LPCTSTR text);
    int Delete(int index, int count = 1);
    CString& Trim();
    CString& TrimLeft();
    CString& TrimRight();

    // Less than, equal to or greater than 0, by code units. The text compared with ends at its first NUL.
    int Compare(LPCTSTR text) const;
    int CompareNoCase(LPCTSTR text) const;

    // A buffer of at least minLength code units and a final NUL, to be written until ReleaseBuffer. A
    // length of -1 there takes the text up to its first NUL.
    LPTSTR GetBuffer() { return m_text.data(); }
    LPTSTR GetBuffer(int minLength);
    LPTSTR GetBufferSetLength(int length);
    void ReleaseBuffer(int length = -1);
    void Truncate(int length) { m_text.resize(static_cast<size_t>(length)); }

    // printf-like, where %s and %c are wide and %S and %C narrow. Numbers come out as the C standard
    // says (an exponent has at least two digits), whatever the C runtime beneath does.
    void Format(LPCTSTR format, ...);
    void Format(UINT formatId, ...);
    void FormatV(LPCTSTR format, va_list arguments);
    void AppendFormat(LPCTSTR format, ...);
    void AppendFormatV(LPCTSTR format, va_list arguments);

    // A string resource of the given module, or of the one that AfxGetResourceHandle names. FALSE, and
    // an empty text, when there is none.
    BOOL LoadString(UINT id);
    BOOL LoadString(HINSTANCE instance, UINT id);

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
