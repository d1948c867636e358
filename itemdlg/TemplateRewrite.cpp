// Rewriting the lines of an item's files.
#include "TemplateRewrite.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>

#include "BlockTracker.h"
#include "NumberText.h"
#include "TemplateText.h"

namespace {

// In which lines of a file the numbers stand. Files list their numbers mostly in ascending order, so that
// they come and are looked for in the order that they are kept in: shorter ones first, then as texts.
class CNumberedLines {
public:
    // The number, which is not copied, stands in that line, in place of any line before.
    void Add(std::wstring_view number, std::size_t line) { m_lines.push_back({number, line}); }

    // To be called once, between the last Add and the first Find.
    void Sort() {
        if (!std::is_sorted(m_lines.begin(), m_lines.end(), StandsBefore)) {
            std::sort(m_lines.begin(), m_lines.end(), StandsBefore);
        }
        // Of the lines with one number the last one counts: it becomes the first of those that are kept.
        const auto same = [](const Line& one, const Line& other) { return one.number == other.number; };
        m_lines.erase(m_lines.begin(), std::unique(m_lines.rbegin(), m_lines.rend(), same).base());
        m_next = m_lines.begin();
    }

    std::optional<std::size_t> Find(std::wstring_view number) {
        if (m_next == m_lines.end() || m_next->number != number) {
            m_next = std::lower_bound(m_lines.begin(), m_lines.end(), Line{number, 0}, StandsBefore);
        }
        if (m_next == m_lines.end() || m_next->number != number) {
            return std::nullopt;
        }
        return m_next++->line;
    }

private:
    struct Line {
        std::wstring_view number;
        std::size_t line;
    };

    static bool StandsBefore(const Line& one, const Line& other) {
        const std::size_t size = one.number.size();
        if (size != other.number.size()) {
            return size < other.number.size();
        }
        const int order = one.number.compare(other.number);
        return order != 0 ? order < 0 : one.line < other.line;
    }

    std::vector<Line> m_lines;
    std::vector<Line>::iterator m_next;  // behind the line that was found last
};

// For each record the line that it belongs to: the last one in a block with its number.
std::vector<std::optional<std::size_t>> TemplateLines(const TextLines& lines, const ParamRecordMap& records) {
    CNumberedLines numbered;
    CBlockTracker block;
    for (std::size_t index = 0; index < lines.size(); ++index) {
        if (!block.TakeLine(lines[index])) {
            continue;
        }
        if (const std::optional<ParameterParts> parameter = SplitParameterLine(lines[index])) {
            numbered.Add(parameter->number, index);
        }
    }
    numbered.Sort();
    std::vector<std::optional<std::size_t>> found;
    found.reserve(records.size());
    for (const auto& [index, record] : records) {
        found.push_back(numbered.Find(record.number));
    }
    return found;
}

}  // namespace

std::wstring ValueText(const ParamRecord& record, double scale) {
    switch (record.type) {
        case 'I':
            return IntText(record.intValue);
        case 'D':
        case 'R':
            return GeneralText(record.realValue / scale);
        default:
            return std::wstring();
    }
}

std::wstring WorkingFileLine(const ParamRecord& record, const std::wstring& valueText) {
    return (record.type == 'I' ? L"$" : L"#") + record.number + L" = " + valueText;
}

std::wstring TemplateFileLine(const ParamRecord& record, const std::wstring& valueText) {
    const std::wstring id = IntText(record.resourceId);
    constexpr std::size_t kSigns = 12;
    std::wstring line;
    line.reserve(record.number.size() + record.labelPrefix.size() + id.size() + record.labelSuffix.size() +
                 valueText.size() + kSigns);
    line.append(L"$").append(record.number).append(L" = \"").append(record.labelPrefix);
    line.append(L"<<").append(id).append(L">>").append(record.labelSuffix).append(L"\"");
    line.push_back(static_cast<wchar_t>(record.type));
    return line.append(valueText);
}

void RewriteWorkingFile(TextLines& lines, const ParamRecordMap& records, const ValueTextOf& valueTextOf) {
    for (const auto& [index, record] : records) {
        const auto line = static_cast<std::size_t>(index);
        if (line < lines.size()) {
            lines[line] = WorkingFileLine(record, record.type == 'U' ? std::wstring() : valueTextOf(record));
        }
    }
}

void RewriteTemplateFile(TextLines& lines, const ParamRecordMap& records, const ValueTextOf& valueTextOf) {
    const std::vector<std::optional<std::size_t>> lineOfRecord = TemplateLines(lines, records);
    auto line = lineOfRecord.begin();
    for (const auto& [index, record] : records) {
        if (line->has_value() && record.type != 'U') {
            lines[**line] = TemplateFileLine(record, valueTextOf(record));
        }
        ++line;
    }
}
