// Random input for the gallery. A timer makes it, which runs in the loops of modal dialogs too and comes
// only when all input before has been handled.
#include "gallery/Monkey.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

#include "tests/windows/support/HandleCount.h"

namespace tavrin::gallery {

namespace {

constexpr UINT kTimerPeriod = 10;  // milliseconds
constexpr int kWheelStep = 120;
constexpr int kWarmUpEvents = 1000;
constexpr std::size_t kMostInputs = 32;  // of one gesture
constexpr std::size_t kMostBlocks = 20;  // that are printed
// What the system's dialogs load late and keep, however many events follow. One object forgotten for each
// editor would be hundreds.
constexpr int kObjectsOfTheSystem = 20;

CMonkey* runningMonkey = nullptr;

void HandleMessages() {
    MSG message;
    while (PeekMessage(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessage(&message);
    }
}

BOOL CALLBACK CollectUsable(HWND window, LPARAM list) {
    if (IsWindowVisible(window) && IsWindowEnabled(window)) {
        reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    }
    return TRUE;
}

// Windows of this thread that a person could use now, the ones in front first.
std::vector<HWND> UsableWindows() {
    std::vector<HWND> windows;
    EnumThreadWindows(GetCurrentThreadId(), CollectUsable, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

bool IsDialog(HWND window) {
    wchar_t name[16] = {};
    GetClassName(window, name, 16);
    return std::wstring(name) == L"#32770";
}

// The checking heap can print the blocks that are still allocated.
void PrintBlocks() {
    using PrintLive = void (*)(std::size_t most);
    const auto print = reinterpret_cast<PrintLive>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandle(L"TD_Alloc.dll"), "td_print_live")));
    if (print != nullptr) {
        print(kMostBlocks);
    }
}

}  // namespace

int CMonkey::Run() {
    std::printf("monkey: %d events, seed %u\n", m_events, m_seed);
    std::fflush(stdout);
    runningMonkey = this;
    const UINT_PTR timer = SetTimer(nullptr, 0, kTimerPeriod, OnTimer);
    m_inputs.reserve(kMostInputs);
    m_warmingUp = true;
    ShowGallery();
    m_warmingUp = false;
    ShowGallery(kWarmUpEvents);
    const Counts before = Count();
    ShowGallery(m_events);
    const Counts after = Count();
    KillTimer(nullptr, timer);
    std::printf("heap blocks %lld -> %lld, GDI objects %d -> %d, windows %d -> %d\n", before.heapBlocks,
                after.heapBlocks, before.gdiObjects, after.gdiObjects, before.windows, after.windows);
    if (after.heapBlocks > before.heapBlocks) {
        PrintBlocks();
    }
    const bool grown = after.heapBlocks > before.heapBlocks ||
                       after.gdiObjects > before.gdiObjects + kObjectsOfTheSystem ||
                       after.windows > before.windows;
    return grown ? 1 : 0;
}

CMonkey::Counts CMonkey::Count() {
    HandleMessages();
    return {HeapBlockCount(), GdiObjectCount(), WindowCount()};
}

// As often as it is closed before all events have come.
void CMonkey::ShowGallery(int events) {
    m_eventsToCome = events;
    do {
        CGalleryDialog gallery;
        m_gallery = &gallery;
        gallery.DoModal();
        m_gallery = nullptr;
    } while (m_eventsToCome > 0);
}

void CALLBACK CMonkey::OnTimer(HWND, UINT, UINT_PTR, DWORD) {
    runningMonkey->Act();
}

void CMonkey::Act() {
    if (m_gallery == nullptr || !IsWindow(m_gallery->GetSafeHwnd()) || EndDialogs()) {
        return;
    }
    const HWND gallery = m_gallery->GetSafeHwnd();
    if (!m_warmingUp && m_eventsToCome <= 0) {
        PostMessage(gallery, WM_CLOSE, 0, 0);
    } else if (m_warmingUp) {
        OpenNextEditor();
    } else if (GetActiveWindow() == nullptr) {
        SetForegroundWindow(gallery);
    } else {
        MakeGesture();
    }
}

// Whether a dialog is open in front of the gallery; it is confirmed or cancelled.
bool CMonkey::EndDialogs() {
    for (const HWND window : UsableWindows()) {
        if (window == m_gallery->GetSafeHwnd() || !IsDialog(window)) {
            continue;
        }
        PostMessage(window, WM_COMMAND, Random(2) == 0 ? IDOK : IDCANCEL, 0);
        return true;
    }
    return false;
}

// By a click as well as by a double click: each value has an editor for one of the two, if it has one.
void CMonkey::OpenNextEditor() {
    propgrid::CPropertyGrid& grid = m_gallery->GetGrid();
    const HWND gallery = m_gallery->GetSafeHwnd();
    if (m_nextItem >= grid.GetItemCount()) {
        PostMessage(gallery, WM_CLOSE, 0, 0);
        return;
    }
    CRect name;
    CRect value;
    if (grid.GetItemRects(m_nextItem++, name, value) && !value.IsRectEmpty()) {
        const CPoint middle = value.CenterPoint();
        const LPARAM position = MAKELPARAM(middle.x, middle.y);
        for (const int message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP}) {
            grid.PostMessage(static_cast<UINT>(message), 0, position);
        }
    }
}

void CMonkey::MakeGesture() {
    const int kind = Random(100);
    if (kind < 45) {
        PressMouse();
    } else if (kind < 55) {
        DragMouse();
    } else if (kind < 63) {
        TurnWheel();
    } else if (kind < 97) {
        PressKey();
    } else {
        PressMnemonic();
    }
    Send();
}

void CMonkey::PressMouse() {
    MoveTo(RandomPoint());
    for (int times = Random(4) == 0 ? 2 : 1; times > 0; --times) {
        AddMouse(MOUSEEVENTF_LEFTDOWN);
        AddMouse(MOUSEEVENTF_LEFTUP);
    }
}

void CMonkey::DragMouse() {
    MoveTo(RandomPoint());
    AddMouse(MOUSEEVENTF_LEFTDOWN);
    for (int moves = Random(3); moves >= 0; --moves) {
        MoveTo(RandomPoint());
    }
    AddMouse(MOUSEEVENTF_LEFTUP);
}

void CMonkey::TurnWheel() {
    MoveTo(RandomPoint());
    AddMouse(MOUSEEVENTF_WHEEL, (Random(7) - 3) * kWheelStep);
}

void CMonkey::PressKey() {
    static constexpr WORD kKeys[] = {
        VK_UP,       VK_DOWN, VK_LEFT,   VK_RIGHT, VK_UP,   VK_DOWN,   VK_PRIOR,      VK_NEXT,   VK_HOME,
        VK_END,      VK_TAB,  VK_RETURN, VK_SPACE, VK_BACK, VK_DELETE, VK_MULTIPLY,   VK_DIVIDE, VK_ADD,
        VK_SUBTRACT, '0',     '1',       '7',      'A',     'Z',       VK_OEM_PERIOD, VK_ESCAPE, VK_F4};
    const WORD key = kKeys[Random(static_cast<int>(std::size(kKeys)))];
    static constexpr WORD kModifiers[] = {VK_CONTROL, VK_SHIFT};
    const WORD modifier = Random(6) == 0 && key != VK_ESCAPE ? kModifiers[Random(2)] : 0;
    if (modifier != 0) {
        AddKey(modifier, 0);
    }
    AddKey(key, 0);
    AddKey(key, KEYEVENTF_KEYUP);
    if (modifier != 0) {
        AddKey(modifier, KEYEVENTF_KEYUP);
    }
}

void CMonkey::PressMnemonic() {
    static constexpr char kLetters[] = {'C', 'S', 'F', 'H', 'L', 'D', 'N', 'M', 'E', 'A', 'R', 'G'};
    const WORD letter = static_cast<WORD>(kLetters[Random(static_cast<int>(std::size(kLetters)))]);
    AddKey(VK_MENU, 0);
    AddKey(letter, 0);
    AddKey(letter, KEYEVENTF_KEYUP);
    AddKey(VK_MENU, KEYEVENTF_KEYUP);
}

void CMonkey::Send() {
    SendInput(static_cast<UINT>(m_inputs.size()), m_inputs.data(), sizeof(INPUT));
    m_eventsToCome -= static_cast<int>(m_inputs.size());
    m_inputs.clear();
}

void CMonkey::MoveTo(POINT screen) {
    AddMouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE);
    // The screen counts 65536 steps in each direction.
    m_inputs.back().mi.dx = MulDiv(screen.x, 65536, GetSystemMetrics(SM_CXSCREEN)) + 1;
    m_inputs.back().mi.dy = MulDiv(screen.y, 65536, GetSystemMetrics(SM_CYSCREEN)) + 1;
}

void CMonkey::AddMouse(DWORD flags, int data) {
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    input.mi.mouseData = static_cast<DWORD>(data);
    m_inputs.push_back(input);
}

void CMonkey::AddKey(WORD key, DWORD flags) {
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.dwFlags = flags;
    m_inputs.push_back(input);
}

// In screen coordinates.
POINT CMonkey::RandomPoint() {
    const HWND window = RandomWindow();
    CRect client;
    GetClientRect(window, &client);
    POINT point = {Random(std::max(client.Width(), 1)), Random(std::max(client.Height(), 1))};
    ClientToScreen(window, &point);
    return point;
}

// Most often the grid, then an editor that stands open beside the gallery.
HWND CMonkey::RandomWindow() {
    if (Random(10) < 6) {
        return m_gallery->GetGrid().GetSafeHwnd();
    }
    const std::vector<HWND> windows = UsableWindows();
    return windows.empty() ? m_gallery->GetSafeHwnd()
                           : windows[static_cast<std::size_t>(Random(static_cast<int>(windows.size())))];
}

int CMonkey::Random(int count) {
    return static_cast<int>(m_random() % static_cast<unsigned>(count));
}

}  // namespace tavrin::gallery
