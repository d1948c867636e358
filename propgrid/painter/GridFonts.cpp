#include "propgrid/painter/GridFonts.h"

#include "handles/GdiScopes.h"

namespace tavrin::propgrid {

namespace {

// Keeps the old font when no new one can be made.
void Recreate(CFont& font, const LOGFONT& description) {
    CFont created;
    if (created.CreateFontIndirect(&description)) {
        font.DeleteObject();
        font.Attach(created.Detach());
    }
}

}  // namespace

void GridFonts::Create(const CWnd* parent) {
    if (normal.GetSafeHandle() != nullptr) {
        return;
    }
    LOGFONT description = {};
    CFont* const parentFont = parent != nullptr ? parent->GetFont() : nullptr;
    if (parentFont != nullptr && parentFont->GetLogFont(&description) != 0) {
        normal.CreateFontIndirect(&description);
    }
    if (normal.GetSafeHandle() == nullptr) {
        normal.CreatePointFont(85, L"Tahoma");
        if (normal.GetLogFont(&description) == 0) {
            return;
        }
    }
    CreateBold(description);
}

void GridFonts::Replace(HFONT font) {
    const HGDIOBJ source = font != nullptr ? font : ::GetStockObject(SYSTEM_FONT);
    LOGFONT description = {};
    if (::GetObject(source, sizeof(description), &description) == 0) {
        return;
    }
    given = font;
    Recreate(normal, description);
    CreateBold(description);
}

void GridFonts::CreateBold(LOGFONT description) {
    description.lfWeight = FW_BOLD;
    Recreate(bold, description);
}

int GridFonts::MeasureRowHeight(CWnd& window) const {
    constexpr int kRowMargin = 4;
    CClientDC dc(&window);
    const handles::CSelectedObject font(dc, normal);
    return dc.GetTextExtent(L"Gg", 2).cy + kRowMargin;
}

}  // namespace tavrin::propgrid
