// Tracks the parameter blocks of a file, line by line.
#pragma once

#include <string_view>

namespace tavrin::itemdlg {

class CBlockTracker {
public:
    static constexpr std::wstring_view kOpeningLine = L"VAR";
    static constexpr std::wstring_view kClosingLine = L"END_VAR";

    // Takes the next line of the file. True for an ordinary line inside an open block, which may hold a
    // parameter; false outside of blocks and for the two lines that open and close one.
    //
    // A block is opened by the line VAR, in an open block an ordinary line, and closed by END_VAR. Both are
    // compared with the whole line, null characters in it included: no blanks, no other case.
    bool TakeLine(std::wstring_view line) {
        if (line == kClosingLine) {
            m_open = false;
            return false;
        }
        if (!m_open) {
            m_open = line == kOpeningLine;
            return false;
        }
        return true;
    }

    // Whether a block is open after the lines taken so far.
    bool IsOpen() const { return m_open; }

private:
    bool m_open = false;
};

}  // namespace tavrin::itemdlg
