#include "tests/windows/support/ModalDriver.h"

#include <algorithm>

namespace {

CModalDriver* activeDriver = nullptr;

std::wstring TextOf(HWND window) {
    std::wstring text(static_cast<size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

bool IsClass(HWND window, const wchar_t* name) {
    wchar_t buffer[64] = {};
    GetClassNameW(window, buffer, 64);
    return lstrcmpiW(buffer, name) == 0;
}

BOOL CALLBACK CollectDialog(HWND window, LPARAM list) {
    if (IsClass(window, L"#32770") && IsWindowVisible(window) && IsWindowEnabled(window)) {
        reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    }
    return TRUE;
}

BOOL CALLBACK ReadChild(HWND child, LPARAM parameter) {
    auto& box = *reinterpret_cast<MessageBoxSeen*>(parameter);
    if (IsClass(child, L"Static") && !TextOf(child).empty()) {
        box.text = TextOf(child);
    }
    if (IsClass(child, L"Button")) {
        ++box.buttons;
    }
    return TRUE;
}

}  // namespace

CModalDriver::CModalDriver() {
    activeDriver = this;
    m_timer = SetTimer(nullptr, 0, 10, OnTimer);
}

CModalDriver::~CModalDriver() {
    KillTimer(nullptr, m_timer);
    activeDriver = nullptr;
}

void CModalDriver::Then(Step step) {
    m_steps.push_back(std::move(step));
}

void CModalDriver::Forget() {
    m_steps.clear();
    m_next = 0;
    messages.clear();
}

void CModalDriver::ThenPressOk() {
    Then([this](HWND box) {
        messages.push_back(ReadMessageBox(box));
        PostMessageW(FindWindowExW(box, nullptr, L"Button", nullptr), BM_CLICK, 0, 0);
    });
}

void CALLBACK CModalDriver::OnTimer(HWND, UINT, UINT_PTR, DWORD) {
    if (activeDriver != nullptr) {
        activeDriver->Act();
    }
}

void CModalDriver::Act() {
    if (m_next == m_steps.size()) {
        return;
    }
    std::vector<HWND> dialogs;
    EnumThreadWindows(GetCurrentThreadId(), CollectDialog, reinterpret_cast<LPARAM>(&dialogs));
    std::erase_if(m_seen, [](HWND window) { return !IsWindow(window); });
    for (const HWND dialog : dialogs) {
        if (std::find(m_seen.begin(), m_seen.end(), dialog) != m_seen.end()) {
            continue;
        }
        m_seen.push_back(dialog);
        const Step step = m_steps[m_next++];
        step(dialog);
        return;
    }
}

void PressButton(HWND dialog, int id) {
    PostMessageW(GetDlgItem(dialog, id), BM_CLICK, 0, 0);
}

MessageBoxSeen ReadMessageBox(HWND box) {
    MessageBoxSeen seen;
    seen.caption = TextOf(box);
    seen.owner = GetWindow(box, GW_OWNER);
    EnumChildWindows(box, ReadChild, reinterpret_cast<LPARAM>(&seen));
    return seen;
}
