// The colours of the grid, taken from the system when it is constructed and when the system's change. A
// colour that the client has set stays. Every setter repaints.
#pragma once

#include <bitset>

#include "propgrid/GridClient.h"

namespace tavrin::propgrid {

class CGridColoring : public CGridClient {
public:
    void SetTextColor(COLORREF color) { ChangeColor(&GridColors::text, color); }
    COLORREF GetTextColor() const { return Colors().text; }
    void SetTitleColor(COLORREF color) { ChangeColor(&GridColors::title, color); }
    COLORREF GetTitleColor() const { return Colors().title; }
    void SetBackColor(COLORREF color) { ChangeColor(&GridColors::back, color); }
    COLORREF GetBackColor() const { return Colors().back; }
    void SetShadeColor(COLORREF color) { ChangeColor(&GridColors::shade, color); }
    COLORREF GetShadeColor() const { return Colors().shade; }
    void SetFocusColor(COLORREF color) { ChangeColor(&GridColors::focus, color); }
    COLORREF GetFocusColor() const { return Colors().focus; }
    void SetFocusTextColor(COLORREF color) { ChangeColor(&GridColors::focusText, color); }
    COLORREF GetFocusTextColor() const { return Colors().focusText; }
    void SetEditableColor(COLORREF color) { ChangeColor(&GridColors::editable, color); }
    COLORREF GetEditableColor() const { return Colors().editable; }
    void SetNonEditableColor(COLORREF color) { ChangeColor(&GridColors::nonEditable, color); }
    COLORREF GetNonEditableColor() const { return Colors().nonEditable; }

protected:
    CGridColoring();
    ~CGridColoring() = default;

    // Where the client set none.
    void TakeSystemColors();

private:
    static constexpr std::size_t kColorRoles = 8;

    const GridColors& Colors() const { return m_model.settings.colors; }
    void ChangeColor(Color GridColors::*color, COLORREF value);

    std::bitset<kColorRoles> m_setByClient;
};

}  // namespace tavrin::propgrid
