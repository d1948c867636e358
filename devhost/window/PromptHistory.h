// The history of the prompt, for the Up and Down keys.
#pragma once

#include <string>
#include <vector>

namespace devhost {

class CPromptHistory {
public:
    // Adds a line, unless it is the latest already, and ends browsing.
    void Add(const std::wstring& line);

    // The next older or newer line, to be shown instead of `shown`, the current text of the prompt. After the
    // newest line comes the text that was in the prompt when browsing began. At either end returns `shown`.
    std::wstring Older(const std::wstring& shown);
    std::wstring Newer(const std::wstring& shown);

private:
    std::vector<std::wstring> m_lines;  // the oldest first
    std::size_t m_position = 0;         // in m_lines; m_lines.size(): not browsing
    std::wstring m_draft;
};

}  // namespace devhost
