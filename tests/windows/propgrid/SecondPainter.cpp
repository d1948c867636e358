#include "tests/windows/propgrid/SecondPainter.h"

#include <shlwapi.h>

#include <algorithm>

#include "sds/sds.h"

namespace tests {
namespace {

constexpr COLORREF kModified = RGB(255, 255, 80);
constexpr int kIndent = 10;
constexpr int kNameLeft = kIndent + 8;
constexpr UINT kOneLine = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS;

}  // namespace

CSecondPainter::CSecondPainter(const GridModel& model, CPixelPicture& picture)
    : m_model(model), m_dc(picture.GetDC()) {
    m_normal.CreateFontIndirect(&model.normalFont);
    m_bold.CreateFontIndirect(&model.boldFont);
}

void CSecondPainter::Paint() {
    const int state = m_dc.SaveDC();
    Fill({CPoint(), m_model.client}, m_model.colors.back);
    m_dc.SetBkMode(TRANSPARENT);
    if (m_model.sections.empty()) {
        PaintEmptyList();
    } else if (m_model.mode == 1) {
        PaintSorted();
    } else {
        PaintSections();
    }
    m_dc.RestoreDC(state);
    ::GdiFlush();
}

void CSecondPainter::PaintEmptyList() {
    CRect rect({}, m_model.client);
    const int margin = rect.Width() / 4;
    rect.DeflateRect(margin, 10, margin, 0);
    Text(m_model.emptyListText, rect, m_normal, m_model.colors.text, DT_CENTER | DT_WORDBREAK | DT_NOPREFIX);
}

void CSecondPainter::PaintSections() {
    const bool bySections = m_model.mode == 0;
    int y = -m_model.GetScrollPosition();
    for (const ModelSection& section : m_model.sections) {
        if (bySections) {
            m_sectionRects[section.id] = {CRect(), RowAt(y)};
            if (IsPainted(y)) {
                PaintHeader(section, y);
            }
            y += m_model.rowHeight;
        }
        if (bySections && section.collapsed) {
            continue;
        }
        for (const ModelItem& item : section.items) {
            PaintItem(item, y);
            y += m_model.rowHeight;
        }
    }
}

void CSecondPainter::PaintSorted() {
    std::vector<const ModelItem*> items;
    for (const ModelSection& section : m_model.sections) {
        for (const ModelItem& item : section.items) {
            items.push_back(&item);
        }
    }
    std::stable_sort(items.begin(), items.end(),
                     [](const ModelItem* a, const ModelItem* b) { return a->name < b->name; });
    int y = -m_model.GetScrollPosition();
    for (const ModelItem* const item : items) {
        PaintItem(*item, y);
        y += m_model.rowHeight;
    }
}

void CSecondPainter::PaintHeader(const ModelSection& section, int y) {
    const CRect row = RowAt(y);
    if (m_model.shade) {
        Fill(row, m_model.colors.shade);
    }
    if (m_model.lines) {
        Fill({0, row.top, row.right + 1, row.top + 1}, m_model.colors.shade);
        Fill({0, row.bottom, row.right + 1, row.bottom + 1}, m_model.colors.shade);
    }
    if (m_model.divider) {
        Fill({m_model.gutter, row.top, m_model.gutter + 1, row.bottom + 1}, m_model.colors.shade);
    }
    PaintGlyph(section, y);
    m_sectionRects[section.id].header = {14, row.top, row.right, row.bottom};
    if (section.id == m_model.focusedSection) {
        ::SelectObject(m_dc, m_bold.GetSafeHandle());
        const CSize size = m_dc.GetTextExtent(section.name.c_str(), static_cast<int>(section.name.size()));
        const int top = y + (m_model.rowHeight - size.cy) / 2;
        m_dc.DrawFocusRect(CRect(14, top, size.cx + 20, top + size.cy));
    }
    Text(section.name, {18, row.top, row.right, row.bottom}, m_bold, m_model.colors.title, kOneLine);
}

void CSecondPainter::PaintGlyph(const ModelSection& section, int y) {
    const COLORREF color = m_model.colors.title;
    const CRect glyph(2, y + 4, 11, y + 13);
    m_sectionRects[section.id].glyph = glyph;
    CBrush brush(color);
    m_dc.FrameRect(glyph, &brush);
    Fill({4, y + 8, 9, y + 9}, color);
    if (section.collapsed) {
        Fill({6, y + 6, 7, y + 11}, color);
    }
}

void CSecondPainter::PaintItem(const ModelItem& item, int y) {
    const CRect row = RowAt(y);
    m_itemRects[item.id] = {row, CRect()};
    if (!IsPainted(y)) {
        return;
    }
    PaintFrame(y);
    int valueRight = row.right;
    const int editMode = item.GetEditMode();
    if (IsFocused(item) && item.editable && editMode != EM_CUSTOM) {
        valueRight -= m_model.rowHeight;
        m_editButton = {valueRight, row.top, row.right, row.bottom};
        PaintButton(editMode, m_editButton);
        if (editMode == EM_INPLACE || editMode == EM_INPLACE_BUTTON) {
            m_editButton.left = m_model.gutter;
        }
    }
    const CRect value(m_model.gutter, row.top, valueRight, row.bottom);
    m_itemRects[item.id] = {CRect(0, row.top, m_model.gutter, row.bottom), value};
    PaintName(item, y);
    if (item.kind == IT_CUSTOM) {
        PaintCustom(item, value);
    } else {
        PaintValue(item, value);
    }
}

// The band at the left, the line below, the divider.
void CSecondPainter::PaintFrame(int y) {
    const CRect row = RowAt(y);
    const COLORREF shade = m_model.colors.shade;
    if (m_model.shade) {
        Fill({0, row.top, kIndent + 4, row.bottom}, shade);
    }
    if (m_model.lines) {
        Fill({0, row.bottom, row.right + 1, row.bottom + 1}, shade);
    }
    if (m_model.divider) {
        Fill({m_model.gutter, row.top, m_model.gutter + 1, row.bottom + 1}, shade);
    }
}

void CSecondPainter::PaintButton(int editMode, const CRect& button) {
    const UINT pushed = m_model.pressed ? DFCS_PUSHED : 0U;
    CRect frame = button;
    switch (editMode) {
        case EM_DROPDOWN:
            m_dc.DrawFrameControl(frame, DFC_SCROLL, DFCS_SCROLLCOMBOBOX | pushed);
            return;
        case EM_MODAL:
            m_dc.DrawFrameControl(frame, DFC_BUTTON, DFCS_BUTTONPUSH | pushed);
            break;
        case EM_INPLACE_BUTTON:
            m_dc.DrawFrameControl(frame, DFC_BUTTON, DFCS_BUTTONPUSH | DFCS_FLAT | pushed);
            break;
        default:
            return;
    }
    Text(L"...", button, m_bold, ::GetSysColor(COLOR_BTNTEXT), DT_SINGLELINE | DT_CENTER | DT_VCENTER);
}

void CSecondPainter::PaintName(const ModelItem& item, int y) {
    const CRect row = RowAt(y);
    const CRect name(kNameLeft, row.top, m_model.gutter - 1, row.bottom);
    COLORREF color = m_model.colors.text;
    if (IsFocused(item)) {
        // A divider at the far left has the band to its right.
        const auto [left, right] = std::minmax<int>(name.left - 4, name.right + 1);
        Fill(CRect(left, name.top, right, name.bottom), m_model.colors.focus);
        color = m_model.colors.focusText;
    }
    Text(item.name, name, m_normal, color, kOneLine);
}

void CSecondPainter::PaintCustom(const ModelItem& item, CRect value) {
    const int state = m_dc.SaveDC();
    CPen pen(PS_SOLID, 1, m_model.colors.shade);
    CBrush brush(m_model.colors.text);
    ::SelectObject(m_dc, pen.GetSafeHandle());
    ::SelectObject(m_dc, brush.GetSafeHandle());
    ::SelectObject(m_dc, m_normal.GetSafeHandle());
    m_dc.SetTextColor(item.editable ? m_model.colors.editable : m_model.colors.nonEditable);
    if (item.figure != nullptr) {
        item.figure->DrawItem(m_dc, value, IsFocused(item));
    } else {
        PaintDistance(item, value);
    }
    m_dc.RestoreDC(state);
}

// The length as the host writes it, on light yellow when it is not the one that the item was made with.
void CSecondPainter::PaintDistance(const ModelItem& item, CRect value) {
    if (item.value.number != item.distanceReference) {
        m_dc.SetBkMode(OPAQUE);
        m_dc.SetBkColor(kModified);
    }
    sds_resbuf units = {};
    sds_getvar(L"LUNITS", &units);
    wchar_t text[256] = {};
    sds_rtos(item.value.number, units.value.integer, -1, text);
    value.left += 4;
    m_dc.DrawText(text, -1, value, kOneLine);
}

void CSecondPainter::PaintValue(const ModelItem& item, const CRect& value) {
    CRect rect(value.left + 4, value.top, value.right, value.bottom);
    CFont& font = IsBold(item) ? m_bold : m_normal;
    std::wstring text = m_model.GetValueText(item);
    if ((item.kind == IT_FILE || item.kind == IT_FOLDER) && !item.undefined) {
        text = ShortenPath(text, rect.Width(), font);
    }
    if (item.kind == IT_COLOR) {
        const CRect swatch(rect.left, rect.top + 3, rect.left + m_model.rowHeight, rect.bottom - 2);
        PaintSwatch(item.value.color, swatch);
        rect.left = swatch.right + 6;
    }
    if (item.IsModified()) {
        m_dc.SetBkMode(OPAQUE);
        m_dc.SetBkColor(kModified);
    }
    Text(text, rect, font, item.editable ? m_model.colors.editable : m_model.colors.nonEditable, kOneLine);
    m_dc.SetBkMode(TRANSPARENT);
}

bool CSecondPainter::IsBold(const ModelItem& item) const {
    const bool modified = item.IsModified();
    const bool changed = modified || item.undefined != item.savedUndefined;
    const bool boldEditable = m_model.boldEditable && item.editable && !(modified && m_model.boldModified);
    return boldEditable || (m_model.boldModified && changed);
}

void CSecondPainter::PaintSwatch(COLORREF color, const CRect& swatch) {
    CBrush frame(m_model.colors.text);
    m_dc.FrameRect(swatch, &frame);
    CRect inside = swatch;
    inside.DeflateRect(1, 1);
    Fill(inside, color);
}

// A path is measured in the font that it is drawn with. PathCompactPath takes no last name of MAX_PATH
// characters or more; a path with such a one only ends in an ellipsis.
std::wstring CSecondPainter::ShortenPath(const std::wstring& path, int width, CFont& font) {
    wchar_t buffer[1024] = {};
    path.copy(buffer, 1023);
    const std::wstring considered = buffer;
    if (considered.size() - (considered.find_last_of(L"\\/") + 1) >= MAX_PATH) {
        return considered;
    }
    ::SelectObject(m_dc, font.GetSafeHandle());
    ::PathCompactPathW(m_dc, buffer, static_cast<UINT>(width));
    return buffer;
}

void CSecondPainter::Fill(const CRect& rect, COLORREF color) {
    CBrush brush(color);
    ::FillRect(m_dc, rect, brush);
}

void CSecondPainter::Text(const std::wstring& text, CRect rect, CFont& font, COLORREF color, UINT flags) {
    if (rect.IsRectEmpty()) {
        return;  // what DrawText makes of such a rectangle is up to the font
    }
    ::SelectObject(m_dc, font.GetSafeHandle());
    m_dc.SetTextColor(color);
    m_dc.DrawText(text.c_str(), static_cast<int>(text.size()), rect, flags);
}

}  // namespace tests
