// Reading the lines of an item's files.
#include "itemdlg/TemplateText.h"

#include <new>
#include <utility>

#include "itemdlg/NumberText.h"
#include "itemdlg/TemplatePatterns.h"
#include "pattern/PatternMatcher.h"

namespace tavrin::itemdlg {

namespace {

// The patterns are correct, so parsing fails only out of memory. The caller's static variable then stays
// uninitialized, and the next call parses again.
pattern::CPatternMatcher Compiled(const wchar_t* text) {
    pattern::CPatternMatcher matcher;
    if (matcher.Parse(text, false) != pattern::PE_NONE) {
        throw std::bad_alloc();
    }
    return matcher;
}

// Only capital type letters are types, although the pattern, matched without regard to case, lets small ones
// through.
std::int32_t TypeOf(wchar_t letter) {
    return letter == L'I' || letter == L'D' || letter == L'R' ? letter : L'U';
}

}  // namespace

std::optional<ParameterLine> ParseParameterLine(const std::wstring& line) {
    const std::optional<ParameterParts> parts = SplitParameterLine(line);
    if (!parts) {
        return std::nullopt;
    }
    return ParameterLine{std::wstring(parts->number), std::wstring(parts->label), parts->typeLetter,
                         std::wstring(parts->value)};
}

std::optional<ParameterParts> SplitParameterLine(const std::wstring& line) {
    static const pattern::CPatternMatcher matcher = Compiled(kParameterPattern);
    pattern::CMatchContext context;
    if (!matcher.Match(line.c_str(), &context)) {
        return std::nullopt;
    }
    return ParameterParts{context.GroupText(0), context.GroupText(1), context.GroupText(2).front(),
                          context.GroupText(3)};
}

int PlaceholderNumber(const std::wstring& text) {
    static const pattern::CPatternMatcher matcher = Compiled(kPlaceholderPattern);
    pattern::CMatchContext context;
    return matcher.Match(text.c_str(), &context) ? LeadingInt(context.GroupText(0)) : 0;
}

std::wstring ResourceText(int number, const TextLookup& lookup) {
    if (number < 1 || number > kHighestTextNumber) {
        return std::wstring();
    }
    return lookup(static_cast<unsigned>(number));
}

std::wstring TitleText(const std::wstring& line, const TextLookup& lookup,
                       const PlaceholderLookup& placeholder) {
    const int number = placeholder(line);
    return number != 0 ? ResourceText(number, lookup) : line;
}

std::wstring_view LabelPrefix(std::wstring_view label) {
    const std::size_t opening = label.find(L"<<");
    return opening == std::wstring_view::npos ? std::wstring_view() : label.substr(0, opening);
}

std::wstring_view LabelSuffix(std::wstring_view label) {
    const std::size_t closing = label.find(L">>");
    if (closing != std::wstring_view::npos) {
        return label.substr(closing + 2);
    }
    // Position -1 and two characters for the signs that are not there: one character is lost.
    return label.empty() ? label : label.substr(1);
}

bool TakeReadOnlyMark(std::wstring& label) {
    const bool marked = !label.empty() && label.back() == L'%';
    if (marked) {
        label.pop_back();
    }
    return marked;
}

void FillRow(const ParameterParts& parameter, const std::wstring& line, std::int32_t lineIndex, double scale,
             int mode, const TextLookup& lookup, ParameterRow& row, const PlaceholderLookup& placeholder) {
    ParamRecord& record = row.record;
    record.number = parameter.number;
    record.lineIndex = lineIndex;
    // Also for a label without placeholder, which so loses its first character when it is written back.
    record.labelPrefix = LabelPrefix(parameter.label);
    record.labelSuffix = LabelSuffix(parameter.label);
    if (const int number = placeholder(std::wstring(parameter.label)); number != 0) {
        record.label = ResourceText(number, lookup).insert(0, record.labelPrefix).append(record.labelSuffix);
        // The number is that of the whole line: a placeholder in the value is the last one and counts.
        record.resourceId = placeholder(line);
    } else {
        record.label = parameter.label;
    }
    const bool marked = TakeReadOnlyMark(record.label);
    row.editable = !marked || mode != kReadOnlyMode;
    record.type = TypeOf(parameter.typeLetter);
    if (record.type == 'I') {
        record.intValue = FloorToInt(DecimalValue(parameter.value));
    } else if (record.type == 'D' || record.type == 'R') {
        record.realValue = DecimalValue(parameter.value) * scale;
    }
}

std::optional<ParameterRow> ReadParameter(const std::wstring& line, std::int32_t lineIndex, double scale,
                                          int mode, const TextLookup& lookup) {
    const std::optional<ParameterParts> parameter = SplitParameterLine(line);
    if (!parameter) {
        return std::nullopt;
    }
    std::optional<ParameterRow> row(std::in_place);
    FillRow(*parameter, line, lineIndex, scale, mode, lookup, *row);
    return row;
}

}  // namespace tavrin::itemdlg
