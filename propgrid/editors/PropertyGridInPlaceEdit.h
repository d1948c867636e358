// The text edit that the property grid lays over a value cell: one line, without a frame, the caret after
// the text.
//
// Opening it:
//
//     auto edit = std::make_unique<CPropertyGridInPlaceEdit>(grid, cell, WS_CHILD, 1000, text);
//     edit->SetColors(back, color);
//     edit->SetFont(&font);
//     edit->ShowWindow(SW_SHOW);
//
// It has the keyboard focus from its creation on, and it ends by losing it (Enter, Tab, Ctrl with a
// navigation key, a click elsewhere) or by Escape, which puts the text back that it was opened with. Every
// ending sends WM_GRID_EDIT_DONE with the text to the owner window, the parent when there is no owner,
// exactly once; then the window is gone.
//
// The edit never deletes itself. Its owner holds the object and may destroy the window and delete the
// object while it handles the message; nothing of the edit is touched afterwards. An owner that destroys
// the window of an edit with the focus gets the message out of that very DestroyWindow, and must have let
// go of its pointer before.
//
// Coordinates are pixels of the grid's client area.
#pragma once

#include <afxwin.h>

#include <string>

#include "memory/MemoryFence.h"

namespace tavrin::propgrid {

class CPropertyGridInPlaceEdit : public CEdit {
public:
    // Creates the window at once: a child of `parent` with control id `id`, of `style` plus WS_CHILD and
    // ES_AUTOHSCROLL (hidden, unless the style shows it), in the font that the parent answers to
    // WM_GETFONT and the system's window colours, and gives it the focus. The text may be of any
    // length; what a NUL cuts off is lost. Assistive technology calls the edit by `name`. When the creation
    // fails the object has no window.
    CPropertyGridInPlaceEdit(CWnd* parent, CRect rect, DWORD style, UINT id, std::wstring text,
                             const std::wstring& name = {});

    // For the next paint.
    void SetColors(COLORREF background, COLORREF text);

    // Whether Page Up, Page Down and the arrow keys leave the edit by themselves (false at the start), as
    // they do with Ctrl.
    void SetExitOnNavigation(bool exit) { m_exitOnNavigation = exit; }

    // Whether the text is the one that the edit was opened with, and the user never touched it or put it back
    // by Escape. The same text typed anew does not count. False once the window is gone.
    bool IsUntouched() const;

    // Where the edit was created.
    const CRect& GetPosition() const { return m_position; }

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        return tavrin::memory::FenceMemory([&] { return CEdit::WindowProc(message, wParam, lParam); });
    }
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnKillFocus(CWnd* newFocus);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnDestroy();
    afx_msg HBRUSH CtlColor(CDC* dc, UINT kind);
    DECLARE_MESSAGE_MAP()

private:
    void SetAccessibleName(const std::wstring& name);
    void Leave();
    void Cancel();
    void End();

    CStatic m_label;  // hidden, holds the name
    std::wstring m_initialText;
    CString m_shownText;  // what the window makes of it: one line at most
    bool m_exitOnNavigation = false;
    CRect m_position;
    COLORREF m_background = 0;
    COLORREF m_textColor = 0;
    CBrush m_brush;  // solid, of the background colour
};

}  // namespace tavrin::propgrid
