#include "devhost/window/ErrorColor.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "handles/GdiScopes.h"

namespace devhost {

namespace {

constexpr COLORREF kErrorColor = RGB(176, 0, 32);
constexpr std::wstring_view kError = L"; error: ";

// A row of the control: a line of the text, or the part of one that fits its width.
struct Row {
    int begin = 0;  // of its characters in the whole text
    std::wstring text;
};

int Ask(HWND edit, UINT message, int parameter = 0) {
    return static_cast<int>(SendMessageW(edit, message, static_cast<WPARAM>(parameter), 0));
}

Row RowAt(HWND edit, int index) {
    Row row = {.begin = Ask(edit, EM_LINEINDEX, index), .text = {}};
    // The control takes the size of the buffer from its first character.
    row.text.resize(static_cast<std::size_t>(std::max(Ask(edit, EM_LINELENGTH, row.begin), 1)));
    row.text.front() = static_cast<wchar_t>(std::min<std::size_t>(row.text.size(), 0xFFFF));
    row.text.resize(static_cast<std::size_t>(SendMessageW(edit, EM_GETLINE, static_cast<WPARAM>(index),
                                                          reinterpret_cast<LPARAM>(row.text.data()))));
    return row;
}

// Whether the row goes on with the line of the row above.
bool IsContinued(HWND edit, int index) {
    const int above = index > 0 ? Ask(edit, EM_LINEINDEX, index - 1) : -1;
    return above >= 0 && above + Ask(edit, EM_LINELENGTH, above) == Ask(edit, EM_LINEINDEX, index);
}

bool IsSelected(HWND edit, const Row& row) {
    DWORD begin = 0;
    DWORD end = 0;
    SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&begin), reinterpret_cast<LPARAM>(&end));
    const auto first = static_cast<DWORD>(row.begin);
    return begin < end && begin <= first + row.text.size() && end > first;
}

void DrawRow(HWND edit, HDC dc, const Row& row) {
    const int position = Ask(edit, EM_POSFROMCHAR, row.begin);
    TextOutW(dc, GET_X_LPARAM(position), GET_Y_LPARAM(position), row.text.c_str(),
             static_cast<int>(row.text.size()));
}

void DrawErrors(HWND edit) {
    RECT area;
    SendMessageW(edit, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&area));
    const tavrin::handles::CClientDc dc(edit);
    const tavrin::handles::CSelectedObject font(
        dc.Get(), reinterpret_cast<HGDIOBJ>(SendMessageW(edit, WM_GETFONT, 0, 0)));
    SendMessageW(GetParent(edit), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc.Get()),
                 reinterpret_cast<LPARAM>(edit));
    SetTextColor(dc.Get(), kErrorColor);
    IntersectClipRect(dc.Get(), area.left, area.top, area.right, area.bottom);
    TEXTMETRICW metrics;
    GetTextMetricsW(dc.Get(), &metrics);

    const int first = Ask(edit, EM_GETFIRSTVISIBLELINE);
    const int count = Ask(edit, EM_GETLINECOUNT);
    const int end =
        std::min<int>(count, first + (area.bottom - area.top) / std::max<int>(metrics.tmHeight, 1) + 1);
    int begin = first;
    while (begin > 0 && IsContinued(edit, begin)) {
        --begin;
    }
    bool isError = false;
    for (int index = begin; index < end; ++index) {
        const Row row = RowAt(edit, index);
        isError = IsContinued(edit, index) ? isError : row.text.starts_with(kError);
        if (isError && index >= first && !IsSelected(edit, row)) {
            DrawRow(edit, dc.Get(), row);
        }
    }
}

// After each message that draws the text, or the selection without a WM_PAINT.
LRESULT CALLBACK EditProc(HWND edit, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                          DWORD_PTR) noexcept {
    const LRESULT result = DefSubclassProc(edit, message, wParam, lParam);
    switch (message) {
        case WM_PAINT:
        case WM_LBUTTONDOWN:
        case WM_MOUSEMOVE:
        case WM_KEYDOWN:
            DrawErrors(edit);
            break;
        default:
            break;
    }
    return result;
}

}  // namespace

void ColorErrors(HWND edit) {
    SetWindowSubclass(edit, EditProc, 0, 0);
}

}  // namespace devhost
