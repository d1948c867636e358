#include "devhost/window/OutputList.h"

#include <richedit.h>

#include <cstdlib>

#include "devhost/UserError.h"
#include "devhost/window/Commands.h"

namespace devhost {

namespace {

constexpr LONG kMaxText = 60'000;  // characters

constexpr COLORREF kPlain = RGB(28, 36, 48);
constexpr struct {
    std::wstring_view start;
    COLORREF colour;
} kColours[] = {{L"; error", RGB(180, 20, 20)},
                {L"; warning", RGB(150, 90, 0)},
                {L"; alert", RGB(150, 90, 0)},
                {L"; note", RGB(0, 60, 160)}};

COLORREF ColourOf(std::wstring_view line) {
    for (const auto& [start, colour] : kColours) {
        if (line.starts_with(start)) {
            return colour;
        }
    }
    return kPlain;
}

// The class of the control is registered by this library.
const wchar_t* RichEditClass() {
    LoadLibraryW(L"Msftedit.dll");
    return MSFTEDIT_CLASS;
}

void Select(HWND window, LONG start, LONG end) {
    CHARRANGE range = {start, end};
    SendMessageW(window, EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&range));
}

LONG LengthOf(HWND window) {
    GETTEXTLENGTHEX precise = {GTL_NUMCHARS | GTL_PRECISE, 1200};
    return LONG(SendMessageW(window, EM_GETTEXTLENGTHEX, reinterpret_cast<WPARAM>(&precise), 0));
}

}  // namespace

COutputList::COutputList(HWND parent)
    : m_window(CreateWindowExW(
          0, RichEditClass(), L"",
          WS_CHILD | WS_VISIBLE | WS_VSCROLL | ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL, 0, 0, 0, 0,
          parent, reinterpret_cast<HMENU>(INT_PTR(IDC_OUTPUT)), GetModuleHandleW(nullptr), nullptr)),
      m_colour(kPlain) {
    if (m_window == nullptr) {
        throw CUserError(L"the main window cannot be opened");
    }
    SendMessageW(m_window, EM_EXLIMITTEXT, 0, 4 * kMaxText);
    SendMessageW(m_window, EM_SETUNDOLIMIT, 0, 0);
}

void COutputList::AddText(std::wstring_view text) {
    if (text.empty()) {
        return;
    }
    if (LengthOf(m_window) > kMaxText) {
        Select(m_window, 0, kMaxText / 2);
        SendMessageW(m_window, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(L""));
    }
    bool isNewLine = m_isLineDue || LengthOf(m_window) == 0;
    std::wstring run;  // of one colour
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = text.find(L'\n', start);
        const std::wstring_view line = text.substr(start, end - start);
        if (end == text.npos && line.empty()) {
            break;  // the feed of the last line is held back
        }
        const COLORREF colour = isNewLine ? ColourOf(line) : m_colour;
        if (colour != m_colour) {
            Append(run);
            run.clear();
            m_colour = colour;
        }
        run += m_isLineDue ? L"\r\n" : L"";
        for (const wchar_t letter : line) {
            run.append(letter == L'\r' ? 0 : 1, letter);
        }
        m_isLineDue = end != text.npos;
        isNewLine = m_isLineDue;
        start = m_isLineDue ? end + 1 : text.size() + 1;
    }
    Append(run);
    ShowEnd();
}

void COutputList::Append(const std::wstring& text) {
    if (text.empty()) {
        return;
    }
    const LONG end = LengthOf(m_window);
    Select(m_window, end, end);
    CHARFORMATW format = {};
    format.cbSize = sizeof format;
    format.dwMask = CFM_COLOR;
    format.crTextColor = m_colour;
    SendMessageW(m_window, EM_SETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
    SendMessageW(m_window, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(text.c_str()));
}

void COutputList::AddLine(std::wstring_view line) {
    if (!m_isLineDue && LengthOf(m_window) > 0) {
        m_isLineDue = true;
    }
    AddText(std::wstring(line) + L'\n');
}

void COutputList::ScrollPages(int pages) {
    for (int i = 0; i < std::abs(pages); ++i) {
        SendMessageW(m_window, WM_VSCROLL, pages < 0 ? SB_PAGEUP : SB_PAGEDOWN, 0);
    }
}

void COutputList::ShowEnd() {
    SendMessageW(m_window, WM_VSCROLL, SB_BOTTOM, 0);
}

}  // namespace devhost
