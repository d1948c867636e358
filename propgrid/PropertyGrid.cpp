// The life of the property grid: construction, the window's start, its messages, the notification.
#include "propgrid/PropertyGrid.h"

#include "propgrid/GdiScope.h"

IMPLEMENT_DYNAMIC(CPropertyGrid, CWnd)

BEGIN_MESSAGE_MAP(CPropertyGrid, CWnd)
    ON_WM_CREATE()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_MESSAGE(WM_MOVE, &CPropertyGrid::OnMove)
    ON_MESSAGE(WM_PRINTCLIENT, &CPropertyGrid::OnPrintClient)
    ON_WM_DESTROY()
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_CAPTURECHANGED()
    ON_WM_MOUSEWHEEL()
    ON_WM_VSCROLL()
    ON_WM_KEYDOWN()
    ON_WM_CHAR()
    ON_WM_GETDLGCODE()
    ON_MESSAGE(WM_GRID_CHOICE_MADE, &CPropertyGrid::OnChoiceMade)
    ON_MESSAGE(WM_GRID_EDIT_DONE, &CPropertyGrid::OnEditDone)
    ON_MESSAGE(WM_GRID_DATE_CHOSEN, &CPropertyGrid::OnDateChosen)
END_MESSAGE_MAP()

CPropertyGrid::CPropertyGrid() = default;

// The window goes while the grid is still whole; the base would destroy it after the members are gone.
CPropertyGrid::~CPropertyGrid() {
    if (GetSafeHwnd() != nullptr) {
        DestroyWindow();
    }
}

BOOL CPropertyGrid::PreCreateWindow(CREATESTRUCT& create) {
    m_creating = true;
    return CWnd::PreCreateWindow(create);
}

// Runs for a window that is being created too, before it has a size; that one is initialised when its
// WM_CREATE comes.
void CPropertyGrid::PreSubclassWindow() {
    if (!m_creating) {
        Initialize();
    }
    m_creating = false;
    CWnd::PreSubclassWindow();
}

// Comes for a window that could not be created, too.
void CPropertyGrid::PostNcDestroy() {
    m_creating = false;
    CWnd::PostNcDestroy();
}

LRESULT CPropertyGrid::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DESTROY) {
        m_rowsPending = false;  // a window that goes needs no layout
    }
    SettleLayout();
    return CWnd::WindowProc(message, wParam, lParam);
}

int CPropertyGrid::OnCreate(LPCREATESTRUCT create) {
    if (CWnd::OnCreate(create) == -1) {
        return -1;
    }
    Initialize();
    return 0;
}

void CPropertyGrid::OnPaint() {
    CPaintDC dc(this);
    m_customItemDrew = false;
    PaintWindow(dc);
    // The whole window counts as painted, whatever a custom item did to it. Nobody else can have.
    if (m_customItemDrew) {
        ValidateRect(nullptr);
    }
}

// Paint covers every pixel; erasing first would only flicker.
BOOL CPropertyGrid::OnEraseBkgnd(CDC* /*dc*/) {
    return TRUE;
}

void CPropertyGrid::OnSize(UINT type, int width, int height) {
    CWnd::OnSize(type, width, height);
    LeaveEditor();
    PlaceScrollBar();
}

LRESULT CPropertyGrid::OnMove(WPARAM /*zero*/, LPARAM /*place*/) {
    LeaveEditor();
    return Default();
}

LRESULT CPropertyGrid::OnPrintClient(WPARAM dc, LPARAM /*flags*/) {
    CDC& target = *CDC::FromHandle(reinterpret_cast<HDC>(dc));
    CRect client;
    GetClientRect(&client);
    CMemoryCanvas canvas(target, client.Size());
    Paint(target, canvas);
    return 0;
}

void CPropertyGrid::Initialize() {
    CRect client;
    GetClientRect(&client);
    m_gutter = client.Width() / 2;
    m_scrollBarShown = false;
    CreateFonts();
    {
        CClientDC dc(this);
        const CSelectedObject font(dc, m_font);
        m_rowHeight = dc.GetTextExtent(L"Gg", 2).cy + 4;
    }
    ModifyStyle(0, WS_CLIPCHILDREN);
    // A static control lets the mouse through to its dialog unless it notifies, and no placeholder is a
    // tab stop; a grid in its place wants both mouse and keyboard.
    wchar_t windowClass[16] = {};
    ::GetClassName(m_hWnd, windowClass, 16);
    if (_wcsicmp(windowClass, L"Static") == 0) {
        ModifyStyle(0, SS_NOTIFY | WS_TABSTOP);
    }
    TakeParentText(IDOK, L"OK", m_texts.ok);
    TakeParentText(IDCANCEL, L"Cancel", m_texts.cancel);
    // Rows that were added before there was a window to lay them out in.
    if (m_contents.GetRowCount(IsCategorized()) > 0) {
        Relayout();
    }
}

// The parent's font as it is now, or Tahoma. The grid makes fonts of its own from it, so that it does
// not depend on how long the parent keeps its font.
void CPropertyGrid::CreateFonts() {
    if (m_font.GetSafeHandle() != nullptr) {
        return;
    }
    LOGFONT description = {};
    CWnd* const parent = GetParent();
    CFont* const parentFont = parent != nullptr ? parent->GetFont() : nullptr;
    if (parentFont != nullptr && parentFont->GetLogFont(&description) != 0) {
        m_font.CreateFontIndirect(&description);
    }
    if (m_font.GetSafeHandle() == nullptr) {
        m_font.CreatePointFont(85, L"Tahoma");
        if (m_font.GetLogFont(&description) == 0) {
            return;
        }
    }
    description.lfWeight = FW_BOLD;
    m_boldFont.CreateFontIndirect(&description);
}

// Fills a text that is still empty with the caption of one of the parent's controls.
void CPropertyGrid::TakeParentText(int controlId, const wchar_t* otherwise, std::wstring& text) const {
    if (!text.empty()) {
        return;
    }
    text = otherwise;
    const CWnd* const parent = GetParent();
    const CWnd* const control = parent != nullptr ? parent->GetDlgItem(controlId) : nullptr;
    if (control != nullptr) {
        CString caption;
        control->GetWindowText(caption);
        text = caption.GetString();
    }
}

void CPropertyGrid::NotifyChanged(UINT item) {
    if (CWnd* const owner = GetOwner()) {
        owner->SendMessage(WM_GRID_ITEM_CHANGED, item, 0);
    }
}

// The owner may do anything while it hears of the change: remove the rows, or the grid.
void CPropertyGrid::ReportChange(UINT item) {
    NotifyChanged(item);
    Repaint();
}

void CPropertyGrid::Repaint() {
    if (GetSafeHwnd() != nullptr) {
        Invalidate();
    }
}
