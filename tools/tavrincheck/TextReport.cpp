#include <algorithm>

#include "tools/tavrincheck/Report.h"

namespace tavrin::tools {

std::string TextReport(std::span<const Finding> findings) {
    constexpr std::size_t kIndent = 4;
    std::string report;
    for (const Finding& finding : findings) {
        report += finding.file;
        if (finding.line != 0) {
            report += ':' + std::to_string(finding.line) + ':' + std::to_string(finding.column);
        }
        report += ": ";
        report += SeverityName(finding.rule->severity);
        report += ": " + finding.message + " [";
        report += finding.rule->id;
        report += "]\n";
        const Excerpt& excerpt = finding.excerpt;
        if (!excerpt.text.empty()) {
            report.append(kIndent, ' ').append(excerpt.text).append("\n");
            report.append(kIndent + excerpt.start, ' ').append("^");
            report.append(std::max<std::size_t>(excerpt.length, 1) - 1, '~').append("\n");
        }
    }
    return report;
}

}  // namespace tavrin::tools
