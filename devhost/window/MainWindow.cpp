#include "devhost/window/MainWindow.h"

#include <windows.h>

#include <commctrl.h>
#include <commdlg.h>
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
constexpr wchar_t kUnfinishedHint[] =
    L"A parenthesis, text or comment is open. Go on, or drop it with Escape.";
constexpr wchar_t kRunningHint[] = L"Running. Escape stops it.";

constexpr UINT_PTR kTimer = 1;
constexpr UINT kTimerInterval = 1000;  // milliseconds
constexpr std::size_t kMostRecent = 5;

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
    SetTimer(m_window, kTimer, kTimerInterval, nullptr);
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
    m_titles = titles;
    m_onItem = std::move(onItem);
    if (m_window == nullptr) {
        return;
    }
    std::erase_if(m_recent, [&](const std::wstring& title) {
        return std::find(titles.begin(), titles.end(), title) == titles.end();
    });
    m_menu->SetItems(titles);
    m_menu->SetRecent(m_recent);
    ShowOwnPrompt();
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
    }
    ShowOwnPrompt();
    Focus();
}

LRESULT CMainWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_GETMINMAXINFO:
            reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {m_scale(kLeastWidth),
                                                                     m_scale(kLeastHeight)};
            return 0;
        case WM_DPICHANGED:
            ChangeResolution(HIWORD(wParam), *reinterpret_cast<const RECT*>(lParam));
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
        case WM_TIMER:
            OnTimer();
            return 0;
        case WM_ENTERMENULOOP:
        case WM_EXITMENULOOP:
            m_isInMenu = message == WM_ENTERMENULOOP;
            return 0;
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
    } else if (command == IDM_UNDO) {
        m_shown.Undo();
    } else if (command == IDM_REDO) {
        m_shown.Redo();
    } else if (command == IDM_SAVE && m_onSave) {
        SaveDrawing();
    } else if (command == IDM_RESCAN && m_onRescan) {
        m_onRescan();
    } else if (command == IDM_ABOUT) {
        ShowAbout();
    } else if (command == IDM_EXIT) {
        OnClose();
    } else if (command >= IDM_ITEM) {
        OnItem(static_cast<std::size_t>(command - IDM_ITEM));
    } else if (command >= IDM_LANGUAGE) {
        OnLanguage(static_cast<std::size_t>(command - IDM_LANGUAGE));
    } else if (command >= IDM_RECENT) {
        OnRecent(static_cast<std::size_t>(command - IDM_RECENT));
    }
}

void CMainWindow::OnItem(std::size_t index) {
    if (index >= m_titles.size() || !m_onItem) {
        return;
    }
    const std::wstring title = m_titles[index];
    std::erase(m_recent, title);
    m_recent.insert(m_recent.begin(), title);
    m_recent.resize(std::min(m_recent.size(), kMostRecent));
    m_menu->SetRecent(m_recent);
    m_onItem(index);
}

void CMainWindow::OnRecent(std::size_t index) {
    if (index < m_recent.size()) {
        OnItem(static_cast<std::size_t>(std::find(m_titles.begin(), m_titles.end(), m_recent[index]) -
                                        m_titles.begin()));
    }
}

// The handler may replace the menu's items, which must not happen while the menu is open.
void CMainWindow::OnTimer() {
    if (IsIdle() && !m_isInMenu && IsWindowEnabled(m_window) && m_onIdle) {
        m_onIdle();
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
    m_shown.BeginCommand();
    m_shown.Clear();
}

void CMainWindow::ShowHelp() {
    if (m_onHelp) {
        m_onHelp();
    }
}

void CMainWindow::SaveDrawing() {
    wchar_t path[32'768] = L"drawing.svg";
    OPENFILENAMEW dialog = {};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = m_window;
    dialog.lpstrFilter = L"SVG pictures (*.svg)\0*.svg\0All files\0*.*\0";
    dialog.lpstrFile = path;
    dialog.nMaxFile = static_cast<DWORD>(std::size(path));
    dialog.lpstrTitle = L"Save drawing as SVG";
    dialog.lpstrDefExt = L"svg";
    dialog.Flags = OFN_OVERWRITEPROMPT | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    if (GetSaveFileNameW(&dialog)) {
        m_onSave(path);
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
    state.canRescan = m_onRescan != nullptr;
    state.canSave = m_onSave != nullptr;
    state.canUndo = m_shown.CanUndo();
    state.canRedo = m_shown.CanRedo();
    state.isTyping = GetWindowTextLengthW(m_prompt) > 0;
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
    InvalidateRect(m_prompt, nullptr, TRUE);  // not every version of the control shows the new cue by itself
    m_status->ShowText(hint);
    Layout();
}

void CMainWindow::ShowOwnPrompt() {
    if (m_isAsking) {
        return;
    }
    const wchar_t* const label = m_isUnfinished ? L"LISP (" : L"LISP";
    if (m_busy != 0) {
        ShowPrompt(label, kRunningHint, L"");
        return;
    }
    const std::wstring call =
        m_recent.empty() ? (m_titles.empty() ? L"+ 1 2" : m_titles.front()) : m_recent.front();
    const std::wstring example = m_isUnfinished     ? L"the rest of the expression"
                                 : m_recent.empty() ? L"for example (" + call + L")"
                                                    : L"Enter runs (" + call + L") again";
    ShowPrompt(label, m_isUnfinished ? kUnfinishedHint : kIdleHint, example.c_str());
}

void CMainWindow::SetUnfinished(bool unfinished) {
    if (m_isUnfinished != unfinished) {
        m_isUnfinished = unfinished;
        ShowOwnPrompt();
    }
}

}  // namespace devhost
