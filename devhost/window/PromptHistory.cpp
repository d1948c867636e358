#include "devhost/window/PromptHistory.h"

namespace devhost {

namespace {

constexpr std::size_t kMaxLines = 200;

}  // namespace

void CPromptHistory::Add(const std::wstring& line) {
    if (m_lines.empty() || m_lines.back() != line) {
        m_lines.push_back(line);
    }
    if (m_lines.size() > kMaxLines) {
        m_lines.erase(m_lines.begin());
    }
    m_position = m_lines.size();
}

std::wstring CPromptHistory::Older(const std::wstring& shown) {
    if (m_position == 0) {
        return shown;
    }
    if (m_position == m_lines.size()) {
        m_draft = shown;
    }
    return m_lines[--m_position];
}

std::wstring CPromptHistory::Newer(const std::wstring& shown) {
    if (m_position == m_lines.size()) {
        return shown;
    }
    ++m_position;
    return m_position == m_lines.size() ? m_draft : m_lines[m_position];
}

}  // namespace devhost
