// The property grid's handlers of input and of what its editors report: each hands its message on to one
// operation, and to the window's default handling where the operation leaves it to that.
#include "propgrid/GdiScope.h"
#include "propgrid/PropertyGrid.h"

void CPropertyGrid::OnDestroy() {
    CloseEditor();
    m_canvas.reset();
    CWnd::OnDestroy();
}

void CPropertyGrid::OnLButtonDown(UINT flags, CPoint point) {
    if (!Press(point)) {
        CWnd::OnLButtonDown(flags, point);
    }
}

void CPropertyGrid::OnMouseMove(UINT /*flags*/, CPoint point) {
    MoveMouse(point);
}

void CPropertyGrid::OnLButtonUp(UINT /*flags*/, CPoint point) {
    Release(point);
}

void CPropertyGrid::OnLButtonDblClk(UINT /*flags*/, CPoint /*point*/) {
    DoubleClick();
}

void CPropertyGrid::OnCaptureChanged(CWnd* window) {
    if (window != this) {
        LetMouseGo();
    }
    CWnd::OnCaptureChanged(window);
}

BOOL CPropertyGrid::OnMouseWheel(UINT flags, short delta, CPoint point) {
    ScrollByWheel(delta);
    return CWnd::OnMouseWheel(flags, delta, point);
}

void CPropertyGrid::OnVScroll(UINT code, UINT position, CScrollBar* bar) {
    if (ScrollByBar(code, position, bar)) {
        CWnd::OnVScroll(code, position, bar);
    }
}

void CPropertyGrid::OnKeyDown(UINT key, UINT repeat, UINT flags) {
    if (!PressKey(key)) {
        CWnd::OnKeyDown(key, repeat, flags);
    }
}

void CPropertyGrid::OnChar(UINT character, UINT repeat, UINT flags) {
    if (!TypeCharacter(character)) {
        CWnd::OnChar(character, repeat, flags);
    }
}

// In a dialog the arrow keys and the characters come to the grid; Tab leaves it, Enter and Escape are the
// dialog's.
UINT CPropertyGrid::OnGetDlgCode() {
    return CWnd::OnGetDlgCode() | DLGC_WANTARROWS | DLGC_WANTCHARS;
}

LRESULT CPropertyGrid::OnChoiceMade(WPARAM index, LPARAM /*zero*/) {
    TakeChoice(static_cast<int>(static_cast<INT_PTR>(index)));
    return 0;
}

LRESULT CPropertyGrid::OnEditDone(WPARAM text, LPARAM /*zero*/) {
    TakeText(reinterpret_cast<const wchar_t*>(text));
    return 0;
}

LRESULT CPropertyGrid::OnDateChosen(WPARAM /*alsoZero*/, LPARAM /*zero*/) {
    TakeDate();
    return 0;
}
