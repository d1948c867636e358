#include "MainWindow.h"

#include <commctrl.h>

#include <algorithm>
#include <iterator>

#include "UserError.h"
#include "WindowProc.h"

namespace {

constexpr wchar_t kClassName[] = L"DevHostMain";
constexpr wchar_t kTitle[] = L"DevHost";

enum EControl { IDC_DRAWING = 100, IDC_OUTPUT, IDC_PROMPT, IDC_STATUS };

// Pixels.
constexpr int kWidth = 1000;
constexpr int kHeight = 750;
constexpr int kOutputHeight = 130;
constexpr int kPromptHeight = 26;
constexpr int kPointWidth = 260;
constexpr int kUnitsWidth = 160;

// The list of outputs forgets its older half when it grows past this.
constexpr int kMaxOutputLength = 60'000;

HWND CreateControl(HWND parent, EControl id, const wchar_t* className, const wchar_t* text, DWORD style,
                   DWORD extendedStyle = WS_EX_CLIENTEDGE) {
    HWND control =
        CreateWindowExW(extendedStyle, className, text, WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0, parent,
                        reinterpret_cast<HMENU>(INT_PTR(id)), GetModuleHandleW(nullptr), nullptr);
    if (control == nullptr)
        throw CUserError(L"the main window cannot be opened");
    return control;
}

// Where the window opens: in the middle of the screen, no larger than that.
RECT FirstPlace() {
    RECT screen;
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);
    const int width = std::min<int>(kWidth, screen.right - screen.left);
    const int height = std::min<int>(kHeight, screen.bottom - screen.top);
    const int left = (screen.left + screen.right - width) / 2;
    const int top = (screen.top + screen.bottom - height) / 2;
    return {left, top, left + width, top + height};
}

std::wstring TextOf(HWND window) {
    std::wstring text(std::size_t(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(std::size_t(GetWindowTextW(window, text.data(), int(text.size()))));
    return text;
}

int HeightOf(HWND window) {
    RECT rect;
    GetWindowRect(window, &rect);
    return rect.bottom - rect.top;
}

}  // namespace

CMainWindow::CMainWindow() {
    const INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_BAR_CLASSES};
    InitCommonControlsEx(&controls);

    WNDCLASSEXW windowClass = {};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = WindowProc<CMainWindow>;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.hIcon = LoadIconW(nullptr, IDI_APPLICATION);
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(INT_PTR(COLOR_BTNFACE + 1));
    windowClass.lpszClassName = kClassName;
    RegisterClassExW(&windowClass);

    const RECT place = FirstPlace();
    CreateWindowExW(0, kClassName, kTitle, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, place.left, place.top,
                    place.right - place.left, place.bottom - place.top, nullptr, nullptr,
                    GetModuleHandleW(nullptr), this);
    if (m_window == nullptr)
        throw CUserError(L"the main window cannot be opened");
    try {
        CreateControls();
    } catch (...) {
        DestroyWindow(m_window);
        throw;
    }
}

CMainWindow::~CMainWindow() {
    if (m_window != nullptr)
        DestroyWindow(m_window);
}

void CMainWindow::CreateControls() {
    m_font.reset(CreateFontW(-14, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                             OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                             FIXED_PITCH | FF_MODERN, L"Courier New"));
    m_drawing = std::make_unique<CDrawingView>(m_window, IDC_DRAWING);
    m_output = CreateControl(m_window, IDC_OUTPUT, L"EDIT", L"",
                             ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL | WS_VSCROLL);
    m_prompt = CreateControl(m_window, IDC_PROMPT, L"EDIT", L"", ES_AUTOHSCROLL | WS_TABSTOP);
    m_status = CreateControl(m_window, IDC_STATUS, STATUSCLASSNAMEW, L"", SBARS_SIZEGRIP, 0);
    for (const HWND control : {m_output, m_prompt})
        SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(m_font.get()), FALSE);
    SendMessageW(m_output, EM_SETLIMITTEXT, 0, 0);
    SendMessageW(m_prompt, EM_SETCUEBANNER, TRUE,
                 reinterpret_cast<LPARAM>(L"LISP, for example (tavrinwnd \"door\" 1.0 1)"));
    Layout();
}

void CMainWindow::Show() {
    ShowWindow(m_window, SW_SHOWDEFAULT);
    UpdateWindow(m_window);
    SetFocus(m_prompt);
}

void CMainWindow::AddOutput(std::wstring_view line) {
    if (GetWindowTextLengthW(m_output) > kMaxOutputLength) {
        SendMessageW(m_output, EM_SETSEL, 0, kMaxOutputLength / 2);
        SendMessageW(m_output, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(L""));
    }
    const int end = GetWindowTextLengthW(m_output);
    const std::wstring text = (end == 0 ? L"" : L"\r\n") + std::wstring(line);
    SendMessageW(m_output, EM_SETSEL, WPARAM(end), end);
    SendMessageW(m_output, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(text.c_str()));
}

void CMainWindow::SetCommandHandler(std::function<void(const std::wstring&)> onCommand) {
    m_onCommand = std::move(onCommand);
}

void CMainWindow::SetPointFormat(std::function<std::wstring(SPoint)> format, const std::wstring& units) {
    m_drawing->SetMoveHandler(
        [this, format = std::move(format)](SPoint point) { ShowInStatus(SP_POINT, format(point)); });
    ShowInStatus(SP_UNITS, units);
}

void CMainWindow::SetBusy(bool busy) {
    m_busy = busy;
    EnableWindow(m_prompt, !busy);
    if (!busy)
        SetFocus(m_prompt);
}

LRESULT CMainWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SIZE:
            Layout();
            return 0;
        case WM_CLOSE:
            OnClose();
            return 0;
        case WM_DESTROY:
            PostQuitMessage(0);
            return 0;
    }
    return DefWindowProcW(m_window, message, wParam, lParam);
}

void CMainWindow::OnClose() {
    if (m_picking)
        EndPick(std::nullopt);
    else if (m_busy)
        MessageBeep(MB_ICONWARNING);  // a call runs in this window's name; its dialog has to end first
    else
        DestroyWindow(m_window);
}

void CMainWindow::Layout() {
    if (m_status == nullptr)
        return;
    RECT client;
    GetClientRect(m_window, &client);
    SendMessageW(m_status, WM_SIZE, 0, 0);
    const int parts[] = {client.right - kPointWidth - kUnitsWidth, client.right - kUnitsWidth, -1};
    SendMessageW(m_status, SB_SETPARTS, std::size(parts), reinterpret_cast<LPARAM>(parts));

    const int promptTop = client.bottom - HeightOf(m_status) - kPromptHeight;
    const int outputTop = promptTop - kOutputHeight;
    MoveWindow(m_drawing->Handle(), 0, 0, client.right, std::max(outputTop, 0), TRUE);
    MoveWindow(m_output, 0, outputTop, client.right, kOutputHeight, TRUE);
    MoveWindow(m_prompt, 0, promptTop, client.right, kPromptHeight, TRUE);
}

void CMainWindow::ShowInStatus(EStatusPart part, const std::wstring& text) {
    SendMessageW(m_status, SB_SETTEXTW, WPARAM(part), reinterpret_cast<LPARAM>(text.c_str()));
}

void CMainWindow::TakeCommand() {
    const std::wstring command = TextOf(m_prompt);
    SetWindowTextW(m_prompt, L"");
    if (m_onCommand && !m_busy && !command.empty())
        m_onCommand(command);
}

void CMainWindow::Run() {
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (message.hwnd == m_prompt && message.message == WM_KEYDOWN && message.wParam == VK_RETURN) {
            TakeCommand();
            continue;
        }
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}
