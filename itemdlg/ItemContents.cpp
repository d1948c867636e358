// Reading a working file as a whole.
#include "itemdlg/ItemContents.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unordered_set>

#include "itemdlg/BlockTracker.h"
#include "itemdlg/ItemFiles.h"

namespace tavrin::itemdlg {

namespace {

std::wstring UpToNull(const std::wstring& text) {
    return text.substr(0, text.find(L'\0'));
}

using Labels = std::unordered_set<std::wstring_view>;

// All rows are in one section of the grid, which shows each label once: this decides which of them.
EParameterRow RowOf(const ParamRecord& record, Labels& shownLabels) {
    if (record.type == 'U') {
        return PR_INVALID_TYPE;
    }
    return shownLabels.insert(record.label).second ? PR_SHOWN : PR_LABEL_TAKEN;
}

}  // namespace

ItemContents ReadItem(const TextLines& lines, double scale, int mode, const TextLookup& lookup,
                      const PlaceholderLookup& placeholder) {
    ItemContents item;
    item.parameters.reserve(lines.size());  // no parameter moves: the set refers to their labels
    Labels shownLabels;
    CBlockTracker block;
    for (std::size_t index = 0; index < lines.size(); ++index) {
        const std::wstring& line = lines[index];
        const auto lineIndex = static_cast<std::int32_t>(index);
        if (lineIndex == kTitleLine) {
            item.title = UpToNull(TitleText(line, lookup, placeholder));
            item.header = UpToNull(lookup(kHeaderPrefixText)) + *item.title;
        }
        if (!block.TakeLine(line)) {
            continue;
        }
        if (const std::optional<ParameterParts> parts = SplitParameterLine(line)) {
            ItemParameter& parameter = item.parameters.emplace_back();
            FillRow(*parts, line, lineIndex, scale, mode, lookup, parameter, placeholder);
            parameter.row = RowOf(parameter.record, shownLabels);
        }
    }
    return item;
}

}  // namespace tavrin::itemdlg
