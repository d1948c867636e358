// The drop-down list of the property grid.
//
// The grid may delete the list while it handles the message about the choice: sending it is the last thing
// that a function does with the object.
#include "propgrid/editors/PropertyGridCombo.h"

#include <algorithm>

#include "handles/GdiScopes.h"
#include "propgrid/editors/GridMessages.h"
#include "propgrid/editors/PopUpEnd.h"

namespace tavrin::propgrid {

IMPLEMENT_DYNAMIC(CPropertyGridCombo, CWnd)

BEGIN_MESSAGE_MAP(CPropertyGridCombo, CWnd)
    ON_WM_PAINT()
    ON_WM_SHOWWINDOW()
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_KEYDOWN()
    ON_WM_KILLFOCUS()
    ON_WM_GETDLGCODE()
    ON_MESSAGE(WM_GETOBJECT, &CPropertyGridCombo::OnGetAccessible)
    ON_MESSAGE(WM_LIST_ACCESS_REQUEST, &CPropertyGridCombo::OnAccessRequest)
    ON_MESSAGE(WM_SETFOCUS, &CPropertyGridCombo::OnGotFocus)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

namespace {

constexpr int kBorder = ListContents::kBorder;
constexpr int kTextMargin = 4;

// Text output takes no more characters than this.
constexpr std::size_t kLongestDrawnText = 8192;

}  // namespace

BOOL CPropertyGridCombo::Create(DWORD style, const RECT& rect, CWnd* grid, UINT id) {
    CRect screenRect(rect);
    grid->ClientToScreen(&screenRect);
    // With the grid's WS_CHILD it is deliberately a child and a pop-up at the same time.
    if (!CreateEx(0, AfxRegisterWndClass(CS_VREDRAW | CS_HREDRAW), nullptr, style | WS_POPUP, screenRect,
                  grid->GetParent(), id)) {
        return FALSE;
    }
    SetOwner(grid);
    return TRUE;
}

void CPropertyGridCombo::SetColors(COLORREF background, COLORREF text, COLORREF focus, COLORREF focusText) {
    m_background = background;
    m_text = text;
    m_focus = focus;
    m_focusText = focusText;
}

void CPropertyGridCombo::SetFont(CFont* font, BOOL redraw) {
    m_font = font;
    CWnd::SetFont(font, redraw);
}

// `none` when there is no font at all, which leaves the device context its own.
const CFont& CPropertyGridCombo::FindFont(const CFont& none) const {
    const CFont* const font = m_font != nullptr ? m_font : GetFont();
    return font != nullptr ? *font : none;
}

void CPropertyGridCombo::OnShowWindow(BOOL show, UINT status) {
    CWnd::OnShowWindow(show, status);
    if (!show) {
        return;
    }
    FitHeight();
    SetFocus();
}

void CPropertyGridCombo::FitHeight() {
    {
        CClientDC dc(this);
        const CFont none;
        const handles::CSelectedObject font(dc, FindFont(none));
        m_contents.rowHeight = dc.GetTextExtent(L"Gg", 2).cy + 4;
    }
    CRect window;
    GetWindowRect(&window);
    const int height = static_cast<int>(m_contents.strings.size()) * m_contents.rowHeight + 2 * kBorder;
    m_contents.width = window.Width();
    SetWindowPos(nullptr, 0, 0, window.Width(), height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOOWNERZORDER);
}

// Deliberately moves the selection to the nearest string: a list that opens without a selection shows, and
// then has, the first one selected. In an empty list nothing is.
void CPropertyGridCombo::OnPaint() {
    CPaintDC dc(this);
    m_contents.selection = std::min(std::max(m_contents.selection, 0), GetLast());

    CRect client;
    GetClientRect(&client);
    CPen pen;
    pen.CreatePen(PS_SOLID, 1, m_text);
    CBrush brush;
    brush.CreateSolidBrush(m_background);
    const CFont none;
    const handles::CSelectedObject selectedPen(dc, pen);
    const handles::CSelectedObject selectedBrush(dc, brush);
    const handles::CSelectedObject selectedFont(dc, FindFont(none));
    dc.Rectangle(&client);
    dc.SetBkMode(TRANSPARENT);

    CRect row(kBorder, kBorder, client.right - kBorder, kBorder + m_contents.rowHeight);
    for (int index = 0; index <= GetLast(); ++index) {
        if (dc.RectVisible(&row)) {
            PaintRow(dc, row, index);
        }
        row.OffsetRect(0, m_contents.rowHeight);
    }
}

void CPropertyGridCombo::PaintRow(CDC& dc, CRect row, int index) {
    const bool selected = index == m_contents.selection;
    if (selected) {
        dc.DrawFocusRect(&row);
        CRect inside = row;
        inside.DeflateRect(1, 1);
        dc.FillSolidRect(&inside, m_focus);
    }
    dc.SetTextColor(selected ? m_focusText : m_text);
    row.left += kTextMargin;
    const std::wstring& text = m_contents.strings[static_cast<std::size_t>(index)];
    dc.DrawText(text.c_str(), static_cast<int>(std::min(text.size(), kLongestDrawnText)), &row,
                DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
}

void CPropertyGridCombo::Select(int index) {
    m_contents.selection = index;
    Invalidate();
    m_access.ReportSelection();
}

// The one pixel of the top kBorder is deliberately not subtracted, and there need not be a string at the
// point.
void CPropertyGridCombo::SelectAt(CPoint point) {
    Select(point.y / m_contents.rowHeight);
}

void CPropertyGridCombo::OnLButtonDown(UINT /*flags*/, CPoint point) {
    m_tracking = true;
    SetCapture();
    SelectAt(point);
}

void CPropertyGridCombo::OnMouseMove(UINT /*flags*/, CPoint point) {
    if (m_tracking) {
        SelectAt(point);
    }
}

// The index is deliberately sent as it is, inside the list or not, and also when the button was pressed
// somewhere else.
void CPropertyGridCombo::OnLButtonUp(UINT /*flags*/, CPoint /*point*/) {
    if (m_tracking) {
        m_tracking = false;
        ::ReleaseCapture();
        Invalidate();
    }
    ReportChoice();
}

void CPropertyGridCombo::OnKeyDown(UINT key, UINT repeat, UINT flags) {
    switch (key) {
        case VK_LEFT:
        case VK_UP:
            Select(m_contents.selection > 0 ? m_contents.selection - 1 : 0);
            break;
        case VK_RIGHT:
        case VK_DOWN:
            Select(m_contents.selection < GetLast() ? m_contents.selection + 1 : GetLast());
            break;
        case VK_RETURN:
        case VK_EXECUTE:  // deliberately: some keyboards send it for Enter
            ReportChoice();
            break;
        case VK_ESCAPE:
            LeaveToOwner(*this);
            break;
        default:
            CWnd::OnKeyDown(key, repeat, flags);
    }
}

void CPropertyGridCombo::OnKillFocus(CWnd* newFocus) {
    CWnd::OnKillFocus(newFocus);
    DestroyWindow();
}

// Enter and Escape too, which a dialog would otherwise keep to itself.
UINT CPropertyGridCombo::OnGetDlgCode() {
    return DLGC_WANTALLKEYS;
}

LRESULT CPropertyGridCombo::OnGetAccessible(WPARAM flags, LPARAM object) {
    const std::optional<LRESULT> answer = m_access.Answer(flags, object);
    return answer ? *answer : Default();
}

LRESULT CPropertyGridCombo::OnAccessRequest(WPARAM child, LPARAM choose) {
    const int index = static_cast<int>(child) - 1;
    if (choose == 0) {
        Select(index);
    } else {
        SetCurSel(index);
        ReportChoice();
    }
    return 0;
}

// The system reports that the window has the focus, the list which string has it.
LRESULT CPropertyGridCombo::OnGotFocus(WPARAM /*window*/, LPARAM /*zero*/) {
    const LRESULT result = Default();
    m_access.ReportSelection();
    return result;
}

void CPropertyGridCombo::OnDestroy() {
    m_access.Disconnect();
    CWnd::OnDestroy();
}

void CPropertyGridCombo::ReportChoice() {
    const auto index = static_cast<WPARAM>(static_cast<INT_PTR>(m_contents.selection));
    if (CWnd* const grid = GetOwner()) {
        grid->SendMessage(WM_GRID_CHOICE_MADE, index);
    }
}

}  // namespace tavrin::propgrid
