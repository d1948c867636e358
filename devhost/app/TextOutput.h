// DevHost's two outputs: results on the standard output, mistakes on the standard error output, UTF-8 when
// they go into a file or a pipe. Both are repeated to a listener, the main window's list. That is slow beside
// the outputs: pieces of text are collected for it, and what is too much to be read there is left out.
//
// A console that the system opened for this process alone, because a click and no shell started it, is let
// go of; then mistakes are shown in a message box unless there is a listener.
#pragma once

#include <functional>
#include <string>
#include <string_view>

class CTextOutput {
public:
    CTextOutput();

    void SetListener(std::function<void(std::wstring_view text)> listener) {
        m_listener = std::move(listener);
    }

    // A piece of text; line feeds in it end lines.
    void Text(std::wstring_view text);
    // Ends the line that a piece of text has left open, and tells the listener.
    void EndLine();
    // Tells the listener what has been collected, the second one unless that was just done.
    void Tell();
    void TellNowAndThen();
    // A result, as a line of its own.
    void Line(std::wstring_view text);
    // A mistake, as a line that begins with the program's name.
    void Error(std::wstring_view text);
    // A longer text that is for the shell alone.
    void Help(std::wstring_view text);

private:
    void Collect(std::wstring_view text);

    std::function<void(std::wstring_view)> m_listener;
    std::wstring m_collected;
    unsigned long long m_lastTold = 0;  // milliseconds of the system's clock
    bool m_isLineOpen = false;
    bool m_useBoxes = false;
};
