#include "tests/windows/support/UnexpectedBoxes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <string>

namespace {

// The controls of the system's message box, on Windows and under Wine.
constexpr int kTextIds[] = {0xFFFF, 100};
constexpr int kIconIds[] = {20, 1088};

struct Box {
    bool isMessageBox = true;
    HWND button = nullptr;  // the first one
    wchar_t text[1000] = {};
};

// Without a message, which a thread that hangs would not answer.
template <std::size_t Size>
void ReadText(HWND window, wchar_t (&text)[Size]) {
    InternalGetWindowText(window, text, static_cast<int>(Size));
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
        ReadText(control, box.text);
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

// For GoogleTest, which shows wide texts as numbers.
std::string Narrow(const std::wstring& text) {
    std::string bytes(text.size() * 3, '\0');
    bytes.resize(static_cast<size_t>(WideCharToMultiByte(CP_UTF8, 0, text.c_str(),
                                                         static_cast<int>(text.size()), bytes.data(),
                                                         static_cast<int>(bytes.size()), nullptr, nullptr)));
    return bytes;
}

}  // namespace

BOOL CALLBACK CUnexpectedBoxes::Collect(HWND window, LPARAM boxes) {
    wchar_t name[16] = {};
    GetClassNameW(window, name, static_cast<int>(std::size(name)));
    if (lstrcmpW(name, L"#32770") == 0 && IsWindowVisible(window) && IsWindowEnabled(window) &&
        ReadBox(window).isMessageBox) {
        for (SeenBox& box : *reinterpret_cast<SeenBoxes*>(boxes)) {
            if (box.window == nullptr) {
                box.window = window;
                return TRUE;
            }
        }
    }
    return TRUE;
}

void CUnexpectedBoxes::Look(DWORD thread) {
    SeenBoxes boxes;
    EnumThreadWindows(thread, Collect, reinterpret_cast<LPARAM>(&boxes));
    for (SeenBox& box : boxes) {
        if (box.window == nullptr) {
            break;
        }
        const ULONGLONG now = GetTickCount64();
        const auto known = std::find_if(m_seen.begin(), m_seen.end(),
                                        [&](const SeenBox& seen) { return seen.window == box.window; });
        box.since = known != m_seen.end() ? known->since : now;
        if (now - box.since < m_patience) {
            continue;
        }
        const Box read = ReadBox(box.window);
        wchar_t title[200] = {};
        ReadText(box.window, title);
        ADD_FAILURE() << "unexpected message box \"" << Narrow(title) << "\": " << Narrow(read.text);
        box.since = now;
        PostMessageW(read.button, BM_CLICK, 0, 0);
    }
    m_seen = boxes;
}
