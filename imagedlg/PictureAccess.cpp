#include "imagedlg/PictureAccess.h"

#include <utility>

namespace tavrin::imagedlg {

using namespace accessible;

void CPictureAccess::SetSelectable(const std::wstring& key) {
    m_selectable = true;
    m_key = key;
}

void CPictureAccess::SetSelected(bool selected) {
    const HWND window = m_picture.GetSafeHwnd();
    if (std::exchange(m_selected, selected) == selected || window == nullptr) {
        return;
    }
    ReportEvent(window, EVENT_STATE_CHANGE, kSelf);
    if (selected) {
        ReportEvent(window, EVENT_SELECTION, kSelf);
    }
}

std::optional<LRESULT> CPictureAccess::Answer(WPARAM flags, LPARAM object) {
    return m_accessible.Answer(m_picture.GetSafeHwnd(), flags, object);
}

unsigned CPictureAccess::GetState(int /*child*/) {
    const unsigned state = StateOf(ReadCondition(m_picture.GetSafeHwnd()));
    const unsigned selected = m_selected ? STATE_SELECTED : STATE_NORMAL;
    return m_selectable ? state | STATE_SELECTABLE | selected : state;
}

std::wstring CPictureAccess::GetName(int /*child*/) {
    CString text;
    m_picture.GetWindowText(text);
    return text.GetString();
}

std::wstring CPictureAccess::GetDefaultAction(int /*child*/) {
    return m_selectable ? L"Select" : L"";
}

void CPictureAccess::DoDefaultAction(int /*child*/) {
    const HWND window = m_picture.GetSafeHwnd();
    ::PostMessage(::GetParent(window), WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(window), STN_CLICKED),
                  reinterpret_cast<LPARAM>(window));
}

bool CPictureAccess::Select(int child) {
    if (m_selectable) {
        DoDefaultAction(child);
    }
    return m_selectable;
}

}  // namespace tavrin::imagedlg
