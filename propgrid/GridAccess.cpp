#include "propgrid/GridAccess.h"

#include "propgrid/painter/FrameworkTypes.h"
#include "propgrid/painter/SystemText.h"

namespace tavrin::propgrid {

using namespace accessible;

std::optional<LRESULT> CGridAccess::Answer(WPARAM flags, LPARAM object) {
    return m_accessible.Answer(Window(), flags, object);
}

void CGridAccess::Disconnect() {
    m_accessible.Disconnect();
    m_requests.clear();
}

// The children's numbers are those of the moment at which all of them are taken.
void CGridAccess::Report() {
    const HWND window = Window();
    for (const AccessibleEvent& event : m_changes.Take([=] { return ::GetFocus() == window; })) {
        ReportEvent(window, event.event, event.child);
    }
}

std::optional<AccessRequest> CGridAccess::TakeRequest() {
    if (m_requests.empty()) {
        return std::nullopt;
    }
    const AccessRequest request = m_requests.front();
    m_requests.pop_front();
    return request.generation == m_model.GetGeneration() ? std::optional(request) : std::nullopt;
}

// A question comes between two messages: rows may have been added, or scrolled, since the last one.
CAccessibleRows& CGridAccess::Rows() {
    m_window.UpdateLayout();
    return m_rows;
}

std::wstring CGridAccess::GetName(int child) {
    if (child != kSelf) {
        return Rows().GetName(child);
    }
    if (!m_name.empty()) {
        return m_name;
    }
    CString text;
    m_window.GetWindow().GetWindowText(text);
    return text.GetString();
}

std::optional<std::wstring> CGridAccess::GetValue(int child) {
    const CWindowDC screen(nullptr);
    return Rows().GetValue(child, CSystemText(screen.GetDeviceCaps(LOGPIXELSY)));
}

RECT CGridAccess::GetRect(int child) {
    return ToCRect(Rows().GetRect(child));
}

int CGridAccess::HitTest(POINT point) {
    return Rows().HitTest(ToPoint(point));
}

bool CGridAccess::Select(int child) {
    if ((GetState(child) & STATE_FOCUSABLE) == 0) {
        return false;
    }
    Post({m_rows.FindRow(child)});
    return true;
}

void CGridAccess::Post(AccessRequest request) {
    request.generation = m_model.GetGeneration();
    m_requests.push_back(request);
    ::PostMessage(Window(), WM_GRID_ACCESS_REQUEST, 0, 0);
}

}  // namespace tavrin::propgrid
