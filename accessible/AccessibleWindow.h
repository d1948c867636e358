// A window's side of its accessible object: hands the object out and lets go of it when the window goes.
//
//     LRESULT CList::OnGetObject(WPARAM flags, LPARAM object) {
//         const std::optional<LRESULT> answer = m_accessible.Answer(m_hWnd, flags, object);
//         return answer ? *answer : Default();
//     }
#pragma once

#include <windows.h>

#include <optional>

#include "accessible/IAccessibleContents.h"

namespace tavrin::accessible {

class CAccessibleObject;

class CAccessibleWindow {
public:
    // The contents belong to the window, which has this object among its members.
    explicit CAccessibleWindow(IAccessibleContents& contents) : m_contents(contents) {}
    ~CAccessibleWindow() { Disconnect(); }
    CAccessibleWindow(const CAccessibleWindow&) = delete;
    CAccessibleWindow& operator=(const CAccessibleWindow&) = delete;

    // The answer to WM_GETOBJECT, with its parameters: the window's one object, made when it is first asked
    // for. Nothing, and the window's default handling is to follow, when another object than the client
    // area's is asked for, or when the system cannot hand it out.
    std::optional<LRESULT> Answer(HWND window, WPARAM flags, LPARAM object);

    // To be called at WM_DESTROY. Who still holds the object learns from it that the window is gone; other
    // processes are cut off from it, so that the module can be unloaded.
    void Disconnect();

private:
    IAccessibleContents& m_contents;
    CAccessibleObject* m_object = nullptr;  // one reference of it
};

inline WindowCondition ReadCondition(HWND window) {
    return {.visible = ::IsWindowVisible(window) != FALSE,
            .enabled = ::IsWindowEnabled(window) != FALSE,
            .hasFocus = ::GetFocus() == window};
}

// Reports what happened to a window's client area (kSelf) or to a child in it.
inline void ReportEvent(HWND window, EEvent event, int child) {
    ::NotifyWinEvent(event, window, OBJID_CLIENT, child);
}

}  // namespace tavrin::accessible
