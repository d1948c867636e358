#include "propgrid/GridAppearance.h"

namespace tavrin::propgrid {

namespace {

Color SystemColor(int index) {
    return static_cast<Color>(::GetSysColor(index));
}

}  // namespace

CGridAppearance::CGridAppearance() {
    m_model.settings.colors = {.text = SystemColor(COLOR_WINDOWTEXT),
                               .title = SystemColor(COLOR_WINDOWTEXT),
                               .back = SystemColor(COLOR_WINDOW),
                               .shade = SystemColor(COLOR_BTNFACE),
                               .focus = SystemColor(COLOR_HIGHLIGHT),
                               .focusText = SystemColor(COLOR_HIGHLIGHTTEXT),
                               .editable = SystemColor(COLOR_WINDOWTEXT),
                               .nonEditable = SystemColor(COLOR_GRAYTEXT)};
}

void CGridAppearance::SetDisplayMode(UINT mode) {
    LeaveEditor();
    m_model.settings.displayMode = mode;
    Relayout();
}

void CGridAppearance::SetGutterWidth(int x) {
    if (x != GetGutterWidth()) {
        LeaveEditor();
    }
    Change(m_model.settings.gutter, x);
}

void CGridAppearance::SetBooleanTexts(const std::wstring& trueText, const std::wstring& falseText) {
    m_model.settings.texts.trueText = trueText;
    Change(m_model.settings.texts.falseText, falseText);
}

}  // namespace tavrin::propgrid
