// Rewriting the lines of an item's files.
#include "itemdlg/TemplateRewrite.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "itemdlg/BlockTracker.h"
#include "itemdlg/NumberText.h"
#include "itemdlg/TemplateText.h"

namespace tavrin::itemdlg {

namespace {

// The last line in a block for each number. The numbers are parts of the lines.
std::unordered_map<std::wstring_view, std::size_t> LinesByNumber(const TextLines& lines) {
    std::unordered_map<std::wstring_view, std::size_t> result;
    CBlockTracker block;
    for (std::size_t index = 0; index < lines.size(); ++index) {
        if (!block.TakeLine(lines[index])) {
            continue;
        }
        if (const std::optional<ParameterParts> parameter = SplitParameterLine(lines[index])) {
            result[parameter->number] = index;
        }
    }
    return result;
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
    return (record.type == 'I' ? L'$' : L'#') + record.number + L" = " + valueText;
}

std::wstring TemplateFileLine(const ParamRecord& record, const std::wstring& valueText) {
    return L'$' + record.number + L" = \"" + record.labelPrefix + L"<<" + IntText(record.resourceId) + L">>" +
           record.labelSuffix + L'"' + static_cast<wchar_t>(record.type) + valueText;
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
    const std::unordered_map<std::wstring_view, std::size_t> lineOf = LinesByNumber(lines);
    std::vector<std::pair<std::size_t, std::wstring>> changes;
    for (const auto& [index, record] : records) {
        const auto line = lineOf.find(record.number);
        if (line != lineOf.end() && record.type != 'U') {
            changes.emplace_back(line->second, TemplateFileLine(record, valueTextOf(record)));
        }
    }
    for (auto& [line, text] : changes) {
        lines[line] = std::move(text);
    }
}

}  // namespace tavrin::itemdlg
