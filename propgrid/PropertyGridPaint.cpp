// The painting of the property grid. Everything is drawn into an off-screen picture that is then shown
// at once, so that nothing flickers. Painting reads the state and changes nothing but what it records of
// where it drew, for hit tests. Its time goes by the rows in sight, not by those there are.
#include <afxwin.h>
#include <shlwapi.h>

#include <algorithm>
#include <cwchar>
#include <optional>
#include <string_view>
#include <utility>

#include "propgrid/GdiScope.h"
#include "propgrid/PropertyGrid.h"

namespace {

// Behind a modified value. Deliberately not one of the colours that a client can set.
constexpr COLORREF modifiedColor = RGB(255, 255, 80);

// Where an item's parts begin, from the left edge: the band and the name.
constexpr int itemIndent = 10;
constexpr int bandWidth = itemIndent + 4;
constexpr int nameLeft = itemIndent + 8;

constexpr UINT lineOfText = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX;

// How far rows may draw below the last one: its line, and the glyph of a header that is lower than it.
constexpr int overhang = 16;

// Text output takes no more than this, and no window is wide enough to show it; longer texts would be
// measured for nothing.
constexpr std::size_t longestDrawnText = 8192;

void DrawTextIn(CDC& dc, std::wstring_view text, CRect rect, UINT format) {
    if (text.empty() || rect.Width() <= 0 || rect.Height() <= 0) {
        return;
    }
    text = text.substr(0, longestDrawnText);
    dc.DrawText(text.data(), static_cast<int>(text.size()), &rect, format);
}

void DrawLine(CDC& dc, int x1, int y1, int x2, int y2) {
    dc.MoveTo(x1, y1);
    dc.LineTo(x2, y2);
}

// Shortens a path to `width` pixels in the selected font by an ellipsis among its folders.
std::wstring CompactPath(CDC& dc, const std::wstring& path, int width) {
    wchar_t buffer[1024] = {};
    path.copy(buffer, std::size(buffer) - 1);
    // The shell keeps the file name in a buffer of its own, for which no real name is too long.
    if (width > 0 && wcslen(::PathFindFileName(buffer)) < MAX_PATH) {
        ::PathCompactPath(dc.GetSafeHdc(), buffer, static_cast<UINT>(width));
    }
    return buffer;
}

}  // namespace

// What one paint draws with.
struct CPropertyGrid::CPaintTools {
    CDC& dc;
    CRect area;     // the client area without the scroll bar
    CRect picture;  // what of the client area is drawn off-screen: all, or all but what is below the rows
};

// Paints the window. The off-screen picture is kept for the next paint: to make one costs more than to draw
// it. It is out of the grid's hands meanwhile, since a custom item that draws may cause another paint.
void CPropertyGrid::PaintWindow(CDC& target) {
    CRect client;
    GetClientRect(&client);
    std::unique_ptr<CMemoryCanvas> canvas = std::move(m_canvas);
    if (canvas == nullptr || canvas->Size().cx != client.Width() || canvas->Size().cy != client.Height()) {
        canvas = std::make_unique<CMemoryCanvas>(target, client.Size());
    }
    canvas->TakeLayout(target);
    Paint(target, *canvas);
    m_canvas = std::move(canvas);
}

// Always paints the whole client area, however little of it is invalid: every visible row gets its
// rectangles recorded. What is below the rows has one colour, which goes straight to the window: a row that
// appears there is drawn off-screen again.
void CPropertyGrid::Paint(CDC& target, CMemoryCanvas& canvas) {
    const CRect client(CPoint(0, 0), canvas.Size());
    CRect area = client;
    if (m_scrollBarShown) {
        area.right -= ::GetSystemMetrics(SM_CXVSCROLL);
    }
    CPaintTools tools = {canvas.Dc(), area, client};
    {
        CDC& dc = tools.dc;
        if (!m_contents.GetSections().empty()) {
            const int rowsBottom = GetTotalHeight() - GetScrollPosition() + overhang;
            tools.picture.bottom = std::clamp<int>(rowsBottom, 0, client.bottom);
        }
        CPen shadePen;
        shadePen.CreatePen(PS_SOLID, 1, m_colors.shade);
        CBrush textBrush;
        textBrush.CreateSolidBrush(m_colors.text);
        const CSelectedObject pen(dc, shadePen);
        const CSelectedObject brush(dc, textBrush);
        const CSelectedObject font(dc, m_font);
        dc.FillSolidRect(&tools.picture, m_colors.back);
        dc.SetBkMode(TRANSPARENT);

        for (CGridSection* const section : m_contents.GetSections()) {
            section->glyphRect.SetRectEmpty();
            section->headerRect.SetRectEmpty();
        }
        if (m_contents.GetSections().empty()) {
            PaintEmptyList(tools);
        } else if (m_displayMode == DM_SORTED) {
            PaintSorted(tools);
        } else {
            PaintSections(tools);
        }
    }
    canvas.CopyTo(target, tools.picture.bottom);
    if (tools.picture.bottom < client.bottom) {
        const CSavedDcState state(target);
        target.FillSolidRect(0, tools.picture.bottom, client.right, client.bottom - tools.picture.bottom,
                             m_colors.back);
    }
}

// Before a custom item draws, which may draw anywhere and may add rows.
void CPropertyGrid::PaintBelowRows(CPaintTools& tools) {
    CRect below = tools.picture;
    below.top = std::exchange(tools.picture.bottom, tools.area.bottom);
    below.bottom = tools.area.bottom;
    if (!below.IsRectEmpty()) {
        tools.dc.FillSolidRect(&below, m_colors.back);
    }
}

void CPropertyGrid::PaintEmptyList(CPaintTools& tools) {
    CRect rect = tools.area;
    const int margin = rect.Width() / 4;
    rect.DeflateRect(margin, 10, margin, 0);
    tools.dc.SetTextColor(m_colors.text);
    DrawTextIn(tools.dc, m_texts.emptyList, rect, DT_CENTER | DT_WORDBREAK | DT_NOPREFIX);
}

void CPropertyGrid::PaintSections(CPaintTools& tools) {
    const bool categorized = m_displayMode == DM_CATEGORIZED;
    int y = -GetScrollPosition();
    // By index: a custom item that draws may add rows and sections.
    const std::vector<CGridSection*>& sections = m_contents.GetSections();
    for (std::size_t index = 0; index < sections.size(); ++index) {
        CGridSection& section = *sections[index];
        const CRect row(0, y, tools.area.right, y + m_rowHeight);
        section.headerRect = row;
        CGridPlace place = PlaceRows(tools, y, section.items.size());
        if (categorized) {
            if (place.Shows(row)) {
                PaintHeader(tools, row, section);
            }
            y += m_rowHeight;
            // Its place deliberately stays as an earlier paint recorded it.
            if (section.collapsed) {
                continue;
            }
            place.top = y;
        }
        section.place = place;
        PaintRows(tools, place, section.items);
        section.place.rows = static_cast<unsigned>(section.items.size());
        y += static_cast<int>(section.items.size()) * m_rowHeight;
    }
}

void CPropertyGrid::PaintSorted(CPaintTools& tools) {
    const std::vector<CGridItem*>& items = m_contents.GetSorted();
    CGridPlace place = PlaceRows(tools, -GetScrollPosition(), items.size());
    place.sorted = true;
    for (CGridSection* const section : m_contents.GetSections()) {
        section->place = place;
    }
    PaintRows(tools, place, items);
}

CGridPlace CPropertyGrid::PlaceRows(const CPaintTools& tools, int top, std::size_t rows) const {
    CGridPlace place;
    place.top = top;
    place.rowHeight = m_rowHeight;
    place.area = tools.area.Size();
    place.gutter = m_gutter;
    place.rows = static_cast<unsigned>(rows);
    return place;
}

// Paints those of the rows that show.
void CPropertyGrid::PaintRows(CPaintTools& tools, const CGridPlace& place,
                              const std::vector<CGridItem*>& items) {
    PaintColumns(tools, place);
    // By index: a custom item that draws may add rows, and another paint sorts them in.
    for (unsigned index = place.GetFirstShown(); index < items.size(); ++index) {
        const CRect row = place.GetRow(index);
        if (!place.Shows(row)) {
            break;
        }
        PaintItem(tools, row, m_contents.Visit(items, index));
    }
}

void CPropertyGrid::PaintHeader(CPaintTools& tools, const CRect& row, CGridSection& section) {
    CDC& dc = tools.dc;
    if (m_shadeHeaders) {
        dc.FillSolidRect(&row, m_colors.shade);
    }
    if (m_drawLines) {
        DrawLine(dc, 0, row.top, row.right + 1, row.top);
        DrawLine(dc, 0, row.bottom, row.right + 1, row.bottom);
    }
    if (m_drawDivider) {
        DrawLine(dc, m_gutter, row.top, m_gutter, row.bottom + 1);
    }

    section.glyphRect.SetRect(2, row.top + 4, 11, row.top + 13);
    section.headerRect.SetRect(14, row.top, row.right, row.bottom);
    {
        CBrush titleBrush;
        titleBrush.CreateSolidBrush(m_colors.title);
        dc.FrameRect(&section.glyphRect, &titleBrush);
        CPen titlePen;
        titlePen.CreatePen(PS_SOLID, 1, m_colors.title);
        const CSelectedObject pen(dc, titlePen);
        DrawLine(dc, 4, row.top + 8, 9, row.top + 8);
        if (section.collapsed) {
            DrawLine(dc, 6, row.top + 6, 6, row.top + 11);
        }
    }

    const CSelectedObject font(dc, m_boldFont);
    dc.SetTextColor(m_colors.title);
    if (section.id == m_focusedSection) {
        const std::size_t length = std::min(section.name.size(), longestDrawnText);
        const CSize size = dc.GetTextExtent(section.name.c_str(), static_cast<int>(length));
        const int top = row.top + (m_rowHeight - size.cy) / 2;
        const CRect focus(14, top, size.cx + 20, top + size.cy);
        dc.DrawFocusRect(&focus);
    }
    DrawTextIn(dc, section.name, CRect(18, row.top, row.right, row.bottom), lineOfText | DT_END_ELLIPSIS);
}

// What the items' rows that follow each other have in common: the band at the left edge and the divider.
void CPropertyGrid::PaintColumns(CPaintTools& tools, const CGridPlace& place) {
    const int top = std::max(place.top, 0);
    const int bottom = std::min<int>(place.GetRow(place.rows).top, place.area.cy);
    if (top >= bottom || place.area.cx <= 0) {
        return;
    }
    if (m_shadeHeaders) {
        tools.dc.FillSolidRect(0, top, bandWidth, bottom - top, m_colors.shade);
    }
    if (m_drawDivider) {
        DrawLine(tools.dc, m_gutter, top, m_gutter, bottom + 1);
    }
}

void CPropertyGrid::PaintItem(CPaintTools& tools, const CRect& row, CGridItem& item) {
    if (m_drawLines) {
        DrawLine(tools.dc, 0, row.bottom, row.right + 1, row.bottom);
    }
    const int valueRight = PaintEditButton(tools, row, item);
    PaintName(tools, row, item);
    PaintValue(tools, CRect(m_gutter, row.top, valueRight, row.bottom), item);
}

// Draws and records the edit button of the focused item. Returns where the value column ends.
int CPropertyGrid::PaintEditButton(CPaintTools& tools, const CRect& row, CGridItem& item) {
    if (item.id != m_focusedItem || !item.editable) {
        return row.right;
    }
    const int mode = item.GetEditMode();
    if (mode == EM_CUSTOM) {
        return row.right;
    }

    CDC& dc = tools.dc;
    CRect button(row.right - m_rowHeight, row.top, row.right, row.bottom);
    // Deliberately so for an item without a drawn button (EM_INPLACE) too.
    const int valueRight = button.left;
    item.section->place.buttonItem = item.id;
    const UINT pushed = m_buttonPressed ? DFCS_PUSHED : 0;
    if (mode == EM_DROPDOWN) {
        dc.DrawFrameControl(&button, DFC_SCROLL, DFCS_SCROLLCOMBOBOX | pushed);
    } else if (mode == EM_MODAL || mode == EM_INPLACE_BUTTON) {
        const UINT flat = mode == EM_INPLACE_BUTTON ? DFCS_FLAT : 0;
        dc.DrawFrameControl(&button, DFC_BUTTON, DFCS_BUTTONPUSH | flat | pushed);
        const CSelectedObject font(dc, m_boldFont);
        dc.SetTextColor(::GetSysColor(COLOR_BTNTEXT));
        DrawTextIn(dc, L"...", button, lineOfText | DT_CENTER);
    }
    // Where a press anywhere on the value opens the text edit, the whole of it counts as the button.
    if (mode == EM_INPLACE || mode == EM_INPLACE_BUTTON) {
        button.left = m_gutter;
    }
    m_editButtonRect = button;
    return valueRight;
}

void CPropertyGrid::PaintName(CPaintTools& tools, const CRect& row, const CGridItem& item) {
    CDC& dc = tools.dc;
    const bool focused = item.id == m_focusedItem;
    if (focused) {
        const CRect highlight(nameLeft - 4, row.top, m_gutter, row.bottom);
        dc.FillSolidRect(&highlight, m_colors.focus);
    }
    dc.SetTextColor(focused ? m_colors.focusText : m_colors.text);
    DrawTextIn(dc, item.name, CRect(nameLeft, row.top, m_gutter - 1, row.bottom),
               lineOfText | DT_END_ELLIPSIS);
}

void CPropertyGrid::PaintValue(CPaintTools& tools, const CRect& valueRect, const CGridItem& item) {
    CDC& dc = tools.dc;
    dc.SetTextColor(item.editable ? m_colors.editable : m_colors.nonEditable);
    if (item.kind == IT_CUSTOM) {
        PaintBelowRows(tools);
        const CSavedDcState state(dc);
        m_customItemDrew = true;
        std::get<ICustomItem*>(item.value)->DrawItem(dc, valueRect, item.id == m_focusedItem);
        return;
    }

    CRect cell = valueRect;
    cell.left += TEXT_MARGIN;
    if (item.kind == IT_COLOR) {
        cell.left = PaintSwatch(tools, cell, std::get<COLORREF>(item.value)).right + 6;
    }

    const bool modified = item.IsModified();
    const bool changed = modified || item.undefined != item.savedUndefined;
    const bool bold = (m_boldEditable && item.editable) || (m_boldModified && changed);
    std::optional<CSelectedObject> font;
    if (bold) {
        font.emplace(dc, m_boldFont);
    }
    std::wstring text = item.GetText(m_texts, dc.GetDeviceCaps(LOGPIXELSY));
    if (item.IsPath() && !item.undefined) {
        text = CompactPath(dc, text, cell.Width());
    }
    if (modified) {
        dc.SetBkMode(OPAQUE);
        dc.SetBkColor(modifiedColor);
    }
    DrawTextIn(dc, text, cell, lineOfText | DT_END_ELLIPSIS);
    dc.SetBkMode(TRANSPARENT);
}

CRect CPropertyGrid::PaintSwatch(CPaintTools& tools, const CRect& cell, COLORREF color) {
    const CRect swatch(cell.left, cell.top + 3, cell.left + m_rowHeight, cell.bottom - 2);
    CBrush textBrush;
    textBrush.CreateSolidBrush(m_colors.text);
    tools.dc.FrameRect(&swatch, &textBrush);
    CRect inside = swatch;
    inside.DeflateRect(1, 1);
    tools.dc.FillSolidRect(&inside, color);
    return swatch;
}
