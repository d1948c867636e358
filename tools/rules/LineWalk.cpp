#include "tools/rules/LineWalk.h"

#include <algorithm>
#include <utility>

#include "itemdlg/BlockTracker.h"
#include "tools/files/FileLines.h"
#include "tools/rules/ByteRules.h"

namespace tavrin::tools {

namespace {

ELineKind KindOf(const std::wstring& line, itemdlg::CBlockTracker& block) {
    const bool wasOpen = block.IsOpen();
    const bool mayBeParameter = block.TakeLine(line);
    if (wasOpen != block.IsOpen()) {
        return wasOpen ? LK_CLOSING : LK_OPENING;
    }
    return mayBeParameter ? LK_IGNORED : LK_OUTSIDE;
}

std::wstring PlaceholderAsText(unsigned number) {
    return L"<<" + WideNumber(static_cast<int>(number)) + L">>";
}

// False when the line is not a parameter.
bool ReadAsParameter(const ItemLine& line, Parameter& parameter) {
    const std::optional<itemdlg::ParameterParts> parts = itemdlg::SplitParameterLine(line.text);
    if (!parts) {
        return false;
    }
    // Reuses the memory of the previous line's texts.
    parameter.parts.number = parts->number;
    parameter.parts.label = parts->label;
    parameter.parts.typeLetter = parts->typeLetter;
    parameter.parts.value = parts->value;
    itemdlg::ParameterRow row;
    itemdlg::FillRow(*parts, line.text, static_cast<std::int32_t>(line.index), 1.0, 0, PlaceholderAsText,
                     row);
    parameter.record = std::move(row.record);
    // The record has the number of the line's last placeholder, which may be in the value.
    const bool inValue = parts->value.find(L"<<") != std::wstring_view::npos;
    parameter.placeholder =
        inValue ? itemdlg::PlaceholderNumber(parameter.parts.label) : parameter.record.resourceId;
    // The patterns see a line up to its first null character, and the value is its end.
    const std::size_t end = std::min(line.text.find(L'\0'), line.text.size());
    parameter.valueStart = end - parameter.parts.value.size();
    parameter.letterStart = parameter.valueStart - 1;
    parameter.labelStart = parameter.letterStart - 1 - parameter.parts.label.size();
    return true;
}

}  // namespace

void WalkLines(std::string_view bytes, std::span<CRuleGroup* const> groups) {
    itemdlg::CBlockTracker block;
    ItemLine line;
    Parameter parameter;
    for (; !bytes.empty(); ++line.index) {
        const std::string_view text = TakeLine(bytes).text;
        line.text.resize(text.size());
        std::transform(text.begin(), text.end(), line.text.begin(), CharacterOf);
        line.kind = KindOf(line.text, block);
        line.parameter = nullptr;
        if (line.kind == LK_IGNORED && ReadAsParameter(line, parameter)) {
            line.kind = LK_PARAMETER;
            line.parameter = &parameter;
        }
        for (CRuleGroup* const group : groups) {
            group->TakeLine(line);
        }
        if (line.index == 0 && CByteRules::IsUtf16(line.text)) {
            return;
        }
    }
    for (CRuleGroup* const group : groups) {
        group->Finish();
    }
}

}  // namespace tavrin::tools
