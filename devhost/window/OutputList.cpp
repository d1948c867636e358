#include "devhost/window/OutputList.h"

#include <cstdlib>
#include <string>

#include "devhost/UserError.h"
#include "devhost/window/Commands.h"
#include "devhost/window/ErrorColor.h"

namespace devhost {

namespace {

// In characters.
constexpr int kMaxText = 60'000;

}  // namespace

COutputList::COutputList(HWND parent)
    : m_window(CreateWindowExW(
          0, L"EDIT", L"", WS_CHILD | WS_VISIBLE | WS_VSCROLL | ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL,
          0, 0, 0, 0, parent, reinterpret_cast<HMENU>(INT_PTR(IDC_OUTPUT)), GetModuleHandleW(nullptr),
          nullptr)) {
    if (m_window == nullptr) {
        throw CUserError(L"the main window cannot be opened");
    }
    SendMessageW(m_window, EM_SETLIMITTEXT, 0, 0);
    ColorErrors(m_window);
}

void COutputList::AddText(std::wstring_view text) {
    if (text.empty()) {
        return;
    }
    std::wstring added;
    if (m_isLineDue) {
        added = L"\r\n";
    }
    m_isLineDue = text.back() == L'\n';
    if (m_isLineDue) {
        text.remove_suffix(1);
    }
    for (const wchar_t letter : text) {
        if (letter == L'\n') {
            added += L"\r\n";
        } else if (letter != L'\r') {
            added += letter;
        }
    }

    if (GetWindowTextLengthW(m_window) > kMaxText) {
        SendMessageW(m_window, EM_SETSEL, 0, kMaxText / 2);
        SendMessageW(m_window, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(L""));
    }
    const int end = GetWindowTextLengthW(m_window);
    SendMessageW(m_window, EM_SETSEL, static_cast<WPARAM>(end), end);
    SendMessageW(m_window, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(added.c_str()));
    ShowCaret();
}

void COutputList::AddLine(std::wstring_view line) {
    if (!m_isLineDue && GetWindowTextLengthW(m_window) > 0) {
        m_isLineDue = true;
    }
    AddText(std::wstring(line) + L'\n');
}

void COutputList::ScrollPages(int pages) {
    for (int i = 0; i < std::abs(pages); ++i) {
        SendMessageW(m_window, EM_SCROLL, pages < 0 ? SB_PAGEUP : SB_PAGEDOWN, 0);
    }
}

void COutputList::ShowCaret() {
    SendMessageW(m_window, EM_SCROLLCARET, 0, 0);
}

}  // namespace devhost
