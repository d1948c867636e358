// The system's plain controls.
#pragma once

#include "afx/AfxWnd.h"

class CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)
    CStatic() = default;
    virtual BOOL Create(LPCTSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id = 0xFFFF);
    // Draws a control of style SS_OWNERDRAW.
    virtual void DrawItem(LPDRAWITEMSTRUCT) {}

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};

class CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)
    CButton() = default;
    virtual BOOL Create(LPCTSTR caption, DWORD style, const RECT& rect, CWnd* parent, UINT id);
    // Draws a control of style BS_OWNERDRAW.
    virtual void DrawItem(LPDRAWITEMSTRUCT) {}

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};

class CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)
    CEdit() = default;
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    void SetSel(int start, int end, BOOL noScroll = FALSE);
    // Whether the user changed the text since it was set.
    BOOL GetModify() const { return ::SendMessage(m_hWnd, EM_GETMODIFY, 0, 0) != 0; }
    void LimitText(int count = 0) { SendMessage(EM_LIMITTEXT, static_cast<WPARAM>(count)); }
};

class CScrollBar : public CWnd {
    DECLARE_DYNAMIC(CScrollBar)
    CScrollBar() = default;
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    int GetScrollPos() const { return ::GetScrollPos(m_hWnd, SB_CTL); }
    int SetScrollPos(int position, BOOL redraw = TRUE) {
        return ::SetScrollPos(m_hWnd, SB_CTL, position, redraw);
    }
    BOOL GetScrollInfo(LPSCROLLINFO info, UINT mask = SIF_ALL) {
        return CWnd::GetScrollInfo(SB_CTL, info, mask);
    }
    BOOL SetScrollInfo(LPSCROLLINFO info, BOOL redraw = TRUE) {
        return CWnd::SetScrollInfo(SB_CTL, info, redraw);
    }
};
