// The list of what has been typed and answered: text that can be scrolled, marked and copied.
#pragma once

#include <windows.h>

#include <string_view>

class COutputList {
public:
    // Throws CUserError when there can be no window.
    explicit COutputList(HWND parent);

    HWND Handle() const { return m_window; }

    // Adds text at the end and scrolls there. A line feed ends a line; one at the very end shows only when
    // more text follows, so that the last line of the list is never empty. When the list grows long it
    // forgets its older half.
    void AddText(std::wstring_view text);
    // Adds a line of its own.
    void AddLine(std::wstring_view line);

    void ScrollPages(int pages);
    // Brings the caret into sight, which stands at the end unless the user has put it elsewhere: after a
    // change of the size, since another width breaks the lines elsewhere.
    void ShowCaret();

private:
    HWND m_window;
    bool m_isLineDue = false;  // a line feed is held back
};
