#include "accessible/AccessibleWindow.h"

#include <utility>

#include "accessible/AccessibleObject.h"

namespace tavrin::accessible {

std::optional<LRESULT> CAccessibleWindow::Answer(HWND window, WPARAM flags, LPARAM object) {
    // 64-bit callers may or may not extend the sign.
    if (static_cast<LONG>(object) != OBJID_CLIENT) {
        return std::nullopt;
    }
    if (m_object != nullptr && m_object->GetWindow() != window) {
        Disconnect();
    }
    if (m_object == nullptr) {
        m_object = new CAccessibleObject(window, m_contents);
    }
    const LRESULT answer = ::LresultFromObject(__uuidof(IAccessible), flags, m_object);
    return FAILED(static_cast<HRESULT>(answer)) ? std::nullopt : std::optional(answer);
}

void CAccessibleWindow::Disconnect() {
    if (CAccessibleObject* const object = std::exchange(m_object, nullptr)) {
        object->Disconnect();
        ::CoDisconnectObject(object, 0);
        object->Release();
    }
}

}  // namespace tavrin::accessible
