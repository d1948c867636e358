#include "propgrid/GridColoring.h"

namespace tavrin::propgrid {

namespace {

Color SystemColor(int index) {
    return static_cast<Color>(::GetSysColor(index));
}

}  // namespace

CGridColoring::CGridColoring() {
    m_model.settings.colors = {.text = SystemColor(COLOR_WINDOWTEXT),
                               .title = SystemColor(COLOR_WINDOWTEXT),
                               .back = SystemColor(COLOR_WINDOW),
                               .shade = SystemColor(COLOR_BTNFACE),
                               .focus = SystemColor(COLOR_HIGHLIGHT),
                               .focusText = SystemColor(COLOR_HIGHLIGHTTEXT),
                               .editable = SystemColor(COLOR_WINDOWTEXT),
                               .nonEditable = SystemColor(COLOR_GRAYTEXT)};
}

}  // namespace tavrin::propgrid
