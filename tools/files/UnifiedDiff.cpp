#include "tools/files/UnifiedDiff.h"

#include <algorithm>

namespace tavrin::tools {

namespace {

constexpr std::size_t kContext = 3;

void AppendLine(std::string& text, char sign, const std::string& line) {
    text += sign;
    text += line;
    if (line.empty() || line.back() != '\n') {
        text += "\n\\ No newline at end of file\n";
    }
}

// "7,3". An empty range names the line before it.
std::string Range(std::size_t first, std::size_t count) {
    const std::string start = std::to_string(count == 0 ? first : first + 1);
    return count == 1 ? start : start + "," + std::to_string(count);
}

using Edits = std::vector<LineEdit>;

// The end of the hunk that begins with `first`: the next edit that is too far from its predecessor.
Edits::const_iterator EndOfHunk(Edits::const_iterator first, Edits::const_iterator end) {
    for (auto next = first + 1; next != end; first = next++) {
        if (next->line - (first->line + first->removed) > 2 * kContext) {
            return next;
        }
    }
    return end;
}

}  // namespace

std::vector<LineEdit> EditsBetween(const std::vector<std::string>& before,
                                   const std::vector<std::string>& after) {
    std::vector<LineEdit> edits;
    for (std::size_t line = 0; line < before.size(); ++line) {
        if (before[line] == after[line]) {
            continue;
        }
        if (edits.empty() || edits.back().line + edits.back().removed != line) {
            edits.push_back({line, 0, {}});
        }
        ++edits.back().removed;
        edits.back().added.push_back(after[line]);
    }
    return edits;
}

std::string UnifiedDiff(const std::string& oldName, const std::string& newName,
                        const std::vector<std::string>& lines, const std::vector<LineEdit>& edits) {
    if (edits.empty()) {
        return {};
    }
    std::string diff = "--- " + oldName + "\n+++ " + newName + "\n";
    std::size_t offset = 0;  // new minus old line numbers, modulo 2^n
    for (auto first = edits.begin(); first != edits.end();) {
        const auto end = EndOfHunk(first, edits.end());
        const std::size_t start = first->line - std::min(first->line, kContext);
        const std::size_t stop = std::min((end - 1)->line + (end - 1)->removed + kContext, lines.size());
        std::string body;
        std::size_t grown = 0;
        std::size_t line = start;
        for (; first != end; ++first) {
            for (; line < first->line; ++line) {
                AppendLine(body, ' ', lines[line]);
            }
            for (; line < first->line + first->removed; ++line) {
                AppendLine(body, '-', lines[line]);
            }
            for (const std::string& added : first->added) {
                AppendLine(body, '+', added);
            }
            grown += first->added.size() - first->removed;
        }
        for (; line < stop; ++line) {
            AppendLine(body, ' ', lines[line]);
        }
        diff += "@@ -" + Range(start, stop - start) + " +" + Range(start + offset, stop - start + grown) +
                " @@\n" + body;
        offset += grown;
    }
    return diff;
}

}  // namespace tavrin::tools
