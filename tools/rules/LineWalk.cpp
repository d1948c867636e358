#include "tools/rules/LineWalk.h"

#include <algorithm>
#include <utility>

#include "itemdlg/BlockTracker.h"
#include "tools/lines/FileLines.h"
#include "tools/rules/ByteRules.h"

namespace {

ELineKind KindOf(const std::wstring& line, tavrin::itemdlg::CBlockTracker& block) {
    const bool wasOpen = block.IsOpen();
    const bool mayBeParameter = block.TakeLine(line);
    if (wasOpen != block.IsOpen()) {
        return wasOpen ? LK_CLOSING : LK_OPENING;
    }
    return mayBeParameter ? LK_IGNORED : LK_OUTSIDE;
}

std::wstring PlaceholderItself(unsigned number) {
    return L"<<" + WideNumber(static_cast<int>(number)) + L">>";
}

// False when the reader does not take the line for a parameter.
bool ReadAsParameter(const SItemLine& line, SParameter& parameter) {
    const std::optional<tavrin::itemdlg::ParameterParts> parts =
        tavrin::itemdlg::SplitParameterLine(line.text);
    if (!parts) {
        return false;
    }
    // Into the texts of the line before, which have the room already.
    parameter.parts.number = parts->number;
    parameter.parts.label = parts->label;
    parameter.parts.typeLetter = parts->typeLetter;
    parameter.parts.value = parts->value;
    tavrin::itemdlg::ParameterRow row;
    tavrin::itemdlg::FillRow(*parts, line.text, static_cast<std::int32_t>(line.index), 1.0, 0,
                             PlaceholderItself, row);
    parameter.record = std::move(row.record);
    // The record has the number of the line's last placeholder, be it in the value.
    const bool inValue = parts->value.find(L"<<") != std::wstring_view::npos;
    parameter.placeholder =
        inValue ? tavrin::itemdlg::PlaceholderNumber(parameter.parts.label) : parameter.record.resourceId;
    // The patterns see a line up to its first null character, and the value is its end.
    const std::size_t end = std::min(line.text.find(L'\0'), line.text.size());
    parameter.valueStart = end - parameter.parts.value.size();
    parameter.letterStart = parameter.valueStart - 1;
    parameter.labelStart = parameter.letterStart - 1 - parameter.parts.label.size();
    return true;
}

}  // namespace

void WalkLines(std::string_view bytes, std::span<CRuleGroup* const> groups) {
    tavrin::itemdlg::CBlockTracker block;
    SItemLine line;
    SParameter parameter;
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
