// CString.
#include <algorithm>

#include "afx/afxwin.h"

CString& CString::operator=(LPCTSTR text) {
    m_text = text != nullptr ? text : L"";
    return *this;
}

CString& CString::operator=(TCHAR character) {
    m_text = character;
    return *this;
}

CString& CString::operator+=(const CString& text) {
    m_text += text.m_text;
    return *this;
}

CString& CString::operator+=(LPCTSTR text) {
    m_text += text;
    return *this;
}

CString& CString::operator+=(TCHAR character) {
    m_text += character;
    return *this;
}

CString operator+(const CString& left, const CString& right) {
    return CString(left) += right;
}

CString operator+(const CString& left, LPCTSTR right) {
    return CString(left) += right;
}

CString operator+(LPCTSTR left, const CString& right) {
    return CString(left) += right;
}

CString operator+(const CString& left, TCHAR right) {
    return CString(left) += right;
}

CString operator+(TCHAR left, const CString& right) {
    return CString(left) += right;
}

int CString::Compare(LPCTSTR text) const {
    return m_text.compare(text);
}

BOOL CString::LoadString(UINT id) {
    // With a size of 0 the function hands out the resource itself, whatever its length.
    LPCTSTR text = nullptr;
    const int length = ::LoadString(AfxGetResourceHandle(), id, reinterpret_cast<LPTSTR>(&text), 0);
    m_text.assign(length > 0 ? text : L"", static_cast<size_t>(std::max(length, 0)));
    return length > 0;
}
