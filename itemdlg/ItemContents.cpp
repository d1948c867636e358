// Reading a working file as a whole.
#include "itemdlg/ItemContents.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>

#include "itemdlg/BlockTracker.h"
#include "itemdlg/ItemFiles.h"

namespace {

std::wstring UpToNull(const std::wstring& text) {
    return text.substr(0, text.find(L'\0'));
}

// The labels that are shown, which it does not copy. A table at most half full, in one piece of memory: a set
// of the library takes a piece for each label, which costs more than all the rest of a long file.
class CShownLabels {
public:
    // For at most so many labels.
    explicit CShownLabels(std::size_t most) : m_places(std::bit_ceil(2 * most + 1)) {}

    // False when the label is among them already.
    bool Add(std::wstring_view label) {
        const std::size_t last = m_places.size() - 1;
        std::size_t place = std::hash<std::wstring_view>()(label) & last;
        while (m_places[place].data() != nullptr) {
            if (m_places[place] == label) {
                return false;
            }
            place = (place + 1) & last;
        }
        m_places[place] = label;
        return true;
    }

private:
    std::vector<std::wstring_view> m_places;  // free where there is no text, not even an empty one
};

// All rows stand in one section of the grid, where a label is taken once it is shown.
EParameterRow RowOf(const ParamRecord& record, CShownLabels& labels) {
    if (record.type == 'U') {
        return PR_INVALID_TYPE;
    }
    return labels.Add(record.label) ? PR_SHOWN : PR_LABEL_TAKEN;
}

}  // namespace

ItemContents ReadItem(const TextLines& lines, double scale, int mode, const TextLookup& lookup,
                      const PlaceholderLookup& placeholder) {
    ItemContents item;
    item.parameters.reserve(lines.size());  // nearly every line is one; none moves, which the labels rely on
    CShownLabels labels(lines.size());
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
            parameter.row = RowOf(parameter.record, labels);
        }
    }
    return item;
}
