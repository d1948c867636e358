// Dialog templates made in memory.
#pragma once

#include <afxwin.h>

#include <string>
#include <vector>

class CDialogTemplate {
public:
    explicit CDialogTemplate(DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU, int x = 0, int y = 0,
                             int width = 120, int height = 80);

    // classAtom: 0x80 button, 0x81 edit, 0x82 static.
    CDialogTemplate& Add(WORD classAtom, WORD id, const std::wstring& text, DWORD style, int x, int y,
                         int width, int height);
    LPCDLGTEMPLATE Get() const { return reinterpret_cast<LPCDLGTEMPLATE>(m_words.data()); }

private:
    void Put32(DWORD value);
    void PutText(const std::wstring& text);

    std::vector<WORD> m_words;
};

constexpr WORD buttonClass = 0x80, editClass = 0x81, staticClass = 0x82;
constexpr DWORD childStyle = WS_CHILD | WS_VISIBLE;
