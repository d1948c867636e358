#include "tests/windows/support/UnexpectedBoxes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <set>
#include <string>

namespace {

// The controls of the system's message box, on Windows and under Wine.
constexpr int kTextIds[] = {0xFFFF, 100};
constexpr int kIconIds[] = {20, 1088};

struct Box {
    bool isMessageBox = true;
    HWND button = nullptr;  // the first one
    std::wstring text;
};

// Without a message, which a thread that hangs would not answer.
std::wstring TextOf(HWND window) {
    wchar_t text[1000] = {};
    InternalGetWindowText(window, text, static_cast<int>(std::size(text)));
    return text;
}

bool IsOneOf(int id, const int (&ids)[2]) {
    return std::find(std::begin(ids), std::end(ids), id) != std::end(ids);
}

BOOL CALLBACK ReadControl(HWND control, LPARAM parameter) {
    Box& box = *reinterpret_cast<Box*>(parameter);
    const int id = static_cast<int>(static_cast<WORD>(GetDlgCtrlID(control)));
    wchar_t name[16] = {};
    GetClassNameW(control, name, static_cast<int>(std::size(name)));
    if (lstrcmpiW(name, L"Button") == 0 && id >= IDOK && id <= IDCONTINUE) {
        box.button = box.button == nullptr ? control : box.button;
    } else if (lstrcmpiW(name, L"Static") == 0 && IsOneOf(id, kTextIds)) {
        box.text = TextOf(control);
    } else if (!IsOneOf(id, kIconIds)) {
        box.isMessageBox = false;
    }
    return TRUE;
}

Box ReadBox(HWND dialog) {
    Box box;
    EnumChildWindows(dialog, ReadControl, reinterpret_cast<LPARAM>(&box));
    box.isMessageBox = box.isMessageBox && box.button != nullptr;
    return box;
}

BOOL CALLBACK CollectBox(HWND window, LPARAM boxes) {
    wchar_t name[16] = {};
    GetClassNameW(window, name, static_cast<int>(std::size(name)));
    if (lstrcmpW(name, L"#32770") == 0 && IsWindowVisible(window) && IsWindowEnabled(window) &&
        ReadBox(window).isMessageBox) {
        reinterpret_cast<std::set<HWND>*>(boxes)->insert(window);
    }
    return TRUE;
}

// For GoogleTest, which shows wide texts as numbers.
std::string Narrow(const std::wstring& text) {
    std::string bytes(text.size() * 3, '\0');
    bytes.resize(static_cast<size_t>(WideCharToMultiByte(CP_UTF8, 0, text.c_str(),
                                                         static_cast<int>(text.size()), bytes.data(),
                                                         static_cast<int>(bytes.size()), nullptr, nullptr)));
    return bytes;
}

}  // namespace

void CUnexpectedBoxes::Look(DWORD thread) {
    std::set<HWND> boxes;
    EnumThreadWindows(thread, CollectBox, reinterpret_cast<LPARAM>(&boxes));
    std::erase_if(m_since, [&](const auto& known) { return !boxes.contains(known.first); });
    for (const HWND window : boxes) {
        const ULONGLONG now = GetTickCount64();
        ULONGLONG& since = m_since.try_emplace(window, now).first->second;
        if (now - since < m_patience) {
            continue;
        }
        const Box box = ReadBox(window);
        ADD_FAILURE() << "unexpected message box \"" << Narrow(TextOf(window)) << "\": " << Narrow(box.text);
        since = now;
        PostMessageW(box.button, BM_CLICK, 0, 0);
    }
}
