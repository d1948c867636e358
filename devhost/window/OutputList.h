// The output of the main window: text that can be scrolled, selected and copied, with errors in red.
#pragma once

#include <windows.h>

#include <string_view>

namespace devhost {

class COutputList {
public:
    // Throws CUserError when the window cannot be created.
    explicit COutputList(HWND parent);

    HWND Handle() const { return m_window; }

    // Appends text and scrolls to it. A line feed ends a line; a final one is shown only when more text
    // follows, so that the last line is never empty. When the text gets too long, its older half is removed.
    void AddText(std::wstring_view text);
    // Adds a line of its own.
    void AddLine(std::wstring_view line);

    void ScrollPages(int pages);
    // Scrolls to the caret, which is at the end unless the user moved it. To be called after a change of the
    // size, which changes the line breaks.
    void ShowCaret();

private:
    HWND m_window;
    bool m_isLineDue = false;  // a line feed is held back
};

}  // namespace devhost
