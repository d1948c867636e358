#include "propgrid/painter/GridPainter.h"

#include <shlwapi.h>

#include <algorithm>
#include <cwchar>
#include <optional>
#include <string_view>
#include <utility>

#include "handles/GdiScopes.h"
#include "propgrid/model/ICustomItem.h"
#include "propgrid/painter/FrameworkTypes.h"
#include "propgrid/painter/ModifiedMark.h"

namespace tavrin::propgrid {

namespace {

constexpr int kBandWidth = 14;  // left of an item's name

constexpr UINT kOneLine = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX;

// How far rows may draw below the last one: its line, and the glyph of a header that is lower than it.
constexpr int kOverhang = 16;

// Text output takes no more than this, and no window is wide enough to display it; longer texts would be
// measured for nothing.
constexpr std::size_t kLongestDrawnText = 8192;

void DrawTextIn(CDC& dc, std::wstring_view text, CRect rect, UINT format) {
    if (text.empty() || rect.Width() <= 0 || rect.Height() <= 0) {
        return;
    }
    text = text.substr(0, kLongestDrawnText);
    dc.DrawText(text.data(), static_cast<int>(text.size()), &rect, format);
}

// One line from the left, centred vertically, with an ellipsis when it is too long. One that fits is written
// at once: DrawText would measure it again, and most of a paint's time goes to these texts.
void DrawCellText(CDC& dc, std::wstring_view text, const CRect& rect) {
    text = text.substr(0, kLongestDrawnText);
    const CSize size = dc.GetTextExtent(text.data(), static_cast<int>(text.size()));
    if (size.cx > rect.Width()) {
        DrawTextIn(dc, text, rect, kOneLine | DT_END_ELLIPSIS);
        return;
    }
    const int top = rect.top + rect.Height() / 2 - size.cy / 2;  // as DrawText rounds
    ::ExtTextOut(dc, rect.left, top, ETO_CLIPPED, &rect, text.data(), static_cast<UINT>(text.size()),
                 nullptr);
}

void DrawLine(CDC& dc, int x1, int y1, int x2, int y2) {
    dc.MoveTo(x1, y1);
    dc.LineTo(x2, y2);
}

// A canvas' device context, which it still owns, for the framework's operations.
class CCanvasDc : public CDC {
public:
    explicit CCanvasDc(HDC dc) { Attach(dc); }
    ~CCanvasDc() override { Detach(); }
};

// Shortens a path to `width` pixels in the selected font by an ellipsis among its folders.
std::wstring CompactPath(CDC& dc, const std::wstring& path, int width) {
    wchar_t buffer[1024] = {};
    path.copy(buffer, std::size(buffer) - 1);
    // The shell copies the file name into a buffer of MAX_PATH characters.
    if (width > 0 && wcslen(::PathFindFileName(buffer)) < MAX_PATH) {
        ::PathCompactPath(dc.GetSafeHdc(), buffer, static_cast<UINT>(width));
    }
    return buffer;
}

}  // namespace

// What one paint draws with.
struct CGridPainter::PaintTools {
    CDC& dc;
    PaintState state;
    CRect area;     // the client area without the scroll bar
    CRect picture;  // what of the client area is drawn off-screen: all, or all but what is below the rows
    bool customItemDrew = false;
};

// The canvas is out of the painter's hands meanwhile, since a custom item that draws may cause another paint.
bool CGridPainter::PaintWindow(CDC& target, const PaintState& state) {
    const Size& client = m_layout.GetView().client;
    std::unique_ptr<handles::CMemoryCanvas> canvas = std::move(m_canvas);
    if (canvas == nullptr || canvas->Size().cx != client.width || canvas->Size().cy != client.height) {
        canvas = std::make_unique<handles::CMemoryCanvas>(target, SIZE{client.width, client.height});
    }
    canvas->TakeLayout(target);
    const bool customItemDrew = Paint(target, *canvas, state);
    m_canvas = std::move(canvas);
    return customItemDrew;
}

void CGridPainter::PaintCopy(CDC& target, const PaintState& state) {
    const Size& client = m_layout.GetView().client;
    Paint(target, handles::CMemoryCanvas(target, SIZE{client.width, client.height}), state);
}

// Returns whether a custom item drew.
//
// What is below the rows has one colour, which goes straight to the target: a row that appears there is drawn
// off-screen again.
bool CGridPainter::Paint(CDC& target, const handles::CMemoryCanvas& canvas, const PaintState& state) {
    CCanvasDc dc(canvas.Dc());
    PaintTools tools = {.dc = dc, .state = state, .area = {}, .picture = {}};
    const GridColors& colors = m_model.settings.colors;
    const GridView view = m_layout.GetView();
    tools.area = CRect(0, 0, m_layout.GetRowArea().width, view.client.height);
    tools.picture = CRect(0, 0, view.client.width, view.client.height);
    {
        CPen shadePen;
        shadePen.CreatePen(PS_SOLID, 1, colors.shade);
        CBrush textBrush;
        textBrush.CreateSolidBrush(colors.text);
        const handles::CSelectedObject pen(tools.dc, shadePen);
        const handles::CSelectedObject brush(tools.dc, textBrush);
        const handles::CSelectedObject font(tools.dc, m_fonts.normal);
        const bool isEmpty = m_model.GetSections().empty();
        if (!isEmpty) {
            const int rowsBottom = m_layout.GetTotalHeight() - view.scrollPosition + kOverhang;
            tools.picture.bottom = std::clamp<int>(rowsBottom, 0, view.client.height);
        }
        tools.dc.FillSolidRect(&tools.picture, colors.back);
        tools.dc.SetBkMode(TRANSPARENT);
        if (isEmpty) {
            PaintEmptyList(tools);
        }
        PaintRows(tools);
    }
    canvas.CopyTo(target, tools.picture.bottom);
    if (tools.picture.bottom < view.client.height) {
        const handles::CSavedDcState savedState(target);
        target.FillSolidRect(0, tools.picture.bottom, view.client.width,
                             view.client.height - tools.picture.bottom, colors.back);
    }
    return tools.customItemDrew;
}

void CGridPainter::PaintRows(PaintTools& tools) {
    CPaintPass pass(m_layout);
    while (const std::optional<PaintedRow> row = pass.Next()) {
        if (row->section != nullptr) {
            PaintHeader(tools, row->row, *row->section);
        } else {
            PaintItem(tools, *row);
        }
    }
}

// Before a custom item draws, which may draw anywhere and may add rows.
void CGridPainter::PaintBelowRows(PaintTools& tools) const {
    CRect below = tools.picture;
    below.top = std::exchange(tools.picture.bottom, tools.area.bottom);
    below.bottom = tools.area.bottom;
    if (!below.IsRectEmpty()) {
        tools.dc.FillSolidRect(&below, m_model.settings.colors.back);
    }
}

void CGridPainter::PaintEmptyList(PaintTools& tools) {
    CRect rect = tools.area;
    const int margin = rect.Width() / 4;
    rect.DeflateRect(margin, 10, margin, 0);
    tools.dc.SetTextColor(m_model.settings.colors.text);
    DrawTextIn(tools.dc, m_model.settings.texts.emptyList, rect, DT_CENTER | DT_WORDBREAK | DT_NOPREFIX);
}

void CGridPainter::PaintHeader(PaintTools& tools, const Rect& row, const GridSection& section) {
    CDC& dc = tools.dc;
    PaintFrame(tools, row, row.right);
    if (m_model.settings.drawLines) {
        DrawLine(dc, 0, row.top, row.right + 1, row.top);
    }
    PaintGlyph(tools, row.top, section.collapsed);
    const handles::CSelectedObject font(dc, m_fonts.bold);
    dc.SetTextColor(m_model.settings.colors.title);
    if (section.id == m_model.GetFocus().section) {
        const std::size_t length = std::min(section.name.size(), kLongestDrawnText);
        const CSize size = dc.GetTextExtent(section.name.c_str(), static_cast<int>(length));
        const int top = row.top + (row.GetHeight() - size.cy) / 2;
        const CRect focus(14, top, size.cx + 20, top + size.cy);
        dc.DrawFocusRect(&focus);
    }
    DrawCellText(dc, section.name, CRect(18, row.top, row.right, row.bottom));
}

// A minus in a frame, a plus for a collapsed section.
void CGridPainter::PaintGlyph(PaintTools& tools, int top, bool collapsed) const {
    const Color color = m_model.settings.colors.title;
    CBrush brush;
    brush.CreateSolidBrush(color);
    const CRect frame(2, top + 4, 11, top + 13);
    tools.dc.FrameRect(&frame, &brush);
    CPen titlePen;
    titlePen.CreatePen(PS_SOLID, 1, color);
    const handles::CSelectedObject pen(tools.dc, titlePen);
    DrawLine(tools.dc, 4, top + 8, 9, top + 8);
    if (collapsed) {
        DrawLine(tools.dc, 6, top + 6, 6, top + 11);
    }
}

// What each row has: shade from the left edge on, the line below, the divider.
void CGridPainter::PaintFrame(PaintTools& tools, const Rect& row, int shadedWidth) {
    const GridSettings& settings = m_model.settings;
    if (settings.shadeHeaders) {
        tools.dc.FillSolidRect(0, row.top, shadedWidth, row.GetHeight(), settings.colors.shade);
    }
    if (settings.drawLines) {
        DrawLine(tools.dc, 0, row.bottom, row.right + 1, row.bottom);
    }
    if (settings.drawDivider) {
        DrawLine(tools.dc, settings.gutter, row.top, settings.gutter, row.bottom + 1);
    }
}

void CGridPainter::PaintItem(PaintTools& tools, const PaintedRow& row) {
    PaintFrame(tools, row.row, kBandWidth);
    PaintEditButton(tools, row.parts);
    PaintName(tools, row.row, *row.item);
    PaintValue(tools, row.parts.value, *row.item);
}

void CGridPainter::PaintEditButton(PaintTools& tools, const ItemParts& parts) {
    CDC& dc = tools.dc;
    CRect button = ToCRect(parts.button);
    const UINT pushed = tools.state.buttonPressed ? DFCS_PUSHED : 0;
    if (parts.editMode == EM_DROPDOWN) {
        dc.DrawFrameControl(&button, DFC_SCROLL, DFCS_SCROLLCOMBOBOX | pushed);
    } else if (parts.editMode == EM_MODAL || parts.editMode == EM_INPLACE_BUTTON) {
        const UINT flat = parts.editMode == EM_INPLACE_BUTTON ? DFCS_FLAT : 0;
        dc.DrawFrameControl(&button, DFC_BUTTON, DFCS_BUTTONPUSH | flat | pushed);
        const handles::CSelectedObject font(dc, m_fonts.bold);
        dc.SetTextColor(::GetSysColor(COLOR_BTNTEXT));
        DrawTextIn(dc, L"...", button, kOneLine | DT_CENTER);
    }
}

void CGridPainter::PaintName(PaintTools& tools, const Rect& row, const GridItem& item) {
    CDC& dc = tools.dc;
    const GridSettings& settings = m_model.settings;
    const bool focused = item.id == m_model.GetFocus().item;
    if (focused) {
        const CRect highlight(kNameLeft - 4, row.top, settings.gutter, row.bottom);
        dc.FillSolidRect(&highlight, settings.colors.focus);
    }
    dc.SetTextColor(focused ? settings.colors.focusText : settings.colors.text);
    const CellText name = m_texts.GetName(item, row);
    DrawCellText(dc, name.text, ToCRect(name.area));
}

void CGridPainter::PaintValue(PaintTools& tools, const Rect& value, const GridItem& item) {
    const GridColors& colors = m_model.settings.colors;
    tools.dc.SetTextColor(item.editable && tools.state.enabled ? colors.editable : colors.nonEditable);
    if (item.kind == IT_CUSTOM) {
        PaintCustomValue(tools, value, item);
        return;
    }
    if (item.kind == IT_COLOR) {
        PaintSwatch(tools, value, std::get<Color>(item.value));
    }
    PaintText(tools, item, value);
}

void CGridPainter::PaintCustomValue(PaintTools& tools, const Rect& value, const GridItem& item) {
    PaintBelowRows(tools);
    tools.customItemDrew = true;
    const handles::CSavedDcState state(tools.dc);
    item.GetCustomItem()->DrawItem(tools.dc, ToCRect(value), item.id == m_model.GetFocus().item);
}

void CGridPainter::PaintText(PaintTools& tools, const GridItem& item, const Rect& value) {
    CDC& dc = tools.dc;
    CellText shown = m_texts.GetValue(item, value, dc.GetDeviceCaps(LOGPIXELSY));
    std::optional<handles::CSelectedObject> bold;
    if (shown.font == &m_fonts.bold) {
        bold.emplace(dc, m_fonts.bold);
    }
    if (item.IsPath() && !item.undefined) {
        shown.text = CompactPath(dc, shown.text, shown.area.GetWidth());
    }
    if (item.IsModified()) {
        MarkModified(dc);
    }
    DrawCellText(dc, shown.text, ToCRect(shown.area));
    dc.SetBkMode(TRANSPARENT);
}

void CGridPainter::PaintSwatch(PaintTools& tools, const Rect& value, Color color) const {
    CRect swatch = ToCRect(GetSwatch(value));
    CBrush textBrush;
    textBrush.CreateSolidBrush(m_model.settings.colors.text);
    tools.dc.FrameRect(&swatch, &textBrush);
    swatch.DeflateRect(1, 1);
    tools.dc.FillSolidRect(&swatch, color);
}

}  // namespace tavrin::propgrid
