// The in-place edit of the property grid.
//
// The grid may delete the edit while it handles the message about the end. So whatever leads to the end is
// the last thing that a function does with the object.
#include "propgrid/editors/PropertyGridInPlaceEdit.h"

#include <utility>

#include "propgrid/editors/GridMessages.h"

namespace tavrin::propgrid {

BEGIN_MESSAGE_MAP(CPropertyGridInPlaceEdit, CEdit)
    ON_WM_CHAR()
    ON_WM_KEYDOWN()
    ON_WM_MOUSEWHEEL()
    ON_WM_KILLFOCUS()
    ON_WM_GETDLGCODE()
    ON_WM_DESTROY()
    ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

namespace {

// An end of edit is running: the message to the grid and the closing of the window take the focus about,
// and none of that may end an edit once more. Deliberately one flag for the whole module: another edit
// that loses the focus meanwhile does not end either.
bool endIsRunning = false;

class CRunningEnd {
public:
    CRunningEnd() { endIsRunning = true; }
    ~CRunningEnd() { endIsRunning = false; }
    CRunningEnd(const CRunningEnd&) = delete;
    CRunningEnd& operator=(const CRunningEnd&) = delete;
};

bool IsNavigationKey(UINT key) {
    return key == VK_PRIOR || key == VK_NEXT || (key >= VK_LEFT && key <= VK_DOWN);
}

}  // namespace

CPropertyGridInPlaceEdit::CPropertyGridInPlaceEdit(CWnd* parent, CRect rect, DWORD style, UINT id,
                                                   std::wstring text, const std::wstring& name)
    : m_initialText(std::move(text)), m_position(rect) {
    if (!Create(style | WS_CHILD | ES_AUTOHSCROLL, rect, parent, id)) {
        return;
    }
    if (!name.empty()) {
        SetAccessibleName(name);
    }
    SetColors(::GetSysColor(COLOR_WINDOW), ::GetSysColor(COLOR_WINDOWTEXT));
    SendMessage(WM_SETFONT, static_cast<WPARAM>(parent->SendMessage(WM_GETFONT)), TRUE);
    // The default limit of an edit is about 30 000 typed characters; values may be longer.
    LimitText(0);
    SetWindowText(m_initialText.c_str());
    GetWindowText(m_shownText);
    SetFocus();
    // Scrolls the end of the text into view and leaves the caret there, with nothing selected.
    SetSel(0, -1);
    SetSel(-1, 0);
}

// The system calls an edit by the text of the static control before it, which need not be visible. The edit
// keeps the system's own accessible object that way, which knows its text and caret.
void CPropertyGridInPlaceEdit::SetAccessibleName(const std::wstring& name) {
    constexpr UINT kLabelId = 1001;
    // A single "&" would mark a mnemonic.
    std::wstring text;
    for (const wchar_t character : name) {
        text.append(character == L'&' ? 2 : 1, character);
    }
    if (m_label.Create(text.c_str(), WS_CHILD, CRect(0, 0, 0, 0), GetParent(), kLabelId)) {
        constexpr UINT kOrderOnly = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;
        SetWindowPos(&m_label, 0, 0, 0, 0, kOrderOnly);
    }
}

void CPropertyGridInPlaceEdit::OnDestroy() {
    if (m_label.GetSafeHwnd() != nullptr) {
        m_label.DestroyWindow();
    }
    CEdit::OnDestroy();
}

void CPropertyGridInPlaceEdit::SetColors(COLORREF background, COLORREF text) {
    m_background = background;
    m_textColor = text;
    m_brush.DeleteObject();
    m_brush.CreateSolidBrush(background);
}

// The text may have been set from outside too, which does not count as the user's change.
bool CPropertyGridInPlaceEdit::IsUntouched() const {
    if (GetSafeHwnd() == nullptr || GetModify()) {
        return false;
    }
    CString text;
    GetWindowText(text);
    return text == m_shownText;
}

// A dialog would look for a mnemonic: Alt with a letter does nothing while the edit is open.
BOOL CPropertyGridInPlaceEdit::PreTranslateMessage(MSG* message) {
    return message->message == WM_SYSCHAR || CEdit::PreTranslateMessage(message);
}

void CPropertyGridInPlaceEdit::OnChar(UINT character, UINT repeat, UINT flags) {
    if (character == VK_TAB || character == VK_RETURN) {
        Leave();
    } else if (character == VK_ESCAPE) {
        Cancel();
    } else {
        CEdit::OnChar(character, repeat, flags);
    }
}

// Plain arrow keys move the caret.
void CPropertyGridInPlaceEdit::OnKeyDown(UINT key, UINT repeat, UINT flags) {
    if (IsNavigationKey(key) && (m_exitOnNavigation || ::GetKeyState(VK_CONTROL) < 0)) {
        Leave();
    } else {
        CEdit::OnKeyDown(key, repeat, flags);
    }
}

// The wheel scrolls the rows. On Windows a single-line edit passes the wheel on to its parent, but not under
// Wine.
BOOL CPropertyGridInPlaceEdit::OnMouseWheel(UINT flags, short delta, CPoint point) {
    const auto turn = MAKEWPARAM(flags, static_cast<WORD>(delta));
    return GetParent()->SendMessage(WM_MOUSEWHEEL, turn, MAKELPARAM(point.x, point.y)) != 0;
}

void CPropertyGridInPlaceEdit::OnKillFocus(CWnd* newFocus) {
    CEdit::OnKillFocus(newFocus);
    End();
}

// Tab, Enter and Escape too, which a dialog would otherwise keep to itself.
UINT CPropertyGridInPlaceEdit::OnGetDlgCode() {
    return DLGC_WANTALLKEYS;
}

HBRUSH CPropertyGridInPlaceEdit::CtlColor(CDC* dc, UINT /*kind*/) {
    dc->SetTextColor(m_textColor);
    dc->SetBkColor(m_background);
    return m_brush;
}

// Ends the edit: losing the focus does.
void CPropertyGridInPlaceEdit::Leave() {
    if (CWnd* const parent = GetParent()) {
        parent->SetFocus();
    }
}

// Ends the edit with the text that it was opened with: a window that is destroyed loses the focus first.
void CPropertyGridInPlaceEdit::Cancel() {
    const HWND window = m_hWnd;
    if (!::IsWindow(window)) {
        return;
    }
    ::SetWindowText(window, m_initialText.c_str());
    ::SendMessage(window, WM_CLOSE, 0, 0);
}

void CPropertyGridInPlaceEdit::End() {
    if (endIsRunning) {
        return;
    }
    const CRunningEnd running;
    const HWND window = m_hWnd;
    CString text;
    GetWindowText(text);
    if (CWnd* const grid = GetOwner()) {
        grid->SendMessage(WM_GRID_EDIT_DONE, reinterpret_cast<WPARAM>(text.GetString()));
    }
    if (::IsWindow(window)) {
        ::SendMessage(window, WM_CLOSE, 0, 0);
    }
}

}  // namespace tavrin::propgrid
