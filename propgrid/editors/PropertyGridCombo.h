// The list that the property grid drops down under an item with choices: a pop-up window that paints its
// strings itself, one row each.
//
// Opening it (the rectangle is in client coordinates of the grid; its height does not matter):
//
//     auto list = std::make_unique<CPropertyGridCombo>();
//     list->Create(WS_CHILD, under, grid, 0);
//     list->SetColors(back, text, focus, focusText);
//     list->SetFont(&font);
//     list->AddString(L"...");
//     list->SetCurSel(index);
//     list->ShowWindow(SW_SHOW);
//
// The selection follows the mouse while the left button is down, and the arrow keys. Releasing the button,
// or Enter, sends WM_GRID_CHOICE_MADE with the selection to the owner window (the grid; the parent when
// there is no owner) and leaves the closing to it. Escape, and losing the focus, destroy the window and
// send nothing. The list never changes an item itself.
//
// The list never deletes itself. Its owner holds the object and may destroy the window and delete the
// object while it handles the message; nothing of the list is touched afterwards.
//
// Coordinates are pixels of the list's client area. Indices are signed and count from 0.
#pragma once

#include <afxwin.h>

#include <string>

#include "memory/MemoryFence.h"
#include "propgrid/accessible/AccessibleList.h"
#include "propgrid/editors/ListAccess.h"

namespace tavrin::propgrid {

class CPropertyGridCombo : public CWnd {
    DECLARE_DYNAMIC(CPropertyGridCombo)

public:
    CPropertyGridCombo() = default;
    ~CPropertyGridCombo() override = default;

    // Creates the window, hidden unless the style shows it: of `style` plus WS_POPUP, at `rect` (client
    // coordinates of the grid), a pop-up of the grid's parent, the grid its owner in the framework's sense.
    // FALSE when that fails.
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* grid, UINT id);

    // The system's colours for text and for selected text at the start.
    void SetColors(COLORREF background, COLORREF text, COLORREF focus, COLORREF focusText);

    // The font stays the caller's and must live as long as the list. Null, as at the start: the one that
    // the window answers to WM_GETFONT.
    void SetFont(CFont* font, BOOL redraw = TRUE);

    // To be called before the list is shown, which gives it its height.
    void AddString(const std::wstring& text) { m_contents.strings.push_back(text); }

    // What assistive technology calls the list: the name of the row. Empty at the start.
    void SetAccessibleName(const std::wstring& name) { m_contents.name = name; }

    // Deliberately takes any index; the next paint moves it to the nearest string. -1, nothing selected,
    // at the start.
    void SetCurSel(int index) { m_contents.selection = index; }
    int GetCurSel() const { return m_contents.selection; }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        return tavrin::memory::FenceMemory([&] { return CWnd::WindowProc(message, wParam, lParam); });
    }
    afx_msg void OnPaint();
    afx_msg void OnShowWindow(BOOL show, UINT status);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnKillFocus(CWnd* newFocus);
    afx_msg UINT OnGetDlgCode();
    afx_msg LRESULT OnGetAccessible(WPARAM flags, LPARAM object);
    afx_msg LRESULT OnAccessRequest(WPARAM child, LPARAM choose);
    afx_msg LRESULT OnGotFocus(WPARAM window, LPARAM zero);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    int GetLast() const { return m_contents.GetLast(); }
    const CFont& FindFont(const CFont& none) const;
    void FitHeight();
    void Select(int index);
    void SelectAt(CPoint point);
    void PaintRow(CDC& dc, CRect row, int index);
    void ReportChoice();

    ListContents m_contents;
    CListAccess m_access{*this, m_contents};
    CFont* m_font = nullptr;  // not owned
    bool m_tracking = false;  // the left button is held down since it was pressed in the list
    COLORREF m_background = ::GetSysColor(COLOR_WINDOW);
    COLORREF m_text = ::GetSysColor(COLOR_WINDOWTEXT);
    COLORREF m_focus = ::GetSysColor(COLOR_HIGHLIGHT);
    COLORREF m_focusText = ::GetSysColor(COLOR_HIGHLIGHTTEXT);
};

}  // namespace tavrin::propgrid
