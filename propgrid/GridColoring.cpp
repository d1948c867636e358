#include "propgrid/GridColoring.h"

#include <iterator>

namespace tavrin::propgrid {

namespace {

// What each colour is taken from.
struct ColorRole {
    Color GridColors::*color;
    int systemIndex;
};
constexpr ColorRole kRoles[] = {
    {&GridColors::text, COLOR_WINDOWTEXT},     {&GridColors::title, COLOR_WINDOWTEXT},
    {&GridColors::back, COLOR_WINDOW},         {&GridColors::shade, COLOR_BTNFACE},
    {&GridColors::focus, COLOR_HIGHLIGHT},     {&GridColors::focusText, COLOR_HIGHLIGHTTEXT},
    {&GridColors::editable, COLOR_WINDOWTEXT}, {&GridColors::nonEditable, COLOR_GRAYTEXT},
};

}  // namespace

CGridColoring::CGridColoring() {
    TakeSystemColors();
}

void CGridColoring::TakeSystemColors() {
    static_assert(std::size(kRoles) == kColorRoles);
    for (std::size_t index = 0; index < kColorRoles; ++index) {
        if (!m_setByClient[index]) {
            const DWORD color = ::GetSysColor(kRoles[index].systemIndex);
            m_model.settings.colors.*kRoles[index].color = static_cast<Color>(color);
        }
    }
}

void CGridColoring::ChangeColor(Color GridColors::*color, COLORREF value) {
    for (std::size_t index = 0; index < kColorRoles; ++index) {
        m_setByClient[index] = m_setByClient[index] || kRoles[index].color == color;
    }
    Change(m_model.settings.colors.*color, static_cast<Color>(value));
}

}  // namespace tavrin::propgrid
