#include "tests/windows/soak/SoakDriver.h"

#include <cstdio>
#include <vector>

#include "tests/windows/support/ModalDriver.h"

namespace {

CSoakDriver* activeDriver = nullptr;

constexpr int gridId = 100;
constexpr int firstCellId = 104;
constexpr int replaceId = 112;
constexpr int valueColumn = 240;  // pixels: right of the divider, left of any button

BOOL CALLBACK CollectDialog(HWND window, LPARAM list) {
    wchar_t name[16] = {};
    GetClassNameW(window, name, 16);
    if (lstrcmpW(name, L"#32770") == 0 && IsWindowVisible(window) && IsWindowEnabled(window)) {
        reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    }
    return TRUE;
}

bool IsMessageBox(HWND dialog) {
    const MessageBoxSeen seen = ReadMessageBox(dialog);
    return seen.buttons == 1 && !seen.text.empty();
}

// As the grid measures it.
int RowHeight(HWND dialog) {
    const HDC dc = GetDC(dialog);
    const HGDIOBJ previous =
        SelectObject(dc, reinterpret_cast<HGDIOBJ>(SendMessageW(dialog, WM_GETFONT, 0, 0)));
    SIZE size = {};
    GetTextExtentPoint32W(dc, L"Gg", 2, &size);
    SelectObject(dc, previous);
    ReleaseDC(dialog, dc);
    return size.cy + 4;
}

void PostClick(HWND window, int x, int y) {
    PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    PostMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
}

HWND FocusOr(HWND dialog) {
    const HWND focus = GetFocus();
    return focus != nullptr ? focus : dialog;
}

}  // namespace

CSoakDriver::CSoakDriver(CChoices& choices) : m_choices(choices) {
    activeDriver = this;
    m_timer = SetTimer(nullptr, 0, 10, OnTimer);
}

CSoakDriver::~CSoakDriver() {
    KillTimer(nullptr, m_timer);
    activeDriver = nullptr;
}

void CALLBACK CSoakDriver::OnTimer(HWND, UINT, UINT_PTR, DWORD) {
    if (activeDriver != nullptr) {
        activeDriver->Act();
    }
}

void CSoakDriver::Act() {
    std::vector<HWND> dialogs;
    EnumThreadWindows(GetCurrentThreadId(), CollectDialog, reinterpret_cast<LPARAM>(&dialogs));
    if (dialogs.empty()) {
        return;
    }
    for (const HWND dialog : dialogs) {
        if (IsMessageBox(dialog)) {
            ++m_boxes;
            PostMessageW(FindWindowExW(dialog, nullptr, L"Button", nullptr), BM_CLICK, 0, 0);
            return;
        }
    }
    const HWND dialog = dialogs.front();
    if (!m_steps.empty()) {
        const Step step = std::move(m_steps.front());
        m_steps.pop_front();
        step(dialog);
    } else {
        End(dialog);
    }
}

void CSoakDriver::End(HWND dialog) {
    if (--m_patience < 0) {
        std::printf("soak: a dialog cannot be ended\n");
        std::fflush(stdout);
        TerminateProcess(GetCurrentProcess(), 1);
    }
    switch (m_choices.Below(8)) {
        case 0:
            PressButton(dialog, IDCANCEL);
            break;
        case 1:
            PostMessageW(dialog, WM_SYSCOMMAND, SC_CLOSE, 0);
            break;
        case 2:
            PostMessageW(FocusOr(dialog), WM_KEYDOWN, VK_RETURN, 0x1C0001);
            break;
        case 3:
            PostMessageW(FocusOr(dialog), WM_KEYDOWN, VK_ESCAPE, 0x10001);
            break;
        default:
            PressButton(dialog, IDOK);
    }
}

void CSoakDriver::AddTyping(std::deque<Step>& steps, int row, const std::wstring& text) {
    steps.push_back([row](HWND dialog) {
        const int height = RowHeight(dialog);
        PostClick(GetDlgItem(dialog, gridId), valueColumn, row * height + height / 2);
    });
    steps.push_back([text](HWND dialog) {
        const HWND edit = FindWindowExW(GetDlgItem(dialog, gridId), nullptr, L"Edit", nullptr);
        SendMessageW(edit, EM_SETSEL, 0, -1);
        for (const wchar_t character : text) {
            SendMessageW(edit, WM_CHAR, static_cast<WPARAM>(character), 1);
        }
        PostMessageW(edit, WM_KEYDOWN, VK_RETURN, 0x1C0001);
    });
    steps.push_back([](HWND) {});
}

CSoakDriver::Step CSoakDriver::RandomInput() {
    return [this](HWND dialog) {
        for (int input = m_choices.Below(4); input >= 0; --input) {
            MakeInput(dialog);
        }
    };
}

void CSoakDriver::MakeInput(HWND dialog) {
    ++m_events;
    const HWND grid = GetDlgItem(dialog, gridId);
    const HWND target = grid != nullptr ? grid : dialog;
    RECT client = {};
    GetClientRect(target, &client);
    const int x = m_choices.Below(client.right + 20) - 10;
    const int y = m_choices.Below(client.bottom / (m_choices.OneIn(2) ? 1 : 3) + 20) - 10;
    const WPARAM keys[] = {VK_UP,  VK_DOWN, VK_LEFT, VK_RIGHT, VK_PRIOR, VK_NEXT,   VK_HOME,  VK_END,
                           VK_TAB, VK_F2,   VK_F4,   VK_SPACE, VK_BACK,  VK_DELETE, VK_RETURN};
    switch (m_choices.Below(10)) {
        case 0:
        case 1:
        case 2:
            PostClick(target, x, y);
            break;
        case 3:
            PostMessageW(target, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(x, y));
            PostMessageW(target, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
            break;
        case 4:
            PostMessageW(target, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(210, y));
            PostMessageW(target, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(x, y));
            PostMessageW(target, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
            break;
        case 5:
            PostMessageW(target, WM_MOUSEWHEEL,
                         static_cast<WPARAM>(MAKELONG(0, m_choices.OneIn(2) ? WHEEL_DELTA : -WHEEL_DELTA)),
                         0);
            break;
        case 6:
            PostMessageW(FocusOr(dialog), WM_KEYDOWN,
                         keys[m_choices.Below(static_cast<int>(std::size(keys)))], 1);
            break;
        case 7:
            if (HWND const cell = GetDlgItem(dialog, firstCellId + m_choices.Below(6))) {
                PostMessageW(dialog, WM_COMMAND,
                             static_cast<WPARAM>(
                                 MAKELONG(GetDlgCtrlID(cell), m_choices.OneIn(4) ? STN_DBLCLK : STN_CLICKED)),
                             reinterpret_cast<LPARAM>(cell));
            }
            break;
        case 8:
            if (m_choices.OneIn(4) && GetDlgItem(dialog, replaceId) != nullptr) {
                PressButton(dialog, replaceId);
            } else {
                InvalidateRect(dialog, nullptr, TRUE);
            }
            break;
        default:
            PostMessageW(FocusOr(dialog), WM_CHAR,
                         static_cast<WPARAM>(L"0123456789.-ex"[m_choices.Below(14)]), 1);
    }
}
