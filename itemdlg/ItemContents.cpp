// Reading a working file as a whole.
#include "ItemContents.h"

#include <cstddef>
#include <cstdint>
#include <unordered_set>
#include <utility>

#include "BlockTracker.h"
#include "ItemFiles.h"

namespace {

std::wstring UpToNull(const std::wstring& text) {
    return text.substr(0, text.find(L'\0'));
}

// All rows stand in one section of the grid, where a label is taken once it is shown.
EParameterRow RowOf(const ParamRecord& record, std::unordered_set<std::wstring>& labels) {
    if (record.type == 'U') {
        return PR_INVALID_TYPE;
    }
    return labels.insert(record.label).second ? PR_SHOWN : PR_LABEL_TAKEN;
}

}  // namespace

ItemContents ReadItem(const TextLines& lines, double scale, int mode, const TextLookup& lookup) {
    ItemContents item;
    item.parameters.reserve(lines.size());  // nearly every line is one
    std::unordered_set<std::wstring> labels;
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
        if (std::optional<ParameterRow> row = ReadParameter(line, lineIndex, scale, mode, lookup)) {
            const EParameterRow fate = RowOf(row->record, labels);
            item.parameters.push_back({*std::move(row), fate});
        }
    }
    return item;
}
