// DevHost's output: results on standard output, errors on standard error, as UTF-8 when redirected to a file
// or a pipe. Both are repeated to a listener, the list in the main window. The list is slow: text is
// collected for it, and what is too long to read there is left out.
//
// A console that the system created for this process alone, because it was not started from a shell, is
// released; then errors are shown in a message box unless there is a listener.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace devhost {

class CTextOutput {
public:
    CTextOutput();

    void SetListener(std::function<void(std::wstring_view text)> listener) {
        m_listener = std::move(listener);
    }

    // A piece of text; line feeds in it end lines.
    void Text(std::wstring_view text);
    // Ends the line that a piece of text has left open, and flushes.
    void EndLine();
    // Passes the collected text to the listener; the second one only when the last time is long enough ago.
    void Flush();
    void FlushIfDue();
    // A result, as a line of its own.
    void Line(std::wstring_view text);
    // An error, as a line that begins with the program's name.
    void Error(std::wstring_view text);
    // A longer text that the listener does not get.
    void Help(std::wstring_view text) const;

private:
    void Collect(std::wstring_view text);

    std::function<void(std::wstring_view)> m_listener;
    std::wstring m_collected;
    unsigned long long m_lastFlush = 0;  // milliseconds of the system's clock
    bool m_isLineOpen = false;
    bool m_useBoxes = false;
};

}  // namespace devhost
