#include "imagedlg/TavrinSelMaskDlg.h"

#include "handles/GdiScopes.h"
#include "imagedlg/ChoiceSlides.h"
#include "sds/FindFile.h"

namespace tavrin::imagedlg {

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr int kFrameWidth = 3;

std::optional<std::wstring> FindSlide(const CString& name, const wchar_t* ending) {
    return FindFile(std::wstring(name) + ending);
}

PixelRect ScreenRectOf(const CWnd& window) {
    CRect rect;
    window.GetWindowRect(&rect);
    return {rect.left, rect.top, rect.right, rect.bottom};
}

// White erases the black frame of an earlier selection.
void PaintFrame(CDC& dc, const RECT& cell, COLORREF color) {
    const PixelRect outline = GetFrameOutline({cell.left, cell.top, cell.right, cell.bottom});
    const CPen pen(PS_SOLID, kFrameWidth, color);
    const handles::CSelectedObject selectedPen(dc, pen);
    dc.MoveTo(outline.left, outline.top);
    dc.LineTo(outline.right, outline.top);
    dc.LineTo(outline.right, outline.bottom);
    dc.LineTo(outline.left, outline.bottom);
    dc.LineTo(outline.left, outline.top);
}

// To a position in the client area of its parent, keeping its size.
void MoveButton(CWnd& button, PixelPoint position) {
    button.SetWindowPos(nullptr, position.x, position.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
}

}  // namespace

IMPLEMENT_DYNAMIC(CTavrinSelMaskDlg, CDialog)

CTavrinSelMaskDlg::CTavrinSelMaskDlg(CWnd* parent) : CDialog(IDD, parent) {}

void CTavrinSelMaskDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    for (int cell = 1; cell <= kChoiceCells; ++cell) {
        DDX_Control(pDX, IDC_CHOICE_CELL1 + cell - 1, PictureOf(cell));
    }
    DDX_Control(pDX, IDC_CHOICE_REPLACE, m_replaceButton);
}

BEGIN_MESSAGE_MAP(CTavrinSelMaskDlg, CDialog)
    ON_WM_CTLCOLOR()
    ON_WM_PAINT()
    ON_BN_CLICKED(IDOK, &CTavrinSelMaskDlg::OnClickedOk)
    ON_BN_CLICKED(IDCANCEL, &CTavrinSelMaskDlg::OnCancel)
    ON_CONTROL_RANGE(STN_CLICKED, IDC_CHOICE_CELL1, IDC_CHOICE_CELL6, &CTavrinSelMaskDlg::OnClickedCell)
    ON_CONTROL_RANGE(STN_DBLCLK, IDC_CHOICE_CELL1, IDC_CHOICE_CELL6, &CTavrinSelMaskDlg::OnDoubleClickedCell)
    ON_BN_CLICKED(IDC_CHOICE_REPLACE, &CTavrinSelMaskDlg::OnClickedReplace)
END_MESSAGE_MAP()

BOOL CTavrinSelMaskDlg::OnInitDialog() {
    m_brush.CreateSolidBrush(kWhite);
    CDialog::OnInitDialog();
    // There is no paging: what does not fit is not offered at all.
    if (m_count == 0 || m_count > kMaxChoices) {
        OnCancel();
    }
    ArrangeForCount();
    NamePictures();
    m_replaceButton.SetWindowText(m_replaceText);
    return TRUE;
}

// The digits, which mean nothing to the buttons.
BOOL CTavrinSelMaskDlg::PreTranslateMessage(MSG* message) {
    const bool isDigit = message->message == WM_CHAR && message->wParam >= L'1' && message->wParam <= L'9';
    const int cell = isDigit ? static_cast<int>(message->wParam - L'0') : 0;
    if (!IsChoiceCellTypeable(m_count, cell)) {
        return CDialog::PreTranslateMessage(message);
    }
    SelectCell(cell);
    return TRUE;
}

HBRUSH CTavrinSelMaskDlg::OnCtlColor(CDC*, CWnd*, UINT) {
    return GetBackgroundBrush();
}

void CTavrinSelMaskDlg::OnPaint() {
    CDialog::OnPaint();
    PaintFrames();
}

void CTavrinSelMaskDlg::OnClickedOk() {
    EndWith(RESULT_CHOSEN);
}

void CTavrinSelMaskDlg::OnClickedCell(UINT id) {
    SelectCell(static_cast<int>(id) - IDC_CHOICE_CELL1 + 1);
}

void CTavrinSelMaskDlg::OnDoubleClickedCell(UINT id) {
    ActivateCell(static_cast<int>(id) - IDC_CHOICE_CELL1 + 1);
}

void CTavrinSelMaskDlg::OnClickedReplace() {
    EndWith(RESULT_REPLACE);
}

void CTavrinSelMaskDlg::EndWith(EResult result) {
    m_result = result;
    OnOK();
}

void CTavrinSelMaskDlg::SetArguments(const CString& replaceText, int skip3D) {
    m_replaceText = replaceText;
    m_skip3D = skip3D;
}

bool CTavrinSelMaskDlg::AddChoice(const CString& name) {
    if (!FindSlide(name, kFlatSlideEnding) && (!FindSlide(name, kSpaceSlideEnding) || m_skip3D != 0)) {
        return false;
    }
    m_choices[static_cast<int>(m_count)] = name;
    ++m_count;
    return true;
}

HBRUSH CTavrinSelMaskDlg::GetBackgroundBrush() {
    return m_brush;
}

void CTavrinSelMaskDlg::RefreshSlides() {
    LoadSlides();
}

CString CTavrinSelMaskDlg::GetSlidePath(CString name) {
    if (!name.IsEmpty()) {
        // AddChoice has already decided whether 3D slides count.
        for (const wchar_t* ending : {kFlatSlideEnding, kSpaceSlideEnding}) {
            if (const auto path = FindSlide(name, ending)) {
                return path->c_str();
            }
        }
    }
    if (const auto path = FindFile(L"empty.png")) {
        return path->c_str();
    }
    // Without an owner while the dialog has no window yet.
    ::MessageBox(m_hWnd, L"Missing slide file! Unable to load correctly!", L"Error!", MB_OK);
    return {};
}

CString CTavrinSelMaskDlg::GetLogoPath() {
    const auto path = FindFile(L"logo.png");
    return path ? path->c_str() : L"";
}

void CTavrinSelMaskDlg::SelectCell(int cell) {
    if (!IsCellSelectable(cell)) {
        return;
    }
    m_selectedChoice = GetChoiceOfCell(m_count, cell, m_selectedChoice);
    if (cell - 1 != m_selectedCell) {
        PictureOf(m_selectedCell + 1).SetSelected(false);
    }
    m_selectedCell = cell - 1;
    PictureOf(cell).SetSelected(true);
    PaintFrames();
}

void CTavrinSelMaskDlg::ActivateCell(int cell) {
    if (!IsCellSelectable(cell)) {
        return;
    }
    SelectCell(cell);
    EndWith(RESULT_CHOSEN);
}

void CTavrinSelMaskDlg::EnableItem(UINT id, BOOL enable) {
    if (CWnd* const item = GetDlgItem(static_cast<int>(id))) {
        item->EnableWindow(enable);
    }
}

CString CTavrinSelMaskDlg::GetCellPath(int cell) {
    const int content = GetCellContent(m_count, cell);
    if (content == kCellEmpty) {
        return {};
    }
    return content == kCellLogo ? GetLogoPath() : GetSlidePath(m_choices[content]);
}

CPictureCtrl& CTavrinSelMaskDlg::PictureOf(int cell) {
    return m_pictures[static_cast<std::size_t>(cell - 1)];
}

// A cell without a choice has no name: there is nothing to select in it, whatever a click may do.
void CTavrinSelMaskDlg::NamePictures() {
    for (int cell = 1; cell <= kChoiceCells; ++cell) {
        const int content = GetCellContent(m_count, cell);
        const bool isChoice = content >= 0;
        PictureOf(cell).SetAccessibleName(isChoice ? m_choices[content] : CString());
        if (isChoice && IsCellSelectable(cell)) {
            PictureOf(cell).SetSelectable(std::to_wstring(cell));
        }
    }
}

void CTavrinSelMaskDlg::LoadSlides() {
    // An empty path cannot be loaded, and a load that fails leaves the cell empty.
    for (int cell = 1; cell <= kChoiceCells; ++cell) {
        PictureOf(cell).LoadFromFile(GetCellPath(cell));
    }
    SelectCell(1);
}

void CTavrinSelMaskDlg::ArrangeForCount() {
    CWnd& ok = *GetDlgItem(IDOK);
    CWnd& cancel = *GetDlgItem(IDCANCEL);
    const auto arrangement = ArrangeChoiceWindow(m_count, ScreenRectOf(*this), ScreenRectOf(ok),
                                                 ScreenRectOf(cancel), ScreenRectOf(m_replaceButton));
    if (arrangement) {
        MoveWindow(0, 0, arrangement->width, arrangement->height);
        MoveButton(ok, arrangement->ok);
        MoveButton(cancel, arrangement->cancel);
        if (arrangement->replace) {
            MoveButton(m_replaceButton, *arrangement->replace);
        }
    }
    CenterWindow();
}

bool CTavrinSelMaskDlg::IsCellSelectable(int cell) {
    return IsChoiceCellSelectable(m_count, cell);
}

void CTavrinSelMaskDlg::PaintFrames() {
    if (m_hWnd == nullptr) {
        return;
    }
    // On the dialog's surface: what a control's own device context reaches outside the control differs
    // from system to system.
    CClientDC dc(this);
    // With one or two choices there are frames in the bottom row too, where the buttons now are.
    for (CWnd* const button : {GetDlgItem(IDOK), GetDlgItem(IDCANCEL), GetDlgItem(IDC_CHOICE_REPLACE)}) {
        if (button->IsWindowVisible()) {
            dc.ExcludeClipRect(AreaOf(*button));
        }
    }
    for (int cell = 1; cell <= kChoiceCells; ++cell) {
        if (HasChoiceFrame(m_count, cell)) {
            PaintFrame(dc, AreaOf(PictureOf(cell)), cell - 1 == m_selectedCell ? kBlack : kWhite);
        }
    }
}

// The client area of a control, in the dialog's coordinates.
CRect CTavrinSelMaskDlg::AreaOf(const CWnd& control) {
    CRect area;
    control.GetClientRect(&area);
    control.MapWindowPoints(this, &area);
    return area;
}

}  // namespace tavrin::imagedlg
