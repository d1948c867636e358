#include "devhost/window/MainWindow.h"

#include <windows.h>

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <iterator>

#include "devhost/Libraries.h"
#include "devhost/UserError.h"
#include "devhost/window/Commands.h"
#include "devhost/window/ProgramVersion.h"
#include "devhost/window/WindowProc.h"
#include "units/LinearUnits.h"

namespace devhost {

namespace {

constexpr wchar_t kClassName[] = L"DevHostMain";
constexpr wchar_t kTitle[] = L"DevHost";
constexpr wchar_t kIdleHint[] = L"Wheel: zoom. Middle button: pan, twice: fit.";
constexpr wchar_t kRunningHint[] = L"Running. Escape stops it.";

// Pixels.
constexpr int kWidth = 1100;
constexpr int kHeight = 800;
// The smallest size that shows the prompt and the whole status line.
constexpr int kLeastWidth = 520;
constexpr int kLeastHeight = 320;
constexpr int kOutputHeight = 140;

// The initial rectangle: in the middle of the screen, and not larger than it.
RECT InitialRectangle(const CScale& scale) {
    RECT screen;
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);
    const int width = std::min<int>(scale(kWidth), screen.right - screen.left);
    const int height = std::min<int>(scale(kHeight), screen.bottom - screen.top);
    const int left = (screen.left + screen.right - width) / 2;
    const int top = (screen.top + screen.bottom - height) / 2;
    return {left, top, left + width, top + height};
}

void RegisterMainClass() {
    WNDCLASSEXW windowClass = {};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = WindowProc<CMainWindow>;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.hIcon = LoadIconW(nullptr, IDI_APPLICATION);
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    windowClass.lpszClassName = kClassName;
    RegisterClassExW(&windowClass);
}

}  // namespace

CMainWindow::CMainWindow(CDrawing& drawing) : m_shown(drawing), m_outputHeight(m_scale(kOutputHeight)) {
    RegisterMainClass();
    const RECT rectangle = InitialRectangle(m_scale);
    CreateWindowExW(0, kClassName, kTitle, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, rectangle.left,
                    rectangle.top, rectangle.right - rectangle.left, rectangle.bottom - rectangle.top,
                    nullptr, nullptr, GetModuleHandleW(nullptr), this);
    if (m_window == nullptr) {
        throw CUserError(L"the main window cannot be opened");
    }
    try {
        CreateControls();
    } catch (...) {
        DestroyWindow(m_window);
        throw;
    }
    ShowOwnPrompt();
}

CMainWindow::~CMainWindow() {
    if (m_window != nullptr) {
        DestroyWindow(m_window);
    }
}

void CMainWindow::Show() {
    ShowWindow(m_window, SW_SHOWDEFAULT);
    UpdateWindow(m_window);
    Focus();
}

void CMainWindow::SetCommandHandler(std::function<void(const std::wstring&)> onCommand) {
    m_onCommand = std::move(onCommand);
}

void CMainWindow::SetItems(const std::vector<std::wstring>& titles, std::function<void(std::size_t)> onItem) {
    m_itemCount = titles.size();
    m_onItem = std::move(onItem);
    m_menu->SetItems(titles);
}

void CMainWindow::SetLanguages(const std::vector<std::wstring>& titles,
                               std::function<void(std::size_t)> onLanguage) {
    m_languageCount = titles.size();
    m_onLanguage = std::move(onLanguage);
    m_menu->SetLanguages(titles);
}

void CMainWindow::SetReloadHandler(std::function<void()> onReload) {
    m_onReload = std::move(onReload);
}

void CMainWindow::SetFormat(int lunits, int luprec) {
    m_status->SetFormat(lunits, luprec);
}

void CMainWindow::SetFormatHandler(std::function<void(int, int)> onFormat) {
    m_onFormat = std::move(onFormat);
}

void CMainWindow::SetBusy(bool busy) {
    m_busy += busy ? 1 : -1;
    EnableWindow(m_prompt, m_busy == 0);
    if (m_busy == 0) {
        m_isEscapePressed = false;
        ShowOwnPrompt();
    } else if (m_busy == 1) {
        m_status->ShowText(kRunningHint);
    }
    Focus();
}

LRESULT CMainWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_GETMINMAXINFO:
            reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {m_scale(kLeastWidth),
                                                                     m_scale(kLeastHeight)};
            return 0;
        case WM_SIZE:
            Layout();
            if (m_output != nullptr) {
                m_output->ShowCaret();
            }
            return 0;
        case WM_ERASEBKGND:
            PaintBackground(reinterpret_cast<HDC>(wParam));
            return TRUE;
        case WM_CTLCOLORSTATIC:
        case WM_CTLCOLOREDIT:
            return reinterpret_cast<LRESULT>(
                PaintControl(reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam)));
        case WM_SETFOCUS:
            Focus();
            return 0;
        case WM_SETCURSOR:
            if (reinterpret_cast<HWND>(wParam) != m_window || !IsOverSplitter()) {
                break;
            }
            SetCursor(LoadCursorW(nullptr, IDC_SIZENS));
            return TRUE;
        case WM_LBUTTONDOWN:
            m_isSplitterMoving = IsOverSplitter();
            if (m_isSplitterMoving) {
                SetCapture(m_window);
            }
            return 0;
        case WM_MOUSEMOVE:
            if (m_isSplitterMoving) {
                MoveSplitter(GET_Y_LPARAM(lParam));
            }
            return 0;
        case WM_LBUTTONUP:
            ReleaseCapture();
            return 0;
        case WM_CAPTURECHANGED:
            m_isSplitterMoving = false;
            return 0;
        case WM_NOTIFY:
            m_status->OnNotify(*reinterpret_cast<const NMHDR*>(lParam));
            return 0;
        case WM_DRAWITEM:
            m_status->DrawPart(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
            return TRUE;
        case WM_INITMENU:
            UpdateMenu();
            return 0;
        case WM_COMMAND:
            if (lParam == 0) {
                OnCommand(LOWORD(wParam));
            }
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
    if (m_isAsking) {
        EndAsk(Cancelled());
    } else if (m_busy != 0) {
        // The running call has to end first.
        m_isEscapePressed = true;
        MessageBeep(MB_ICONWARNING);
    } else {
        DestroyWindow(m_window);
    }
}

// The menu disables commands that are not available; such a command that was sent nevertheless is rejected
// here.
void CMainWindow::OnCommand(int command) {
    if (command == IDM_FIT) {
        FitDrawing();
    } else if (command == IDM_SNAP) {
        m_drawing->SetSnap(!m_drawing->HasSnap());
    } else if (command - IDM_UNITS >= units::LU_SCIENTIFIC && command - IDM_UNITS <= units::LU_FRACTIONAL) {
        ChooseFormat(command - IDM_UNITS, m_status->Precision());
    } else if (command >= IDM_PRECISION && command <= IDM_PRECISION + units::kMaxLinearPrecision) {
        ChooseFormat(m_status->Units(), command - IDM_PRECISION);
    } else if (command == IDM_OPEN_UNITS) {
        m_status->OpenUnitsMenu();
    } else if (command == IDM_OPEN_PRECISION) {
        m_status->OpenPrecisionMenu();
    } else if (command == IDM_HELP) {
        ShowHelp();
    } else if (!IsIdle()) {
        MessageBeep(MB_ICONWARNING);
    } else if (command == IDM_RELOAD && m_onReload) {
        m_onReload();
    } else if (command == IDM_CLEAR) {
        ClearDrawing();
    } else if (command == IDM_ABOUT) {
        ShowAbout();
    } else if (command == IDM_EXIT) {
        OnClose();
    } else if (command >= IDM_ITEM) {
        OnItem(std::size_t(command - IDM_ITEM));
    } else if (command >= IDM_LANGUAGE) {
        OnLanguage(std::size_t(command - IDM_LANGUAGE));
    }
}

void CMainWindow::OnItem(std::size_t index) {
    if (index < m_itemCount && m_onItem) {
        m_onItem(index);
    }
}

void CMainWindow::OnLanguage(std::size_t index) {
    if (index < m_languageCount && m_onLanguage) {
        m_onLanguage(index);
    }
}

void CMainWindow::ChooseFormat(int lunits, int luprec) {
    SetFormat(lunits, luprec);
    if (m_onFormat) {
        m_onFormat(lunits, luprec);
    }
}

void CMainWindow::ClearDrawing() {
    m_drawing->ClearMarks();
    m_shown.Clear();
}

void CMainWindow::ShowHelp() {
    if (m_onHelp) {
        m_onHelp();
    }
}

void CMainWindow::ShowAbout() {
    const std::wstring text = kTitle + (L"\n\n" + ProgramVersion());
    MessageBoxW(m_window, text.c_str(), L"About DevHost", MB_OK | MB_ICONINFORMATION);
}

void CMainWindow::UpdateMenu() {
    MenuState state;
    state.isIdle = IsIdle();
    state.canReload = m_onReload != nullptr;
    state.hasDrawing = !m_shown.Entities().empty();
    state.hasSnap = m_drawing->HasSnap();
    state.language = m_language;
    m_menu->Update(state);
}

void CMainWindow::Focus() {
    if (GetActiveWindow() == m_window) {
        SetFocus(IsWindowEnabled(m_prompt) ? m_prompt : m_drawing->Handle());
    }
}

void CMainWindow::SwitchFocus() {
    if (GetFocus() == m_prompt) {
        m_drawing->FocusByKey();
    } else {
        Focus();
    }
}

void CMainWindow::ShowPrompt(const std::wstring& label, const std::wstring& hint, const wchar_t* example) {
    SetWindowTextW(m_label, label.c_str());
    SendMessageW(m_prompt, EM_SETCUEBANNER, TRUE, reinterpret_cast<LPARAM>(example));
    m_status->ShowText(hint);
    Layout();
}

void CMainWindow::ShowOwnPrompt() {
    ShowPrompt(L"LISP", m_busy == 0 ? kIdleHint : kRunningHint, L"for example (tavrinwnd \"door\" 1.0 1)");
}

}  // namespace devhost
