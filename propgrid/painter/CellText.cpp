#include "propgrid/painter/CellText.h"

#include <algorithm>

#include "handles/GdiScopes.h"
#include "propgrid/model/ICustomItem.h"
#include "propgrid/painter/SystemText.h"

namespace tavrin::propgrid {

namespace {

constexpr int kSwatchGap = 6;

bool DisplaysItsText(ICustomItem& custom) {
    const int mode = custom.GetEditMode();
    return mode == EM_INPLACE || mode == EM_INPLACE_BUTTON;
}

bool IsBold(const GridItem& item, const GridSettings& settings) {
    const bool changed = item.IsModified() || item.undefined != item.savedUndefined;
    return item.kind != IT_CUSTOM &&
           ((settings.boldEditable && item.editable) || (settings.boldModified && changed));
}

}  // namespace

Rect GetSwatch(const Rect& value) {
    const int left = value.left + CGridLayout::kTextMargin;
    return {left, value.top + 3, left + value.GetHeight(), value.bottom - 2};
}

bool FitsItsArea(const CellText& text, CDC& dc) {
    // A text of more characters is wider than any cell.
    constexpr std::size_t kLongestMeasured = 4096;
    const handles::CSelectedObject font(dc, *text.font);
    const auto length = static_cast<int>(std::min(text.text.size(), kLongestMeasured));
    return dc.GetTextExtent(text.text.c_str(), length).cx <= text.area.GetWidth();
}

CellText CCellTexts::GetName(const GridItem& item, const Rect& row) const {
    return {.text = item.name,
            .area = {kNameLeft, row.top, m_model.settings.gutter - 1, row.bottom},
            .font = &m_fonts.normal};
}

CellText CCellTexts::GetValue(const GridItem& item, const Rect& value, int pixelsPerInch) const {
    CellText text = {
        .text = {}, .area = value, .font = IsBold(item, m_model.settings) ? &m_fonts.bold : &m_fonts.normal};
    text.area.left =
        item.kind == IT_COLOR ? GetSwatch(value).right + kSwatchGap : value.left + CGridLayout::kTextMargin;
    if (ICustomItem* const custom = item.GetCustomItem()) {
        text.text = DisplaysItsText(*custom) ? custom->GetStringValue() : std::wstring();
    } else {
        text.text = GetValueText(item, m_model.settings.texts, CSystemText(pixelsPerInch));
    }
    return text;
}

}  // namespace tavrin::propgrid
