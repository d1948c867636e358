// What has been typed at the prompt, to be had again with the Up and Down keys.
#pragma once

#include <string>
#include <vector>

class CPromptHistory {
public:
    // Remembers a line as the latest, unless it is the latest already. Ends walking.
    void Add(const std::wstring& line);

    // One step towards older or newer lines from `shown`, which is what the prompt shows now: the text to
    // show instead. What was being typed when the walk began comes back behind the newest line; at either
    // end the answer is `shown`.
    std::wstring Older(const std::wstring& shown);
    std::wstring Newer(const std::wstring& shown);

private:
    std::vector<std::wstring> m_lines;  // the oldest first
    std::size_t m_place = 0;            // in m_lines; its size: not walking
    std::wstring m_draft;
};
