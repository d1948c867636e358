#include "devhost/window/PromptPaste.h"

#include <commctrl.h>

namespace devhost {

namespace {

// The text in the clipboard; empty when there is none or the clipboard is in use.
std::wstring ClipboardText(HWND window) {
    std::wstring text;
    if (!OpenClipboard(window)) {
        return text;
    }
    if (const HANDLE data = GetClipboardData(CF_UNICODETEXT)) {
        if (const auto* start = static_cast<const wchar_t*>(GlobalLock(data))) {
            // The memory may be larger than the null-terminated text.
            const std::wstring_view whole(start, GlobalSize(data) / sizeof(wchar_t));
            text = whole.substr(0, whole.find(L'\0'));
            GlobalUnlock(data);
        }
    }
    CloseClipboard();
    return text;
}

LRESULT CALLBACK PasteProc(HWND edit, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                           DWORD_PTR data) noexcept {
    const auto& join = *reinterpret_cast<const JoinLines*>(data);
    if (message == WM_PASTE && join) {
        const std::wstring text = ClipboardText(edit);
        if (text.find(L'\n') != std::wstring::npos) {
            SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(join(text).c_str()));
            return 0;
        }
    }
    return DefSubclassProc(edit, message, wParam, lParam);
}

}  // namespace

void JoinPastedLines(HWND edit, const JoinLines& join) {
    SetWindowSubclass(edit, PasteProc, 0, reinterpret_cast<DWORD_PTR>(&join));
}

}  // namespace devhost
