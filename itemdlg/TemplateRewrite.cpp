// Rewriting the lines of an item's files.
#include "itemdlg/TemplateRewrite.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>

#include "itemdlg/BlockTracker.h"
#include "itemdlg/NumberText.h"
#include "itemdlg/TemplateText.h"

using namespace std::string_view_literals;

namespace {

// In which lines of a file the numbers stand. Files list their numbers mostly in ascending order, so that
// they come and are looked for in the order that they are kept in: shorter ones first, then as texts.
class CNumberedLines {
public:
    explicit CNumberedLines(std::size_t expected) { m_lines.reserve(expected); }

    // The number, which is not copied, stands in that line, in place of any line before. Lines must come in
    // their order.
    void Add(std::wstring_view number, std::size_t line) {
        m_ascending = m_ascending && (m_lines.empty() || IsBelow(m_lines.back().number, number));
        m_lines.push_back({number, line});
    }

    // To be called once, between the last Add and the first Find.
    void Sort() {
        if (!m_ascending) {
            std::sort(m_lines.begin(), m_lines.end(), StandsBefore);
            // Of the lines with one number the last one counts: the first from behind is kept.
            const auto same = [](const Line& one, const Line& other) { return one.number == other.number; };
            m_lines.erase(m_lines.begin(), std::unique(m_lines.rbegin(), m_lines.rend(), same).base());
        }
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

    static bool IsBelow(std::wstring_view one, std::wstring_view other) {
        return one.size() != other.size() ? one.size() < other.size() : one < other;
    }

    static bool StandsBefore(const Line& one, const Line& other) {
        return one.number == other.number ? one.line < other.line : IsBelow(one.number, other.number);
    }

    bool m_ascending = true;
    std::vector<Line> m_lines;
    std::vector<Line>::iterator m_next;  // behind the line that was found last
};

struct Place {
    const ParamRecord* record;
    std::size_t line;
};

// Where the records belong, in their order: to the last line in a block with their number.
std::vector<Place> TemplatePlaces(const TextLines& lines, const ParamRecordMap& records) {
    CNumberedLines numbered(records.size());
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
    std::vector<Place> places;
    places.reserve(records.size());
    for (const auto& [index, record] : records) {
        if (const std::optional<std::size_t> line = numbered.Find(record.number)) {
            places.push_back({&record, *line});
        }
    }
    return places;
}

// Both put a line in the place of another, whose memory is used again.
void PutWorkingFileLine(std::wstring& line, const ParamRecord& record, std::wstring_view valueText) {
    line.assign(1, record.type == 'I' ? L'$' : L'#').append(record.number).append(L" = "sv).append(valueText);
}

void PutTemplateFileLine(std::wstring& line, const ParamRecord& record, std::wstring_view valueText) {
    line.assign(1, L'$').append(record.number).append(L" = \""sv).append(record.labelPrefix);
    line.append(L"<<"sv).append(IntText(record.resourceId)).append(L">>"sv).append(record.labelSuffix);
    line.append(1, L'"').append(1, static_cast<wchar_t>(record.type)).append(valueText);
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
    std::wstring line;
    PutWorkingFileLine(line, record, valueText);
    return line;
}

std::wstring TemplateFileLine(const ParamRecord& record, const std::wstring& valueText) {
    std::wstring line;
    PutTemplateFileLine(line, record, valueText);
    return line;
}

void RewriteWorkingFile(TextLines& lines, const ParamRecordMap& records, const ValueTextOf& valueTextOf) {
    for (const auto& [index, record] : records) {
        const auto line = static_cast<std::size_t>(index);
        if (line < lines.size()) {
            PutWorkingFileLine(lines[line], record,
                               record.type == 'U' ? std::wstring() : valueTextOf(record));
        }
    }
}

void RewriteTemplateFile(TextLines& lines, const ParamRecordMap& records, const ValueTextOf& valueTextOf) {
    for (const Place& place : TemplatePlaces(lines, records)) {
        if (place.record->type != 'U') {
            PutTemplateFileLine(lines[place.line], *place.record, valueTextOf(*place.record));
        }
    }
}
