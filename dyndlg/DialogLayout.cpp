#include "dyndlg/DialogLayout.h"

#include <algorithm>

namespace tavrin::dyndlg {

namespace {

constexpr std::int32_t kLeftMargin = 10;
constexpr std::int32_t kRowHeight = 12;
constexpr std::int32_t kBoxMargin = 5;

// The extent of one axis of the box so that it includes `end`. A start that moved down has not made it
// larger: only what is beyond the start counts.
std::int16_t ExtentUpTo(std::int64_t end, std::int16_t start, std::int16_t extent) {
    return end > start + extent ? static_cast<std::int16_t>(end + kBoxMargin - start) : extent;
}

}  // namespace

DialogRect CDialogLayout::Place(const DialogRect* rect, std::int32_t defaultRight) {
    const DialogRect placed =
        rect != nullptr ? *rect : DialogRect{kLeftMargin, m_nextRow, defaultRight, m_nextRow + kRowHeight};
    m_nextRow += kRowHeight;
    Include(placed);
    return placed;
}

StandardButtonRects CDialogLayout::StartStandardButtons() {
    constexpr std::int32_t gap = 6;
    constexpr std::int32_t buttonHeight = 14;
    m_nextRow += gap;
    const std::int32_t bottom = m_nextRow + buttonHeight;
    return {{10, m_nextRow, 60, bottom}, {65, m_nextRow, 115, bottom}};
}

void CDialogLayout::Include(const DialogRect& rect) {
    m_extent.x = static_cast<std::int16_t>(std::min<std::int32_t>(m_extent.x, rect.left));
    m_extent.y = static_cast<std::int16_t>(std::min<std::int32_t>(m_extent.y, rect.top));
    m_extent.cx = ExtentUpTo(rect.right, m_extent.x, m_extent.cx);
    m_extent.cy = ExtentUpTo(rect.bottom, m_extent.y, m_extent.cy);
}

}  // namespace tavrin::dyndlg
