// The output of the main window: text that can be scrolled, selected and copied. Lines that begin with ";
// error",
// "; warning", "; alert" and "; note" are coloured.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace devhost {

class COutputList {
public:
    // Throws CUserError when the window cannot be created.
    explicit COutputList(HWND parent);

    HWND Handle() const { return m_window; }

    // Appends text and scrolls to its end. A line feed ends a line; a final one is shown only when more text
    // follows, so that the last line is never empty. When the text gets too long, its older half is removed.
    void AddText(std::wstring_view text);
    // Adds a line of its own.
    void AddLine(std::wstring_view line);

    void ScrollPages(int pages);
    // To be called after a change of the size, which changes the line breaks.
    void ShowEnd();

private:
    void Append(const std::wstring& text);

    HWND m_window;
    COLORREF m_colour;         // of the last line
    bool m_isLineDue = false;  // a line feed is held back
};

}  // namespace devhost
