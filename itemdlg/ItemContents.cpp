// Reading a working file as a whole.
#include "ItemContents.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unordered_set>

#include "BlockTracker.h"
#include "ItemFiles.h"

namespace {

std::wstring UpToNull(const std::wstring& text) {
    return text.substr(0, text.find(L'\0'));
}

// All rows stand in one section of the grid, where a label is taken once it is shown. The labels are not
// copied.
EParameterRow RowOf(const ParamRecord& record, std::unordered_set<std::wstring_view>& labels) {
    if (record.type == 'U') {
        return PR_INVALID_TYPE;
    }
    return labels.insert(record.label).second ? PR_SHOWN : PR_LABEL_TAKEN;
}

}  // namespace

ItemContents ReadItem(const TextLines& lines, double scale, int mode, const TextLookup& lookup) {
    ItemContents item;
    item.parameters.reserve(lines.size());  // nearly every line is one; none moves, which the labels rely on
    std::unordered_set<std::wstring_view> labels;
    labels.reserve(lines.size());
    CBlockTracker block;
    for (std::size_t index = 0; index < lines.size(); ++index) {
        const std::wstring& line = lines[index];
        const auto lineIndex = static_cast<std::int32_t>(index);
        if (lineIndex == kTitleLine) {
            item.title = UpToNull(TitleText(line, lookup));
            item.header = UpToNull(lookup(kHeaderPrefixText)) + *item.title;
        }
        if (!block.TakeLine(line)) {
            continue;
        }
        if (const std::optional<ParameterParts> parts = SplitParameterLine(line)) {
            ItemParameter& parameter = item.parameters.emplace_back();
            FillRow(*parts, line, lineIndex, scale, mode, lookup, parameter);
            parameter.row = RowOf(parameter.record, labels);
        }
    }
    return item;
}
