#include "tools/rules/FindingList.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace tavrin::tools {

Finding CFindingList::Make(const Rule& rule, const ItemLine& line, std::size_t start, std::size_t length,
                           std::string message) const {
    Finding finding = Make(rule, std::move(message));
    finding.line = line.index + 1;
    finding.column = start + 1;
    finding.length = length;
    finding.excerpt = MakeExcerpt(line.text, start, length);
    return finding;
}

Finding CFindingList::Make(const Rule& rule, std::string message) const {
    Finding finding;
    finding.rule = &rule;
    finding.file = m_file;
    finding.message = std::move(message);
    return finding;
}

std::vector<Finding> CFindingList::Take() {
    std::stable_sort(m_findings.begin(), m_findings.end(), [](const Finding& a, const Finding& b) {
        return std::tie(a.line, a.column) < std::tie(b.line, b.column);
    });
    return std::exchange(m_findings, {});
}

}  // namespace tavrin::tools
