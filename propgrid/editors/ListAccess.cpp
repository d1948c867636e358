#include "propgrid/editors/ListAccess.h"

#include "propgrid/painter/FrameworkTypes.h"

namespace tavrin::propgrid {

using namespace accessible;

std::optional<LRESULT> CListAccess::Answer(WPARAM flags, LPARAM object) {
    return m_accessible.Answer(m_list.GetSafeHwnd(), flags, object);
}

void CListAccess::ReportSelection() const {
    const HWND window = m_list.GetSafeHwnd();
    const int child = m_contents.GetSelectedChild();
    ReportEvent(window, EVENT_SELECTION, child);
    ReportEvent(window, EVENT_FOCUS, child);
}

ERole CListAccess::GetRole(int child) {
    return child == kSelf ? ROLE_LIST : ROLE_LIST_ITEM;
}

std::optional<std::wstring> CListAccess::GetValue(int child) {
    const bool hasValue = child == kSelf && m_contents.GetSelectedChild() != kSelf;
    return hasValue ? std::optional(m_contents.GetName(m_contents.GetSelectedChild())) : std::nullopt;
}

std::wstring CListAccess::GetDefaultAction(int child) {
    return child == kSelf ? L"" : L"Select";
}

std::wstring CListAccess::GetShortcut(int child) {
    return child != kSelf && child == m_contents.GetSelectedChild() ? L"Enter" : L"";
}

RECT CListAccess::GetRect(int child) {
    return ToCRect(m_contents.GetRect(child));
}

int CListAccess::HitTest(POINT point) {
    return m_contents.HitTest(ToPoint(point));
}

bool CListAccess::Select(int child) {
    if (child != kSelf) {
        Post(child, false);
    }
    return child != kSelf;
}

// The list deliberately takes any index: one that has no string by then does no harm.
void CListAccess::Post(int child, bool choose) const {
    ::PostMessage(m_list.GetSafeHwnd(), WM_LIST_ACCESS_REQUEST, static_cast<WPARAM>(child), choose ? 1 : 0);
}

}  // namespace tavrin::propgrid
