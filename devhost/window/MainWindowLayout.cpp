// The layout of the main window: the drawing, a splitter, the output, and one row with a label and the
// prompt. The lower part has one background colour.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "devhost/UserError.h"
#include "devhost/window/Commands.h"
#include "devhost/window/MainWindow.h"

namespace devhost {

namespace handles = tavrin::handles;

namespace {

// Pixels.
constexpr int kSplitterHeight = 6;
constexpr int kPromptHeight = 30;
constexpr int kMargin = 10;
constexpr int kLabelGap = 8;
constexpr int kLeastOutput = 40;
constexpr int kLeastDrawing = 60;
constexpr int kCodeHeight = 14;

constexpr COLORREF kLabelColor = RGB(0, 60, 160);
constexpr COLORREF kCodeColor = RGB(28, 36, 48);

HWND CreateControl(HWND parent, EControl id, const wchar_t* className, DWORD style) {
    HWND control = CreateWindowExW(0, className, L"", WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0, parent,
                                   reinterpret_cast<HMENU>(INT_PTR(id)), GetModuleHandleW(nullptr), nullptr);
    if (control == nullptr) {
        throw CUserError(L"the main window cannot be opened");
    }
    return control;
}

HGDIOBJ CreateTextFont() {
    NONCLIENTMETRICSW metrics = {};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    LOGFONTW font = metrics.lfStatusFont;
    font.lfHeight = MulDiv(font.lfHeight, CScale::GetResolution(), CScale::GetSystemResolution());
    return CreateFontIndirectW(&font);
}

void SetFont(HWND control, const handles::GdiOwner& font) {
    SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), TRUE);
}

SIZE TextSize(HWND control, const handles::GdiOwner& font) {
    wchar_t text[256];
    const int length = GetWindowTextW(control, text, 256);
    const handles::CClientDc dc(control);
    const handles::CSelectedObject selection(dc.Get(), font);
    SIZE size = {};
    GetTextExtentPoint32W(dc.Get(), text, length, &size);
    return size;
}

// The height of a line in the font.
int LineHeight(HWND control, const handles::GdiOwner& font) {
    const handles::CClientDc dc(control);
    const handles::CSelectedObject selection(dc.Get(), font);
    TEXTMETRICW metrics = {};
    GetTextMetricsW(dc.Get(), &metrics);
    return metrics.tmHeight;
}

}  // namespace

void CMainWindow::CreateControls() {
    const INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_BAR_CLASSES};
    InitCommonControlsEx(&controls);
    m_menu = std::make_unique<CMainMenu>(m_window);
    m_drawing = std::make_unique<CDrawingView>(m_window, IDC_DRAWING, m_shown);
    m_output = std::make_unique<COutputList>(m_window);
    m_label = CreateControl(m_window, IDC_LABEL, L"STATIC", SS_NOPREFIX | SS_LEFTNOWORDWRAP);
    m_prompt = CreateControl(m_window, IDC_PROMPT, L"EDIT", ES_AUTOHSCROLL | WS_TABSTOP);
    JoinPastedLines(m_prompt, m_joinLines);
    m_status = std::make_unique<CStatusLine>(m_window);
    m_drawing->SetMeasureText(
        [this](double length, double angle) { return m_status->TextOf(length, angle); });
    m_drawing->SetMoveHandler([this](Point point) { m_status->ShowPoint(point); });
    CreateFonts();
    Layout();
}

void CMainWindow::CreateFonts() {
    m_textFont.reset(CreateTextFont());
    m_codeFont.reset(CreateFontW(-m_scale(kCodeHeight), 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE,
                                 DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                                 FIXED_PITCH | FF_MODERN, L"Courier New"));
    SetFont(m_output->Handle(), m_codeFont);
    SetFont(m_prompt, m_codeFont);
    SetFont(m_label, m_codeFont);
    SetFont(m_status->Handle(), m_textFont);
    for (const HWND edit : {m_output->Handle(), m_prompt}) {
        SendMessageW(edit, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, 0);
    }
}

// The window is on a monitor of another resolution now; the system suggests its rectangle there.
void CMainWindow::ChangeResolution(int dotsPerInch, const RECT& rectangle) {
    if (m_status == nullptr) {
        return;
    }
    m_outputHeight = MulDiv(m_outputHeight, dotsPerInch, CScale::GetResolution());
    CScale::SetResolution(dotsPerInch);
    CreateFonts();
    m_status->TakeResolution();
    MoveWindow(m_window, rectangle.left, rectangle.top, rectangle.right - rectangle.left,
               rectangle.bottom - rectangle.top, TRUE);
    Layout();
    InvalidateRect(m_drawing->Handle(), nullptr, FALSE);
}

void CMainWindow::Layout() {
    if (m_status == nullptr) {
        return;
    }
    RECT client;
    GetClientRect(m_window, &client);
    m_status->Layout();
    const int width = client.right;
    const int bottom = client.bottom - m_status->Height();
    const RECT splitter = Splitter();
    const int margin = m_scale(kMargin);

    const int promptTop = bottom - m_scale(kPromptHeight);
    const int line = LineHeight(m_prompt, m_codeFont);
    const int textTop = promptTop + (m_scale(kPromptHeight) - line) / 2;
    const int labelWidth = std::min<int>(TextSize(m_label, m_codeFont).cx + m_scale(2), width / 2);
    const int promptLeft = margin + labelWidth + m_scale(kLabelGap);

    MoveWindow(m_drawing->Handle(), 0, 0, width, splitter.top, TRUE);
    MoveWindow(m_output->Handle(), margin, splitter.bottom + m_scale(4), std::max(width - margin, 0),
               std::max<int>(promptTop - splitter.bottom - m_scale(4), 0), TRUE);
    MoveWindow(m_label, margin, textTop, labelWidth, line, TRUE);
    MoveWindow(m_prompt, promptLeft, textTop, std::max(width - promptLeft - margin, 0), line, TRUE);
    InvalidateRect(m_window, nullptr, TRUE);
}

// The splitter between the drawing and the output.
RECT CMainWindow::Splitter() const {
    RECT client;
    GetClientRect(m_window, &client);
    const int available =
        client.bottom - m_status->Height() - m_scale(kPromptHeight) - m_scale(kSplitterHeight);
    const int output = std::min(m_outputHeight, std::max(available - m_scale(kLeastDrawing), 0));
    const int top = std::max(available - output, 0);
    return {0, top, client.right, top + m_scale(kSplitterHeight)};
}

bool CMainWindow::IsOverSplitter() const {
    POINT mouse;
    GetCursorPos(&mouse);
    ScreenToClient(m_window, &mouse);
    const RECT splitter = Splitter();
    return PtInRect(&splitter, mouse);
}

void CMainWindow::MoveSplitter(int y) {
    const RECT splitter = Splitter();
    m_outputHeight = std::max<int>(m_outputHeight + splitter.top - (y - m_scale(kSplitterHeight) / 2),
                                   m_scale(kLeastOutput));
    Layout();
}

void CMainWindow::PaintBackground(HDC dc) const {
    RECT client;
    GetClientRect(m_window, &client);
    FillRect(dc, &client, GetSysColorBrush(COLOR_WINDOW));
    const RECT splitter = Splitter();
    FillRect(dc, &splitter, GetSysColorBrush(COLOR_BTNFACE));
    const RECT edge = {0, splitter.bottom - 1, client.right, splitter.bottom};
    FillRect(dc, &edge, GetSysColorBrush(COLOR_BTNSHADOW));
}

HBRUSH CMainWindow::PaintControl(HDC dc, HWND control) const {
    SetTextColor(dc, control == m_label ? kLabelColor : kCodeColor);
    SetBkColor(dc, GetSysColor(COLOR_WINDOW));
    return GetSysColorBrush(COLOR_WINDOW);
}

}  // namespace devhost
