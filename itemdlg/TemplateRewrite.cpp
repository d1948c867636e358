// Rewriting the lines of an item's files.
#include "TemplateRewrite.h"

#include <cstddef>
#include <map>
#include <optional>

#include "BlockTracker.h"
#include "NumberText.h"
#include "TemplateText.h"

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
    return L"$" + record.number + L" = \"" + record.labelPrefix + L"<<" + IntText(record.resourceId) + L">>" +
           record.labelSuffix + L"\"" + static_cast<wchar_t>(record.type) + valueText;
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
    std::map<std::wstring, std::size_t> lineOfNumber;
    CBlockTracker block;
    for (std::size_t index = 0; index < lines.size(); ++index) {
        if (!block.TakeLine(lines[index])) {
            continue;
        }
        if (std::optional<ParameterLine> parameter = ParseParameterLine(lines[index])) {
            // A number that occurs again belongs to its last line; the earlier ones are never rewritten.
            lineOfNumber[parameter->number] = index;
        }
    }
    for (const auto& [index, record] : records) {
        const auto found = lineOfNumber.find(record.number);
        if (found != lineOfNumber.end() && record.type != 'U') {
            lines[found->second] = TemplateFileLine(record, valueTextOf(record));
        }
    }
}
