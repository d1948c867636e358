// CString's editing and searching.
#include <algorithm>
#include <cwctype>

#include "afx/afxwin.h"

namespace {

constexpr LPCTSTR blanks = L" \t\n\v\f\r";

size_t AsSize(int count) {
    return static_cast<size_t>(std::max(count, 0));
}

int AsPosition(size_t position) {
    return position == std::wstring::npos ? -1 : static_cast<int>(position);
}

}  // namespace

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

CString CString::Mid(int first, int count) const {
    const size_t start = std::min(AsSize(first), m_text.size());
    const size_t length = std::min(AsSize(count), m_text.size() - start);
    return CString(m_text.data() + start, static_cast<int>(length));
}

CString CString::Mid(int first) const {
    return Mid(first, GetLength());
}

CString CString::Left(int count) const {
    return Mid(0, count);
}

CString CString::Right(int count) const {
    return Mid(GetLength() - std::max(count, 0));
}

int CString::Find(LPCTSTR text, int start) const {
    return AsPosition(m_text.find(text, AsSize(start)));
}

int CString::Find(TCHAR character, int start) const {
    return AsPosition(m_text.find(character, AsSize(start)));
}

int CString::ReverseFind(TCHAR character) const {
    return AsPosition(m_text.rfind(character));
}

int CString::FindOneOf(LPCTSTR characters) const {
    return AsPosition(m_text.find_first_of(characters));
}

int CString::Replace(LPCTSTR oldText, LPCTSTR newText) {
    const std::wstring from = oldText;
    if (from.empty()) {
        return 0;
    }
    std::wstring result;
    int count = 0;
    size_t copied = 0;
    for (size_t at; (at = m_text.find(from, copied)) != std::wstring::npos; ++count) {
        result.append(m_text, copied, at - copied).append(newText != nullptr ? newText : L"");
        copied = at + from.size();
    }
    if (count > 0) {
        m_text = result.append(m_text, copied);
    }
    return count;
}

int CString::Replace(TCHAR oldCharacter, TCHAR newCharacter) {
    const auto count = std::count(m_text.begin(), m_text.end(), oldCharacter);
    std::replace(m_text.begin(), m_text.end(), oldCharacter, newCharacter);
    return static_cast<int>(count);
}

int CString::Insert(int index, LPCTSTR text) {
    m_text.insert(std::min(AsSize(index), m_text.size()), text);
    return GetLength();
}

int CString::Delete(int index, int count) {
    if (AsSize(index) < m_text.size()) {
        m_text.erase(AsSize(index), AsSize(count));
    }
    return GetLength();
}

CString& CString::Trim() {
    return TrimRight().TrimLeft();
}

CString& CString::TrimLeft() {
    m_text.erase(0, m_text.find_first_not_of(blanks));
    return *this;
}

CString& CString::TrimRight() {
    m_text.erase(m_text.find_last_not_of(blanks) + 1);
    return *this;
}

int CString::Compare(LPCTSTR text) const {
    return m_text.compare(text);
}

int CString::CompareNoCase(LPCTSTR text) const {
    return ::_wcsicmp(m_text.c_str(), text);
}

LPTSTR CString::GetBuffer(int minLength) {
    m_text.resize(std::max(m_text.size(), AsSize(minLength)));
    return m_text.data();
}

LPTSTR CString::GetBufferSetLength(int length) {
    m_text.resize(AsSize(length));
    return m_text.data();
}

void CString::ReleaseBuffer(int length) {
    m_text.resize(length < 0 ? std::min(m_text.find(L'\0'), m_text.size()) : AsSize(length));
}

BOOL CString::LoadString(UINT id) {
    return LoadString(AfxGetResourceHandle(), id);
}

BOOL CString::LoadString(HINSTANCE instance, UINT id) {
    // With a size of 0 the function hands out the resource itself, whatever its length.
    LPCTSTR text = nullptr;
    const int length = ::LoadString(instance, id, reinterpret_cast<LPTSTR>(&text), 0);
    SetString(length > 0 ? text : L"", std::max(length, 0));
    return length > 0;
}
