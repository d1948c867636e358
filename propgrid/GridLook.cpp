#include "propgrid/GridLook.h"

namespace tavrin::propgrid {

void CGridLook::SetDisplayMode(UINT mode) {
    LeaveEditor();
    m_model.settings.displayMode = mode;
    Relayout();
}

void CGridLook::SetGutterWidth(int x) {
    if (x != GetGutterWidth()) {
        LeaveEditor();
    }
    Change(m_model.settings.gutter, x);
}

}  // namespace tavrin::propgrid
